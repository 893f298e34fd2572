#include "commands/PxReportCommand.h"

#include "check/words/PxSpelling.h"
#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "report/PxCatalogueProducts.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

#include <QStringList>

namespace {

QString suggestionOf(const QStringList &names, const QString &name)
{
    const QStringList nearest = PxSpelling::nearestThree(name, names);
    return nearest.isEmpty() ? QString() : QString(": did you mean %1?").arg(nearest.join(", "));
}

} // namespace

PxExitStatus PxReportCommand::run(const PxCommandLine &line) const
{
    if (const auto problem = PxCatalogueDirectories::apply(line))
        return fail(*problem);
    PxProductPropertiesInitializer::setupModule();
    const Answer answer = this->answer(line);
    const auto write = [&line](const PxReport &report) {
        return line.isSet("json") ? PxTerminal::write(report.json())
                                  : PxTerminal::write(report.text(PxTerminal::columns()));
    };
    if (answer.report && !write(*answer.report))
        return PxExitStatus::CannotRun;
    if (!answer.no)
        return PxExitStatus::Done;
    PxTerminal::printError(answer.no->text);
    return PxExitStatus::AnswerIsNo;
}

PxCommandUsage::Arguments PxReportCommand::productName()
{
    return {"NAME", "The name of a product, in any case.", "the name of a product", 1};
}

QString PxReportCommand::themeId(const PxCommandLine &line)
{
    return line.value("theme").toLower();
}

PxProblem PxReportCommand::unknownProduct(const QString &name)
{
    const PxProductType type(name);
    const PxProductType successor =
        PxProductTypeConfigRegistry::instance()->findProductForLegacy(type);
    QString reason = QString("no product \"%1\"").arg(name);
    if (successor.isValid())
        reason += QString(" any more: %1 replaces it").arg(successor.productName());
    else if (type.isValid())
        reason += ": its type is known, but no product file describes it";
    else
        reason += suggestionOf(PxCatalogueProducts::names(), name);
    return {reason + " (\"pxcatalogue list\" shows all)"};
}

std::optional<PxProblem> PxReportCommand::problemOfTheme(const QString &id)
{
    const auto *factory = PxThemeFactory::instance();
    if (id.isEmpty() || factory->contains(id))
        return std::nullopt;
    return PxProblem{QString("no theme \"%1\"%2 (\"pxcatalogue themes\" shows all)")
                         .arg(id, suggestionOf(factory->themeNames(), id))};
}
