#pragma once

#include "geometry/PxPageContext.h"

#include <PxEmptyMeansAllSet.h>

#include <QtGlobal>

class QDebug;
class QDomElement;

/**
 * On which kinds of page and on which sides of a spread a template or layout may be used.
 *
 * Each of the two sets admits everything while it is empty, as both are by default.
 */
class PXPRODUCTPROPERTIES_EXPORT PxPageConstraint
{
public:
    PxPageConstraint() = default;
    PxPageConstraint(const PxPageType &pageType, const PxPageAlignment &alignment);
    explicit PxPageConstraint(const PxPageContext &pageContext);
    PxPageConstraint(const PxPageConstraint &other);
    PxPageConstraint &operator=(const PxPageConstraint &other);
    virtual ~PxPageConstraint();

    PxEmptyMeansAllSet<PxPageType> pageTypes() const { return m_pageTypes; }
    PxEmptyMeansAllSet<PxPageAlignment> intendetAlignments() const { return m_intendetAlignments; }
    /** Admits one of the kinds of page in `pageType`. */
    bool isPageType(const PxPageType &pageType) const;
    /** Whether some page is admitted by both. */
    bool matches(const PxPageConstraint &other) const;

    /** Admits exactly the single bits of the argument. */
    void setPageTypes(const PxPageType &pageType);
    /** Admits the argument as one element, unsplit, beside the others. */
    void addPageType(const PxPageType &pageType);
    /** Admits exactly the single bits of the argument. */
    void setIntendetAlignment(const PxPageAlignment &alignment);
    /** Admits the single bits of the argument beside the others. */
    void addIntendetAlignment(const PxPageAlignment &alignment);

    /** Appends one "pagetype" or "intendetAlignment" child per element of the sets. */
    void toXml(QDomElement &parent) const;

private:
    PxEmptyMeansAllSet<PxPageType> m_pageTypes;
    PxEmptyMeansAllSet<PxPageAlignment> m_intendetAlignments;
};

Q_DECLARE_TYPEINFO(PxPageConstraint, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxPageConstraint &constraint);
