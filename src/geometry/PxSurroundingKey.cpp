#include "geometry/PxSurroundingKey.h"

#include <QDebug>

PxSurroundingKey::PxSurroundingKey(const PxPageContext &pageContext, int pageIndex)
    : m_pageContext(pageContext)
    , m_pageIndex(pageIndex)
{}

bool PxSurroundingKey::isOkayFor(const PxSurroundingKey &other) const
{
    if (m_pageIndex == -1 && m_pageContext.matchesWith(other.m_pageContext))
        return true;
    // A surrounding pinned to a page fits that page whatever its type and alignment.
    return m_pageIndex == other.m_pageIndex;
}

bool PxSurroundingKey::operator==(const PxSurroundingKey &other) const
{
    return m_pageIndex == other.m_pageIndex && m_pageContext == other.m_pageContext;
}

bool PxSurroundingKey::operator<(const PxSurroundingKey &other) const
{
    // Not a strict order: the page index never decides. Applications rely on that.
    return m_pageIndex != other.m_pageIndex && m_pageContext < other.m_pageContext;
}

QDebug operator<<(QDebug debug, const PxSurroundingKey &key)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxSurroundingKey(" << key.pageContext() << ", page "
                           << key.pageIndex() << ')';
}
