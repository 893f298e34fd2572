#include "drawing/PxSheetAnnotations.h"

#include "drawing/PxShapeMaker.h"
#include "drawing/PxSheetDimensions.h"
#include "drawing/PxSheetLabels.h"
#include "drawing/PxSheetLegend.h"
#include "drawing/PxSheetRoom.h"
#include "drawing/PxSheetTitle.h"

#include <algorithm>
#include <cmath>

namespace {

// In annotation millimetres.
constexpr double titleWidth = 150;
constexpr double legendWidth = 84;
constexpr double gap = 4;
constexpr double borderInset = 3;  // from the border to what is in it
constexpr double borderMargin = 2; // from the border to the edge of the canvas
constexpr double plainMargin = 1;

/** The smallest whole numbers that hold it. */
QRect wholeAround(const QRectF &rect)
{
    const QPoint topLeft(int(std::floor(rect.left())), int(std::floor(rect.top())));
    return {topLeft, QSize(int(std::ceil(rect.right())) - topLeft.x(),
                           int(std::ceil(rect.bottom())) - topLeft.y())};
}

/** Legend and title block below all else, and the border around both. */
QRectF addBlocks(PxSheetRoom &room, const PxDrawnProduct &product, PxDrawnLayers layers)
{
    const double a = room.a();
    const bool hasTitle = layers.testFlag(PxDrawnLayer::Title);
    const double smallest = (hasTitle ? titleWidth : legendWidth) * a;
    const double width = std::max(room.used().width(), smallest);
    const double left = std::round(room.used().center().x() - width / 2);
    if (layers.testFlag(PxDrawnLayer::Legend))
        PxSheetLegend::addTo(room, left, width, room.used().bottom() + gap * a);
    if (!hasTitle)
        return {};
    QRectF frame(left - borderInset * a, room.used().top() - borderInset * a,
                 width + 2 * borderInset * a, 0);
    frame.setBottom(PxSheetTitle::addTo(room, product, frame.left(), frame.width(),
                                        room.used().bottom() + gap * a));
    return frame;
}

} // namespace

void PxSheetAnnotations::addTo(PxDrawingSheet &drawing, const PxDrawnProduct &product,
                               double annotation, PxDrawnLayers layers)
{
    PxSheetRoom room(drawing, annotation);
    if (layers.testFlag(PxDrawnLayer::Dimensions))
        PxSheetDimensions::addTo(room);
    if (layers.testFlag(PxDrawnLayer::Labels))
        PxSheetLabels::addTo(room);
    const QRectF border = addBlocks(room, product, layers);
    const double margin = (border.isNull() ? plainMargin : borderMargin) * annotation;
    const QRectF used = room.used() | border;
    drawing.canvas = wholeAround(used.adjusted(-margin, -margin, margin, margin));
    if (!layers.testFlag(PxDrawnLayer::Background))
        return;
    auto &background = drawing.layers[std::size_t(pxIndexOfLayer(PxDrawnLayer::Background))];
    background.append(PxShapeMaker::rect("canvas", drawing.canvas, {}, Qt::white));
    if (!border.isNull())
        background.append(PxShapeMaker::rect("border", border,
                                             {0.4 * annotation, QColor(PxShapeMaker::ink), {}, 1}));
}
