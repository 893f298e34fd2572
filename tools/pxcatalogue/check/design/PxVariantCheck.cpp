#include "check/design/PxVariantCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"

#include <variants/PxProductVariantIdentifiers.h>

#include <QMap>

#include <algorithm>

void PxVariantCheck::run()
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
            .hint(text.hint);
    } else {
        checkEach(*list);
    }
}

void PxVariantCheck::checkEach(const PxSourceElement &list) const
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
        const QString tidy = identifier.trimmed().toLower();
        const PxMissingPart text = PxElementReading(*variant).missingText();
        m_report
            .add(PxTag::VariantUnnamed, text.range,
                 tidy.isEmpty() ? "the variant is empty"
                                : QString("\"%1\" has no display name for %2")
                                      .arg(identifier, m_product.type().productName()))
            .now("this variant is hidden")
            .hint(isNamed(tidy) ? PxSpelling::didYouMean(tidy) : text.hint);
    }
}

bool PxVariantCheck::isNamed(const QString &identifier) const
{
    const auto *names = PxProductVariantIdentifiers::instance();
    return !names->variantName(m_product.type(), identifier).isEmpty();
}
