#include "report/PxThemeTable.h"

#include "format/PxCatalogueKeywords.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxReport.h"
#include "writing/PxJsonLine.h"

#include <PxProductProperties.h>

#include <QJsonArray>
#include <QVector>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

using Format = PxReportFormat;

QJsonArray rowOf(const PxTheme &theme)
{
    return {theme.id(),
            theme.description(),
            keywordsOf(theme.productGroup().value(), EnumHelper::globalMapProductGroupEnumString)
                .join(", "),
            theme.expiryDate().date().toString(Qt::ISODate), // with the same digits everywhere
            theme.isExpired(),
            PxReportValue::numbers(theme.keyAccounts()),
            PxCatalogueProducts::nameArray(theme.allowedProductTypes().values())};
}

// clang-format off
const QVector<PxReport::Column> &columns()
{
    static const QVector<PxReport::Column> ourColumns{
        {"id", "Id", Format::Key},
        {"description", "Description"},
        {"group", "Group", Format::Key},
        {"expiryDay", "Until", Format::Key},
        {"isExpired", "Expired", Format::Key, PxReport::ShownOnly},
        {"keyAccounts", "Key accounts"},
        {"allowedProducts", "Products", Format::CountOrAll},
    };
    return ourColumns;
}
// clang-format on

QStringList namesOf(const PxTheme &theme)
{
    QStringList names;
    for (const PxProductType &type :
         PxCatalogueProducts::sorted(theme.allowedProductTypes().values()))
        names.append(type.productName());
    return names;
}

} // namespace

void PxThemeTable::addTo(PxReport *report, PxThemeList themes)
{
    // The library reads the files in the order of the file system. Among themes with the same id
    // the first one read stays first.
    std::stable_sort(themes.begin(), themes.end(),
                     [](const PxTheme &a, const PxTheme &b) { return a.id() < b.id(); });
    QVector<QJsonArray> rows;
    for (const PxTheme &theme : qAsConst(themes))
        rows.append(rowOf(theme));
    report->addTable("themes", "", columns(), rows);
}

PxThemeList PxThemeTable::sorted(PxThemeList themes)
{
    std::vector<std::pair<QString, PxTheme>> byContent;
    for (const PxTheme &theme : qAsConst(themes))
        byContent.emplace_back(theme.sortingKey(), theme);
    std::sort(byContent.begin(), byContent.end(), [](const auto &a, const auto &b) {
        if (a.first != b.first)
            return a.first < b.first; // begins with the id
        return namesOf(a.second) < namesOf(b.second);
    });
    std::transform(byContent.begin(), byContent.end(), themes.begin(),
                   [](const auto &theme) { return theme.second; });
    return themes;
}

void PxThemeTable::addTo(PxJsonLine *line, const PxTheme &theme)
{
    const QJsonArray row = rowOf(theme);
    for (int i = 0; i < row.size(); ++i) {
        if (columns()[i].use == PxReport::Exported)
            line->add(columns()[i].key, row[i]);
    }
}

void PxThemeTable::addFieldsTo(PxReport *report, const PxTheme &theme)
{
    const QJsonArray row = rowOf(theme);
    QVector<PxReport::Field> fields;
    for (int i = 0; i < row.size(); ++i) {
        const PxReport::Column &column = columns()[i];
        if (column.use == PxReport::Exported)
            fields.append({column.key, column.label, row[i], column.format});
    }
    report->addFields("themes", "", fields);
}
