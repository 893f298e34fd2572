#include "check/design/PxDesignCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/source/PxSourceParts.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <themes/PxThematicCategory.h>
#include <values/PxProductMaterial.h>
#include <variants/PxProductVariantIdentifiers.h>

#include <QMap>
#include <QRegularExpression>

#include <algorithm>

void PxDesignCheck::run()
{
    checkVariants();
    checkBackgroundCategories();
    checkClassification();
}

void PxDesignCheck::checkVariants() const
{
    const auto *list = m_product.element().firstChild("variants");
    if (!list || !m_product.type().isValid())
        return;
    const QStringList all = m_product.description().variants();
    const bool isAnyNamed = std::any_of(
        all.begin(), all.end(), [this](const QString &identifier) { return isNamed(identifier); });
    if (all.size() > 1 && !isAnyNamed) {
        const PxMissingPart text = PxElementReading(*list->children.constFirst()).missingText();
        m_report
            .add(PxTag::VariantUnnamed, text.hint.isEmpty() ? list->nameRange : text.range,
                 "none of the %1 variants has a display name for %2", all.size(),
                 m_product.type().productName())
            .now("the product has no variants")
            .hint([&] { return text.hintOr(hintForVariant(all.constFirst())); });
        return;
    }
    checkEachVariant(*list);
    if (isAnyNamed)
        checkLabel(*list);
}

void PxDesignCheck::checkEachVariant(const PxSourceElement &list) const
{
    QMap<QString, const PxSourceElement *> known;
    for (const PxSourceElement *variant : list.children) {
        const QString identifier = variant->dom.text();
        const PxSourceElement *first = known.value(identifier);
        if (first && !identifier.trimmed().isEmpty()) {
            m_report
                .add(PxTag::VariantTwice, variant->textRange(), "\"%1\" is also in %2", identifier,
                     m_report.place(first->nameRange))
                .now("it is shown once")
                .hint("take one of them out");
            continue;
        }
        known.insert(identifier, variant);
        if (isNamed(identifier))
            continue;
        const PxMissingPart text = PxElementReading(*variant).missingText();
        const QString tidy = identifier.trimmed().toLower();
        m_report
            .add(PxTag::VariantUnnamed, text.range,
                 identifier.trimmed().isEmpty() ? "the variant is empty"
                                                : "\"%1\" has no display name for %2",
                 identifier, m_product.type().productName())
            .now("this variant is hidden")
            .hint([&] { return text.hintOr(hintForVariant(identifier)); })
            .replacement(isNamed(tidy) ? tidy : QString());
    }
}

bool PxDesignCheck::isNamed(const QString &identifier) const
{
    const auto *names = PxProductVariantIdentifiers::instance();
    return !names->variantName(m_product.type(), identifier).isEmpty();
}

/** Only variants that the file does not list can be meant. */
QString PxDesignCheck::hintForVariant(const QString &variant) const
{
    QStringList others;
    for (const QString &identifier :
         PxProductVariantIdentifiers::instance()->namedIdentifiers(m_product.type())) {
        if (!m_product.description().variants().contains(identifier))
            others.append(identifier);
    }
    return PxSpelling::hintOrAll(variant, others);
}

void PxDesignCheck::checkLabel(const PxSourceElement &list) const
{
    constexpr const char *type = "type";
    const PxElementReading reading(list);
    const QString label = list.value(type);
    const QStringList known = PxProductVariantIdentifiers::translatableDescriptions();
    if (label.trimmed().isEmpty()) {
        const PxMissingPart missing = reading.missing(type);
        m_report.add(PxTag::VariantsLabelMissing, missing.range, "the variants have no label")
            .now("customers see a choice, but not of what")
            .hint(missing.hintOr(QString("write what the variants differ in, as type=\"%1\"")
                                     .arg(known.constFirst())));
    } else if (!known.contains(label)) {
        m_report
            .add(PxTag::VariantsLabelUnknown, list.rangeOf(type),
                 "the library does not know the label \"%1\"", label)
            .now("it is shown as it is, in every language")
            .hint(PxSpelling::hintOrAll(label, known));
    }
}

void PxDesignCheck::checkBackgroundCategories() const
{
    QMap<QString, QString> known; // the first spelling, by the name without its case
    const PxSourceList list = PxSourceParts::ofAttribute(
        m_product.file(), m_product.element().attribute("coverBackgroundCategories"));
    for (const PxSourcePart &part : list.parts) {
        const QString name = part.text.trimmed();
        if (part.text.isEmpty())
            continue;
        if (name != part.text) {
            m_report
                .add(PxTag::CategoryBlank, part.whole,
                     "the category \"%1\" has a blank at its edge", part.text)
                .now("no background is of this category")
                .hint(name.isEmpty() ? QString() : PxSpelling::didYouMean(name))
                .replacement(name.isEmpty() ? QString() : name);
            continue;
        }
        if (name.contains(QLatin1Char(';'))) {
            m_report
                .add(PxTag::NameListSeparator, part.range, "\"%1\" is one name, with a semicolon",
                     PxMessageText::shortened(name))
                .now("no background is of this category")
                .hint(PxSpelling::separated(name))
                .replacement(PxSpelling::withCommas(name));
            continue;
        }
        const QString first = known.value(name.toCaseFolded(), name);
        known.insert(name.toCaseFolded(), first);
        const PxThematicCategory category(name, QString());
        const PxThematicCategory other(first, QString());
        if (first == name || !(category == other))
            continue;
        m_report
            .add(PxTag::CategoryCaseTwice, part.range, "the category \"%1\" is also written \"%2\"",
                 name, first)
            .now("both are kept")
            .hint("keep the spelling that the backgrounds have");
    }
}

void PxDesignCheck::checkClassification() const
{
    const auto *element = m_product.element().firstChild("classification");
    if (!element || !PxElementReading(*element).hasOnlyKnown())
        return;
    QStringList missing;
    for (const char *name : {"cm", "inch", "group"}) {
        if (element->value(name).trimmed().isEmpty())
            missing.append(name);
    }
    if (!missing.isEmpty())
        m_report
            .add(PxTag::ClassificationIncomplete, element->nameRange, "nothing is said about %1",
                 PxMessageText::quotedList(missing))
            .now("size name or material are empty");
    checkUnit(*element, "cm");
    checkUnit(*element, "inch");
    checkMaterial(*element);
}

/** Applications write the unit behind the name of the size. */
void PxDesignCheck::checkUnit(const PxSourceElement &classification, const char *attribute) const
{
    // "in" may also be a word of the name.
    static const QRegularExpression ourUnits(
        "(?<=[0-9])\\s*(?:(?:cm|mm|inch(?:es)?|zoll)(?!(?!x)\\p{L})|in(?=\\s*(?:[x×]|$))|[\"″]|'')",
        QRegularExpression::CaseInsensitiveOption);
    const QString size = classification.value(attribute);
    if (!ourUnits.match(size).hasMatch())
        return;
    const bool isMetric = qstrcmp(attribute, "cm") == 0;
    const QString unit = ourUnits.match(size).captured().trimmed().toLower();
    const bool isOwnUnit = unit != QLatin1String("mm") && (unit == QLatin1String("cm")) == isMetric;
    m_report
        .add(PxTag::ClassificationUnit, classification.rangeOf(attribute),
             "\"%1\" names the unit of \"%2\"", PxMessageText::shortened(size), attribute)
        .now("it is shown as \"%1\"",
             m_product.description().classification().sizeNameWithUnit(isMetric))
        .hint(isOwnUnit  ? PxSpelling::didYouMean(QString(size).remove(ourUnits))
              : isMetric ? "write the size in centimetres, without a unit"
                         : "write the size in inches, without a unit")
        .replacement(isOwnUnit ? QString(size).remove(ourUnits) : QString());
}

void PxDesignCheck::checkMaterial(const PxSourceElement &classification) const
{
    const PxProductMaterial material = m_product.description().classification().material();
    if (material.value().trimmed().isEmpty() || !material.visibleDescription().isEmpty())
        return;
    m_report
        .add(PxTag::MaterialUnknown, classification.rangeOf("group"), "\"%1\" is no material",
             material.value())
        .now("it is a material of its own, without a display name")
        .hint(PxSpelling::hintOrAll(material.value(),
                                    PxFormat::keywordNames(PxKeywordSet::Material)));
}
