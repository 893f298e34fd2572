#include "drawing/PxDrawingPng.h"

#include "drawing/PxDrawing.h"
#include "drawing/PxDrawingPainter.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <cmath>

namespace {

constexpr double unitsPerMetre = 10000;
constexpr double unitsPerInch = 254;

} // namespace

std::optional<PxProblem> PxDrawingPng::write(const PxDrawing &drawing, int dpi, QByteArray *png)
{
    const double scale =
        dpi > 0 ? dpi / unitsPerInch : double(pixelsPerAnnotation) / drawing.annotation;
    const double width = std::ceil(drawing.size().width() * scale);
    const double height = std::ceil(drawing.size().height() * scale);
    if (width > longestSide || height > longestSide || width * height > double(mostPixels))
        return PxProblem{
            QString("the picture would be too large: %1 x %2 pixels; draw fewer sheets "
                    "with --sheet%3")
                .arg(QString::number(width, 'f', 0), QString::number(height, 'f', 0),
                     dpi > 0 ? ", or fewer pixels with --dpi" : "")};
    QImage image(qMax(1, int(width)), qMax(1, int(height)), QImage::Format_RGB32);
    if (image.isNull())
        return PxProblem{
            "there is not enough memory for the picture; draw fewer sheets with --sheet"};
    image.fill(Qt::white);
    image.setDotsPerMeterX(qRound(scale * unitsPerMetre));
    image.setDotsPerMeterY(qRound(scale * unitsPerMetre));
    QPainter painter(&image);
    for (int i = 0; i < drawing.sheets.size(); ++i) {
        painter.resetTransform();
        painter.scale(scale, scale);
        painter.translate(drawing.positionOf(i) - drawing.sheets[i].canvas.topLeft());
        PxDrawingPainter::paint(drawing.sheets[i], &painter);
    }
    painter.end();
    QBuffer buffer(png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return std::nullopt;
}
