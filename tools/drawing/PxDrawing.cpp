#include "drawing/PxDrawing.h"

#include "drawing/PxDrawnWords.h"
#include "drawing/PxLegendRows.h"
#include "drawing/PxSheetAnnotations.h"
#include "drawing/PxSheetGeometry.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(PxDrawing)
};

/** Inner sides of an A4 sheet, in annotation millimetres. */
constexpr double longSide = 277;
constexpr double shortSide = 190;
/** The longer side of a sheet that is drawn small. */
constexpr int smallSide = 80;

constexpr PxDrawnLayers allLayers((1 << pxDrawnLayerCount) - 1);
constexpr PxDrawnLayers readLayers =
    PxDrawnLayer::Dimensions | PxDrawnLayer::Labels | PxDrawnLayer::Legend | PxDrawnLayer::Title;

/** The next one of 10, 12, 16, 20, 25, 32, 40, 50, 63, 80, 100, 120, … */
int nextAnnotation(int annotation)
{
    int power = 1;
    while (annotation >= 100) {
        annotation /= 10;
        power *= 10;
    }
    for (const int step : {12, 16, 20, 25, 32, 40, 50, 63, 80}) {
        if (step > annotation)
            return step * power;
    }
    return 100 * power;
}

PxDrawingSheet drawn(const PxDrawnProduct &product, const PxDrawnSheet &sheet, int annotation,
                     PxDrawnLayers layers)
{
    PxDrawingSheet drawing;
    drawing.sheet = sheet;
    PxSheetGeometry::addTo(sheet, annotation, drawing);
    for (int i = 0; i < pxDrawnLayerCount; ++i) {
        if (!layers.testFlag(PxDrawnLayer(1 << i)))
            drawing.layers[std::size_t(i)].clear();
    }
    PxSheetAnnotations::addTo(drawing, product, annotation, layers);
    return drawing;
}

bool fitsPaper(const QSize &size, int annotation)
{
    const double longer = std::max(size.width(), size.height());
    const double shorter = std::min(size.width(), size.height());
    return longer <= longSide * annotation && shorter <= shortSide * annotation;
}

/** Draws every sheet of the product with the smallest annotation with which all fit the paper. */
QVector<PxDrawingSheet> drawnToFit(const PxDrawnProduct &product, PxDrawnLayers layers,
                                   int *annotation)
{
    const int count = product.sheets.size();
    QVector<PxDrawingSheet> drawings(count);
    // Until all fit, one after the other. What fitted with less need not fit with more.
    for (int i = 0, fitting = 0; fitting < count; i = (i + 1) % count, ++fitting) {
        const auto fits = [&] {
            if (!fitsPaper(product.sheets[i].total.size(), *annotation))
                return false;
            drawings[i] = drawn(product, product.sheets[i], *annotation, layers);
            return fitsPaper(drawings[i].canvas.size(), *annotation);
        };
        while (!fits()) {
            *annotation = nextAnnotation(*annotation);
            fitting = 0;
        }
    }
    return drawings;
}

QString description(const PxDrawnSheet &sheet)
{
    QStringList parts;
    for (int i = 0; i < sheet.pages.size(); ++i) {
        const PxDrawnPage &page = sheet.pages[i];
        const QString numbers = PxDrawnWords::pages(PxDrawnWords::pagesLike(sheet, i));
        const QString size = PxDrawnWords::size(page.trim.size());
        if (numbers.isEmpty())
            parts.append(PxDrawnWords::role(page) + " (" + size + ')');
        else if (page.role == PxDrawnPage::Role::Page)
            parts.append(numbers + " (" + size + ')');
        else
            parts.append(PxDrawnWords::role(page) + " (" + numbers + ", " + size + ')');
    }
    QString text = parts.join(QStringLiteral(", ")) + ". ";
    text += Words::tr("Endformat %1, Datenformat %2.")
                .arg(PxDrawnWords::size(sheet.trim.size()), PxDrawnWords::size(pxTotalSize(sheet)));
    const QString margins = pxSafetyMargins(sheet);
    if (!margins.isEmpty())
        text += ' ' + Words::tr("Sicherheitsabstand: %1.").arg(margins);
    return text;
}

QString title(const PxDrawnProduct &product)
{
    QStringList parts{PxDrawnWords::visible(product.type.productName())};
    if (!product.type.shortProductName().isEmpty())
        parts.append(PxDrawnWords::visible(product.type.shortProductName()));
    if (product.pageCount > 0)
        parts.append(PxDrawnWords::pageCount(product.pageCount));
    return parts.join(QStringLiteral(", "));
}

QString description(const PxDrawing &drawing)
{
    QStringList headings;
    for (const PxDrawingSheet &sheet : drawing.sheets)
        headings.append(sheet.title);
    return Words::tr("Blätter: %1.").arg(headings.join(QStringLiteral("; ")));
}

PxDrawing withWords(PxDrawing drawing)
{
    for (PxDrawingSheet &sheet : drawing.sheets) {
        sheet.title = PxDrawnWords::heading(sheet.sheet);
        sheet.description = description(sheet.sheet);
    }
    drawing.title = title(drawing.product);
    drawing.description = description(drawing);
    return drawing;
}

int clamped(qint64 value)
{
    return int(std::min<qint64>(value, std::numeric_limits<int>::max()));
}

} // namespace

QSize PxDrawing::size() const
{
    int width = 0;
    for (const PxDrawingSheet &sheet : sheets)
        width = std::max(width, sheet.canvas.width());
    return {width, positionOf(sheets.size()).y()};
}

QPoint PxDrawing::positionOf(int sheet) const
{
    qint64 y = 0;
    for (int i = 0; i < sheet; ++i)
        y += sheets[i].canvas.height();
    return {0, clamped(y)};
}

PxDrawing pxDraw(const PxDrawnProduct &product, const QVector<int> &sheets, PxDrawnLayers layers)
{
    PxDrawing drawing;
    drawing.product = product;
    QVector<PxDrawingSheet> withAllLayers;
    if (layers & readLayers)
        withAllLayers = drawnToFit(product, allLayers, &drawing.annotation);
    for (const int index : sheets)
        drawing.sheets.append(layers == allLayers ? withAllLayers[index]
                                                  : drawn(product, product.sheets[index],
                                                          drawing.annotation, layers));
    return withWords(drawing);
}

PxDrawing pxDrawAll(const PxDrawnProduct &product, PxDrawnLayers layers)
{
    PxDrawing drawing;
    drawing.product = product;
    drawing.sheets = drawnToFit(product, layers, &drawing.annotation);
    return withWords(drawing);
}

PxDrawing pxDrawSmall(const PxDrawnProduct &product, PxDrawnLayers layers)
{
    const PxDrawnSheet &sheet = product.sheets.constFirst();
    PxDrawing drawing;
    drawing.product = product;
    drawing.annotation =
        std::max(1, std::max(sheet.total.width(), sheet.total.height()) / smallSide);
    drawing.sheets = {drawn(product, sheet, drawing.annotation, layers)};
    return withWords(drawing);
}
