#include "PxCatalogue.h"

#include "PxCatalogueDirectories.h"
#include "PxCatalogueLog.h"
#include "PxCatalogueProducts.h"
#include "PxNearestNames.h"
#include "PxProductReport.h"
#include "PxProductTable.h"
#include "PxReport.h"
#include "PxTerminal.h"

#include <PxProductProperties.h>

#include <QFile>

#include <cstdio>

namespace {

constexpr int done = 0;
constexpr int answerIsNo = 1;
constexpr int cannotRun = 2;

int write(const QByteArray &output)
{
    QFile file;
    if (file.open(stdout, QIODevice::WriteOnly) && file.write(output) == output.size() &&
        file.flush())
        return done;
    PxTerminal::printError(QStringLiteral("cannot write the output: ") + file.errorString());
    return cannotRun;
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
        return write(m_commandLine.information().toUtf8());

    PxCatalogueLog::install(m_commandLine.isVerbose());
    const QString problem = PxCatalogueDirectories(m_commandLine).apply();
    if (!problem.isEmpty()) {
        PxTerminal::printError(problem);
        return cannotRun;
    }
    PxProductPropertiesInitializer::setupModule();
    switch (m_commandLine.command()) {
    case PxCatalogueCommandLine::Command::Show:
        return show();
    case PxCatalogueCommandLine::Command::Compatible:
        return showCompatible();
    default:
        return list();
    }
}

int PxCatalogue::list() const
{
    const PxProductClass classes = m_commandLine.productClasses();
    PxProductTypeList products;
    for (const PxProductType &type : PxCatalogueProducts::current()) {
        if (classes == PxProductClassUnknown || type.isProductClass(classes))
            products.append(type);
    }
    PxReport report;
    PxProductTable(products).addTo(&report);
    return print(report);
}

int PxCatalogue::show() const
{
    const PxProductType type(m_commandLine.productName());
    const int pages = m_commandLine.pageCount();
    if (PxCatalogueProducts::isCurrent(type))
        return print(
            PxProductReport(PxProductTypeConfigRegistry::instance(), type, pages).report());
    if (PxCatalogueProducts::isLegacy(type))
        return print(
            PxProductReport(PxProductTypeConfigRegistry::legacyInstance(), type, pages).report());
    return printUnknownProduct();
}

int PxCatalogue::showCompatible() const
{
    const PxProductType type(m_commandLine.productName());
    if (!PxCatalogueProducts::isCurrent(type))
        return printUnknownProduct();

    PxProductTypeList others = PxProductTypeConfigRegistry::instance()->findCompatibleProducts(
        type, m_commandLine.criterion());
    others.removeAll(type);
    PxReport report;
    report.addFields("query", "Interchangeable",
                     {{"product", "With", type.productName()},
                      {"criterion", "Agreeing in", m_commandLine.criterionKeywords()}});
    PxProductTable(PxCatalogueProducts::sorted(others)).addTo(&report);
    const int status = print(report);
    if (status != done || !others.isEmpty())
        return status;
    PxTerminal::printError(QStringLiteral("no other product is interchangeable with ") +
                           type.productName());
    return answerIsNo;
}

int PxCatalogue::print(const PxReport &report) const
{
    return write(m_commandLine.isJson() ? report.json()
                                        : report.text(PxTerminal::columns()).toUtf8());
}

int PxCatalogue::printUnknownProduct() const
{
    const QString name = m_commandLine.productName();
    const PxProductType type(name);
    const PxProductType successor =
        PxProductTypeConfigRegistry::instance()->findProductForLegacy(type);
    const QStringList nearest = PxNearestNames(PxCatalogueProducts::names()).find(name);
    QString reason = QStringLiteral("no product \"%1\"").arg(name);
    if (successor.isValid())
        reason += QStringLiteral(" any more: %1 replaces it").arg(successor.productName());
    else if (type.isValid())
        reason += QLatin1String(": its type is known, but no product file describes it");
    else if (!nearest.isEmpty())
        reason += QStringLiteral(": did you mean %1?").arg(nearest.join(QLatin1String(", ")));
    PxTerminal::printError(reason + QLatin1String(" (\"pxcatalogue list\" shows all)"));
    return answerIsNo;
}
