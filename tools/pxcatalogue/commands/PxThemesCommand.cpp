#include "commands/PxThemesCommand.h"

#include "commands/PxCommandLine.h"
#include "format/PxCatalogueKeywords.h"
#include "report/PxCatalogueProducts.h"

#include <PxProductProperties.h>

#include <QJsonArray>
#include <QVector>

#include <algorithm>
#include <limits>

namespace {

using Format = PxReportFormat;

QJsonArray rowOf(const PxTheme &theme)
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

/** Lists the themes, with who may order them and which products they allow. */
void addTable(PxThemeList themes, PxReport *report)
{
    // The library reads the files in the order of the file system. Among themes with the same id
    // the first one read stays first.
    std::stable_sort(themes.begin(), themes.end(),
                     [](const PxTheme &a, const PxTheme &b) { return a.id() < b.id(); });
    QVector<QJsonArray> rows;
    for (const PxTheme &theme : qAsConst(themes))
        rows.append(rowOf(theme));
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

} // namespace

PxCommandUsage PxThemesCommand::usage() const
{
    // clang-format off
    return {"themes",
        "A table of the design themes, by id.\n"
        "The column Products has the number of products that a theme allows; JSON names them.", {
        {"key-account", "N", "Only the themes that this key account may order today.", 0, std::numeric_limits<int>::max()},
        PxOption::json(),
    }};
    // clang-format on
}

PxReportCommand::Answer PxThemesCommand::answer(const PxCommandLine &line) const
{
    const auto *factory = PxThemeFactory::instance();
    const int keyAccount = line.value("key-account").toInt();
    const PxThemeList themes =
        line.isSet("key-account") ? factory->themeList(keyAccount) : factory->themeList();
    PxReport report;
    addTable(themes, &report);
    if (!themes.isEmpty())
        return {report};
    if (!factory->themeList().isEmpty())
        return {report,
                PxProblem{QString("no theme that key account %1 may order").arg(keyAccount)}};
    const QString directory = PxDirectoryConfig::instance()->lumoThemesDirectory(false).path();
    return {report, PxProblem{QString("no themes in the directory \"%1\"").arg(directory)}};
}
