#pragma once

#include "check/source/PxCheckedProduct.h"

#include <geometry/PxPageContext.h>

#include <QRect>
#include <QVector>

/** The pages of a product with each page count that it is sold with. */
class PxProductPages
{
public:
    struct Page
    {
        int number; ///< from 0
        PxPageType type;
        PxPageAlignment alignment;
    };
    /** The product with one page count. */
    struct Layout
    {
        int normalPageCount;
        QVector<PxPageTypeEnum> pages;
    };

    /** The product must outlive this. */
    explicit PxProductPages(const PxCheckedProduct &product);

    /**
     * A page with its bleed, from its upper left corner. Empty if it is larger than any real one:
     * computing with it might overflow.
     */
    static QRect sheet(const QSize &page, int horizontalBleed, int verticalBleed);

    /** False if the page list is ambiguous. Checks that depend on page numbers are skipped then. */
    bool isKnown() const { return !m_layouts.isEmpty(); }
    /** By page count, ascending. */
    const QVector<Layout> &layouts() const { return m_layouts; }
    /** The pages of all layouts, each once. */
    const QVector<Page> &pages() const { return m_pages; }
    /** The types of all pages together. */
    PxPageType pageTypes() const { return m_pageTypes; }
    /**
     * Type and side of each page, as default templates are looked up. None if the pages are not
     * known, or if another finding says that a page is missing or at the wrong place.
     */
    QVector<PxPageContext> contexts() const;
    /** The largest number that a page has. */
    int lastPage() const { return m_lastPage; }

private:
    bool isPlain() const;
    bool isInOrder() const;
    QVector<int> pageCounts() const;
    QVector<int> pageCountsOfBook() const;
    QVector<PxPageTypeEnum> pagesWith(int normalPageCount) const;
    void collectPages();

    const PxCheckedProduct &m_product;
    QVector<Layout> m_layouts;
    QVector<Page> m_pages;
    PxPageType m_pageTypes;
    int m_lastPage = 0;
};
