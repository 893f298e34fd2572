#pragma once

#include "check/source/PxCheckedProduct.h"

#include <geometry/PxBarcodeList.h>

class PxProductPages;

/** Checks the barcodes: whether there is something to print, and a page to print it on. */
class PxBarcodeCheck
{
public:
    /** Both must outlive the check. */
    PxBarcodeCheck(const PxCheckedProduct &product, const PxProductPages &pages);

    void run(PxFindings *findings) const;

private:
    /** A page of a product with so many normal pages, and pages in all. */
    struct Place
    {
        int page;
        PxPageType pageType;
        int normalPageCount;
        int pageCount;
    };

    bool checkRect(int index, PxFindings *findings) const;
    QVector<Place> places(int index) const;
    int shadowOf(int index, const QVector<Place> &places) const;
    bool checkReach(int index, const QVector<Place> &places, PxFindings *findings) const;
    void checkInside(int index, const QVector<Place> &places, PxFindings *findings) const;

    const PxCheckedProduct &m_product;
    const PxProductPages &m_pages;
    QVector<const PxSourceElement *> m_elements;
    PxBarcodeList m_barcodes; // one for each element
};
