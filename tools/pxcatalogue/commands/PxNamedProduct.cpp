#include "commands/PxNamedProduct.h"

#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"
#include "commands/PxCommandLine.h"
#include "report/PxCatalogueProducts.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

#include <QMap>
#include <QStringList>
#include <QVector>

#include <algorithm>

namespace {

constexpr int listedProducts = 10;

QString suggestionOf(const QStringList &nearest)
{
    return nearest.isEmpty() ? QString() : ": " + PxSpelling::didYouMean(nearest);
}

/** The name of the product, and what it is called in the shop. */
QString withShopName(const PxProductType &type)
{
    return QString("%1 (%2)").arg(type.productName(),
                                  PxMessageText::shortened(type.shortProductName()));
}

/** The products whose shop name has this part, the shortest name first. */
PxProductTypeList withPartOfShopName(const PxProductTypeConfigRegistry *registry,
                                     const QString &part)
{
    PxProductTypeList found;
    for (const PxProductType &type : PxCatalogueProducts::of(registry)) {
        if (type.shortProductName().contains(part, Qt::CaseInsensitive))
            found.append(type);
    }
    std::stable_sort(found.begin(), found.end(), [](const auto &a, const auto &b) {
        return a.shortProductName().size() < b.shortProductName().size();
    });
    return found;
}

/** The products that are called so in the shop; if none is, those whose shop name has this part. */
PxProductTypeList namedInShop(const QString &name)
{
    const QString part = name.trimmed();
    if (part.isEmpty())
        return {};
    PxProductTypeList found = withPartOfShopName(PxProductTypeConfigRegistry::instance(), part);
    if (found.isEmpty())
        found = withPartOfShopName(PxProductTypeConfigRegistry::legacyInstance(), part);
    PxProductTypeList exact;
    for (const PxProductType &type : qAsConst(found)) {
        if (type.shortProductName().trimmed().size() == part.size())
            exact.append(type);
    }
    return exact.isEmpty() ? found : exact;
}

PxProblem severalProducts(const QString &name, const PxProductTypeList &products)
{
    QStringList listed;
    for (const PxProductType &type : products.mid(0, listedProducts))
        listed.append(withShopName(type));
    const int others = products.size() - listed.size();
    return {QString("\"%1\" fits %2 products: %3%4")
                .arg(name, QString::number(products.size()), listed.join(", "),
                     others > 0 ? QString(" and %1 more").arg(others) : "")};
}

/** At most three products, as the user may name them. */
QStringList nearestProducts(const QString &name)
{
    QStringList names = PxCatalogueProducts::names();
    QMap<QString, QString> productOfShopName;
    for (const QString &known : qAsConst(names))
        productOfShopName.insert(PxProductType(known).shortProductName(),
                                 withShopName(PxProductType(known)));
    names += productOfShopName.keys();
    QStringList nearest = PxSpelling::nearestThree(name, names);
    for (QString &product : nearest)
        product = productOfShopName.value(product, product);
    nearest.removeDuplicates();
    return nearest;
}

PxProblem unknownProduct(const QString &name, const PxProductType &type)
{
    const PxProductType successor =
        PxProductTypeConfigRegistry::instance()->findProductForLegacy(type);
    QString reason = QString("no product \"%1\"").arg(name);
    if (successor.isValid())
        reason += QString(" any more: %1 replaces it").arg(successor.productName());
    else if (PxCatalogueProducts::isLegacy(type))
        reason += QString(" any more: %1 is of an earlier catalogue").arg(type.productName());
    else if (type.isValid())
        reason += ": its type is known, but no product file describes it";
    else
        reason += suggestionOf(nearestProducts(name));
    return {reason + " (\"pxcatalogue list\" shows all)"};
}

/** The type with this name or code; not valid for any other text. */
PxProductType typeOf(const QString &name)
{
    const PxProductType type(name);
    return type.isValid() ? type : PxProductType(name.toInt());
}

} // namespace

PxNamedProduct PxNamedProduct::of(const PxCommandLine &line, Among among)
{
    const QString themeId = themeIdOf(line);
    // No theme applies to a product of an earlier catalogue.
    PxNamedProduct named =
        find(line.arguments().constFirst(), themeId.isEmpty() ? among : Among::Current);
    named.themeId = themeId;
    if (!named.no)
        named.no = problemOfTheme(themeId);
    return named;
}

PxNamedProduct PxNamedProduct::find(const QString &name, Among among)
{
    PxNamedProduct named{PxProductTypeConfigRegistry::instance(), typeOf(name)};
    if (!named.type.isValid()) {
        const PxProductTypeList products = namedInShop(name);
        if (products.size() > 1) {
            named.no = severalProducts(name, products);
            return named;
        }
        named.type = products.value(0);
    }
    if (!PxCatalogueProducts::isCurrent(named.type)) {
        named.registry = PxProductTypeConfigRegistry::legacyInstance();
        if (among == Among::Current || !PxCatalogueProducts::isLegacy(named.type))
            named.no = unknownProduct(name, named.type);
    }
    if (!named.no && named.type != PxProductType(name))
        PxTerminal::printError(QString("\"%1\" is %2").arg(name, withShopName(named.type)));
    return named;
}

PxCommandUsage::Arguments PxNamedProduct::argument(Among among)
{
    return {"NAME",
            "The name of a product, in any case, its code, or a part of its name in the shop that "
            "no other product has.",
            "the name of a product", 1,
            among == Among::All ? PxOption::Form::Product : PxOption::Form::CurrentProduct};
}

QString PxNamedProduct::themeIdOf(const PxCommandLine &line)
{
    return line.value("theme").toLower();
}

std::optional<PxProblem> PxNamedProduct::problemOfTheme(const QString &id)
{
    if (id.isEmpty() || PxThemeFactory::instance()->contains(id))
        return std::nullopt;
    const QStringList near = PxSpelling::nearestThree(id, PxThemeFactory::instance()->themeNames());
    return PxProblem{QString("no theme \"%1\"%2 (\"pxcatalogue themes\" shows all)")
                         .arg(id, suggestionOf(near))};
}
