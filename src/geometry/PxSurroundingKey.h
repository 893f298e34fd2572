#pragma once

#include "geometry/PxPageContext.h"

#include <QtGlobal>

class QDebug;

/** The key by which surroundings are found: a kind of page, and perhaps one particular page. */
class PXPRODUCTPROPERTIES_EXPORT PxSurroundingKey
{
public:
    /** A normal page on the left, without a page index. */
    PxSurroundingKey() = default;
    /** Everything is kept as it is. */
    explicit PxSurroundingKey(const PxPageContext &pageContext, int pageIndex = -1);

    /** The kind of page and its side. */
    PxPageContext pageContext() const { return m_pageContext; }
    /** The kind of page alone. */
    PxPageType pageType() const { return m_pageContext.pageType(); }
    /** The side of the page alone. */
    PxPageAlignment alignment() const { return m_pageContext.alignment(); }
    /** -1 for no particular page. */
    int pageIndex() const { return m_pageIndex; }

    /**
     * Whether a surrounding with this key may be painted on the page `other`.
     *
     * Equal page indexes suffice, even if both are -1. A key with index -1 suits every page whose
     * context matches.
     */
    bool isOkayFor(const PxSurroundingKey &other) const;

    bool operator==(const PxSurroundingKey &other) const;
    bool operator!=(const PxSurroundingKey &other) const { return !(*this == other); }
    /** Compares the contexts if the page indexes differ; false for equal page indexes. */
    bool operator<(const PxSurroundingKey &other) const;

private:
    PxPageContext m_pageContext;
    int m_pageIndex = -1;
};

Q_DECLARE_TYPEINFO(PxSurroundingKey, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxSurroundingKey &key);
