#include "commands/PxProductFilter.h"

#include "commands/PxCommandLine.h"
#include "commands/PxNamedProduct.h"
#include "format/PxFormat.h"
#include "report/PxCatalogueProducts.h"

#include <PxProductProperties.h>

#include <algorithm>
#include <limits>

namespace {

constexpr int maximumLength = std::numeric_limits<int>::max() / 10; // in millimetres

struct Asked
{
    const PxProductTypeConfigRegistry *registry;
    PxProductType type;
    const PxProductTypeDescription *product = registry->description(type);
    QSizeF size = product->usablePrintSize(PxPageTypeNormalPage, -1);
};

// clang-format off

/** Lets a product through if it has one of the keywords. */
constexpr struct
{
    const char *option;
    const char *description;
    PxKeywordSet set;
    int (*value)(const Asked &asked);
} keywordFilters[] = {
    {"class", "Only products of these classes", PxKeywordSet::ProductClass, [](const Asked &asked) { return int(asked.type.productClass()); }},
    {"binding", "Only products with these bindings", PxKeywordSet::Binding, [](const Asked &asked) { return int(asked.product->binding().value()); }},
    {"paper", "Only products on these papers", PxKeywordSet::Paper, [](const Asked &asked) { return int(asked.product->paperType().value()); }},
    {"orientation", "Only products of these shapes", PxKeywordSet::Orientation, [](const Asked &asked) { return int(asked.product->orientation().value()); }},
    {"space", "Only products of these size classes", PxKeywordSet::SizeClass, [](const Asked &asked) { return int(asked.product->spaceMagnitude().value()); }},
};

/** Lets a product through if its page is neither smaller nor larger; one without a size never. */
constexpr struct
{
    const char *option;
    const char *description;
    bool (*isWithin)(const QSizeF &size, double limit);
} sizeFilters[] = {
    {"min-width", "Only products whose page is at least this wide, in millimetres.", [](const QSizeF &size, double limit) { return size.width() >= limit; }},
    {"max-width", "Only products whose page is at most this wide.", [](const QSizeF &size, double limit) { return size.width() <= limit; }},
    {"min-height", "Only products whose page is at least this high.", [](const QSizeF &size, double limit) { return size.height() >= limit; }},
    {"max-height", "Only products whose page is at most this high.", [](const QSizeF &size, double limit) { return size.height() <= limit; }},
};

// clang-format on

bool hasOneOf(const QStringList &keywords, PxKeywordSet set, int value)
{
    for (const PxKeywordTableRow &row : PxFormat::keywords(set).keywords) {
        const bool isMatch = row.value == 0 ? value == 0 : (row.value & value) != 0;
        if (isMatch && keywords.contains(row.keyword))
            return true;
    }
    return false;
}

/** Removes the products for which the condition does not hold. */
template <typename CONDITION>
void keep(QVector<Asked> *products, CONDITION condition)
{
    const auto isRefused = [&condition](const Asked &asked) { return !condition(asked); };
    products->erase(std::remove_if(products->begin(), products->end(), isRefused), products->end());
}

void keepKeywords(QVector<Asked> *products, const PxCommandLine &line)
{
    for (const auto &filter : keywordFilters) {
        const QStringList keywords = line.keywords(filter.option);
        if (line.isSet(filter.option))
            keep(products, [&](const Asked &asked) {
                return hasOneOf(keywords, filter.set, filter.value(asked));
            });
    }
}

void keepSizes(QVector<Asked> *products, const PxCommandLine &line)
{
    for (const auto &filter : sizeFilters) {
        const auto limit = double(qRound64(line.value(filter.option).toDouble() * 10));
        if (line.isSet(filter.option))
            keep(products, [&](const Asked &asked) {
                return asked.size.isValid() && filter.isWithin(asked.size, limit);
            });
    }
}

void keepOffers(QVector<Asked> *products, const PxCommandLine &line)
{
    const int pages = line.value("pages").toInt();
    if (line.isSet("pages"))
        keep(products,
             [pages](const Asked &asked) { return asked.product->isPageCountOffered(pages); });
    if (line.isSet("not-offered"))
        keep(products, [](const Asked &asked) {
            return !PxCatalogueProducts::isOffered(asked.registry, asked.type);
        });
}

/** The themes of which one must allow a product; those that the key account may order, if any. */
PxThemeList themesOf(const PxCommandLine &line)
{
    const auto *factory = PxThemeFactory::instance();
    const PxThemeList themes = line.isSet("key-account")
                                   ? factory->themeList(line.value("key-account").toInt())
                                   : factory->themeList();
    if (!line.isSet("theme"))
        return themes;
    const PxTheme theme = factory->findTheme(PxNamedProduct::themeIdOf(line));
    return themes.contains(theme) ? PxThemeList(theme) : PxThemeList();
}

void keepAllowed(QVector<Asked> *products, const PxCommandLine &line)
{
    if (!line.isSet("theme") && !line.isSet("key-account"))
        return;
    const PxThemeList themes = themesOf(line);
    keep(products, [&themes](const Asked &asked) {
        return std::any_of(themes.begin(), themes.end(), [&asked](const PxTheme &theme) {
            return PxProductContext(asked.type, theme).isValid();
        });
    });
}

} // namespace

QVector<PxOption> PxProductFilter::options()
{
    QVector<PxOption> options;
    for (const auto &filter : keywordFilters) {
        const QString description = QString(filter.description) + ": " +
                                    PxFormat::mainKeywordNames(filter.set).join(", ") +
                                    "; several with commas.";
        options.append(
            {filter.option, "KEYWORDS", description, 0, 0, PxFormat::keywordNames(filter.set)});
    }
    // clang-format off
    options.append({"theme", "ID", "Only products that this theme allows.", 0, 0, {}, PxOption::Form::Theme});
    options.append({"key-account", "N", "Only products that are allowed by a theme that this key account may order today; with --theme, by that one.", 0, std::numeric_limits<int>::max()});
    options.append({"pages", "N", "Only products that are offered with this many pages.", 1, std::numeric_limits<int>::max()});
    for (const auto &filter : sizeFilters)
        options.append({filter.option, "MM", filter.description, 0, maximumLength, {}, PxOption::Form::Tenths});
    options.append({"not-offered", "", "Only products that customers cannot order."});
    // clang-format on
    return options;
}

QString PxProductFilter::given(const PxCommandLine &line)
{
    QStringList given;
    for (const PxOption &option : options()) {
        if (line.isSet(option.name))
            given.append("--" + (option.name + ' ' + line.value(option.name)).trimmed());
    }
    return given.join(' ');
}

PxProductTypeList PxProductFilter::filtered(const PxProductTypeConfigRegistry *registry,
                                            const PxCommandLine &line)
{
    QVector<Asked> products;
    for (const PxProductType &type : PxCatalogueProducts::of(registry))
        products.append({registry, type});
    keepKeywords(&products, line);
    keepSizes(&products, line);
    keepOffers(&products, line);
    keepAllowed(&products, line);
    PxProductTypeList types;
    for (const Asked &asked : qAsConst(products))
        types.append(asked.type);
    return types;
}
