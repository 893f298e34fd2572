// The question whether two products are interchangeable.

#include "format/PxCatalogueKeywords.h"
#include "report/PxCatalogueProducts.h"
#include "why/PxWhyProduct.h"
#include "why/PxWhyQuestions.h"
#include "why/PxWhyRules.h"

namespace {

using Product = PxWhyProduct;

struct Row
{
    const char *tag;
    PxProductComparationCriterion criterion; ///< none for what is always compared
    const char *pointer;
    QJsonValue (*shown)(const Product &product);
};

QJsonValue incrementOf(const Product &product)
{
    const int increment = product.description().pageIncrement();
    return increment < 0 ? QJsonValue() : QJsonValue(increment);
}

// clang-format off

/** In the order in which the library compares them. */
constexpr Row rows[] = {
    {"same-class", PxProductComparationNone, "/product/class", [](const Product &p) { return QJsonValue(PxCatalogueProducts::className(p.type())); }},
    {"same-orientation", PxProductComparationNone, "/product/orientation", [](const Product &p) { return PxWhyRules::keyword(p.description().orientation()); }},
    {"same-spine", PxProductComparationNone, "/spine/hasSpine", [](const Product &p) { return QJsonValue(p.description().hasSpine()); }},
    {"same-page-list", PxProductComparationNone, "/pages/listEntries", [](const Product &p) { return QJsonValue(p.description().countAbstractPages()); }},
    {"same-binding", PxProductComparationBinding, "/product/binding", [](const Product &p) { return PxWhyRules::keyword(p.description().binding()); }},
    {"same-space", PxProductComparationSpaceMagnitude, "/product/space", [](const Product &p) { return PxWhyRules::keyword(p.description().spaceMagnitude()); }},
    {"same-paper", PxProductComparationPaperType, "/product/paper", [](const Product &p) { return PxWhyRules::keyword(p.description().paperType()); }},
    {"same-increment", PxProductComparationPageIncrement, "/pages/pageCounts", incrementOf},
};

// clang-format on

} // namespace

PxWhyQuestion PxWhyQuestions::compatible(const PxWhyProduct &product, const PxWhyProduct &other,
                                         PxProductComparationCriterion criterion)
{
    QVector<PxWhyRule> rules{PxWhyRules::catalogue(product),
                             PxWhyRules::catalogue(other, "other-")};
    for (const Row &row : rows) {
        if (row.criterion != PxProductComparationNone && (row.criterion & criterion) == 0)
            continue;
        rules.append({row.tag,
                      row.shown(product) == row.shown(other),
                      {row.shown(product)},
                      {row.shown(other)},
                      {product.origin(row.pointer), other.origin(row.pointer)}});
    }
    const QStringList keywords = keywordsOf(criterion, criterionKeywords);
    return {QString("Is %1 compatible with %2%3?")
                .arg(product.name(), other.name(),
                     keywords.isEmpty() ? QString() : " in " + keywords.join(", ")),
            PxProductTypeConfigRegistry::instance()
                ->findCompatibleProducts(product.type(), criterion)
                .contains(other.type()),
            rules + PxWhyRules::known(other, "other-")};
}
