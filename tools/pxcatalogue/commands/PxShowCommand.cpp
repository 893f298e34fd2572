#include "commands/PxShowCommand.h"

#include "commands/PxCommandLine.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxProductReport.h"

#include <PxProductProperties.h>

PxCommandUsage PxShowCommand::usage() const
{
    // clang-format off
    return {"show",
        "Everything that is known about one product.\n"
        "Page numbers begin at 0 and count covers and spine; 4-28/2 means every second page\n"
        "from 4 to 28. Empty values are left out.", {
        {"pages", "N", "Show the product with this many pages, 1 to 9999. Default: as many as it is sold with.", 1, PxProductReport::maximumPageCount},
        PxOption::theme(),
        PxOption::json(),
    }, productName()};
    // clang-format on
}

PxReportCommand::Answer PxShowCommand::answer(const PxCommandLine &line) const
{
    const QString name = line.arguments().constFirst();
    const PxProductType type(name);
    const QString theme = themeId(line);
    const bool isCurrent = PxCatalogueProducts::isCurrent(type);
    // No theme applies to a product of an earlier catalogue.
    if (!isCurrent && (!theme.isEmpty() || !PxCatalogueProducts::isLegacy(type)))
        return {std::nullopt, unknownProduct(name)};
    if (const auto no = problemOfTheme(theme))
        return {std::nullopt, no};
    const auto *registry = isCurrent ? PxProductTypeConfigRegistry::instance()
                                     : PxProductTypeConfigRegistry::legacyInstance();
    return {PxProductReport::of(registry, type, line.value("pages").toInt(), theme)};
}
