#include "commands/PxDrawCommand.h"

#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "commands/PxDrawOptions.h"
#include "commands/PxNamedProduct.h"
#include "drawing/PxDrawing.h"
#include "drawing/PxDrawingPainter.h"
#include "drawing/PxDrawingPdf.h"
#include "drawing/PxDrawingPng.h"
#include "drawing/PxDrawingSvg.h"
#include "drawing/PxDrawnProductReader.h"
#include "writing/PxOutputFile.h"
#include "writing/PxOutputText.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

#include <QBuffer>

namespace {

using Format = PxDrawOptions::Format;

PxExitStatus refuse(const PxProblem &no)
{
    PxTerminal::printError(no.text);
    return PxExitStatus::AnswerIsNo;
}

/** The drawing, or why the answer is "no". */
std::optional<PxProblem> draw(const PxCommandLine &line, const PxDrawOptions &options,
                              PxDrawing *drawing)
{
    const PxNamedProduct named = PxNamedProduct::of(line);
    if (named.no)
        return named.no;
    const PxDrawnProduct product =
        PxDrawnProductReader(named.registry).read(named.type, options.pageCount(), named.themeId);
    if (!product.problem.isEmpty())
        return PxProblem{product.problem};
    QVector<int> sheets;
    if (const auto no = options.findSheets(product, &sheets))
        return no;
    *drawing = pxDraw(product, sheets, options.layers());
    return std::nullopt;
}

/** The bytes of the file, or why the answer is "no". */
std::optional<PxProblem> makeFile(const PxDrawing &drawing, const PxDrawOptions &options,
                                  QByteArray *contents)
{
    if (options.format() == Format::Pdf)
        return PxDrawingPdf::write(drawing, contents);
    if (options.format() == Format::Png)
        return PxDrawingPng::write(drawing, options.dpi(), contents);
    QBuffer buffer(contents);
    buffer.open(QIODevice::WriteOnly);
    PxDrawingSvg::write(drawing, &buffer);
    return std::nullopt;
}

} // namespace

PxCommandUsage PxDrawCommand::usage() const
{
    // clang-format off
    return {"draw",
        "A drawing of one product: sheets, bleed, spine and safe area.\n"
        "Sheets that look the same are drawn once. In SVG and PDF a millimetre is a millimetre; SVG "
        "needs no fonts. Exit status 1 also if the product has no such page or cover, is not "
        "offered with so many pages, has no size, or is too large for the file.",
        PxDrawOptions::all(), PxNamedProduct::argument()};
    // clang-format on
}

bool PxDrawCommand::needsFonts(const PxCommandLine &line) const
{
    const PxDrawOptions options(line);
    return !options.problem() && options.format() != Format::Svg;
}

PxExitStatus PxDrawCommand::run(const PxCommandLine &line) const
{
    const PxDrawOptions options(line);
    if (options.problem())
        return fail(*options.problem());
    if (needsFonts(line) && !PxDrawingPainter::hasFonts())
        return fail({"this machine has no font, without which only .svg can be written"});
    if (const auto problem = PxCatalogueDirectories::apply(line))
        return fail(*problem);
    PxProductPropertiesInitializer::setupModule();
    PxDrawing drawing;
    if (const auto no = draw(line, options, &drawing))
        return refuse(*no);
    QByteArray contents;
    if (const auto no = makeFile(drawing, options, &contents))
        return refuse(*no);
    if (options.output().isEmpty())
        return printed(PxOutputText(QString::fromUtf8(contents)));
    if (const auto problem = PxOutputFile::write(options.output(), contents))
        return fail({QString("the drawing \"%1\" cannot be written: %2")
                         .arg(options.output(), problem->text)});
    return PxExitStatus::Done;
}
