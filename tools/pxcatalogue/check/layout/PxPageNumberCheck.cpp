#include "check/layout/PxPageNumberCheck.h"

#include <algorithm>

PxPageNumberCheck::PxPageNumberCheck(const PxProductPages &pages, const QVector<int> &numbers,
                                     const PxReporter &report)
    : m_pages(pages)
    , m_report(report)
    , m_areFromOne(pages.isKnown() && !numbers.isEmpty() &&
                   *std::min_element(numbers.begin(), numbers.end()) >= 1 &&
                   *std::max_element(numbers.begin(), numbers.end()) == m_pages.lastPage() + 1)
{}

PxAddedFinding PxPageNumberCheck::add(int number, const PxSourceRange &range) const
{
    PxAddedFinding finding =
        m_report.add(PxTag::PageNotInProduct, range, "the product has no page %1", number);
    if (m_pages.lastPage() == 0)
        finding.hint("its only page is 0");
    else
        finding.hint("its pages are 0 to %1", m_pages.lastPage());
    return finding;
}
