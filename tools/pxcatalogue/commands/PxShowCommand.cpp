#include "commands/PxShowCommand.h"

#include "commands/PxCommandLine.h"
#include "commands/PxNamedProduct.h"
#include "report/PxProductReport.h"

PxCommandUsage PxShowCommand::usage() const
{
    // clang-format off
    return {"show",
        "Everything that is known about one product.\n"
        "Page numbers begin at 0 and count covers and spine; 4-28/2 means every second page "
        "from 4 to 28. Empty values are left out.", {
        {"pages", "N", "Show the product with this many pages, 1 to 9999. Default: as many as it is sold with.", 1, PxProductReport::maximumPageCount},
        PxOption::theme(),
        PxOption::json(),
    }, PxNamedProduct::argument()};
    // clang-format on
}

PxReportCommand::Answer PxShowCommand::answer(const PxCommandLine &line) const
{
    const PxNamedProduct named = PxNamedProduct::of(line);
    if (named.no)
        return {std::nullopt, named.no};
    return {PxProductReport::of(named.registry, named.type, line.value("pages").toInt(),
                                named.themeId)};
}
