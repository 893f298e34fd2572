#include "drawing/PxDrawnStyle.h"

#include <array>
#include <vector>

namespace {

struct Row
{
    PxDrawnItem item;
    const char *key;
    double width; // in annotation millimetres, as the dashes
    std::vector<double> dashes;
    const char *color;
    const char *fill; // null for none
    double opacity = 1;
};

/** In the order of PxDrawnItem. */
const std::array<Row, 18> &rows()
{
    static const auto &ourRows = *new std::array<Row, 18>{{
        {PxDrawnItem::Bleed, "bleed", 0.2, {}, "#C62828", nullptr},
        {PxDrawnItem::BleedArea, "bleed-area", 0.12, {}, "#E79C97", "#FBE3E1"},
        {PxDrawnItem::Trim, "trim", 0.4, {}, "#000000", "#FFFFFF"},
        {PxDrawnItem::Safe, "safe", 0.25, {3, 1.2}, "#1B7A2B", nullptr},
        {PxDrawnItem::Round, "round", 0.3, {2.4, 0.8}, "#000000", nullptr},
        {PxDrawnItem::Spine, "spine", 0.25, {4, 1, 0.6, 1}, "#1257A8", "#DCE9F7"},
        {PxDrawnItem::SpineText, "spine-text", 0.15, {0.8, 0.8}, "#1257A8", nullptr},
        {PxDrawnItem::Fold, "fold", 0.25, {4, 1, 0.6, 1}, "#6A1B9A", nullptr},
        {PxDrawnItem::FoldMargin, "fold-margin", 0.25, {0.6, 0.8}, "#6A1B9A", "#EFE3F5"},
        {PxDrawnItem::Clamp, "clamp", 0.25, {4, 0.8, 0.6, 0.8, 0.6, 0.8}, "#8A4B08", "#F1E3D3"},
        {PxDrawnItem::Surrounding, "surrounding", 0.9, {}, "#00798C", nullptr, 0.5},
        {PxDrawnItem::SurroundingBelow, "surrounding-below", 0.9, {5, 2}, "#00798C", nullptr, 0.5},
        {PxDrawnItem::Barcode, "barcode", 0.2, {}, "#424242", "#FFFFFF"},
        {PxDrawnItem::PageNumber, "page-number", 0.2, {}, "#616161", nullptr},
        {PxDrawnItem::Spiral, "spiral", 0.7, {}, "#757575", nullptr},
        {PxDrawnItem::Hook, "hook", 0.5, {}, "#616161", nullptr},
        {PxDrawnItem::Hole, "hole", 0.3, {}, "#616161", "#FFFFFF"},
        {PxDrawnItem::Marks, "marks", 0.2, {}, "#000000", nullptr},
    }};
    return ourRows;
}

const Row &rowOf(PxDrawnItem item)
{
    return rows()[std::size_t(item)];
}

} // namespace

PxDrawnLine PxDrawnStyle::line(PxDrawnItem item, double annotation)
{
    const Row &row = rowOf(item);
    PxDrawnLine line{row.width * annotation, QColor(QLatin1String(row.color)), {}, row.opacity};
    for (const double dash : row.dashes)
        line.dashes.append(dash * annotation);
    return line;
}

PxDrawnLine PxDrawnStyle::diagonals(double annotation)
{
    return {0.12 * annotation, QColor(QStringLiteral("#8CC7D0")), {}, 1};
}

QColor PxDrawnStyle::fill(PxDrawnItem item)
{
    const char *fill = rowOf(item).fill;
    return fill ? QColor(QLatin1String(fill)) : QColor();
}

QByteArray PxDrawnStyle::key(PxDrawnItem item)
{
    return rowOf(item).key;
}
