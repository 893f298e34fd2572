#include "commands/PxShowCommand.h"

#include "commands/PxCommandLine.h"
#include "commands/PxNamedProduct.h"
#include "origins/PxOrigins.h"
#include "report/PxProductReport.h"
#include "report/PxShownProduct.h"

PxCommandUsage PxShowCommand::usage() const
{
    // clang-format off
    return {"show",
        "Everything that is known about one product.\n"
        "Page numbers begin at 0 and count covers and spine; 4-28/2 means every second page "
        "from 4 to 28. Empty values are left out.", {
        {"pages", "N", "Show the product with this many pages, 1 to 9999. Default: as many as it is sold with.", 1, PxProductReport::maximumPageCount},
        PxOption::theme(),
        {"origin", "", "Say where each value comes from: which place in which file, a default, or a rule."},
        PxOption::json(),
    }, PxNamedProduct::argument()};
    // clang-format on
}

PxReportCommand::Answer PxShowCommand::answer(const PxCommandLine &line) const
{
    const PxNamedProduct named = PxNamedProduct::of(line);
    if (named.no)
        return {std::nullopt, named.no};
    const int pageCount = line.value("pages").toInt();
    const PxShownProduct shown =
        PxProductReport::shown(named.registry, named.type, pageCount, named.themeId);
    PxProductReport::warnOfPageCount(shown, pageCount);
    PxReport report = PxProductReport::of(shown);
    if (line.isSet("origin")) {
        const PxOrigins origins(shown);
        report.setOrigins(origins.json(),
                          [origins](const QString &pointer) { return origins.at(pointer).text(); });
    }
    return {report};
}
