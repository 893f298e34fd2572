#pragma once

#include "themes/PxTheme.h"

#include <QList>
#include <QString>
#include <QStringList>

class PxThemeFactory;

/** Themes in the order in which they are offered. */
class PXPRODUCTPROPERTIES_EXPORT PxThemeList : public QList<PxTheme>
{
public:
    PxThemeList() = default;
    explicit PxThemeList(const PxTheme &theme);
    /** The factory's themes of a comma-separated list of ids; unknown ids are left out. */
    explicit PxThemeList(const QString &ids);
    PxThemeList(const QList<PxTheme> &themes);

    PxThemeFactory *factory() const;

    bool contains(const PxTheme &theme) const;
    /** Ids are compared exactly. */
    bool contains(const QString &id) const;
    bool containsDefaultTheme() const;
    /** The first theme of this id, exactly; the void theme when there is none. */
    PxTheme findTheme(const QString &id) const;
    /** The themes for the key account: the orderable ones if `expired`, else only the expired ones.
     */
    PxThemeList filter(int keyAccount, bool expired) const;
    QStringList idList() const;
    QString asCommaSeparatedIDList() const;
    QStringList descriptionList() const;

    /** Appends the themes that are not in the list yet. */
    void appendUnique(const PxThemeList &other);
    /** When the default theme is here, all that accept its backgrounds shall be here, too. */
    void expandDefaultThemeToAllNormalThemes();
    /** Moves "albfreetheme", "design" and "normal", in this order and if valid, to the front. */
    void normalize();

private:
    static const QStringList &ourReverseOrderedThemeNames;
};
