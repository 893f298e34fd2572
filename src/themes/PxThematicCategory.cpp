#include "themes/PxThematicCategory.h"

#include <QDebug>
#include <QHash>
#include <QObject>

const PxThematicCategory &PxThematicCategory::ourRecycleBin =
    *new PxThematicCategory(QStringLiteral("Papierkorb"), QString());
const PxThematicCategory &PxThematicCategory::ourMultiColor =
    *new PxThematicCategory(QStringLiteral("Multicolor"), QString());
const PxThematicCategory &PxThematicCategory::ourFavourites =
    *new PxThematicCategory(QStringLiteral("Favoriten"), QString());
const PxThematicCategory &PxThematicCategory::ourPasspartouts =
    *new PxThematicCategory(QStringLiteral("InterneMasken"), QObject::tr("Masken"));
const PxThematicCategory &PxThematicCategory::ourFrames =
    *new PxThematicCategory(QStringLiteral("InterneRahmen"), QObject::tr("Rahmen"));

PxThematicCategory::PxThematicCategory(const QString &name, const QString &visibleName)
    : m_name(name)
    , m_visibleName(visibleName)
{}

PxThematicCategory PxThematicCategory::recycleBin()
{
    return ourRecycleBin;
}

PxThematicCategory PxThematicCategory::multiColor()
{
    return ourMultiColor;
}

PxThematicCategory PxThematicCategory::favourites()
{
    return ourFavourites;
}

PxThematicCategory PxThematicCategory::passpartouts()
{
    return ourPasspartouts;
}

PxThematicCategory PxThematicCategory::frames()
{
    return ourFrames;
}

PxThematicCategory PxThematicCategory::categoryAll()
{
    return PxThematicCategory(allText(), QString());
}

QString PxThematicCategory::allText()
{
    return QObject::tr("Alles anzeigen...");
}

void PxThematicCategory::setName(const QString &name)
{
    m_name = name;
}

void PxThematicCategory::setVisibleName(const QString &visibleName)
{
    m_visibleName = visibleName;
}

bool PxThematicCategory::operator==(const PxThematicCategory &other) const
{
    return m_name.compare(other.m_name, Qt::CaseInsensitive) == 0;
}

uint qHash(const PxThematicCategory &category, uint seed)
{
    // Hashes the name as written, although == ignores the case: sets keep both spellings of a
    // category.
    return qHash(category.name(), seed);
}

QDebug operator<<(QDebug debug, const PxThematicCategory &category)
{
    return debug << "Category name : " << category.name() << "\n"
                 << "Category VisibleName : " << category.visibleName();
}
