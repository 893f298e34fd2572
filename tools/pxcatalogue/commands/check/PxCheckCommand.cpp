#include "commands/check/PxCheckCommand.h"

#include "check/catalogue/PxCheck.h"
#include "check/findings/PxCheckTags.h"
#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "commands/check/PxCheckExplanation.h"
#include "commands/check/PxCheckFiles.h"
#include "commands/check/PxCheckOptions.h"
#include "output/PxFindingsBaseline.h"
#include "output/PxFindingsJson.h"
#include "output/PxFindingsSarif.h"
#include "output/PxFindingsText.h"
#include "writing/PxOutputText.h"
#include "writing/PxTerminal.h"

#include <exception>
#include <limits>

namespace {

using Format = PxCheckOptions::Format;

PxExitStatus explain(const PxCheckOptions &options)
{
    const PxCheckTag *tag = options.explainedTag();
    if (options.format() == Format::Json)
        return PxCommand::printed(
            PxCheckExplanation::json(tag ? QVector{tag} : PxCheckTags::all()));
    QString text = PxCheckExplanation::table();
    if (tag)
        text = PxCheckExplanation::of(*tag);
    else if (options.format() == Format::Markdown)
        text = PxCheckExplanation::markdown();
    return PxCommand::printed(PxOutputText(text));
}

std::optional<PxProblem> check(const PxCommandLine &line, const PxCheckOptions &options,
                               PxCheckReport *report)
{
    PxCheckFiles files(line);
    auto problem = PxCatalogueDirectories::applyForCheck(line);
    if (!problem)
        problem = files.find();
    if (problem)
        return problem;
    PxFindings findings(options.settings());
    PxCheck check(files.paths(), findings);
    check.run();
    report->findings = findings.sorted();
    report->tagsNotChecked = findings.tagsNotChecked();
    report->tagsChecked = findings.tagsChecked();
    report->fileCount = check.fileCount();
    report->catalogueNames = files.catalogueNames();
    report->catalogue = files.catalogue();
    if (report->catalogue) {
        report->catalogue->productCount = check.productCount();
        report->catalogue->legacyProductCount = check.legacyProductCount();
        report->catalogue->themeCount = check.themeCount();
    }
    return std::nullopt;
}

/** Reads the known findings before the check; afterwards writes the new ones, or hides the known.
 */
std::optional<PxProblem> checkWithBaseline(const PxCommandLine &line, const PxCheckOptions &options,
                                           PxCheckReport *report)
{
    PxFindingsBaseline known;
    std::optional<PxProblem> problem;
    if (!options.baseline().isEmpty())
        problem = known.read(options.baseline());
    if (!problem)
        problem = check(line, options, report);
    if (!problem && !options.newBaseline().isEmpty()) {
        known = PxFindingsBaseline(*report);
        problem = known.write(options.newBaseline());
    }
    known.hide(report);
    if (!options.mustListAll())
        report->joinCauses();
    return problem;
}

PxExitStatus print(const PxCheckReport &report, const PxCheckOptions &options)
{
    if (options.format() == Format::Json)
        return PxCommand::printed(PxFindingsJson::of(report));
    if (options.format() == Format::Sarif)
        return PxCommand::printed(PxFindingsSarif::of(report));
    return PxCommand::printed(PxFindingsText::of(report, options.style()));
}

PxExitStatus runChecks(const PxCommandLine &line, const PxCheckOptions &options)
{
    PxCheckReport report;
    if (const auto problem = checkWithBaseline(line, options, &report))
        return PxCommand::fail(*problem);
    const PxExitStatus status = print(report, options);
    return status == PxExitStatus::Done && report.hasAtLeast(options.failOn())
               ? PxExitStatus::AnswerIsNo
               : status;
}

} // namespace

PxCommandUsage PxCheckCommand::usage() const
{
    // clang-format off
    return {"check",
        "What authors should know about the files of a catalogue.\n"
        "Shows each place where the library does something else than the file says, with line and "
        "column, what the library does now, and what the author probably meant. PATH is a resource "
        "directory, or single files, each of which is checked by itself; default: the catalogue of the "
        "other commands. The environment counts only then.\n"
        "The comment <!-- check: allow TAG reason --> silences a tag for the next element; as the first "
        "thing in a theme, for that theme.\n"
        "Exit status: 0 no finding is as bad as --fail-on says; 1 at least one is; 2 wrong usage, or "
        "something cannot be read or written; 3 a fault of the program.",
        PxCheckOptions::all(),
        {"[PATH…]", "A resource directory, or files.", {}, std::numeric_limits<int>::max(), PxOption::Form::File}};
    // clang-format on
}

PxExitStatus PxCheckCommand::run(const PxCommandLine &line) const
{
    try {
        const PxCheckOptions options(line);
        if (options.problem())
            return fail(*options.problem());
        return options.mustListTags() || options.explainedTag() ? explain(options)
                                                                : runChecks(line, options);
    } catch (const std::exception &fault) {
        PxTerminal::printError(QString("internal fault: ") + fault.what());
        return PxExitStatus::InternalFault;
    }
}
