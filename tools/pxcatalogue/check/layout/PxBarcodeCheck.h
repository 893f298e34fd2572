#pragma once

#include "check/findings/PxReporter.h"
#include "check/layout/PxProductPages.h"
#include "check/words/PxImageNames.h"

#include <geometry/PxBarcodeList.h>

/** Checks the barcodes: whether there is something to print, and a page to print it on. */
class PxBarcodeCheck
{
public:
    /** All of them must outlive the check. No barcode is compared with a size in another unit. */
    PxBarcodeCheck(const PxCheckedProduct &product, const PxProductPages &pages, bool isInOtherUnit,
                   PxImageNames &images, const PxReporter &report);

    void run();

private:
    /** A page of the product with one of its page counts. */
    struct Place
    {
        int page;
        PxPageType pageType;
        int normalPageCount;
        int pageCount;
    };

    bool checkRect(int index) const;
    QVector<Place> places(int index) const;
    int shadowOf(int index, const QVector<Place> &places) const;
    bool checkReach(int index, const QVector<Place> &places) const;
    void checkInside(int index, const QVector<Place> &places) const;

    const PxCheckedProduct &m_product;
    const PxProductPages &m_pages;
    const bool m_isInOtherUnit;
    PxImageNames &m_images;
    const PxReporter m_report;
    QVector<const PxSourceElement *> m_elements;
    PxBarcodeList m_barcodes; // one for each element
};
