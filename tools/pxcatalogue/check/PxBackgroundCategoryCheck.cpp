#include "check/PxBackgroundCategoryCheck.h"

#include "check/PxSourceParts.h"

#include <themes/PxThematicCategory.h>

#include <QHash>

namespace {

// More would tell the author nothing new.
constexpr int maximumReported = 100;

} // namespace

void PxBackgroundCategoryCheck::run(PxFindings *findings) const
{
    QHash<QString, QString> known; // as first written, by the name without its case
    int reported = 0;
    for (const PxSourcePart &part : PxSourceParts::ofAttribute(
             m_product.file(), m_product.element(), QStringLiteral("coverBackgroundCategories"))) {
        const QString name = part.text.trimmed();
        if (part.text.isEmpty())
            continue;
        if (reported == maximumReported)
            return;
        if (name != part.text) {
            ++reported;
            m_product.add(
                findings, "category-blank", part.whole,
                QStringLiteral("the category \"%1\" has a blank at its edge").arg(part.text),
                QStringLiteral("no background is of this category"),
                name.isEmpty() ? QString() : QStringLiteral("did you mean \"%1\"?").arg(name));
            continue;
        }
        const QString first = known.value(name.toCaseFolded(), name);
        known.insert(name.toCaseFolded(), first);
        const PxThematicCategory category(name, QString());
        const PxThematicCategory other(first, QString());
        if (first == name || !(category == other))
            continue;
        ++reported;
        m_product.add(findings, "category-case-twice", part.range,
                      QStringLiteral("the category \"%1\" is also written \"%2\"").arg(name, first),
                      QStringLiteral("both are kept"),
                      QStringLiteral("keep the spelling that the backgrounds have"));
    }
}
