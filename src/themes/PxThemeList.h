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
    /** The factory's themes for a comma-separated list of ids; unknown ids are skipped. */
    explicit PxThemeList(const QString &ids);
    PxThemeList(const QList<PxTheme> &themes);

    PxThemeFactory *factory() const;

    bool contains(const PxTheme &theme) const;
    /** Ids are compared exactly. */
    bool contains(const QString &id) const;
    bool containsDefaultTheme() const;
    /** The first theme with exactly this id; the void theme if there is none. */
    PxTheme findTheme(const QString &id) const;
    /**
     * The themes for the key account: if `expired`, those that can be ordered; else the expired
     * ones.
     */
    PxThemeList filter(int keyAccount, bool expired) const;
    QStringList idList() const;
    QString asCommaSeparatedIDList() const;
    QStringList descriptionList() const;

    /** Appends the themes that are not in the list yet. */
    void appendUnique(const PxThemeList &other);
    /** If the default theme is in the list, appends all themes that accept its backgrounds. */
    void expandDefaultThemeToAllNormalThemes();
    /**
     * Moves the themes "albfreetheme", "design" and "normal" to the front, in this order, if they
     * are valid.
     */
    void normalize();

private:
    static const QStringList &ourReverseOrderedThemeNames;
};
