#include "export/PxPageRuns.h"

#include "format/PxCatalogueKeywords.h"

#include <QJsonObject>

namespace {

constexpr qint64 maximumPages = PxProductTypeDescription::maximumListedPages;

/** The sides of pages repeat after two pages, but the first two pages are a cover and its spine. */
constexpr int pagesWithAllSides = 4;

/** The index behind the pages of the same type. */
int endOfRun(const PxPageTypeList &pages, int begin)
{
    int end = begin + 1;
    while (end < pages.size() && pages[end] == pages[begin])
        ++end;
    return end;
}

} // namespace

PxPageRuns::PxPageRuns(const PxProductTypeDescription &product) : m_product(product)
{
    // Both lists have the same runs: from one page count to the next, only ranges become longer.
    const PxPageTypeList withOne = product.pageTypes(1);
    const PxPageTypeList withTwo = product.pageTypes(2);
    for (int one = 0, two = 0; one < withOne.size() && two < withTwo.size();) {
        const int endOfOne = endOfRun(withOne, one);
        const int endOfTwo = endOfRun(withTwo, two);
        const int perPageCount = (endOfTwo - two) - (endOfOne - one);
        m_runs.append({withOne[one], endOfOne - one - perPageCount, perPageCount});
        one = endOfOne;
        two = endOfTwo;
    }
}

int PxPageRuns::pageCount(int pageCount) const
{
    qint64 pages = 0;
    for (const Run &run : m_runs)
        pages += run.fixed + run.perPageCount * pageCount;
    return int(qMin(pages, maximumPages));
}

void PxPageRuns::addKindsTo(QList<PxPageContext> *kinds, int pageCount) const
{
    qint64 first = 0;
    for (const Run &run : m_runs) {
        const qint64 end = qMin(first + run.fixed + run.perPageCount * pageCount, maximumPages);
        for (qint64 page = first; page < qMin(first + pagesWithAllSides, end); ++page) {
            const PxPageContext kind(run.pageType, m_product.pageAlignment(int(page)));
            if (!kinds->contains(kind))
                kinds->append(kind);
        }
        first = end;
    }
}

QJsonArray PxPageRuns::toJson() const
{
    QJsonArray runs;
    for (const Run &run : m_runs)
        runs.append(QJsonObject{{"pageType", keywordOf(run.pageType)},
                                {"fixed", run.fixed},
                                {"perPageCount", run.perPageCount}});
    return runs;
}
