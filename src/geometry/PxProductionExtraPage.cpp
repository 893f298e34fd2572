#include "geometry/PxProductionExtraPage.h"

#include <QDebug>

PxProductionExtraPage::PxProductionExtraPage(const QString &filename, const QString &templateType,
                                             int targetLayer)
    : m_filename(filename)
    , m_templateType(templateType)
    , m_targetLayer(targetLayer)
{}

bool PxProductionExtraPage::operator==(const PxProductionExtraPage &other) const
{
    return m_filename == other.m_filename && m_templateType == other.m_templateType &&
           m_targetLayer == other.m_targetLayer;
}

QDebug operator<<(QDebug debug, const PxProductionExtraPage &page)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxProductionExtraPage(" << page.filename() << ", "
                           << page.templateType() << ", layer " << page.targetLayer() << ')';
}
