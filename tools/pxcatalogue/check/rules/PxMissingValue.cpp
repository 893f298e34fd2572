#include "check/rules/PxMissingValue.h"

#include "format/PxFormat.h"

#include <description/PxProductTypeDescription.h>

#include <algorithm>
#include <iterator>

namespace {

using Description = PxProductTypeDescription;

constexpr const char *foldMargin = "foldmargin"; // which depends on surroundings, too

/** The attributes whose default depends on others, and who knows what became of it. */
constexpr struct
{
    const char *attribute;
    QString (*answer)(const Description &);
} answers[] = {
    {"bleedmarginhorizontal",
     [](const Description &d) { return QString::number(d.bleedMarginNormal().horizontal()); }},
    {"bleedmarginvertical",
     [](const Description &d) { return QString::number(d.bleedMarginNormal().vertical()); }},
    {"bleedmargincoverhorizontal",
     [](const Description &d) { return QString::number(d.bleedMarginCover().horizontal()); }},
    {"bleedmargincoververtical",
     [](const Description &d) { return QString::number(d.bleedMarginCover().vertical()); }},
    {foldMargin, [](const Description &d) { return QString::number(d.foldMargin()); }},
    {"fullBackgroundOnEachPage",
     [](const Description &d) { return QString(d.fullBackgroundOnEachPage() ? "true" : "false"); }},
    {"orientation",
     [](const Description &d) {
         return PxFormat::encode(PxKeywordSet::Orientation, d.orientation().value());
     }},
    {"space",
     [](const Description &d) {
         return PxFormat::encode(PxKeywordSet::SizeClass, d.spaceMagnitude().value());
     }},
};

/**
 * The product with no more than the answers depend on: its attributes and its size. A file may hold
 * long lists, and reading them for each of the answers takes long.
 */
QDomElement withoutLists(const QDomElement &product, const char *asked)
{
    constexpr int maximumLength = 1000; // letters of a value
    constexpr const char *size = "usablesize";
    QDomElement copy = product.cloneNode(false).toElement();
    const QDomNamedNodeMap attributes = product.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (attribute.name() != QLatin1String(asked) && attribute.value().size() > maximumLength)
            copy.removeAttribute(attribute.name());
    }
    copy.appendChild(product.firstChildElement(size).cloneNode(false));
    return copy;
}

/** What the documentation says about a missing attribute. */
QString absence(const PxAttributeRow &attribute)
{
    return PxFormat::plainText(QString::fromUtf8(attribute.absent));
}

QString integerText(const PxAttributeRow &attribute)
{
    const QString absent = absence(attribute);
    const QString consequence = absent.section(QLatin1String(": "), 1);
    if (!attribute.defaultText)
        return consequence.isEmpty() ? absent : consequence;
    const QString used = QString("%1 is used").arg(attribute.defaultText);
    if (consequence.isEmpty())
        return used;
    return consequence == QLatin1String("none") ? used + QLatin1String(", which means none")
                                                : used + QLatin1String(": ") + consequence;
}

/** Of an attribute whose default is nothing. */
QString nothingText(const PxAttributeRow &attribute)
{
    const QString absent = absence(attribute);
    if (absent == QLatin1String("empty"))
        return "it counts as empty";
    if (absent == QLatin1String("none"))
        return "there is none";
    const QString consequence = absent.section(QLatin1String(": "), 1);
    return consequence.isEmpty() ? absent : consequence;
}

} // namespace

QString PxMissingValue::text(const PxSourceElement &element, const PxAttributeRow &attribute)
{
    const QString ofProduct = answer(element, attribute);
    if (!ofProduct.isEmpty())
        return QString("%1 is used").arg(ofProduct);
    switch (attribute.type) {
    case PxValueType::Integer:
        return integerText(attribute);
    case PxValueType::RectanglePart:
        return attribute.defaultText ? QString("%1 is used").arg(attribute.defaultText)
                                     : "there is no rectangle";
    case PxValueType::PageRange:
        return absence(attribute);
    default:
        if (!attribute.defaultText || !*attribute.defaultText)
            return nothingText(attribute);
        return QString("%1 is used").arg(attribute.defaultText);
    }
}

QString PxMissingValue::answer(const PxSourceElement &element, const PxAttributeRow &attribute)
{
    const bool isSize = element.name == QLatin1String("usablesize");
    const PxSourceElement *product = isSize ? element.parent : &element;
    if (!product || product->name != QLatin1String("product"))
        return QString();
    const auto *found = std::find_if(std::begin(answers), std::end(answers), [&](const auto &row) {
        return qstrcmp(row.attribute, attribute.name) == 0;
    });
    if (found == std::end(answers))
        return QString();
    return found->answer(Description(found->attribute == foldMargin
                                         ? product->dom
                                         : withoutLists(product->dom, found->attribute)));
}
