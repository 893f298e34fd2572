#include "proof/PxProofDrawings.h"

#include "drawing/PxDrawing.h"
#include "drawing/PxDrawingSvg.h"
#include "drawing/PxDrawnProductReader.h"
#include "drawing/PxPageCounts.h"
#include "proof/PxHtml.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofWords.h"

#include <PxProductProperties.h>

#include <QBuffer>

#include <numeric>

namespace {

/** What a switch shows or hides. */
constexpr PxDrawnLayer switched[] = {
    PxDrawnLayer::Surroundings, PxDrawnLayer::Fittings,   PxDrawnLayer::Barcodes,
    PxDrawnLayer::PageNumbers,  PxDrawnLayer::Folds,      PxDrawnLayer::Spine,
    PxDrawnLayer::Safe,         PxDrawnLayer::Bleed,      PxDrawnLayer::Trim,
    PxDrawnLayer::Marks,        PxDrawnLayer::Dimensions, PxDrawnLayer::Labels,
    PxDrawnLayer::Legend,
};
constexpr PxDrawnLayers inPage = PxDrawnLayers(0xFFFF);
constexpr PxDrawnLayers inTable = PxDrawnLayer::Areas | PxDrawnLayer::Surroundings |
                                  PxDrawnLayer::Spine | PxDrawnLayer::Bleed | PxDrawnLayer::Trim |
                                  PxDrawnLayer::Folds;

int numberOf(PxDrawnLayer layer)
{
    return qCountTrailingZeroBits(quint32(layer));
}

/** Each once, ascending. */
QList<int> shownPageCounts(const PxProofProduct &product)
{
    const PxProductTypeDescription &description = *product.registry->description(product.type);
    const QList<int> offered = description.offeredPageCounts();
    const int usual = PxPageCounts::standard(description, offered);
    QList<int> counts{offered.value(0, usual), usual, offered.isEmpty() ? usual : offered.last()};
    std::sort(counts.begin(), counts.end());
    counts.erase(std::unique(counts.begin(), counts.end()), counts.end());
    return counts;
}

void addSwitches(PxHtml *html, const QString &name, const QList<int> &counts)
{
    html->open("form", {{"class", "needs-script"}});
    if (counts.size() > 1) {
        html->open("fieldset");
        html->element("legend", PxProofWords::tr("Seitenzahl"));
        for (const int count : counts) {
            html->open("label");
            html->single("input", {{"type", "radio"},
                                   {"name", name + "-pages"},
                                   {"value", QString::number(count)},
                                   {"checked", count == counts.first() ? "checked" : QString()}});
            html->text(QString::number(count));
            html->close();
        }
        html->close();
    }
    html->open("fieldset");
    html->element("legend", PxProofWords::tr("Ebenen"));
    for (const PxDrawnLayer layer : switched) {
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

QVector<int> allSheets(const PxDrawnProduct &product)
{
    QVector<int> sheets(product.sheets.size());
    std::iota(sheets.begin(), sheets.end(), 0);
    return sheets;
}

} // namespace

void PxProofDrawings::addTo(PxHtml *html, const PxProofProduct &product)
{
    const QList<int> counts = shownPageCounts(product);
    html->open("div", {{"class", "drawings"}});
    addSwitches(html, product.page, counts);
    for (const int count : counts) {
        const PxDrawnProduct drawn =
            PxDrawnProductReader(product.registry).read(product.type, count, QString());
        html->open("figure", {{"class", "drawing"}, {"data-count", QString::number(count)}});
        if (drawn.problem.isEmpty())
            PxDrawingSvg::write(pxDraw(drawn, allSheets(drawn), inPage),
                                QString("pages-%1-").arg(count), html->writer());
        else
            html->element("p", drawn.problem, {{"lang", "en"}});
        html->element("figcaption", PxProofWords::tr("Mit %1 Seiten").arg(count));
        html->close();
    }
    html->close();
}

QByteArray PxProofDrawings::small(const PxProofProduct &product)
{
    const PxDrawnProduct drawn =
        PxDrawnProductReader(product.registry).read(product.type, 0, QString());
    if (drawn.sheets.isEmpty())
        return QByteArray();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    PxDrawingSvg::write(pxDraw(drawn, {0}, inTable), &buffer);
    return buffer.data();
}
