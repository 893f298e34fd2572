#include "commands/PxCompatibleCommand.h"

#include "commands/PxCommandLine.h"
#include "commands/PxNamedProduct.h"
#include "format/PxCatalogueKeywords.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxProductTable.h"

#include <PxProductProperties.h>

#include <QJsonArray>
#include <QVector>

PxCommandUsage PxCompatibleCommand::usage() const
{
    // clang-format off
    return {"compatible",
        "The other products that are interchangeable with this one.\n"
        "These have the same class and the same orientation, and their page lists have the same number "
        "of entries (a range of pages is one entry), all with a spine or all without. Page counts are "
        "not compared. --criterion names further properties that must be the same. Exit status 1 if there "
        "is no such product.", {
        {"criterion", "KEYWORDS", "What else must be the same: binding, paper, space, increment; several with commas. Default: nothing.", 0, 0, keywordList(criterionRows)},
        PxOption::theme(),
        PxOption::json(),
    }, PxNamedProduct::argument(PxNamedProduct::Among::Current)};
    // clang-format on
}

PxReportCommand::Answer PxCompatibleCommand::answer(const PxCommandLine &line) const
{
    const PxNamedProduct named = PxNamedProduct::of(line, PxNamedProduct::Among::Current);
    if (named.no)
        return {std::nullopt, named.no};
    const PxProductType type = named.type;
    const QString themeId = named.themeId;

    const auto criterion = EnumHelper::decodeKeywordList(line.value("criterion"), criterionKeywords,
                                                         PxProductComparationNone);
    PxProductTypeList others = named.registry->findCompatibleProducts(type, criterion);
    others.removeAll(type);
    const auto agreeing = QJsonArray::fromStringList(keywordsOf(criterion, criterionKeywords));
    QVector<PxReport::Field> query{{"product", "With", type.productName()},
                                   {"criterion", "Agreeing in", agreeing}};
    QString reason = "no other product is interchangeable with " + type.productName();
    if (!themeId.isEmpty()) {
        const PxTheme theme = PxThemeFactory::instance()->findTheme(themeId);
        others = theme.allowedProductTypes().sharedKeys(others);
        query.append({"theme", "Allowed by the theme", themeId});
        reason += QString(" and allowed by the theme \"%1\"").arg(themeId);
    }
    PxReport report;
    report.addFields("query", "Interchangeable", query);
    PxProductTable(named.registry, PxCatalogueProducts::sorted(others)).addTo(&report);
    return {report, others.isEmpty() ? std::optional(PxProblem{reason}) : std::nullopt};
}
