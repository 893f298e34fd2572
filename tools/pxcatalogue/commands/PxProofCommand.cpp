#include "commands/PxProofCommand.h"

#include "check/catalogue/PxCheck.h"
#include "check/findings/PxFindings.h"
#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "commands/check/PxCheckFiles.h"
#include "proof/PxProof.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofFolder.h"

#include <PxProductProperties.h>

namespace {

std::optional<PxProblem> check(const PxCommandLine &line, PxCheckReport *report)
{
    PxCheckFiles files(line);
    if (const auto problem = files.find())
        return problem;
    PxFindings findings{{}};
    PxCheck check(files.paths(), findings);
    check.run();
    report->findings = findings.sorted();
    report->catalogueNames = files.catalogueNames();
    return std::nullopt;
}

std::optional<PxProblem> write(const PxCommandLine &line, PxProofFolder *folder)
{
    PxCheckReport report;
    if (const auto problem = check(line, &report))
        return problem;
    const QString title = line.value("title").isEmpty() ? QString("Katalog") : line.value("title");
    const auto problem = PxProof::write(PxProofCatalogue::of(title, report), *folder);
    return problem ? problem : folder->finish();
}

} // namespace

PxCommandUsage PxProofCommand::usage() const
{
    // clang-format off
    return {"proof",
        "The catalogue as pages for a browser, in a folder.\n"
        "index.html opens from a disk or from any web server. The folder must be empty, absent or an earlier proof, which is replaced when all is written.", {
        {"output", "DIR", "The folder to write."},
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
    PxProofFolder folder(line.value("output"));
    if (const auto problem = folder.begin())
        return fail(*problem);
    PxProductPropertiesInitializer::setupModule();
    if (const auto problem = write(line, &folder))
        return fail(*problem);
    return PxExitStatus::Done;
}
