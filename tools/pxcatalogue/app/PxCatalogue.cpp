#include "app/PxCatalogue.h"

#include "app/PxCatalogueLog.h"
#include "commands/PxCatalogueDirectories.h"
#include "commands/PxNearestNames.h"
#include "commands/check/PxCheckCommand.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxProductReport.h"
#include "report/PxProductTable.h"
#include "report/PxReport.h"
#include "report/PxThemeTable.h"
#include "writing/PxOutputText.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace {

constexpr int done = 0;
constexpr int answerIsNo = 1;
constexpr int cannotRun = 2;

PxCatalogueLog::Shown shownLog(const PxCommandLine &commandLine)
{
    if (commandLine.isVerbose())
        return PxCatalogueLog::Shown::Everything;
    // What the library complains about is what "check" finds, and tells better.
    return commandLine.command() == PxCommandLine::Command::Check ? PxCatalogueLog::Shown::Nothing
                                                                  : PxCatalogueLog::Shown::Warnings;
}

/** Before the library is asked anything: it translates its tables when it builds them. */
void installTranslation(const QString &language)
{
    const QLocale locale = language.isEmpty() ? QLocale() : QLocale(language);
    // The texts are German, so there is no catalogue for it: where German is the first choice, the
    // catalogue of the second one would be found.
    if (locale.uiLanguages().value(0).startsWith(QLatin1String("de")))
        return;
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, QStringLiteral("pxproductproperties"), QStringLiteral("_"),
                         QStringLiteral(":/pxproductproperties")))
        QCoreApplication::installTranslator(translator);
}

QString suggestionOf(const QStringList &names, const QString &name)
{
    const QStringList nearest = PxNearestNames(names).find(name);
    return nearest.isEmpty()
               ? QString()
               : QStringLiteral(": did you mean %1?").arg(nearest.join(QLatin1String(", ")));
}

} // namespace

PxCatalogue::PxCatalogue(const QStringList &arguments) : m_commandLine(arguments) {}

int PxCatalogue::run() const
{
    const QString error = m_commandLine.error();
    if (!error.isEmpty()) {
        PxTerminal::printError(error);
        return cannotRun;
    }
    if (!m_commandLine.information().isEmpty())
        return PxTerminal::write(PxOutputText(m_commandLine.information())) ? done : cannotRun;

    PxCatalogueLog::install(shownLog(m_commandLine));
    if (m_commandLine.command() == PxCommandLine::Command::Check) {
        installTranslation(m_commandLine.language());
        return PxCheckCommand(m_commandLine).run();
    }
    const QString problem = PxCatalogueDirectories(m_commandLine).apply();
    if (!problem.isEmpty()) {
        PxTerminal::printError(problem);
        return cannotRun;
    }
    installTranslation(m_commandLine.language());
    PxProductPropertiesInitializer::setupModule();
    switch (m_commandLine.command()) {
    case PxCommandLine::Command::Show:
        return show();
    case PxCommandLine::Command::Compatible:
        return showCompatible();
    case PxCommandLine::Command::Themes:
        return showThemes();
    case PxCommandLine::Command::Variants:
        return showVariants();
    default:
        return list();
    }
}

int PxCatalogue::list() const
{
    const auto *registry = m_commandLine.isSet("earlier")
                               ? PxProductTypeConfigRegistry::legacyInstance()
                               : PxProductTypeConfigRegistry::instance();
    const PxProductClass classes = m_commandLine.productClasses();
    PxProductTypeList products;
    for (const PxProductType &type : PxCatalogueProducts::of(registry)) {
        if (classes == PxProductClassUnknown || type.isProductClass(classes))
            products.append(type);
    }
    if (products.isEmpty() && registry != PxProductTypeConfigRegistry::instance())
        PxTerminal::printError(QStringLiteral("no product of an earlier catalogue"));
    PxReport report;
    PxProductTable(registry, products).addTo(&report);
    return print(report);
}

int PxCatalogue::show() const
{
    const PxProductType type(m_commandLine.productName());
    const QString theme = m_commandLine.themeId();
    const bool isCurrent = PxCatalogueProducts::isCurrent(type);
    // Nobody designs a product of an earlier catalogue: none of the themes is for it.
    if (!isCurrent && (!theme.isEmpty() || !PxCatalogueProducts::isLegacy(type)))
        return printUnknownProduct();
    if (!isThemeKnown())
        return printUnknownTheme();
    const auto *registry = isCurrent ? PxProductTypeConfigRegistry::instance()
                                     : PxProductTypeConfigRegistry::legacyInstance();
    return print(PxProductReport(registry, type, m_commandLine.pageCount(), theme).report());
}

int PxCatalogue::showCompatible() const
{
    const PxProductType type(m_commandLine.productName());
    if (!PxCatalogueProducts::isCurrent(type))
        return printUnknownProduct();
    if (!isThemeKnown())
        return printUnknownTheme();

    const auto *registry = PxProductTypeConfigRegistry::instance();
    PxProductTypeList others = registry->findCompatibleProducts(type, m_commandLine.criterion());
    others.removeAll(type);
    QVector<PxReport::Field> query{{"product", "With", type.productName()},
                                   {"criterion", "Agreeing in", m_commandLine.criterionKeywords()}};
    const QString themeId = m_commandLine.themeId();
    if (!themeId.isEmpty()) {
        const PxTheme theme = PxThemeFactory::instance()->findTheme(themeId);
        others = theme.allowedProductTypes().sharedKeys(others);
        query.append({"theme", "Allowed by the theme", themeId});
    }
    PxReport report;
    report.addFields("query", "Interchangeable", query);
    PxProductTable(registry, PxCatalogueProducts::sorted(others)).addTo(&report);
    QString reason =
        QLatin1String("no other product is interchangeable with ") + type.productName();
    if (!themeId.isEmpty())
        reason += QStringLiteral(" and allowed by the theme \"%1\"").arg(themeId);
    return print(report, others.isEmpty(), reason);
}

int PxCatalogue::showThemes() const
{
    const auto *factory = PxThemeFactory::instance();
    const int keyAccount = m_commandLine.keyAccount();
    const PxThemeList themes =
        keyAccount < 0 ? factory->themeList() : factory->themeList(keyAccount);
    PxReport report;
    PxThemeTable(themes).addTo(&report);
    const QString reason =
        factory->themeList().isEmpty()
            ? QStringLiteral("no themes in the directory \"%1\"")
                  .arg(PxDirectoryConfig::instance()->lumoThemesDirectory(false).path())
            : QStringLiteral("no theme that key account %1 may order").arg(keyAccount);
    return print(report, themes.isEmpty(), reason);
}

int PxCatalogue::showVariants() const
{
    const PxProductType type(m_commandLine.productName());
    if (!PxCatalogueProducts::isCurrent(type))
        return printUnknownProduct();

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
    return print(report, rows.isEmpty(),
                 type.productName() + QLatin1String(" has no variants that have a name"));
}

int PxCatalogue::print(const PxReport &report) const
{
    const bool isWritten = m_commandLine.isJson()
                               ? PxTerminal::write(report.json())
                               : PxTerminal::write(report.text(PxTerminal::columns()));
    return isWritten ? done : cannotRun;
}

int PxCatalogue::print(const PxReport &report, bool isEmpty, const QString &reason) const
{
    const int status = print(report);
    return status == done && isEmpty ? printNo(reason) : status;
}

int PxCatalogue::printNo(const QString &reason) const
{
    PxTerminal::printError(reason);
    return answerIsNo;
}

int PxCatalogue::printUnknownProduct() const
{
    const QString name = m_commandLine.productName();
    const PxProductType type(name);
    const PxProductType successor =
        PxProductTypeConfigRegistry::instance()->findProductForLegacy(type);
    QString reason = QStringLiteral("no product \"%1\"").arg(name);
    if (successor.isValid())
        reason += QStringLiteral(" any more: %1 replaces it").arg(successor.productName());
    else if (type.isValid())
        reason += QLatin1String(": its type is known, but no product file describes it");
    else
        reason += suggestionOf(PxCatalogueProducts::names(), name);
    return printNo(reason + QLatin1String(" (\"pxcatalogue list\" shows all)"));
}

int PxCatalogue::printUnknownTheme() const
{
    const QString id = m_commandLine.themeId();
    return printNo(QStringLiteral("no theme \"%1\"%2 (\"pxcatalogue themes\" shows all)")
                       .arg(id, suggestionOf(PxThemeFactory::instance()->themeNames(), id)));
}

/** Also when none is given. */
bool PxCatalogue::isThemeKnown() const
{
    const QString id = m_commandLine.themeId();
    return id.isEmpty() || PxThemeFactory::instance()->contains(id);
}
