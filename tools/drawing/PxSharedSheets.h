#pragma once

#include "drawing/PxDrawnProduct.h"

/** A sheet that a product has with one page count or several. */
struct PxSharedSheet
{
    struct Use
    {
        int pageCount;
        QVector<int> pages; ///< all that look like the sheet, ascending
    };

    /** As with the first page count; it stands for no pages if these are others with the next. */
    PxDrawnSheet sheet;
    QVector<Use> uses;
};

/**
 * The sheets of one product, which was read with several page counts. Those that look the same
 * apart from the numbers of their pages are one. The order is that of their first pages.
 */
QVector<PxSharedSheet> pxSharedSheets(const QVector<PxDrawnProduct> &products);
