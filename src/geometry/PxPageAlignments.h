#pragma once

#include <PxPageAlignment.h>

#include <QDomElement>
#include <QString>

/**
 * The "alignment" of an element: the sides of the pages to which it applies, by default all of
 * single pages.
 */
inline PxPageAlignment pxPageAlignments(const QDomElement &element)
{
    const QString name = QStringLiteral("alignment");
    if (!element.hasAttribute(name))
        return PxPageAlignmentSinglePages;
    return EnumHelper::decodeKeywordList(element.attribute(name),
                                         EnumHelper::globalMapPageAlignmentString,
                                         EnumHelper::globalPageAlignmentDefaultValue);
}
