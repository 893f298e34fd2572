#include "check/PxVariantCheck.h"

#include "check/PxMessageText.h"

#include <classification/PxProductVariantIdentifiers.h>

#include <QHash>

#include <algorithm>

namespace {

bool isNamed(const PxProductType &type, const QString &identifier)
{
    return !PxProductVariantIdentifiers::instance()->variantName(type, identifier).isEmpty();
}

} // namespace

void PxVariantCheck::run(PxFindings *findings) const
{
    const auto *list = m_product.element().firstChild(QStringLiteral("variants"));
    if (!list || !m_product.type().isValid())
        return;
    const PxProductType type = m_product.type();
    const QStringList all = m_product.description().variants();
    const bool isAnyNamed = std::any_of(all.begin(), all.end(), [&](const QString &identifier) {
        return isNamed(type, identifier);
    });
    if (all.size() > 1 && !isAnyNamed) {
        m_product.add(findings, "variant-unnamed", list->nameRange,
                      QStringLiteral("none of the %1 variants has a display name for %2")
                          .arg(all.size())
                          .arg(type.productName()),
                      QStringLiteral("the product has no variants"));
        return;
    }
    QHash<QString, const PxSourceElement *> known;
    for (const PxSourceElement *variant : list->children) {
        const QString identifier = variant->dom.text();
        const PxSourceElement *first = known.value(identifier);
        if (first) {
            m_product.add(
                findings, "variant-twice", variant->textRange(),
                QStringLiteral("\"%1\" is also in %2")
                    .arg(identifier, PxMessageText::line(m_product.file(), first->nameRange)),
                QStringLiteral("it is shown once"), QStringLiteral("take one of them out"));
            continue;
        }
        known.insert(identifier, variant);
        if (isNamed(type, identifier))
            continue;
        const QString tidy = identifier.trimmed().toLower();
        m_product.add(
            findings, "variant-unnamed", variant->textRange(),
            QStringLiteral("\"%1\" has no display name for %2").arg(identifier, type.productName()),
            QStringLiteral("this variant is hidden"),
            isNamed(type, tidy) ? QStringLiteral("did you mean \"%1\"?").arg(tidy) : QString());
    }
}
