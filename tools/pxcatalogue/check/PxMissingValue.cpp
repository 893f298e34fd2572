#include "check/PxMissingValue.h"

#include "vocabulary/PxVocabulary.h"

#include <description/PxProductTypeDescription.h>

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

using Description = PxProductTypeDescription;

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
    {"foldmargin", [](const Description &d) { return QString::number(d.foldMargin()); }},
    {"fullBackgroundOnEachPage",
     [](const Description &d) {
         return d.fullBackgroundOnEachPage() ? QStringLiteral("true") : QStringLiteral("false");
     }},
    {"orientation",
     [](const Description &d) {
         return PxVocabulary::encode(PxKeywordSet::Orientation, d.orientation().value());
     }},
    {"space",
     [](const Description &d) {
         return PxVocabulary::encode(PxKeywordSet::SizeClass, d.spaceMagnitude().value());
     }},
};

/** A cell of the documentation as plain text. */
QString plainText(const char *cell)
{
    static const QRegularExpression ourLink(QStringLiteral("\\[([^\\]]*)\\]\\([^)]*\\)"));
    return QString::fromUtf8(cell)
        .replace(ourLink, QStringLiteral("\\1"))
        .remove(QLatin1Char('*'))
        .replace(QLatin1Char('`'), QLatin1Char('"'));
}

QString integerText(const PxAttributeRow &attribute)
{
    const QString absent = plainText(attribute.absent);
    QString consequence = absent.section(QLatin1String(": "), 1);
    if (!attribute.defaultText)
        return consequence.isEmpty() ? absent : consequence;
    if (consequence == QLatin1String("none"))
        consequence.clear();
    return QStringLiteral("%1 is used%2")
        .arg(attribute.defaultText,
             consequence.isEmpty() ? QString() : QLatin1String(": ") + consequence);
}

} // namespace

QString PxMissingValue::text(const PxSourceElement &element, const PxAttributeRow &attribute)
{
    const QString ofProduct = answer(element, attribute);
    if (!ofProduct.isEmpty())
        return QStringLiteral("%1 is used").arg(ofProduct);
    switch (attribute.type) {
    case PxValueType::Integer:
        return integerText(attribute);
    case PxValueType::RectanglePart:
        return attribute.defaultText ? QStringLiteral("%1 is used").arg(attribute.defaultText)
                                     : QStringLiteral("there is no rectangle");
    case PxValueType::PageRange:
        return plainText(attribute.absent);
    default:
        if (!attribute.defaultText || !*attribute.defaultText)
            return QString();
        return QStringLiteral("%1 is used").arg(attribute.defaultText);
    }
}

QString PxMissingValue::answer(const PxSourceElement &element, const PxAttributeRow &attribute)
{
    const bool isSize = element.name == QLatin1String("usablesize");
    const PxSourceElement *product = isSize ? element.parent : &element;
    if (!product || product->name != QLatin1String("product") || product->dom.isNull())
        return QString();
    const auto *found = std::find_if(std::begin(answers), std::end(answers), [&](const auto &row) {
        return qstrcmp(row.attribute, attribute.name) == 0;
    });
    return found == std::end(answers) ? QString() : found->answer(Description(product->dom));
}
