#pragma once

#include "check/findings/PxReporter.h"
#include "check/layout/PxPageNumberCheck.h"
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
    void checkPages(const PxSourceElement &list, const PxPageNumberCheck &check,
                    const QString &now) const;
    void checkPagesWithContent(const PxSourceElement &list) const;
    void checkTargetPages(const QVector<const PxSourceElement *> &items) const;
    void checkExtraPage(const PxSourceElement &item) const;

    const PxCheckedProduct &m_product;
    const PxProductPages &m_pages;
    const PxReporter m_report;
};
