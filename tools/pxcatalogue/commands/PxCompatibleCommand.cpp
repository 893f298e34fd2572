#include "commands/PxCompatibleCommand.h"

#include "commands/PxCommandLine.h"
#include "report/PxCatalogueKeywords.h"
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
        "Those of its class with the same orientation and a page list of as many entries (a range of\n"
        "pages is one), both lists with a spine or both without. Page counts are not compared.\n"
        "--criterion names what must agree beside these.", {
        {"criterion", "KEYWORDS", "What must agree, too: binding, paper, space and increment, with commas. Default: none.", 0, 0, keywordList(criterionRows)},
        PxOption::theme(),
        PxOption::json(),
    }, productName()};
    // clang-format on
}

PxReportCommand::Answer PxCompatibleCommand::answer(const PxCommandLine &line) const
{
    const PxProductType type(line.arguments().constFirst());
    const QString themeId = PxReportCommand::themeId(line);
    if (!PxCatalogueProducts::isCurrent(type))
        return {std::nullopt, unknownProduct(line.arguments().constFirst())};
    if (const auto no = problemOfTheme(themeId))
        return {std::nullopt, no};

    const auto criterion = EnumHelper::decodeKeywordList(line.value("criterion"), criterionKeywords,
                                                         PxProductComparationNone);
    const auto *registry = PxProductTypeConfigRegistry::instance();
    PxProductTypeList others = registry->findCompatibleProducts(type, criterion);
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
    PxProductTable::addTo(&report, registry, PxCatalogueProducts::sorted(others));
    return {report, others.isEmpty() ? std::optional(PxProblem{reason}) : std::nullopt};
}
