#include "commands/check/PxCheckCommand.h"

#include "check/catalogue/PxCheck.h"
#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "commands/check/PxCheckExplanation.h"
#include "commands/check/PxCheckFiles.h"
#include "output/PxFindingsBaseline.h"
#include "output/PxFindingsJson.h"
#include "output/PxFindingsSarif.h"
#include "output/PxFindingsText.h"
#include "writing/PxOutputText.h"
#include "writing/PxTerminal.h"

#include <exception>

namespace {

constexpr int nothingFound = 0;
constexpr int somethingFound = 1;
constexpr int cannotRun = 2;
constexpr int faultOfOurs = 3;

int cannotRunBecause(const QString &problem)
{
    PxTerminal::printError(problem);
    return cannotRun;
}

} // namespace

PxCheckCommand::PxCheckCommand(const PxCommandLine &commandLine)
    : m_commandLine(commandLine)
    , m_options(commandLine)
{}

int PxCheckCommand::run()
{
    try {
        if (!m_options.error().isEmpty())
            return cannotRunBecause(m_options.error());
        if (m_options.mustListTags() || m_options.explainedTag())
            return explain();
        return runChecks();
    } catch (const std::exception &fault) {
        PxTerminal::printError(QStringLiteral("internal fault: ") +
                               QString::fromUtf8(fault.what()));
        return faultOfOurs;
    }
}

int PxCheckCommand::explain() const
{
    QString text = PxCheckExplanation::table();
    if (m_options.explainedTag())
        text = PxCheckExplanation::of(*m_options.explainedTag());
    else if (m_options.format() == PxCheckOptions::Format::Markdown)
        text = PxCheckExplanation::markdown();
    return PxTerminal::write(PxOutputText(text)) ? nothingFound : cannotRun;
}

int PxCheckCommand::runChecks()
{
    PxFindingsBaseline known;
    QString problem = m_options.baseline().isEmpty() ? QString() : known.read(m_options.baseline());
    if (problem.isEmpty())
        problem = check();
    if (problem.isEmpty() && !m_options.newBaseline().isEmpty()) {
        known = PxFindingsBaseline(m_report);
        problem = known.write(m_options.newBaseline());
    }
    if (!problem.isEmpty())
        return cannotRunBecause(problem);
    known.hide(&m_report);
    return print();
}

QString PxCheckCommand::check()
{
    QString problem = PxCatalogueDirectories(m_commandLine).apply();
    PxCheckFiles files(m_commandLine);
    if (problem.isEmpty())
        problem = files.find();
    if (!problem.isEmpty())
        return problem;
    PxFindings findings;
    m_options.applyTo(&findings);
    PxCheck check(files.paths(), findings);
    check.run();
    m_report.findings = findings.sorted();
    m_report.tagsNotChecked = findings.tagsNotChecked();
    m_report.fileCount = check.fileCount();
    m_report.catalogueNames = files.catalogueNames();
    return QString();
}

int PxCheckCommand::print() const
{
    if (!write())
        return cannotRun;
    return m_report.hasAtLeast(m_options.failOn()) ? somethingFound : nothingFound;
}

bool PxCheckCommand::write() const
{
    if (m_options.format() == PxCheckOptions::Format::Json)
        return PxTerminal::write(PxFindingsJson(m_report).json());
    if (m_options.format() == PxCheckOptions::Format::Sarif)
        return PxTerminal::write(PxFindingsSarif(m_report).json());
    return PxTerminal::write(
        PxFindingsText(m_report, PxTerminal::hasColours()).text(m_options.isQuiet()));
}
