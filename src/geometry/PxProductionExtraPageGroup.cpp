#include "geometry/PxProductionExtraPageGroup.h"

#include <PxListParts.h>
#include <PxXMLParser.h>

#include <QDebug>
#include <QDomElement>
#include <QString>

namespace {

PxProductionExtraPage readContent(const QDomElement &pdf)
{
    return PxProductionExtraPage(pdf.attribute(QStringLiteral("filename")),
                                 pdf.attribute(QStringLiteral("type")),
                                 PxXMLParser::intAttribute(pdf, QStringLiteral("layer"), 0));
}

} // namespace

PxProductionExtraPageGroup::PxProductionExtraPageGroup(const QDomElement &item)
    : m_targetPages(pxIntList(item.firstChildElement(QStringLiteral("target_pages")).text()))
    , m_content(readContent(item.firstChildElement(QStringLiteral("pdf"))))
{}

bool PxProductionExtraPageGroup::operator==(const PxProductionExtraPageGroup &other) const
{
    return m_targetPages == other.m_targetPages && m_content == other.m_content;
}

QDebug operator<<(QDebug debug, const PxProductionExtraPageGroup &group)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxProductionExtraPageGroup(" << group.targetPages() << ", "
                           << group.content() << ')';
}
