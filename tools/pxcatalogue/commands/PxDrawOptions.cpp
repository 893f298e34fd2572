#include "commands/PxDrawOptions.h"

#include "commands/PxCommandLine.h"
#include "commands/PxOption.h"
#include "drawing/PxDrawingPdf.h"
#include "report/PxProductReport.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

using Format = PxDrawOptions::Format;

constexpr struct
{
    const char *suffix;
    Format format;
} formats[] = {
    {"svg", Format::Svg},
    {"pdf", Format::Pdf},
    {"png", Format::Png},
};

/** What is meant to be laid under a design. */
constexpr PxDrawnLayer templateLayers[] = {
    PxDrawnLayer::Barcodes, PxDrawnLayer::Folds, PxDrawnLayer::Spine, PxDrawnLayer::Safe,
    PxDrawnLayer::Bleed,    PxDrawnLayer::Trim,  PxDrawnLayer::Marks,
};

PxDrawnLayers allLayers()
{
    return PxDrawnLayers((1 << pxDrawnLayerCount) - 1);
}

PxDrawnLayers layersOf(const QString &name)
{
    PxDrawnLayers layers;
    if (name == "all")
        return allLayers();
    if (name == "template") {
        for (const PxDrawnLayer layer : templateLayers)
            layers |= layer;
    }
    for (int i = 0; i < pxDrawnLayerCount; ++i) {
        if (name == pxDrawnLayerName(i))
            layers |= PxDrawnLayer(1 << i);
    }
    return layers;
}

QStringList layerNames()
{
    QStringList names;
    for (int i = 0; i < pxDrawnLayerCount; ++i)
        names.append(pxDrawnLayerName(i));
    return names;
}

QStringList sheetKinds()
{
    return {"all", "cover", "inside"};
}

QStringList partsOf(const QString &value)
{
    QStringList parts;
    for (const QString &part : value.split(','))
        parts.append(part.trimmed().toLower());
    return parts;
}

} // namespace

QVector<PxOption> PxDrawOptions::all()
{
    // clang-format off
    return {
        {"sheet", "LIST", "The sheets: all, cover, inside, or page numbers from 0 for the sheets on which these pages lie; several with commas. Default: all.", 0, 0, sheetKinds(), PxOption::Form::OpenKeywords},
        {"layers", "LIST", "The layers: all, template, which is barcodes,folds,spine,safe,bleed,trim,marks, or names; several with commas. -NAME takes one away, and a list that begins so begins with all. Default: all. Names: " + layerNames().join(", ") + '.', 0, 0, QStringList{"all", "template"} + layerNames(), PxOption::Form::SignedKeywords},
        {"output", "FILE", "Write this file, which ends in .svg, .pdf or .png. Default: SVG to stdout.", 0, 0, {}, PxOption::Form::File},
        {"dpi", "N", "Pixels per inch of a PNG at true scale, 10 to 1200. Default: as many as its texts need.", 10, 1200},
        {"pages", "N", "Show the product with this many pages, 1 to 9999. Default: as many as it is sold with.", 1, PxProductReport::maximumPageCount},
        PxOption::theme(),
    };
    // clang-format on
}

PxDrawOptions::PxDrawOptions(const PxCommandLine &line)
    : m_pageCount(line.value("pages").toInt())
    , m_dpi(line.value("dpi").toInt())
    , m_output(line.value("output"))
{
    if (line.isSet("output"))
        readOutput();
    if (m_dpi > 0 && m_format != Format::Png)
        setProblem("--dpi is for PNG only: add --output FILE.png");
    readSheets(partsOf(line.isSet("sheet") ? line.value("sheet") : "all"));
    readLayers(line.isSet("layers") ? line.keywords("layers") : QStringList("all"));
}

void PxDrawOptions::readOutput()
{
    const QString suffix = QFileInfo(m_output).suffix().toLower();
    const auto *format = std::find_if(std::begin(formats), std::end(formats),
                                      [&suffix](const auto &row) { return suffix == row.suffix; });
    if (format == std::end(formats)) {
        setProblem(QString("--output needs a file that ends in .svg, .pdf or .png, not \"%1\"")
                       .arg(m_output));
        return;
    }
    m_format = format->format;
    if (m_format == Format::Pdf && !PxDrawingPdf::isAvailable())
        setProblem("PDF cannot be written: the program was built without libqpdf (PX_DRAW_PDF); "
                   "use .svg or .png");
}

void PxDrawOptions::readLayers(const QStringList &parts)
{
    if (parts.constFirst().startsWith('-'))
        m_layers = allLayers();
    for (const QString &part : parts) {
        const bool isLess = part.startsWith('-');
        const PxDrawnLayers layers = layersOf(isLess ? part.mid(1) : part);
        m_layers = isLess ? m_layers & ~layers : m_layers | layers;
    }
    if (!m_layers)
        setProblem("--layers leaves no layer to draw");
}

void PxDrawOptions::readSheets(const QStringList &parts)
{
    for (const QString &part : parts) {
        bool isNumber = false;
        const uint page = part.toUInt(&isNumber);
        if (sheetKinds().contains(part))
            m_sheetKinds.append(part);
        else if (isNumber && page <= uint(std::numeric_limits<int>::max()))
            m_pages.insert(int(page));
        else
            setProblem(
                QString("--sheet does not know \"%1\": use all, cover, inside or page numbers")
                    .arg(part));
    }
}

std::optional<PxProblem> PxDrawOptions::findSheets(const PxDrawnProduct &product,
                                                   QVector<int> *sheets) const
{
    QSet<int> missing = m_pages;
    QStringList kindsMissing = m_sheetKinds;
    for (const PxDrawnSheet &sheet : product.sheets) {
        const QString kind = sheet.isCover ? "cover" : "inside";
        bool isChosen = m_sheetKinds.contains("all") || m_sheetKinds.contains(kind);
        for (const int page : sheet.standsFor)
            isChosen |= missing.remove(page);
        kindsMissing.removeAll(kind);
        if (isChosen)
            sheets->append(sheet.index);
    }
    kindsMissing.removeAll("all");
    const QString name = product.type.productName();
    if (!missing.isEmpty())
        return PxProblem{
            QString("%1 has no page %2: the last one is %3")
                .arg(name, QString::number(*std::min_element(missing.begin(), missing.end())),
                     QString::number(product.listedPages - 1))};
    if (!kindsMissing.isEmpty())
        return PxProblem{
            name + (kindsMissing.contains("cover") ? " has no cover" : " has nothing but covers")};
    return std::nullopt;
}

/** Only the first problem is reported. */
void PxDrawOptions::setProblem(const QString &problem)
{
    if (!m_problem)
        m_problem = PxProblem{problem};
}
