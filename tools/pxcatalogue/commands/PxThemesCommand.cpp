#include "commands/PxThemesCommand.h"

#include "commands/PxCommandLine.h"
#include "report/PxThemeTable.h"

#include <PxProductProperties.h>

#include <limits>

PxCommandUsage PxThemesCommand::usage() const
{
    // clang-format off
    return {"themes",
        "A table of the design themes, by id.\n"
        "The column Products has the number of products that a theme allows; JSON names them. Exit status 1 if there is no theme to show.", {
        {"key-account", "N", "Only the themes that this key account may order today.", 0, std::numeric_limits<int>::max()},
        PxOption::json(),
    }};
    // clang-format on
}

PxReportCommand::Answer PxThemesCommand::answer(const PxCommandLine &line) const
{
    const auto *factory = PxThemeFactory::instance();
    const int keyAccount = line.value("key-account").toInt();
    const PxThemeList themes =
        line.isSet("key-account") ? factory->themeList(keyAccount) : factory->themeList();
    PxReport report;
    PxThemeTable::addTo(&report, themes);
    if (!themes.isEmpty())
        return {report};
    if (!factory->themeList().isEmpty())
        return {report,
                PxProblem{QString("no theme that key account %1 may order").arg(keyAccount)}};
    const QString directory = PxDirectoryConfig::instance()->lumoThemesDirectory(false).path();
    return {report, PxProblem{QString("no themes in the directory \"%1\"").arg(directory)}};
}
