#include "commands/PxListCommand.h"

#include "commands/PxCommandLine.h"
#include "format/PxCatalogueKeywords.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxProductTable.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

PxCommandUsage PxListCommand::usage() const
{
    // clang-format off
    return {"list",
        "A table of the products, by class and name.\n"
        "Pages 26-154/2 means from 26 to 154 in steps of 2; 26, 30 means these two.", {
        {"class", "KEYWORD", "Only these products: book, calendar, gift, card, deko or print; several with commas.", 0, 0, keywordList(productClassRows)},
        {"earlier", "", "The products of earlier catalogues, in the directory of --legacy, instead of the current ones."},
        PxOption::json(),
    }};
    // clang-format on
}

PxReportCommand::Answer PxListCommand::answer(const PxCommandLine &line) const
{
    const auto *current = PxProductTypeConfigRegistry::instance();
    const auto *registry =
        line.isSet("earlier") ? PxProductTypeConfigRegistry::legacyInstance() : current;
    const PxProductClass classes = EnumHelper::decodeKeywordList(
        line.value("class"), productClassKeywords, PxProductClassUnknown);
    PxProductTypeList products;
    for (const PxProductType &type : PxCatalogueProducts::of(registry)) {
        if (classes == PxProductClassUnknown || type.isProductClass(classes))
            products.append(type);
    }
    if (products.isEmpty() && registry != current)
        PxTerminal::printError("no product of an earlier catalogue");
    PxReport report;
    PxProductTable::addTo(&report, registry, products);
    return {report};
}
