#include "geometry/PxPageContext.h"

#include <QDebug>

PxPageContext::PxPageContext() : m_pageType(PxPageTypeNormalPage), m_alignment(PxPageAlignmentLeft)
{}

PxPageContext::PxPageContext(const PxPageType &pageType, const PxPageAlignment &alignment)
    : m_pageType(pageType)
    , m_alignment(alignment)
{}

bool PxPageContext::matchesWith(const PxPageContext &other) const
{
    return m_pageType.matches(other.m_pageType.value()) && (m_alignment & other.m_alignment) != 0;
}

bool PxPageContext::operator==(const PxPageContext &other) const
{
    return m_pageType == other.m_pageType && m_alignment == other.m_alignment;
}

bool PxPageContext::operator<(const PxPageContext &other) const
{
    if (m_pageType == other.m_pageType)
        return m_alignment < other.m_alignment;
    return m_pageType < other.m_pageType;
}

QDebug operator<<(QDebug debug, const PxPageContext &page)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxPageContext(" << page.pageType() << ", alignment "
                           << int(page.alignment()) << ')';
}
