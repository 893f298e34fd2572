#pragma once

#include "geometry/PxPageContext.h"

#include <QtGlobal>

class QDebug;

/** Under which surroundings are looked up: a kind of page, and which page it is. */
class PXPRODUCTPROPERTIES_EXPORT PxSurroundingKey
{
public:
    /** A normal page on the left, whichever it is. */
    PxSurroundingKey() = default;
    explicit PxSurroundingKey(const PxPageContext &pageContext, int pageIndex = -1);

    PxPageContext pageContext() const { return m_pageContext; }
    PxPageType pageType() const { return m_pageContext.pageType(); }
    PxPageAlignment alignment() const { return m_pageContext.alignment(); }
    /** -1 for no particular page. */
    int pageIndex() const { return m_pageIndex; }

    /**
     * Whether a surrounding with this key may be painted on the page `other`.
     *
     * Equal page indexes are enough, also two of -1; a key without one fits every matching context.
     */
    bool isOkayFor(const PxSurroundingKey &other) const;

    bool operator==(const PxSurroundingKey &other) const;
    bool operator!=(const PxSurroundingKey &other) const { return !(*this == other); }
    /** Between different page indexes the order of the contexts; false between equal ones. */
    bool operator<(const PxSurroundingKey &other) const;

private:
    PxPageContext m_pageContext;
    int m_pageIndex = -1;
};

Q_DECLARE_TYPEINFO(PxSurroundingKey, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxSurroundingKey &key);
