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
    PxThematicCategory(const QString &name, const QString &visibleName);

    /** The special categories, which are treated differently from ordinary ones. */
    static PxThematicCategory recycleBin();
    static PxThematicCategory multiColor();
    static PxThematicCategory favourites();
    static PxThematicCategory passpartouts();
    static PxThematicCategory frames();
    /**
     * The category that shows everything. Its name is its text, which is translated on each call.
     */
    static PxThematicCategory categoryAll();
    static QString allText();

    QString name() const { return m_name; }
    /** The name shown to the user; may be empty. */
    QString visibleName() const { return m_visibleName; }
    bool isEmpty() const { return m_name.isEmpty(); }
    bool isFavourite() const { return *this == ourFavourites; }
    bool isRecycleBin() const { return *this == ourRecycleBin; }

    void setName(const QString &name);
    void setVisibleName(const QString &visibleName);

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
