#include "drawing/PxPlacedItem.h"

namespace {

/** Sets what is drawn of an item, and whether that is all. */
void place(const PxDrawnSheet &sheet, PxPlacedItem *item)
{
    const PxDrawnPage &page = sheet.pages[item->page];
    const PxMargins &bleed = page.bleed;
    const QRectF trim(QPointF(), page.trim.size());
    const QRectF total = trim.adjusted(-qMax(0, bleed.left()), -qMax(0, bleed.top()),
                                       qMax(0, bleed.right()), qMax(0, bleed.bottom()));
    const qreal width = sheet.total.width();
    const qreal height = sheet.total.height();
    const QRectF limit = QRectF(sheet.total)
                             .translated(-page.trim.topLeft())
                             .adjusted(-width, -height, width, height);
    const auto isWithin = [item](const QRectF &area) {
        return item->rect.left() >= area.left() && item->rect.right() <= area.right() &&
               item->rect.top() >= area.top() && item->rect.bottom() <= area.bottom();
    };
    item->isOutside = !isWithin(item->item == PxDrawnItem::SpineText ? trim : total);
    item->isCut = !isWithin(limit);
    item->shown = item->isCut ? item->rect & limit : item->rect;
    if (item->isCut && item->shown.isEmpty()) // a place without area, for its letter
        item->shown = QRectF(qBound(limit.left(), item->rect.left(), limit.right()),
                             qBound(limit.top(), item->rect.top(), limit.bottom()), 0, 0);
}

PxPlacedItem itemOf(PxDrawnItem item, int page, const QRectF &rect, bool isEmpty = false)
{
    PxPlacedItem placed;
    placed.item = item;
    placed.page = page;
    placed.rect = rect;
    placed.isEmpty = isEmpty;
    return placed;
}

bool hasSurrounding(const PxDrawnPage &page, PxDrawnItem item)
{
    return page.surrounding.isValid() &&
           page.surrounding.paintOnTop() == (item == PxDrawnItem::Surrounding);
}

/** The library answers a barcode without an area as an invalid one, but with its image. */
bool hasBarcode(const PxDrawnPage &page)
{
    return page.barcode.isValid() || !page.barcode.imageName().isEmpty();
}

/** Between the safety margins, as wide as the largest text is high; null for none. */
QRectF spineText(const PxDrawnPage &page)
{
    const double top = page.safetyMargins.top();
    const double height = page.trim.height() - top - page.safetyMargins.bottom();
    if (page.spineTextHeight <= 0 || height <= 0)
        return QRectF();
    return QRectF((page.trim.width() - page.spineTextHeight) / 2.0, top, page.spineTextHeight,
                  height);
}

bool isSame(const PxDrawnPage &a, const PxDrawnPage &b, PxDrawnItem item)
{
    if (item == PxDrawnItem::Barcode)
        return a.barcode.rect() == b.barcode.rect() &&
               a.barcode.imageName() == b.barcode.imageName() &&
               a.barcode.reverseOrder() == b.barcode.reverseOrder();
    return a.surrounding.imageRect() == b.surrounding.imageRect() &&
           a.surrounding.image() == b.surrounding.image() &&
           a.surrounding.surroundingType() == b.surrounding.surroundingType();
}

void setKeys(const PxDrawnSheet &sheet, QVector<PxPlacedItem> *items)
{
    ushort letter = 'A';
    for (int i = 0; i < items->size(); ++i) {
        PxPlacedItem &item = (*items)[i];
        if (item.isEmpty)
            continue;
        for (int earlier = 0; earlier < i && item.key.isEmpty(); ++earlier) {
            const PxPlacedItem &other = items->at(earlier);
            if (other.item == item.item &&
                isSame(sheet.pages[other.page], sheet.pages[item.page], item.item))
                item.key = other.key;
        }
        if (item.key.isEmpty())
            item.key = QChar(letter++);
    }
}

} // namespace

QVector<PxPlacedItem> pxPlacedItems(const PxDrawnSheet &sheet)
{
    QVector<PxPlacedItem> items;
    for (const PxDrawnItem item : {PxDrawnItem::Surrounding, PxDrawnItem::SurroundingBelow}) {
        for (int i = 0; i < sheet.pages.size(); ++i) {
            const QRect rect = sheet.pages[i].surrounding.imageRect();
            if (hasSurrounding(sheet.pages[i], item))
                items.append(itemOf(item, i, rect, rect.isEmpty()));
        }
    }
    for (int i = 0; i < sheet.pages.size(); ++i) {
        const PxBarcode &barcode = sheet.pages[i].barcode;
        if (hasBarcode(sheet.pages[i]))
            items.append(itemOf(PxDrawnItem::Barcode, i, barcode.rect(), !barcode.isValid()));
    }
    setKeys(sheet, &items);
    for (int i = 0; i < sheet.pages.size(); ++i) {
        const QRectF text = spineText(sheet.pages[i]);
        if (!text.isEmpty())
            items.append(itemOf(PxDrawnItem::SpineText, i, text));
    }
    for (int i = 0; i < sheet.pages.size(); ++i) {
        if (sheet.pages[i].hasPageNumber)
            items.append(itemOf(PxDrawnItem::PageNumber, i,
                                QRectF(sheet.pages[i].pageNumber, QSizeF(0, 0))));
    }
    for (PxPlacedItem &item : items) {
        if (!item.isEmpty)
            place(sheet, &item);
    }
    return items;
}
