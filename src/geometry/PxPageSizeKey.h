#pragma once

#include "geometry/PxPageContext.h"

#include <QtGlobal>

class QDebug;

/** The key by which page sizes are found: a kind of page in a product with a certain page count. */
class PXPRODUCTPROPERTIES_EXPORT PxPageSizeKey
{
public:
    /** A normal page on the left, with any page count. */
    PxPageSizeKey() = default;
    /** The page count matters only for spines and bleed; -1 for any. */
    PxPageSizeKey(const PxPageContext &pageContext, int pageCount);

    /** The kind of page and its side. */
    PxPageContext pageContext() const { return m_pageContext; }
    /** The kind of page alone. */
    PxPageType pageType() const { return m_pageContext.pageType(); }
    /** The side of the page alone. */
    PxPageAlignment alignment() const { return m_pageContext.alignment(); }
    /** -1 for any page count. */
    int pageCount() const { return m_pageCount; }

    bool operator==(const PxPageSizeKey &other) const;
    bool operator!=(const PxPageSizeKey &other) const { return !(*this == other); }
    /** Compares the contexts if the page counts differ; false for equal page counts. */
    bool operator<(const PxPageSizeKey &other) const;

private:
    PxPageContext m_pageContext;
    int m_pageCount = -1;
};

Q_DECLARE_TYPEINFO(PxPageSizeKey, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxPageSizeKey &key);
