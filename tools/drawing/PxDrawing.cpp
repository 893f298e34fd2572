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

bool fitsPaper(const PxDrawnProduct &product, const PxDrawnSheet &sheet, int annotation)
{
    return fitsPaper(sheet.total.size(), annotation) &&
           fitsPaper(drawn(product, sheet, annotation, allLayers).canvas.size(), annotation);
}

/** The smallest one with which every sheet of the product, with all layers, fits the paper. */
int annotationFor(const PxDrawnProduct &product)
{
    int annotation = 10;
    const int count = product.sheets.size();
    // Until all fit, one after the other. What fitted with less need not fit with more.
    for (int i = 0, fitting = 0; fitting < count; i = (i + 1) % count, ++fitting) {
        while (!fitsPaper(product, product.sheets[i], annotation)) {
            annotation = nextAnnotation(annotation);
            fitting = 0;
        }
    }
    return annotation;
}

QString description(const PxDrawnSheet &sheet)
{
    QStringList parts;
    for (int i = 0; i < sheet.pages.size(); ++i) {
        const PxDrawnPage &page = sheet.pages[i];
        const QString numbers = PxDrawnWords::pages(PxDrawnWords::pagesLike(sheet, i));
        const QString size = PxDrawnWords::size(page.trim.size());
        parts.append(page.role == PxDrawnPage::Role::Page
                         ? numbers + " (" + size + ')'
                         : PxDrawnWords::role(page) + " (" + numbers + ", " + size + ')');
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
    if (layers & readLayers)
        drawing.annotation = annotationFor(product);
    for (const int index : sheets) {
        PxDrawingSheet sheet = drawn(product, product.sheets[index], drawing.annotation, layers);
        sheet.title = PxDrawnWords::heading(sheet.sheet);
        sheet.description = description(sheet.sheet);
        drawing.sheets.append(sheet);
    }
    drawing.title = title(product);
    drawing.description = description(drawing);
    return drawing;
}
