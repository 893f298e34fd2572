#pragma once

#include "check/findings/PxReporter.h"
#include "check/layout/PxPageNumberCheck.h"
#include "check/rules/PxElementReading.h"

/** Checks the redirects: of pages when the product is turned, of content that is dropped. */
class PxRedirectCheck
{
public:
    /** Both must outlive the check. */
    PxRedirectCheck(const PxCheckedProduct &product, const PxProductPages &pages,
                    const PxReporter &report)
        : m_product(product)
        , m_pages(pages)
        , m_report(report)
    {}

    void run();

private:
    /** Pages whose content goes to another one. */
    struct Range
    {
        const PxSourceElement *element;
        int first;
        int last;
        int target;
    };

    /** Whether the library keeps it. */
    bool checkRotation(const PxSourceElement &redirect) const;
    void checkRotationPages(const QVector<const PxSourceElement *> &redirects) const;
    bool checkGiven(PxTag tag, const PxElementReading &redirect) const;
    void checkContent(const PxSourceElement &redirect, QVector<Range> *ranges) const;
    void checkIncomplete(const PxSourceElement &redirect) const;
    void checkContentPages(const QVector<Range> &ranges) const;
    void checkOverlaps(const QVector<Range> &ranges) const;

    const PxCheckedProduct &m_product;
    const PxProductPages &m_pages;
    const PxReporter m_report;
};
