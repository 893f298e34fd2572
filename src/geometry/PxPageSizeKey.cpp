#include "geometry/PxPageSizeKey.h"

#include <QDebug>

PxPageSizeKey::PxPageSizeKey(const PxPageContext &pageContext, int pageCount)
    : m_pageContext(pageContext)
    , m_pageCount(pageCount)
{}

bool PxPageSizeKey::operator==(const PxPageSizeKey &other) const
{
    return m_pageCount == other.m_pageCount && m_pageContext == other.m_pageContext;
}

bool PxPageSizeKey::operator<(const PxPageSizeKey &other) const
{
    // Not a strict order: the page count never decides. Applications rely on that.
    return m_pageCount != other.m_pageCount && m_pageContext < other.m_pageContext;
}

QDebug operator<<(QDebug debug, const PxPageSizeKey &key)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxPageSizeKey(" << key.pageContext() << ", " << key.pageCount()
                           << " pages)";
}
