#include "drawing/PxSheetLabels.h"

#include "drawing/PxDrawnWords.h"
#include "drawing/PxPageLabel.h"
#include "drawing/PxShapeMaker.h"
#include "drawing/PxTextWidth.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(PxSheetLabels)
};

using Anchor = PxDrawnShape::Anchor;

// In annotation millimetres.
constexpr double typeSize = 2.8;
constexpr double calloutStep = 6;
constexpr double smallestStep = 4.2;
constexpr double leaderLength = 4;
constexpr double edgeRise = 3.5; // of a callout above the upper edge to which it points
constexpr double dotRadius = 0.55;

/** How far around the wanted place a letter is tried, in radii; and clear of barcodes. */
constexpr int farthestTry = 40;
constexpr int strictTry = 12;

/** Something at the left edge to which a callout points. */
struct Target
{
    PxDrawnItem item;
    double x;
    double from; ///< the part of the edge on which the dot may lie
    double to;
};

PxDrawnShape dot(const QPointF &center, double a)
{
    return PxShapeMaker::circle(center, dotRadius * a, {}, QColor(PxShapeMaker::ink));
}

QRectF rectOfFirst(const PxSheetRoom &room, std::string_view className)
{
    const QVector<PxSheetRoom::Item> items = room.items(className);
    return items.isEmpty() ? QRectF() : items.constFirst().rect;
}

/**
 * Where the bleed of a sheet without bleed at the left edge is: above it, else below. The dot lies
 * in the middle of that strip.
 */
std::optional<QRectF> bleedAboveOrBelow(const PxDrawnSheet &sheet)
{
    const QRectF trim(sheet.pages.constFirst().trim);
    const PxMargins &bleed = sheet.pages.constFirst().bleed;
    if (bleed.top() > 0)
        return QRectF(trim.left(), trim.top() - bleed.top(), trim.width(), bleed.top());
    if (bleed.bottom() > 0)
        return QRectF(trim.left(), trim.bottom(), trim.width(), bleed.bottom());
    return std::nullopt;
}

/** The targets that are shown, from top to bottom as far as they have fixed places. */
QVector<Target> targets(const PxSheetRoom &room)
{
    const PxDrawnPage &first = room.sheet().pages.constFirst();
    const QRectF trim(first.trim);
    const QRectF total(first.total());
    const double a = room.a();
    QVector<Target> upper;
    QVector<Target> middle;
    QVector<Target> lower;
    const bool hasEdge = !room.items("bleed-edge").isEmpty();
    const bool hasArea = !room.items("bleed-area").isEmpty();
    if (first.bleed.left() != 0) {
        if (hasEdge)
            middle.append({PxDrawnItem::Bleed, total.left(), total.top(), total.bottom()});
        if (hasArea && first.bleed.left() > 0)
            middle.append({PxDrawnItem::BleedArea, (total.left() + trim.left()) / 2, total.top(),
                           total.bottom()});
    } else if (const auto strip = bleedAboveOrBelow(room.sheet())) {
        const bool isAbove = strip->top() < trim.top();
        const double edge = isAbove ? strip->top() : strip->bottom();
        const double reach = std::min(4 * a, trim.width() / 4);
        const double center = strip->center().y();
        QVector<Target> &list = isAbove ? upper : lower;
        if (hasEdge)
            list.append({PxDrawnItem::Bleed, trim.left() + reach, edge, edge});
        if (hasArea)
            list.append({PxDrawnItem::BleedArea, trim.left() + reach / 2, center, center});
        if (!isAbove)
            std::reverse(list.begin(), list.end());
    }
    if (!room.items("cut").isEmpty())
        middle.append({PxDrawnItem::Trim, trim.left(), trim.top(), trim.bottom()});
    const QRectF safe = rectOfFirst(room, "safe");
    if (!safe.isEmpty())
        middle.append({PxDrawnItem::Safe, safe.left(), safe.top(), safe.bottom()});
    return upper + middle + lower;
}

void addCallout(PxSheetRoom &room, const Target &target, double right, double y)
{
    const double a = room.a();
    const double size = PxShapeMaker::fontSize(typeSize, a);
    PxDrawnShape callout = PxShapeMaker::group(
        "callout", {{"data-item", QString::fromLatin1(PxDrawnStyle::key(target.item))}});
    const QPointF start(right + a, y);
    const QPointF end(target.x, std::max(target.from, std::min(target.to, y)));
    callout.children = {PxShapeMaker::path({start, end}, PxShapeMaker::thinLine(a)), dot(end, a),
                        PxShapeMaker::text(QPointF(right, y + 0.35 * size),
                                           PxDrawnWords::item(target.item), size, Anchor::End)};
    room.add(PxDrawnLayer::Labels, callout);
}

/** Where the first callout stands. */
double startOfCallouts(const PxSheetRoom &room, const QVector<Target> &targets, double step)
{
    const QRectF trim(room.sheet().pages.constFirst().trim);
    const double height = (targets.size() - 1) * step;
    // Close to the targets at the upper or at the lower edge, so that leaders are flat.
    if (targets.constFirst().to <= trim.top())
        return targets.constFirst().to - edgeRise * room.a();
    if (targets.constLast().from >= trim.bottom())
        return targets.constLast().from + edgeRise * room.a() - height;
    // In the upper part of a high sheet, in the middle of a low one.
    return trim.top() + std::min((trim.height() - height) / 2, trim.height() / 5);
}

/** Callouts in one column, so that their leaders do not cross. */
void addCallouts(PxSheetRoom &room)
{
    const QVector<Target> targets = ::targets(room);
    if (targets.isEmpty())
        return;
    const double a = room.a();
    const double height = room.sheet().pages.constFirst().trim.height();
    const double step =
        std::max(smallestStep * a, std::min(calloutStep * a, height / (targets.size() + 1)));
    double y = startOfCallouts(room, targets, step);
    const double right = room.geometry().left() - leaderLength * a;
    for (const Target &target : targets) {
        addCallout(room, target, right, y);
        y += step;
    }
}

QString wordsOfSpine(const PxDrawnPage &spine)
{
    QString words = Words::tr("Rücken: %1").arg(PxDrawnWords::length(spine.trim.width()));
    if (spine.spineTextHeight > 0)
        words += Words::tr(", Schrift bis %1").arg(PxDrawnWords::length(spine.spineTextHeight));
    if (spine.hasSpineLogo)
        words += Words::tr(", mit Logo");
    return words;
}

/** A spine is too narrow to write on: its words stand below the sheet. */
void addSpine(PxSheetRoom &room, const PxDrawnPage &spine)
{
    const double a = room.a();
    const double size = PxShapeMaker::fontSize(typeSize, a);
    const QPointF from(QRectF(spine.trim).center().x(),
                       QRectF(spine.trim).bottom() - std::min(3 * a, spine.trim.height() / 4.0));
    const double y = room.used().bottom() + 2 * a;
    PxDrawnShape callout = PxShapeMaker::group("callout", {{"data-item", "spine"}});
    callout.children = {
        PxShapeMaker::path({from, QPointF(from.x(), y)}, PxShapeMaker::thinLine(a)), dot(from, a),
        PxShapeMaker::text(QPointF(from.x(), y + size), wordsOfSpine(spine), size, Anchor::Middle)};
    room.add(PxDrawnLayer::Labels, callout);
}

QRectF aroundKey(const QPointF &center, double a)
{
    const double reach = (PxSheetLabels::keyRadius + 0.4) * a;
    return {center.x() - reach, center.y() - reach, 2 * reach, 2 * reach};
}

/** Where a letter stands if nothing is in its way: beside the item, toward the page's middle. */
QPointF wantedPlace(const QRectF &item, const QPointF &middle, double a)
{
    const double reach = (PxSheetLabels::keyRadius + 1) * a;
    if (item.contains(middle)) { // inside the item, near its upper left corner
        const double inset = std::min({3 * reach, item.width() / 4, item.height() / 4});
        return item.topLeft() + QPointF(inset, inset);
    }
    const QPointF nearest(std::max(item.left(), std::min(item.right(), middle.x())),
                          std::max(item.top(), std::min(item.bottom(), middle.y())));
    const QPointF way = middle - nearest;
    const double distance = std::sqrt(QPointF::dotProduct(way, way));
    return nearest + way * (reach / std::max(distance, reach));
}

int squareOf(const QPoint &offset)
{
    return QPoint::dotProduct(offset, offset);
}

/** Where a letter is tried around the wanted place, in steps, from the nearest to the farthest. */
const QVector<QPoint> &triedOffsets()
{
    static const auto &ourOffsets = *new QVector<QPoint>([] {
        QVector<QPoint> offsets;
        for (int y = -farthestTry; y <= farthestTry; ++y) {
            for (int x = -farthestTry; x <= farthestTry; ++x)
                offsets.append({x, y});
        }
        std::stable_sort(
            offsets.begin(), offsets.end(),
            [](const QPoint &one, const QPoint &other) { return squareOf(one) < squareOf(other); });
        return offsets;
    }());
    return ourOffsets;
}

/** The free place nearest to the wanted one: beside barcodes, else wherever no text stands. */
QPointF freePlace(const PxSheetRoom &room, const QPointF &wanted, const QVector<QRectF> &avoided)
{
    const double a = room.a();
    const double step = PxSheetLabels::keyRadius * a;
    const auto isFree = [&](const QPointF &center, bool isStrict) {
        const QRectF rect = aroundKey(center, a);
        return room.isFree(rect) &&
               (!isStrict ||
                (room.geometry().contains(rect) &&
                 std::none_of(avoided.begin(), avoided.end(),
                              [&](const QRectF &other) { return other.intersects(rect); })));
    };
    for (const bool isStrict : {true, false}) {
        for (const QPoint &offset : triedOffsets()) {
            if (isStrict && squareOf(offset) > strictTry * strictTry)
                break;
            const QPointF center = wanted + QPointF(offset) * step;
            if (isFree(center, isStrict))
                return {std::round(center.x()), std::round(center.y())};
        }
    }
    const QRectF used = room.used();
    return {used.left() - 2 * step, used.center().y()};
}

/** Letters at all things of their own, which the legend explains. */
void addKeys(PxSheetRoom &room)
{
    QVector<QRectF> avoided;
    for (const char *className : {"barcode", "hole", "hook", "page-number"}) {
        for (const PxSheetRoom::Item &item : room.items(className))
            avoided.append(item.rect);
    }
    for (const char *className : {"surrounding", "barcode"}) {
        for (const PxSheetRoom::Item &item : room.items(className)) {
            QString letter;
            for (const auto &attribute : item.shape->attributes) {
                if (attribute.first == "data-key")
                    letter = attribute.second;
            }
            QPointF middle = QRectF(room.sheet().trim).center();
            for (const PxDrawnPage &page : room.sheet().pages) {
                if (QRectF(page.total()).intersects(item.rect) && page.trim.width() > 0)
                    middle = QRectF(page.trim).center();
            }
            const QPointF place =
                freePlace(room, wantedPlace(item.rect, middle, room.a()), avoided);
            room.addLabel(PxDrawnLayer::Labels, PxSheetLabels::key(letter, place, room.a()));
        }
    }
}

} // namespace

PxDrawnShape PxSheetLabels::key(const QString &letter, const QPointF &center, double annotation)
{
    const double size = PxShapeMaker::fontSize(2.8, annotation);
    PxDrawnShape key = PxShapeMaker::group("key", {{"data-key", letter}});
    key.children = {
        PxShapeMaker::circle(center, keyRadius * annotation,
                             {0.2 * annotation, QColor(PxShapeMaker::ink), {}, 1}, Qt::white),
        PxShapeMaker::text(center + QPointF(0, 0.36 * size), letter, size, Anchor::Middle, true)};
    return key;
}

void PxSheetLabels::addTo(PxSheetRoom &room)
{
    if (room.sheet().pages.isEmpty())
        return;
    for (int i = 0; i < room.sheet().pages.size(); ++i)
        PxPageLabel::addTo(room, i);
    addCallouts(room);
    for (const PxDrawnPage &page : room.sheet().pages) {
        if (page.role == PxDrawnPage::Role::Spine)
            addSpine(room, page);
    }
    addKeys(room);
}
