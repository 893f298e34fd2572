#include "drawing/PxSheetLegend.h"

#include "drawing/PxDrawnWords.h"
#include "drawing/PxLegendRows.h"
#include "drawing/PxLegendSwatch.h"
#include "drawing/PxShapeMaker.h"
#include "drawing/PxSheetLabels.h"
#include "drawing/PxTextWidth.h"

#include <algorithm>

namespace {

// In annotation millimetres.
constexpr double typeSize = 2.6;
constexpr double leading = 3.6;
constexpr double rowHeight = 5.4;
constexpr double columnWidth = 72;
constexpr double columnGap = 4;
constexpr double swatchWidth = 13;
constexpr double swatchHeight = 3.4;
constexpr double swatchAtKey = 5.6; // a swatch after a letter begins here
constexpr double textIndent = 15.5;
constexpr int maximumColumns = 3;

struct Row
{
    PxLegendRow row;
    QStringList lines;
    double height;
};

double fontSize(double a)
{
    return PxShapeMaker::fontSize(typeSize, a);
}

QVector<Row> rows(const PxSheetRoom &room, double width)
{
    const double a = room.a();
    QVector<Row> rows;
    for (const PxLegendRow &row : pxLegendRows(room)) {
        const QStringList lines =
            PxTextWidth::wrapped(row.text, width - textIndent * a, fontSize(a));
        rows.append(
            {row, lines, std::max(rowHeight, leading * (lines.size() - 1) + rowHeight) * a});
    }
    return rows;
}

PxDrawnShape shapeOf(const Row &row, double left, double top, double a)
{
    PxDrawnShape group = PxShapeMaker::group(
        "legend-row", {{"data-item", QString::fromLatin1(PxDrawnStyle::key(row.row.item))}});
    const double middle = top + row.height / 2;
    QRectF swatch(left, middle - swatchHeight / 2 * a, swatchWidth * a, swatchHeight * a);
    if (!row.row.key.isEmpty()) {
        group.attributes.append({"data-key", row.row.key});
        const QPointF center(left + PxSheetLabels::keyRadius * a, middle);
        group.children += PxSheetLabels::key(row.row.key, center, a).children;
        swatch.setLeft(left + swatchAtKey * a);
    }
    group.children += pxLegendSwatch(row.row.item, swatch, a);
    double y = middle - (row.lines.size() - 1) * leading / 2 * a + 0.35 * fontSize(a);
    for (const QString &line : row.lines) {
        group.children.append(
            PxShapeMaker::text(QPointF(left + textIndent * a, y), line, fontSize(a)));
        y += leading * a;
    }
    return group;
}

/** Fills columns one after the other, all about equally high. Returns where they end. */
double addRows(PxSheetRoom &room, double left, double width, double top)
{
    const double a = room.a();
    const double gap = columnGap * a;
    const int count =
        std::max(1, std::min(maximumColumns, int((width + gap) / (columnWidth * a + gap))));
    const double column = (width - (count - 1) * gap) / count;
    const QVector<Row> rows = ::rows(room, column);
    double sum = 0;
    for (const Row &row : rows)
        sum += row.height;
    double x = left;
    double y = top;
    double bottom = top;
    int columnsLeft = count;
    double share = sum / count;
    for (const Row &row : rows) {
        if (columnsLeft > 1 && y > top && y - top + row.height / 2 > share) {
            x += column + gap;
            y = top;
            --columnsLeft;
        }
        room.add(PxDrawnLayer::Legend, shapeOf(row, x, y, a));
        y += row.height;
        bottom = std::max(bottom, y);
    }
    return bottom;
}

void addNotes(PxSheetRoom &room, double left, double width, double top)
{
    const double a = room.a();
    double y = top + leading * a;
    for (const PxDrawnNote note : room.sheet().notes) {
        const QString text = QStringLiteral("– ") + PxDrawnWords::note(note);
        for (const QString &line : PxTextWidth::wrapped(text, width, fontSize(a))) {
            PxDrawnShape shape = PxShapeMaker::text(QPointF(left, y), line, fontSize(a));
            shape.className = "note";
            shape.attributes = {{"data-note", QString::fromLatin1(PxDrawnWords::keyOfNote(note))}};
            room.add(PxDrawnLayer::Legend, shape);
            y += leading * a;
        }
    }
}

} // namespace

void PxSheetLegend::addTo(PxSheetRoom &room, double left, double width, double top)
{
    addNotes(room, left, width, addRows(room, left, width, top));
}
