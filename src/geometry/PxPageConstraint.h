#pragma once

#include "geometry/PxPageContext.h"

#include <PxEmptyMeansAllSet.h>

#include <QtGlobal>

class QDebug;
class QDomElement;

/**
 * The kinds of page and the sides of a spread on which a template or layout may be used.
 *
 * There is one set for each. An empty set, which is the default, admits everything.
 */
class PXPRODUCTPROPERTIES_EXPORT PxPageConstraint
{
public:
    PxPageConstraint() = default;
    /** Admits the single bits of both; a value of 0 admits everything. */
    PxPageConstraint(const PxPageType &pageType, const PxPageAlignment &alignment);
    /** The same for the page type and the alignment of a page. */
    explicit PxPageConstraint(const PxPageContext &pageContext);
    PxPageConstraint(const PxPageConstraint &other);
    PxPageConstraint &operator=(const PxPageConstraint &other);
    virtual ~PxPageConstraint();

    /** The kinds of page that are admitted. */
    PxEmptyMeansAllSet<PxPageType> pageTypes() const { return m_pageTypes; }
    /** The sides that are admitted. */
    PxEmptyMeansAllSet<PxPageAlignment> intendetAlignments() const { return m_intendetAlignments; }
    /** Whether it admits at least one of the kinds of page in `pageType`. */
    bool isPageType(const PxPageType &pageType) const;
    /** Whether there is a page that both admit. */
    bool matches(const PxPageConstraint &other) const;

    /** Admits only the single bits of the argument. */
    void setPageTypes(const PxPageType &pageType);
    /** Admits the argument in addition, as one element that is not split into bits. */
    void addPageType(const PxPageType &pageType);
    /** Admits only the single bits of the argument. */
    void setIntendetAlignment(const PxPageAlignment &alignment);
    /** Admits the single bits of the argument in addition. */
    void addIntendetAlignment(const PxPageAlignment &alignment);

    /** Appends one "pagetype" or "intendetAlignment" child per element of the sets. */
    void toXml(QDomElement &parent) const;

private:
    PxEmptyMeansAllSet<PxPageType> m_pageTypes;
    PxEmptyMeansAllSet<PxPageAlignment> m_intendetAlignments;
};

Q_DECLARE_TYPEINFO(PxPageConstraint, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxPageConstraint &constraint);
