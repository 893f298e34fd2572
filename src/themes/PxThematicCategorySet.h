#pragma once

#include "themes/PxThematicCategory.h"

#include <QSet>
#include <QString>
#include <QStringList>

class QDebug;
class QDomElement;

/** The thematic categories of something. A set may hold two spellings of one category. */
class PXPRODUCTPROPERTIES_EXPORT PxThematicCategorySet : public QSet<PxThematicCategory>
{
public:
    PxThematicCategorySet() = default;
    /** This category alone, even if it has no name. */
    explicit PxThematicCategorySet(const PxThematicCategory &category);
    /** One category per name, without a visible name. */
    explicit PxThematicCategorySet(const QStringList &names);

    /** The recycle bin alone. */
    static PxThematicCategorySet createRecycleBinCategory();
    /** All special categories. The text of "show everything" is translated on the first call. */
    static PxThematicCategorySet specialCategories();
    /** The category that shows everything, alone. */
    static PxThematicCategorySet allCategorySet();
    /**
     * One category per part of a comma-separated list. Parts are not trimmed; empty ones are
     * skipped.
     */
    static PxThematicCategorySet buildFromCSV(const QString &text);

    /** Whether multicolour is the only member. */
    bool isOnlyMultiColor() const;
    /** Whether both have a member in common. */
    bool containsAtLeastOne(const PxThematicCategorySet &other) const;
    /** Whether every member is the favourites category or in `other`; true for an empty set. */
    bool containsOnlyFavouritesAnd(const PxThematicCategorySet &other) const;
    /** The same set with the favourites; this set does not change. */
    PxThematicCategorySet plusFavourites() const;
    /**
     * The category under which an item is shown: multicolour if it is in the set, else an ordinary
     * category, else a special one. An empty category for an empty set.
     */
    PxThematicCategory preferredCategory() const;
    /** The names, in no particular order. */
    QStringList toDataStringList() const;
    /** Appends one "subcategory" child per member. */
    void toXml(QDomElement &parent) const;

    /** Keeps the visible name of a member that is there already. */
    void insertOnlyOnce(const PxThematicCategory &category);
    /** Ignores a category without a name. */
    void insertNonEmpty(const PxThematicCategory &category);
};

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxThematicCategorySet &categories);
