#include "check/rules/PxMissingValue.h"

#include "check/PxCheckLimits.h"
#include "check/words/PxMessageText.h"
#include "format/PxFormat.h"

#include <description/PxProductTypeDescription.h>

#include <algorithm>
#include <iterator>

namespace {

using Description = PxProductTypeDescription;

constexpr const char *foldMargin = "foldmargin"; // which depends on surroundings, too

/** The attributes whose default depends on others, and the question that gets the default. */
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
    {"coverBackgroundCategories",
     [](const Description &d) {
         QStringList names;
         for (const PxThematicCategory &category : d.allowedBackgroundCategories())
             names.append(PxMessageText::quoted(category.name()));
         return names.isEmpty() ? "no limit" : names.join(QLatin1String(", "));
     }},
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
 * A copy of the product with no more than the answers depend on, its attributes and its size:
 * reading long lists for each answer takes long.
 */
QDomElement withoutLists(const QDomElement &product, const char *asked)
{
    constexpr const char *size = "usablesize";
    QDomElement copy = product.cloneNode(false).toElement();
    const QDomNamedNodeMap attributes = product.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (attribute.name() != QLatin1String(asked) &&
            attribute.value().size() > PxCheckLimits::answeredLength)
            copy.removeAttribute(attribute.name());
    }
    copy.appendChild(product.firstChildElement(size).cloneNode(false));
    return copy;
}

} // namespace

QString PxMissingValue::text(const PxSourceElement &element, const PxAttributeRow &attribute)
{
    const QString ofProduct = answer(element, attribute);
    if (ofProduct.startsWith(QLatin1String("no ")))
        return QString("there is %1").arg(ofProduct);
    if (!ofProduct.isEmpty())
        return QString("%1 is used").arg(ofProduct);
    const QString used = QString("%1 is used").arg(attribute.defaultText);
    if (attribute.type == PxValueType::RectanglePart)
        return attribute.defaultText ? used : "there is no rectangle";
    const QString consequence = QString::fromUtf8(attribute.consequence);
    const bool isNothing = consequence == QLatin1String("none");
    if (!attribute.defaultText)
        return consequence;
    if (!*attribute.defaultText && consequence.isEmpty())
        return "it counts as empty";
    if (!*attribute.defaultText)
        return isNothing ? "there is none" : consequence;
    if (isNothing)
        return used + QLatin1String(", which means none");
    return consequence.isEmpty() ? used : used + QLatin1String(": ") + consequence;
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
