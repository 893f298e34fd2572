#include "proof/PxProofDrawings.h"

#include "drawing/PxDrawing.h"
#include "drawing/PxDrawingSvg.h"
#include "drawing/PxDrawnProductReader.h"
#include "drawing/PxDrawnWords.h"
#include "drawing/PxPageCounts.h"
#include "drawing/PxSharedSheets.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofWords.h"
#include "writing/PxHtml.h"

#include <PxProductProperties.h>

#include <QMap>
#include <QStringList>

#include <algorithm>

namespace {

/** What a switch shows or hides. */
constexpr PxDrawnLayer switched[] = {
    PxDrawnLayer::Surroundings, PxDrawnLayer::Fittings,   PxDrawnLayer::Barcodes,
    PxDrawnLayer::PageNumbers,  PxDrawnLayer::Folds,      PxDrawnLayer::Spine,
    PxDrawnLayer::Safe,         PxDrawnLayer::Bleed,      PxDrawnLayer::Trim,
    PxDrawnLayer::Marks,        PxDrawnLayer::Dimensions, PxDrawnLayer::Labels,
    PxDrawnLayer::Legend,
};
// The page itself says what a title block says.
constexpr PxDrawnLayers inPage =
    PxDrawnLayers((1 << pxDrawnLayerCount) - 1) & ~PxDrawnLayers(PxDrawnLayer::Title);
constexpr PxDrawnLayers inTable = PxDrawnLayer::Areas | PxDrawnLayer::Surroundings |
                                  PxDrawnLayer::Spine | PxDrawnLayer::Bleed | PxDrawnLayer::Trim |
                                  PxDrawnLayer::Folds;

constexpr int mostSheets = 100; // nobody looks at more

int numberOf(PxDrawnLayer layer)
{
    return int(qCountTrailingZeroBits(quint32(layer)));
}

int usualPageCount(const PxProofProduct &product)
{
    const PxProductTypeDescription &description = *product.registry->description(product.type);
    return PxPageCounts::standard(description, description.offeredPageCounts());
}

/** Each once, ascending, with what it is among those that are offered. */
QMap<int, QStringList> shownPageCounts(const PxProofProduct &product)
{
    const QList<int> offered = product.registry->description(product.type)->offeredPageCounts();
    QMap<int, QStringList> counts;
    if (!offered.isEmpty())
        counts[offered.first()].append(PxProofWords::tr("kleinste"));
    counts[usualPageCount(product)].append(PxProofWords::tr("übliche"));
    if (!offered.isEmpty())
        counts[offered.last()].append(PxProofWords::tr("größte"));
    return counts;
}

bool hasLayer(const PxDrawing &drawing, PxDrawnLayer layer)
{
    const auto isThere = [layer](const PxDrawingSheet &sheet) {
        return !sheet.layers[numberOf(layer)].isEmpty();
    };
    return std::any_of(drawing.sheets.begin(), drawing.sheets.end(), isThere);
}

void addSwitches(PxHtml *html, const QString &name, const QMap<int, QStringList> &counts,
                 const PxDrawing &drawing)
{
    html->open("form", {{"class", "needs-script"}});
    if (counts.size() > 1) {
        html->open("fieldset");
        html->element("legend", PxProofWords::tr("Seitenzahl"));
        for (auto count = counts.begin(); count != counts.end(); ++count) {
            const QString number = QString::number(count.key());
            html->open("label");
            html->single("input", {{"type", "radio"},
                                   {"name", name + "-pages"},
                                   {"value", number},
                                   {"checked", count == counts.begin() ? "checked" : QString()}});
            html->text(QString("%1 (%2)").arg(number, count->join(", ")));
            html->close();
        }
        html->close();
    }
    html->open("fieldset");
    html->element("legend", PxProofWords::tr("Ebenen"));
    for (const PxDrawnLayer layer : switched) {
        if (!hasLayer(drawing, layer))
            continue;
        html->open("label");
        html->single("input", {{"type", "checkbox"},
                               {"value", pxDrawnLayerName(numberOf(layer))},
                               {"checked", "checked"}});
        html->text(pxDrawnLayerLabel(numberOf(layer)));
        html->close();
    }
    html->close();
    html->close();
}

/** The sheets that look different, of all these page counts. */
PxDrawnProduct withSheets(PxDrawnProduct product, const QVector<PxSharedSheet> &shared)
{
    product.sheets.clear();
    for (const PxSharedSheet &sheet : shared)
        product.sheets.append(sheet.sheet);
    return product;
}

/** The class by which only the usual page count is on paper. */
QString classOf(const QStringList &counts, int usual)
{
    return counts.contains(QString::number(usual)) ? "usual" : QString();
}

/**
 * "Mit 26, 50 Seiten: Umschlag, Seiten 0-2", a line for each way in which pages are numbered. On
 * paper the description stands for the words of the drawing, which are too small there.
 */
void addCaption(PxHtml *html, const PxSharedSheet &shared, int usual, const QString &description)
{
    html->open("figcaption");
    for (auto use = shared.uses.begin(); use != shared.uses.end();) {
        PxDrawnSheet sheet = shared.sheet;
        sheet.standsFor = use->pages;
        QStringList counts;
        for (; use != shared.uses.end() && use->pages == sheet.standsFor; ++use)
            counts.append(QString::number(use->pageCount));
        html->element("p",
                      PxProofWords::tr("Mit %1 Seiten").arg(counts.join(", ")) + ": " +
                          PxDrawnWords::heading(sheet),
                      {{"class", classOf(counts, usual)}});
    }
    html->element("p", description, {{"class", "on-paper"}});
    html->close();
}

void addSheet(PxHtml *html, const PxDrawing &drawing, int index, const PxSharedSheet &shared,
              int usual)
{
    QStringList counts;
    for (const PxSharedSheet::Use &use : shared.uses)
        counts.append(QString::number(use.pageCount));
    PxDrawing sheet = drawing;
    sheet.sheets = {drawing.sheets[index]};
    sheet.title = sheet.sheets[0].title;
    sheet.description = sheet.sheets[0].description;
    html->open("figure", {{"class", ("drawing " + classOf(counts, usual)).trimmed()},
                          {"tabindex", "0"}, // it can be scrolled sideways
                          {"data-counts", counts.join(' ')}});
    PxDrawingSvg::write(sheet, QString("drawing-%1-").arg(index), html);
    addCaption(html, shared, usual, sheet.description);
    html->close();
}

} // namespace

void PxProofDrawings::addTo(PxHtml *html, const PxProofProduct &product)
{
    const QMap<int, QStringList> counts = shownPageCounts(product);
    QVector<PxDrawnProduct> products;
    for (const int count : counts.keys())
        products.append(
            PxDrawnProductReader(product.registry).read(product.type, count, QString()));
    QVector<PxSharedSheet> shared = pxSharedSheets(products);
    const int rest = shared.size() - mostSheets;
    shared = shared.mid(0, mostSheets);
    const PxDrawing drawing = pxDrawAll(withSheets(products.constFirst(), shared), inPage);
    html->open("div", {{"class", "drawings"}});
    if (!shared.isEmpty())
        addSwitches(html, product.page, counts, drawing);
    for (int i = 0; i < shared.size(); ++i)
        addSheet(html, drawing, i, shared[i], usualPageCount(product));
    if (rest > 0)
        html->element("p", PxProofWords::tr("Weitere: %1").arg(rest));
    for (const PxDrawnProduct &drawn : qAsConst(products)) {
        if (!drawn.problem.isEmpty())
            html->element("p", drawn.problem, {{"lang", "en"}});
    }
    html->close();
}

QByteArray PxProofDrawings::small(const PxProofProduct &product)
{
    const PxDrawnProduct drawn =
        PxDrawnProductReader(product.registry).read(product.type, 0, QString());
    if (drawn.sheets.isEmpty())
        return QByteArray();
    PxHtml file("");
    PxDrawingSvg::write(pxDrawSmall(drawn, inTable), QString(), &file);
    return file.document();
}
