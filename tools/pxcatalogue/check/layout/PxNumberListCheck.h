#pragma once

#include "check/findings/PxReporter.h"
#include "check/layout/PxProductPages.h"
#include "check/source/PxSourceParts.h"

/** Checks lists of page numbers, and what production makes of them. */
class PxNumberListCheck
{
public:
    /** Both must outlive the check. */
    PxNumberListCheck(const PxCheckedProduct &product, const PxProductPages &pages,
                      const PxReporter &report)
        : m_product(product)
        , m_pages(pages)
        , m_report(report)
    {}

    void run();

private:
    /** Whether every part is a number. */
    bool checkParts(const PxSourceElement &list) const;
    void checkNumbering(const PxSourceElement &list) const;
    bool checkRepeated(const QVector<PxSourcePart> &parts, const QList<int> &given) const;
    void checkContinued(const PxSourcePart &last, const QList<int> &given) const;
    void checkExtraPage(const PxSourceElement &item) const;

    const PxCheckedProduct &m_product;
    const PxProductPages &m_pages;
    const PxReporter m_report;
};
