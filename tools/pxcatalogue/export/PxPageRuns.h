#pragma once

#include <PxProductProperties.h>

#include <QJsonArray>
#include <QVector>

/**
 * The pages of a product with any page count: runs of pages of one type, each of a fixed length or
 * longer with every page of the page count.
 *
 * The library lists the pages of one page count. The pages of all page counts, one by one, would be
 * far too many.
 */
class PxPageRuns
{
public:
    explicit PxPageRuns(const PxProductTypeDescription &product);

    /** How many pages the product has with a page count of 1 or more. */
    int pageCount(int pageCount) const;
    /** Adds the kinds of page that the product has with this page count, in the order of pages. */
    void addKindsTo(QList<PxPageContext> *kinds, int pageCount) const;
    /** Each run with its page type, its `fixed` pages and those `perPageCount`. */
    QJsonArray toJson() const;

private:
    struct Run
    {
        PxPageType pageType;
        qint64 fixed;
        qint64 perPageCount;
    };

    const PxProductTypeDescription &m_product;
    QVector<Run> m_runs;
};
