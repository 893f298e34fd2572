#include "why/PxWhyRules.h"

#include "why/PxWhyProduct.h"

PxOrigin PxWhyRules::asked(const QString &option)
{
    PxOrigin origin;
    origin.kind = PxOrigin::Kind::Question;
    origin.rule = "--" + option;
    return origin;
}

PxOrigin PxWhyRules::in(const PxOriginFile &file, const PxSourceElement *element,
                        const char *attribute)
{
    if (!element)
        return PxOrigin();
    const PxSourceAttribute *found = attribute ? element->attribute(attribute) : nullptr;
    return {file.kind(), file.place(found ? found->nameRange : element->nameRange)};
}

void PxWhyRules::addLost(const PxOriginFile &file, const PxSourceElement &entry,
                         const QString &reason, PxWhyRule *rule)
{
    constexpr int listed = 100; // more than people write for one page
    if (rule->lost.size() > listed)
        return;
    const bool isLast = rule->lost.size() == listed;
    rule->lost.append(isLast ? PxOrigin() : in(file, &entry));
    rule->lost.last().rule = isLast ? "and more" : reason;
}

QJsonValue PxWhyRules::orNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

PxWhyRule PxWhyRules::file(const PxWhyProduct &product)
{
    PxWhyRule rule = catalogue(product);
    rule.tag = "product-file";
    rule.holds = product.isDescribed();
    rule.asked.json = "any";
    return rule;
}

PxWhyRule PxWhyRules::catalogue(const PxWhyProduct &product, const QString &prefix)
{
    const bool isCurrent = product.isCurrent();
    const QString given = isCurrent ? "current" : product.isDescribed() ? "earlier" : "";
    return {prefix + "catalogue",
            isCurrent,
            {"current"},
            {orNull(given)},
            {in(product.file(), product.file().element(), "name")}};
}

QVector<PxWhyRule> PxWhyRules::known(const PxWhyProduct &product, const QString &prefix)
{
    const PxProductTypeDescription &description = product.description();
    const QSize size = description.usablePrintSize(PxPageTypeNormalPage, -1);
    // clang-format off
    return {
        {prefix + "binding", description.binding().isValid(), {"known"}, {keyword(description.binding())}, {product.origin("/product/binding")}},
        {prefix + "orientation", description.orientation().isValid(), {"known"}, {keyword(description.orientation())}, {product.origin("/product/orientation")}},
        {prefix + "size", size.isValid(), {"known"}, {PxReportValue::size(size), PxReportFormat::Size}, {product.origin("/sizes/page")}},
    };
    // clang-format on
}
