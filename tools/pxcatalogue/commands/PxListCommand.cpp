#include "commands/PxListCommand.h"

#include "commands/PxCommandLine.h"
#include "commands/PxNamedProduct.h"
#include "commands/PxProductFilter.h"
#include "report/PxProductTable.h"

#include <PxProductProperties.h>

namespace {

/** Why the options do not go together. */
std::optional<PxProblem> problemOf(const PxCommandLine &line)
{
    const bool isJson = line.value("format").isEmpty() || line.keywords("format").contains("json");
    if (line.isSet("json") && !isJson)
        return PxProblem{"--json and another --format do not go together"};
    if (line.isSet("earlier") && (line.isSet("theme") || line.isSet("key-account")))
        return PxProblem{"--earlier and themes do not go together: these are for current products"};
    return std::nullopt;
}

PxOutputText separatedLines(const PxProductTable &table, bool isByCommas)
{
    PxOutputText text;
    const auto add = isByCommas ? &PxOutputText::addCommaSeparated : &PxOutputText::addTabSeparated;
    for (const QStringList &row : table.texts())
        (text.*add)(row);
    return text;
}

PxProblem nothingFound(const PxCommandLine &line)
{
    const QString given = PxProductFilter::given(line);
    return {QString("no product") + (line.isSet("earlier") ? " of an earlier catalogue" : "") +
            (given.isEmpty() ? QString() : " fits " + given)};
}

} // namespace

PxCommandUsage PxListCommand::usage() const
{
    // clang-format off
    const QVector<PxOption> own{
        {"earlier", "", "The products of earlier catalogues, in the directory of --legacy, instead of the current ones."},
        {"sort", "KEYS", "Sort by these keys, downwards after a \"-\", as in class,-size. Default: by class and name. Keys: see --columns.", 0, 0, PxProductTable::keys(), PxOption::Form::SignedKeywords},
        {"columns", "KEYS", "Show these columns only, in this order: " + PxProductTable::keys().join(", ") + ". Default: the first eight, all of them in JSON, CSV and TSV.", 0, 0, PxProductTable::keys()},
        {"format", "FORMAT", "table, csv, tsv (with tabs) or json. Default: table.", 0, 0, {"table", "csv", "tsv", "json"}, PxOption::Form::OneKeyword},
        {"json", "", "The same as --format json, with all lengths in tenths of a millimetre."},
    };
    return {"list",
        "A table of the products, by class and name.\n"
        "Pages 26-154/2 means from 26 to 154 in steps of 2; 26, 30 means these two. "
        "Only products are shown that all the given options let through. Where there is little room, the least important columns are left out. Exit status 1 if no product fits.", PxProductFilter::options() + own};
    // clang-format on
}

PxReportCommand::Answer PxListCommand::answer(const PxCommandLine &line) const
{
    Answer answer;
    answer.wrongUsage = problemOf(line);
    answer.no = PxNamedProduct::problemOfTheme(PxNamedProduct::themeIdOf(line));
    if (answer.wrongUsage || answer.no)
        return answer;
    const auto *registry = line.isSet("earlier") ? PxProductTypeConfigRegistry::legacyInstance()
                                                 : PxProductTypeConfigRegistry::instance();
    const PxProductTypeList products = PxProductFilter::filtered(registry, line);
    PxProductTable table(registry, products);
    table.sort(line.keywords("sort"));
    table.choose(line.keywords("columns"));
    const QString format = line.keywords("format").value(0);
    if (format == "csv" || format == "tsv") {
        answer.lines = separatedLines(table, format == "csv");
    } else {
        answer.report = PxReport();
        answer.isJson = format == "json";
        table.addTo(&*answer.report);
    }
    if (products.isEmpty())
        answer.no = nothingFound(line);
    return answer;
}
