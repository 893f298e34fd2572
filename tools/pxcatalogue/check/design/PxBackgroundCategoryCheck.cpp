#include "check/design/PxBackgroundCategoryCheck.h"

#include "check/source/PxSourceParts.h"
#include "check/words/PxSpelling.h"

#include <themes/PxThematicCategory.h>

#include <QMap>

void PxBackgroundCategoryCheck::run()
{
    QMap<QString, QString> known; // as first written, by the name without its case
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
                .hint(name.isEmpty() ? QString() : PxSpelling::didYouMean(name));
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
