#include "commands/PxProofCommand.h"

#include "check/catalogue/PxCheck.h"
#include "check/findings/PxFindings.h"
#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "commands/PxOtherCatalogue.h"
#include "commands/check/PxCheckFiles.h"
#include "diff/PxCatalogueDiff.h"
#include "diff/PxDiffPlaces.h"
#include "export/PxCatalogueExport.h"
#include "proof/PxParallelJobs.h"
#include "proof/PxProof.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofFolder.h"
#include "proof/PxProofWords.h"

#include <PxProductProperties.h>

namespace {

std::optional<PxProblem> addFindings(const PxCommandLine &line, PxProofCatalogue *catalogue)
{
    PxCheckFiles files(line);
    if (const auto problem = files.find())
        return problem;
    PxFindings findings{{}};
    PxCheck(files.paths(), findings, &catalogue->files).run();
    PxCheckReport report;
    report.findings = findings.sorted();
    report.catalogueNames = files.catalogueNames();
    catalogue->addFindings(report);
    return std::nullopt;
}

std::optional<PxProblem> exportLines(QVector<QByteArray> *lines)
{
    PxCatalogueExport catalogue;
    while (const auto line = catalogue.next())
        lines->append(line->toUtf8());
    return std::nullopt;
}

std::optional<PxProblem> addChanges(PxOtherCatalogue *other, const QString &name,
                                    const QVector<QByteArray> &lines, PxProofCatalogue *catalogue)
{
    PxExportedCatalogue oldCatalogue(name);
    if (const auto problem = other->read(&oldCatalogue))
        return problem;
    PxExportedCatalogue newCatalogue("the catalogue");
    for (const QByteArray &line : lines) {
        if (const auto problem = newCatalogue.addLine(line))
            return problem;
    }
    PxDiff diff = PxCatalogueDiff::of(oldCatalogue, newCatalogue, {});
    PxDiffPlaces::addTo(&diff, newCatalogue);
    catalogue->addChanges(diff);
    return std::nullopt;
}

std::optional<PxProblem> write(const PxCommandLine &line, PxOtherCatalogue *other,
                               PxProofFolder *folder)
{
    // Never destroyed: to free all files and findings takes longer than the end of the process.
    static PxProofCatalogue &ourCatalogue = *new PxProofCatalogue;
    ourCatalogue.title = line.isSet("title") ? line.value("title") : PxProofWords::tr("Katalog");
    QVector<QByteArray> lines;
    const auto problemOfCheck = PxParallelJobs::run({
        [&] { return addFindings(line, &ourCatalogue); },
        [&] { return exportLines(&lines); },
    });
    if (problemOfCheck)
        return problemOfCheck;
    for (const QByteArray &exported : lines)
        ourCatalogue.exported += exported;
    if (other) {
        if (const auto problem = addChanges(other, line.value("previous"), lines, &ourCatalogue))
            return problem;
    }
    const auto problem = PxProof::write(ourCatalogue, *folder);
    return problem ? problem : folder->finish();
}

} // namespace

PxCommandUsage PxProofCommand::usage() const
{
    // clang-format off
    return {"proof",
        "The whole catalogue as pages for a browser, in a folder.\n"
        "index.html opens from a disk or from any web server. The folder must be absent, empty or an earlier proof, "
        "which is replaced when all is written. The same files give the same bytes everywhere, but a relative path "
        "of a theme's picture starts at the current folder, as in the application. Pages are German unless "
        "--lang is given; what the checks find, what changed and where values come from is English.", {
        {"output", "DIR", "The folder to write.", 0, 0, {}, PxOption::Form::Directory},
        {"previous", "OLD", "Also show what changed since this catalogue: a resource directory, the folder of an earlier proof, or what \"pxcatalogue export\" wrote.", 0, 0, {}, PxOption::Form::File},
        {"title", "TEXT", "What the pages call the catalogue. Default: Katalog."},
    }};
    // clang-format on
}

bool PxProofCommand::needsFonts(const PxCommandLine & /*line*/) const
{
    return true;
}

PxExitStatus PxProofCommand::run(const PxCommandLine &line) const
{
    if (!line.isSet("output"))
        return fail({"--output is missing: the folder to write"});
    if (const auto problem = PxCatalogueDirectories::apply(line))
        return fail(*problem);
    PxProofFolder folder(line.value("output"), PxCatalogueDirectories::sources());
    if (const auto problem = folder.begin())
        return fail(*problem);
    std::optional<PxOtherCatalogue> other;
    if (line.isSet("previous"))
        other.emplace(line.value("previous"), line);
    PxCatalogueExport::becomeIndependentOfUser(line.isSet("user-defaults"));
    PxProductPropertiesInitializer::setupModule();
    const auto problem = write(line, other ? &*other : nullptr, &folder);
    return problem ? fail(*problem) : PxExitStatus::Done;
}
