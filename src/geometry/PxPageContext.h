#pragma once

#include "values/PxPageType.h"

#include <PxPageAlignment.h>

#include <QMetaType>

class QDebug;

/** A kind of page and the side of a spread on which it lies. */
class PXPRODUCTPROPERTIES_EXPORT PxPageContext
{
public:
    /** A normal page on the left. */
    PxPageContext();
    /** Both may be sets of flags. */
    PxPageContext(const PxPageType &pageType, const PxPageAlignment &alignment);

    /** The kind of page, or a set of them. */
    PxPageType pageType() const { return m_pageType; }
    /** The side, or a set of them. */
    PxPageAlignment alignment() const { return m_alignment; }
    /** Whether it is exactly this page type, or this set of them; a common bit is not enough. */
    bool isPageType(const PxPageType &pageType) const { return m_pageType == pageType; }
    /** Whether both have a page type and an alignment in common. */
    bool matchesWith(const PxPageContext &other) const;

    bool operator==(const PxPageContext &other) const;
    bool operator!=(const PxPageContext &other) const { return !(*this == other); }
    /** By page type, then by alignment. */
    bool operator<(const PxPageContext &other) const;

private:
    PxPageType m_pageType;
    PxPageAlignment m_alignment;
};

Q_DECLARE_TYPEINFO(PxPageContext, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxPageContext)

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxPageContext &page);
