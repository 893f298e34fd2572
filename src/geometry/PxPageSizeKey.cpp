#include "geometry/PxPageSizeKey.h"

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
    // No strict order: the page count never decides. Do not sort by it.
    return m_pageCount != other.m_pageCount && m_pageContext < other.m_pageContext;
}
