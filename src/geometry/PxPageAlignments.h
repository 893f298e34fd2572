#pragma once

#include <PxPageAlignment.h>

#include <QDomElement>
#include <QString>

/** The sides of the pages that an element is for: its "alignment", all single pages by default. */
inline PxPageAlignment pxPageAlignments(const QDomElement &element)
{
    const QString name = QStringLiteral("alignment");
    if (!element.hasAttribute(name))
        return PxPageAlignmentSinglePages;
    return EnumHelper::decodeKeywordList(element.attribute(name),
                                         EnumHelper::globalMapPageAlignmentString,
                                         EnumHelper::globalPageAlignmentDefaultValue);
}
