#include "commands/PxNamedProduct.h"

#include "check/words/PxSpelling.h"
#include "commands/PxCommandLine.h"
#include "report/PxCatalogueProducts.h"

#include <PxProductProperties.h>

#include <QStringList>

namespace {

QString suggestionOf(const QStringList &names, const QString &name)
{
    const QStringList nearest = PxSpelling::nearestThree(name, names);
    return nearest.isEmpty() ? QString() : QString(": did you mean %1?").arg(nearest.join(", "));
}

} // namespace

PxNamedProduct PxNamedProduct::of(const PxCommandLine &line)
{
    const QString name = line.arguments().constFirst();
    PxNamedProduct named{PxProductTypeConfigRegistry::instance(), PxProductType(name),
                         themeIdOf(line)};
    const bool isCurrent = PxCatalogueProducts::isCurrent(named.type);
    // No theme applies to a product of an earlier catalogue.
    if (!isCurrent && (!named.themeId.isEmpty() || !PxCatalogueProducts::isLegacy(named.type)))
        named.no = unknownProduct(name);
    else
        named.no = problemOfTheme(named.themeId);
    if (!isCurrent)
        named.registry = PxProductTypeConfigRegistry::legacyInstance();
    return named;
}

PxCommandUsage::Arguments PxNamedProduct::argument()
{
    return {"NAME", "The name of a product, in any case.", "the name of a product", 1};
}

QString PxNamedProduct::themeIdOf(const PxCommandLine &line)
{
    return line.value("theme").toLower();
}

PxProblem PxNamedProduct::unknownProduct(const QString &name)
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

std::optional<PxProblem> PxNamedProduct::problemOfTheme(const QString &id)
{
    if (id.isEmpty() || PxThemeFactory::instance()->contains(id))
        return std::nullopt;
    const QStringList ids = PxThemeFactory::instance()->themeNames();
    return PxProblem{QString("no theme \"%1\"%2 (\"pxcatalogue themes\" shows all)")
                         .arg(id, suggestionOf(ids, id))};
}
