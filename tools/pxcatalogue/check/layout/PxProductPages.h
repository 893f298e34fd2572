#pragma once

#include "check/source/PxPageEntries.h"

#include <QVector>

/** Which pages a product can have, with any page count that it is sold with. */
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

    /** Both must outlive this. */
    PxProductPages(const PxCheckedProduct &product, const PxPageEntries &entries);

    /** False where the file leaves doubt: then nothing shall be said that rests on the pages. */
    bool isKnown() const { return !m_layouts.isEmpty(); }
    /** By page count, ascending. */
    const QVector<Layout> &layouts() const { return m_layouts; }
    /** The pages of all layouts, each once. */
    const QVector<Page> &pages() const { return m_pages; }
    /** The types of all pages in one. */
    PxPageType pageTypes() const { return m_pageTypes; }
    /** The largest number that a page has. */
    int lastPage() const { return m_lastPage; }

private:
    bool isPlain() const;
    QVector<int> pageCounts() const;
    QVector<int> pageCountsOfBook() const;
    QVector<PxPageTypeEnum> pagesWith(int normalPageCount) const;
    void collectPages();

    const PxCheckedProduct &m_product;
    const PxPageEntries &m_entries;
    QVector<Layout> m_layouts;
    QVector<Page> m_pages;
    PxPageType m_pageTypes;
    int m_lastPage = 0;
};
