#include "report/PxThemeTable.h"

#include "report/PxCatalogueProducts.h"
#include "report/PxReport.h"

#include <EnumHelper.h>

#include <algorithm>

namespace {

using Format = PxReportFormat;

QJsonArray row(const PxTheme &theme)
{
    return {theme.id(),
            theme.description(),
            keywordsOf(theme.productGroup().value(), EnumHelper::globalMapProductGroupEnumString)
                .join(", "),
            theme.expiryDayToOrderTxt(),
            theme.isExpired(),
            PxReportValue::numbers(theme.keyAccounts()),
            PxCatalogueProducts::nameArray(theme.allowedProductTypes().values())};
}

} // namespace

PxThemeTable::PxThemeTable(const PxThemeList &themes) : m_themes(themes)
{
    // They come in the order in which the file system lists the files.
    std::stable_sort(m_themes.begin(), m_themes.end(),
                     [](const PxTheme &a, const PxTheme &b) { return a.id() < b.id(); });
}

void PxThemeTable::addTo(PxReport *report) const
{
    QVector<QJsonArray> rows;
    for (const PxTheme &theme : m_themes)
        rows.append(row(theme));
    // clang-format off
    report->addTable("themes", "", {
        {"id", "Id", Format::Key},
        {"description", "Description"},
        {"group", "Group", Format::Key},
        {"expiryDay", "Until", Format::Key},
        {"isExpired", "Expired", Format::Key},
        {"keyAccounts", "Key accounts"},
        {"allowedProducts", "Products", Format::CountOrAll},
    }, rows);
    // clang-format on
}
