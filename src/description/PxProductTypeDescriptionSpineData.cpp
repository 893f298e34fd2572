#include "description/PxProductTypeDescriptionSpineData.h"

#include "geometry/PxClampedArithmetic.h"

#include <PxXMLParser.h>

#include <QDebug>
#include <QDomElement>
#include <QString>

PxProductTypeDescriptionSpineData::PxProductTypeDescriptionSpineData(const QDomElement &spine)
    : m_width(PxXMLParser::intAttribute(spine, QStringLiteral("width"), 0))
    , m_maxFontHeight(PxXMLParser::intAttribute(spine, QStringLiteral("maxfontheight"), 0))
{}

void PxProductTypeDescriptionSpineData::considerExtraCoverWidth(int extra)
{
    m_width = qMax(0, pxClampedSum(m_width, extra));
}

QDebug operator<<(QDebug debug, const PxProductTypeDescriptionSpineData &spine)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxProductTypeDescriptionSpineData(width " << spine.width()
                           << ", font height " << spine.maxFontHeight() << ')';
}
