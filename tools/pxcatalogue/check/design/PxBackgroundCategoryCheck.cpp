#include "check/design/PxBackgroundCategoryCheck.h"

#include "check/findings/PxFileFindings.h"
#include "check/source/PxSourceParts.h"
#include "check/words/PxSpelling.h"

#include <themes/PxThematicCategory.h>

#include <QMap>

void PxBackgroundCategoryCheck::run(PxFindings *findings) const
{
    QMap<QString, QString> known; // as first written, by the name without its case
    PxFileFindings found(m_product.file(), findings);
    const PxSourceList list = PxSourceParts::ofAttribute(
        m_product.file(), m_product.element(), QStringLiteral("coverBackgroundCategories"));
    for (const PxSourcePart &part : list.parts) {
        const QString name = part.text.trimmed();
        if (part.text.isEmpty())
            continue;
        if (name != part.text) {
            found.add("category-blank", part.whole,
                      QStringLiteral("the category \"%1\" has a blank at its edge").arg(part.text),
                      QStringLiteral("no background is of this category"),
                      name.isEmpty() ? QString() : PxSpelling::didYouMean(name));
            continue;
        }
        const QString first = known.value(name.toCaseFolded(), name);
        known.insert(name.toCaseFolded(), first);
        const PxThematicCategory category(name, QString());
        const PxThematicCategory other(first, QString());
        if (first == name || !(category == other))
            continue;
        found.add("category-case-twice", part.range,
                  QStringLiteral("the category \"%1\" is also written \"%2\"").arg(name, first),
                  QStringLiteral("both are kept"),
                  QStringLiteral("keep the spelling that the backgrounds have"));
    }
}
