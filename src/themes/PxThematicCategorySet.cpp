#include "themes/PxThematicCategorySet.h"

#include <PxListParts.h>
#include <PxXMLBuilder.h>

#include <QDebug>
#include <QDomElement>
#include <QStringView>

#include <algorithm>

PxThematicCategorySet::PxThematicCategorySet(const PxThematicCategory &category)
{
    insert(category);
}

PxThematicCategorySet::PxThematicCategorySet(const QStringList &names)
{
    for (const QString &name : names)
        insertOnlyOnce(PxThematicCategory(name, QString()));
}

PxThematicCategorySet PxThematicCategorySet::createRecycleBinCategory()
{
    return PxThematicCategorySet(PxThematicCategory::recycleBin());
}

PxThematicCategorySet PxThematicCategorySet::specialCategories()
{
    static const PxThematicCategorySet &ourSpecialCategories = *[] {
        auto *categories = new PxThematicCategorySet;
        categories->insert(PxThematicCategory::categoryAll());
        categories->insert(PxThematicCategory::recycleBin());
        categories->insert(PxThematicCategory::multiColor());
        categories->insert(PxThematicCategory::favourites());
        categories->insert(PxThematicCategory::passpartouts());
        categories->insert(PxThematicCategory::frames());
        return categories;
    }();
    return ourSpecialCategories;
}

PxThematicCategorySet PxThematicCategorySet::allCategorySet()
{
    return PxThematicCategorySet(PxThematicCategory::categoryAll());
}

PxThematicCategorySet PxThematicCategorySet::buildFromCSV(const QString &text)
{
    PxThematicCategorySet categories;
    pxForEachPart(text, [&categories](QStringView name) {
        categories.insertNonEmpty(PxThematicCategory(name.toString(), QString()));
    });
    return categories;
}

bool PxThematicCategorySet::isOnlyMultiColor() const
{
    return size() == 1 && contains(PxThematicCategory::multiColor());
}

bool PxThematicCategorySet::containsAtLeastOne(const PxThematicCategorySet &other) const
{
    return intersects(other);
}

bool PxThematicCategorySet::containsOnlyFavouritesAnd(const PxThematicCategorySet &other) const
{
    return std::all_of(begin(), end(), [&other](const PxThematicCategory &category) {
        return category.isFavourite() || other.contains(category);
    });
}

PxThematicCategorySet PxThematicCategorySet::plusFavourites() const
{
    PxThematicCategorySet categories = *this;
    categories.insert(PxThematicCategory::favourites());
    return categories;
}

PxThematicCategory PxThematicCategorySet::preferredCategory() const
{
    if (isEmpty())
        return PxThematicCategory(QString(), QString());
    if (contains(PxThematicCategory::multiColor()))
        return PxThematicCategory::multiColor();
    const PxThematicCategorySet special = specialCategories();
    const auto ordinary =
        std::find_if(begin(), end(), [&special](const PxThematicCategory &category) {
            return !special.contains(category);
        });
    return ordinary == end() ? *begin() : *ordinary;
}

QStringList PxThematicCategorySet::toDataStringList() const
{
    QStringList names;
    for (const PxThematicCategory &category : *this)
        names.append(category.name());
    return names;
}

void PxThematicCategorySet::toXml(QDomElement &parent) const
{
    for (const PxThematicCategory &category : *this)
        PxXMLBuilder::buildDomElement(parent, QStringLiteral("subcategory"), category.name());
}

void PxThematicCategorySet::insertOnlyOnce(const PxThematicCategory &category)
{
    if (!contains(category))
        insert(category);
}

void PxThematicCategorySet::insertNonEmpty(const PxThematicCategory &category)
{
    if (!category.isEmpty())
        insert(category);
}

QDebug operator<<(QDebug debug, const PxThematicCategorySet &categories)
{
    for (const PxThematicCategory &category : categories)
        debug << category;
    return debug;
}
