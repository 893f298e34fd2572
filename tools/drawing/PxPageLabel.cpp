#include "drawing/PxPageLabel.h"

#include "drawing/PxDrawnWords.h"
#include "drawing/PxShapeMaker.h"
#include "drawing/PxTextWidth.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(PxPageLabel)
};

// In annotation millimetres.
constexpr double smallestPage = 12;
constexpr double roleSize = 3.4;
constexpr double typeSize = 2.8;
constexpr double leading = 1.35; // of the font size
constexpr double padding = 1;

struct Line
{
    QString text;
    double fontSize;
    bool isBold;

    double width() const { return PxTextWidth::of(text, fontSize, isBold); }
    double height() const { return leading * fontSize; }
};

/** The lines of a label, the most important ones first, and which way they read. */
struct Label
{
    QVector<Line> lines;
    int complete = 0; ///< how many of the texts are there
    bool readsUpward = false;

    QSizeF size() const
    {
        QSizeF size(0, 0);
        for (const Line &line : lines)
            size = QSizeF(std::max(size.width(), line.width()), size.height() + line.height());
        return readsUpward ? size.transposed() : size;
    }
};

/** Texts from the most important one; names may be shortened, the others may not. */
QVector<QPair<QString, bool>> texts(const PxSheetRoom &room, int index)
{
    const PxDrawnPage &page = room.sheet().pages[index];
    QVector<QPair<QString, bool>> texts;
    if (page.role != PxDrawnPage::Role::Page) // the number says that it is a page
        texts.append({PxDrawnWords::role(page), false});
    const QString pages = PxDrawnWords::pages(PxDrawnWords::pagesLike(room.sheet(), index));
    if (!pages.isEmpty())
        texts.append({pages, true});
    texts.append({PxDrawnWords::size(page.trim.size()), false});
    const QString kind = PxDrawnWords::kindOfPage(page);
    if (!kind.isEmpty())
        texts.append({kind, false});
    if (!page.isPrinted)
        texts.append({Words::tr("wird nicht gedruckt"), false});
    if (!page.takesContent)
        texts.append({Words::tr("nimmt keine Inhalte auf"), false});
    for (const QString &name : {page.layoutTemplate, page.backgroundTemplate}) {
        if (!name.isEmpty())
            texts.append({PxDrawnWords::visible(name), true});
    }
    return texts;
}

Label label(const PxSheetRoom &room, int index, const QSizeF &available, bool readsUpward)
{
    const double width = readsUpward ? available.height() : available.width();
    const double height = readsUpward ? available.width() : available.height();
    Label label;
    label.readsUpward = readsUpward;
    double used = 0;
    for (const auto &text : texts(room, index)) {
        const bool isFirst = label.lines.isEmpty();
        const double size = PxShapeMaker::fontSize(isFirst ? roleSize : typeSize, room.a());
        const QStringList wrapped = PxTextWidth::wrapped(text.first, width, size, isFirst);
        const bool isWhole =
            wrapped.size() == 1 || (text.second && width > 16 * room.a() && !wrapped.isEmpty());
        const double needed = wrapped.size() * leading * size;
        if (!isWhole || used + needed > height)
            continue;
        for (const QString &line : wrapped)
            label.lines.append({line, size, isFirst});
        used += needed;
        ++label.complete;
    }
    return label;
}

/** The page without the strips along its inner edge. */
QRectF roomOn(const PxSheetRoom &room, const PxDrawnPage &page)
{
    QRectF rect(page.trim);
    for (const char *className : {"fold-margin", "clamp"}) {
        for (const PxSheetRoom::Item &item : room.items(className)) {
            const QRectF strip = item.rect;
            if (!rect.contains(strip.center()))
                continue;
            const bool isVertical = strip.width() < rect.width();
            if (isVertical && strip.center().x() > rect.center().x())
                rect.setRight(strip.left());
            else if (isVertical)
                rect.setLeft(strip.right());
            else if (strip.height() < rect.height() && strip.center().y() > rect.center().y())
                rect.setBottom(strip.top());
            else if (strip.height() < rect.height())
                rect.setTop(strip.bottom());
        }
    }
    const double inset = padding * room.a();
    return rect.adjusted(inset, inset, -inset, -inset);
}

/** Prefers the way with more texts; a label that reads upward must be worth it. */
Label label(const PxSheetRoom &room, int index, const QSizeF &available)
{
    const Label level = label(room, index, available, false);
    const Label turned = label(room, index, available, true);
    return turned.complete > level.complete ? turned : level;
}

/** The part of the page within its safe area, whose line a label would hide. */
QRectF safeRoomOn(const PxSheetRoom &room, const QRectF &available)
{
    const double inset = padding * room.a();
    for (const PxSheetRoom::Item &item : room.items("safe")) {
        if (item.rect.contains(available.center()))
            return available & item.rect.adjusted(inset, inset, -inset, -inset);
    }
    return available;
}

/** In the middle, or above or below it where a barcode is in the way. */
QRectF placeOf(const PxSheetRoom &room, const QSizeF &size, const QRectF &page)
{
    const QVector<PxSheetRoom::Item> barcodes = room.items("barcode");
    QRectF middle(QPointF(), size);
    middle.moveCenter(page.center());
    for (const double shift : {0.0, -0.15, 0.15, -0.3, 0.3}) {
        const QRectF place = middle.translated(0, shift * page.height());
        const bool isFree =
            std::none_of(barcodes.begin(), barcodes.end(), [&](const PxSheetRoom::Item &barcode) {
                return barcode.rect.intersects(place);
            });
        if (isFree && page.contains(place) && room.isFree(place))
            return place;
    }
    return middle;
}

PxDrawnShape shapeOf(const Label &label, const QRectF &place, int page)
{
    PxDrawnShape group = PxShapeMaker::group("page-label", {{"data-page", QString::number(page)}});
    QVector<PxDrawnShape> texts;
    double across = label.readsUpward ? place.left() : place.top();
    for (const Line &line : label.lines) {
        const double base = across + line.fontSize;
        PxDrawnShape text =
            PxShapeMaker::text(label.readsUpward ? QPointF(base, place.center().y())
                                                 : QPointF(place.center().x(), base),
                               line.text, line.fontSize, PxDrawnShape::Anchor::Middle, line.isBold);
        text.readsUpward = label.readsUpward;
        // White behind each line hides less of the page than white behind all.
        QRectF behind = PxShapeMaker::boundsOf(text);
        if (label.readsUpward)
            behind = {across, behind.top(), line.height(), behind.height()};
        else
            behind = {behind.left(), across, behind.width(), line.height()};
        group.children.append(PxShapeMaker::rect({}, behind, {}, Qt::white));
        texts.append(text);
        across += line.height();
    }
    group.children += texts;
    return group;
}

} // namespace

void PxPageLabel::addTo(PxSheetRoom &room, int index)
{
    const PxDrawnPage &page = room.sheet().pages[index];
    const double smallest = smallestPage * room.a();
    if (page.trim.width() <= smallest || page.trim.height() <= smallest)
        return;
    QRectF available = safeRoomOn(room, roomOn(room, page));
    Label label = ::label(room, index, available.size());
    if (label.lines.isEmpty()) {
        available = roomOn(room, page);
        label = ::label(room, index, available.size());
    }
    if (!label.lines.isEmpty())
        room.addLabel(PxDrawnLayer::Labels,
                      shapeOf(label, placeOf(room, label.size(), available), page.number));
}
