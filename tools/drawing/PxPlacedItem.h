#pragma once

#include "drawing/PxDrawnProduct.h"
#include "drawing/PxDrawnStyle.h"

#include <QRectF>
#include <QString>
#include <QVector>

/**
 * A thing with a place of its own on a page: a surrounding, a barcode, the text on a spine or a
 * page number, which is a point. Files may place it anywhere.
 */
struct PxPlacedItem
{
    PxDrawnItem item = PxDrawnItem::Barcode;
    int page = 0; ///< its index in the sheet
    QString key;  ///< "A", "B", …; empty for a text and a page number, and without an area
    QRectF rect;  ///< as the file has it, on the page
    QRectF shown; ///< the part that is drawn, on the page; of no size if nothing is
    bool isEmpty = false;   ///< it should have an area, but has none
    bool isOutside = false; ///< it reaches beyond the page with its bleed
    bool isCut = false;     ///< it reaches so far that only a part of it is drawn, or nothing
};

/**
 * What has a place on the pages of a sheet: surroundings above the content, those below it,
 * barcodes, the text on the spine, page numbers; each from left to right. Letters ascend in this
 * order, and what is the same on two pages has one letter.
 */
QVector<PxPlacedItem> pxPlacedItems(const PxDrawnSheet &sheet);
