#include "commands/PxDiffCommand.h"

#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "commands/PxOtherCatalogue.h"
#include "diff/PxCatalogueDiff.h"
#include "diff/PxDiffJson.h"
#include "diff/PxDiffPlaces.h"
#include "diff/PxDiffText.h"
#include "export/PxCatalogueExport.h"

#include <PxProductProperties.h>

#include <QDir>
#include <QFileInfo>

namespace {

std::optional<PxProblem> problemOf(const PxCommandLine &line)
{
    const QStringList paths = line.arguments();
    if (paths.size() < 2)
        return PxProblem{"diff needs two catalogues, the old one and the new one"};
    for (const PxOption &option : PxOption::ofCatalogue()) {
        if (line.isSet(option.name))
            return PxProblem{QString("--%1 and diff do not go together: both catalogues are named")
                                 .arg(option.name)};
    }
    const bool isJson = line.value("format").isEmpty() || line.keywords("format").contains("json");
    if (line.isSet("json") && !isJson)
        return PxProblem{"--json and another --format do not go together"};
    for (const QString &path : paths) {
        if (QFileInfo(path).isDir() && path.contains(QDir::listSeparator()))
            return PxProblem{QString("the directory \"%1\" has a \"%2\" in its name")
                                 .arg(path, QDir::listSeparator())};
    }
    return std::nullopt;
}

/** Reads the catalogue that this process holds. */
std::optional<PxProblem> readDirectory(const QString &path, PxExportedCatalogue *catalogue)
{
    if (const auto problem = PxCatalogueDirectories::applyResources(path))
        return problem;
    PxCatalogueExport::becomeIndependentOfUser(false);
    PxProductPropertiesInitializer::setupModule();
    PxCatalogueExport exported;
    while (const auto line = exported.next()) {
        if (const auto problem = catalogue->addLine(line->toUtf8()))
            return problem;
    }
    return catalogue->problemOfEnd();
}

/** Reads both, if possible at the same time. */
std::optional<PxProblem> readBoth(const PxCommandLine &line, PxExportedCatalogue *oldCatalogue,
                                  PxExportedCatalogue *newCatalogue)
{
    PxOtherCatalogue other(line.arguments().value(0), line);
    if (!other.isDirectory()) {
        if (const auto problem = other.read(oldCatalogue))
            return problem;
    }
    const QString newPath = PxOtherCatalogue::at(line.arguments().value(1));
    const auto problem = QFileInfo(newPath).isDir()
                             ? readDirectory(newPath, newCatalogue)
                             : PxOtherCatalogue(newPath, line).read(newCatalogue);
    const auto problemOfOld = other.isDirectory() ? other.read(oldCatalogue) : std::nullopt;
    return problemOfOld ? problemOfOld : problem;
}

} // namespace

PxCommandUsage PxDiffCommand::usage() const
{
    // clang-format off
    return {"diff",
        "How two catalogues differ: first what customers notice.\n"
        "Each is a resource directory, the folder of a proof, or what \"pxcatalogue export\" wrote. A value that follows from others "
        "that changed is not listed. Exit status: 0 there is no difference, 1 there is one, 2 a catalogue cannot be read.", {
        {"only", "KEYS", "Only changes of these values or sections, as in --json with \"*\" for an index, and of themes their members: /sizes, /barcodes/*/rect, expiryDay; added, removed and renamed are keys, too.", 0, 0, PxDiffKeys::all()},
        {"format", "FORMAT", "text, json or markdown. Default: text.", 0, 0, {"text", "json", "markdown"}, PxOption::Form::OneKeyword},
        {"json", "", "The same as --format json, with all lengths in tenths of a millimetre."},
    }, {"OLD NEW", "Two catalogues.", "two catalogues, the old one and the new one", 2, PxOption::Form::File}, true};
    // clang-format on
}

PxExitStatus PxDiffCommand::run(const PxCommandLine &line) const
{
    if (const auto problem = problemOf(line))
        return fail(*problem);
    PxExportedCatalogue oldCatalogue(line.arguments().constFirst());
    PxExportedCatalogue newCatalogue(line.arguments().constLast());
    if (const auto problem = readBoth(line, &oldCatalogue, &newCatalogue))
        return fail(*problem);
    PxDiff diff = PxCatalogueDiff::of(oldCatalogue, newCatalogue, line.keywords("only"));
    if (QFileInfo(PxOtherCatalogue::at(line.arguments().constLast())).isDir())
        PxDiffPlaces::addTo(&diff, newCatalogue);
    const QString format = line.isSet("json") ? "json" : line.keywords("format").value(0, "text");
    const PxExitStatus status =
        format == "json"
            ? printed(PxDiffJson::of(diff))
            : printed(PxDiffText::of(diff, format == "markdown" ? PxDiffText::Form::Markdown
                                                                : PxDiffText::Form::Plain));
    const PxExitStatus answer = diff.isEmpty() ? PxExitStatus::Done : PxExitStatus::AnswerIsNo;
    return status == PxExitStatus::Done ? answer : status;
}
