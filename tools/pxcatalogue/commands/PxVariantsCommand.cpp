#include "commands/PxVariantsCommand.h"

#include "commands/PxCommandLine.h"
#include "commands/PxNamedProduct.h"
#include "report/PxCatalogueProducts.h"

#include <PxProductProperties.h>

#include <QJsonArray>
#include <QMap>
#include <QVector>

PxCommandUsage PxVariantsCommand::usage() const
{
    return {"variants",
            "The variants of one product, such as its colours.\n"
            "Variants without a name are not on offer and are left out. Exit status 1 if none is "
            "left.",
            {PxOption::json()},
            PxNamedProduct::argument(PxNamedProduct::Among::Current)};
}

PxReportCommand::Answer PxVariantsCommand::answer(const PxCommandLine &line) const
{
    const PxNamedProduct named =
        PxNamedProduct::find(line.arguments().constFirst(), PxNamedProduct::Among::Current);
    if (named.no)
        return {std::nullopt, named.no};
    const PxProductType type = named.type;

    const auto *identifiers = PxProductVariantIdentifiers::instance();
    const QMap<QString, QString> nameOfVariant = identifiers->variants(type);
    const QString standard = identifiers->defaultVariant(type);
    QVector<QJsonArray> rows;
    for (auto it = nameOfVariant.begin(); it != nameOfVariant.end(); ++it)
        rows.append({it.key(), it.value(), it.key() == standard});
    PxReport report;
    report.addFields("product", "Product",
                     {{"name", "Name", type.productName()},
                      {"variantDescription", "Differ in", identifiers->variantDescription(type)},
                      {"defaultVariant", "Default", standard}});
    report.addTable("variants", "Variants",
                    {{"identifier", "Identifier", PxReportFormat::Key},
                     {"name", "Name"},
                     {"isDefault", "", PxReportFormat::JsonOnly}},
                    rows);
    if (!rows.isEmpty())
        return {report};
    return {report, PxProblem{type.productName() + " has no variants that have a name"}};
}
