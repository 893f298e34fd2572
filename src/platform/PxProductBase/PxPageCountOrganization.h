#pragma once

#include "PxProductBaseExport.h"

#include <QtGlobal>

class QDebug;

/** How many pages a product may have, and in which steps. */
class PXPRODUCTBASE_EXPORT PxPageCountOrganization
{
public:
    /** Everything is kept as it is, even a minimum above the maximum. */
    PxPageCountOrganization(unsigned minimum, unsigned maximum, unsigned increment)
        : m_minimum(minimum)
        , m_maximum(maximum)
        , m_increment(increment)
    {}

    /** The smallest page count. */
    unsigned minimum() const { return m_minimum; }
    /** The largest page count. */
    unsigned maximum() const { return m_maximum; }
    /** 0 when the number of pages cannot be changed. */
    unsigned increment() const { return m_increment; }

    bool operator==(const PxPageCountOrganization &other) const;

private:
    unsigned m_minimum;
    unsigned m_maximum;
    unsigned m_increment;
};

Q_DECLARE_TYPEINFO(PxPageCountOrganization, Q_MOVABLE_TYPE);

PXPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const PxPageCountOrganization &pageCounts);
