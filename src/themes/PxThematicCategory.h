#pragma once

#include "PxProductPropertiesExport.h"

#include <QString>

class QDebug;

/**
 * A name under which design material is browsed.
 *
 * Names are compared without regard to case, but hashed as they are written, so a set may hold two
 * spellings of one category.
 */
class PXPRODUCTPROPERTIES_EXPORT PxThematicCategory
{
public:
    /** Both texts are kept as they are. */
    PxThematicCategory(const QString &name, const QString &visibleName);

    ///@{
    /** One of the special categories, which are treated differently from ordinary ones. */
    static PxThematicCategory recycleBin();
    static PxThematicCategory multiColor();
    static PxThematicCategory favourites();
    static PxThematicCategory passpartouts();
    static PxThematicCategory frames();
    ///@}
    /**
     * The category that shows everything. Its name is its text, which is translated on each call.
     */
    static PxThematicCategory categoryAll();
    /** The name of categoryAll(), translated on each call. */
    static QString allText();

    /** The name by which it is found, as it is written. */
    QString name() const { return m_name; }
    /** The name shown to the user; may be empty. */
    QString visibleName() const { return m_visibleName; }
    /** Whether it has no name. */
    bool isEmpty() const { return m_name.isEmpty(); }
    /** Whether it equals favourites(). */
    bool isFavourite() const { return *this == ourFavourites; }
    /** Whether it equals recycleBin(). */
    bool isRecycleBin() const { return *this == ourRecycleBin; }

    /** Any text is kept as it is. */
    void setName(const QString &name);
    /** Any text is kept as it is. */
    void setVisibleName(const QString &visibleName);

    /** Compares the names, without regard to case. */
    bool operator==(const PxThematicCategory &other) const;
    bool operator!=(const PxThematicCategory &other) const { return !(*this == other); }
    /** Compares the names, with regard to case. */
    bool operator<(const PxThematicCategory &other) const { return m_name < other.m_name; }

private:
    static const PxThematicCategory &ourRecycleBin;
    static const PxThematicCategory &ourMultiColor;
    static const PxThematicCategory &ourFavourites;
    static const PxThematicCategory &ourPasspartouts;
    static const PxThematicCategory &ourFrames;

    QString m_name;
    QString m_visibleName;
};

Q_DECLARE_TYPEINFO(PxThematicCategory, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT uint qHash(const PxThematicCategory &category, uint seed = 0);
PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxThematicCategory &category);
