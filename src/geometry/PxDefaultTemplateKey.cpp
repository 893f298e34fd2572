#include "geometry/PxDefaultTemplateKey.h"

#include <QDebug>
#include <QHash>

PxDefaultTemplateKey::PxDefaultTemplateKey(const QString &theme, const PxPageContext &pageContext,
                                           DefaultTemplateType defaultTemplateType)
    : m_theme(theme)
    , m_pageContext(pageContext)
    , m_defaultTemplateType(defaultTemplateType)
{}

void PxDefaultTemplateKey::setDefaultTheme()
{
    m_theme = QStringLiteral("normal");
}

bool PxDefaultTemplateKey::operator==(const PxDefaultTemplateKey &other) const
{
    return m_defaultTemplateType == other.m_defaultTemplateType && m_theme == other.m_theme &&
           m_pageContext == other.m_pageContext;
}

uint qHash(const PxDefaultTemplateKey &key, uint seed)
{
    return qHash(key.theme()) ^ seed ^ uint(key.defaultTemplateType()) ^
           uint(key.pageType().value()) ^ uint(key.pageAlignment());
}

QDebug operator<<(QDebug debug, const PxDefaultTemplateKey &key)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxDefaultTemplateKey(" << key.theme() << ", " << key.pageContext()
                           << (key.defaultTemplateType() == DefaultTemplateTypeLayout
                                   ? ", layout)"
                                   : ", background)");
}
