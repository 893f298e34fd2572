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
    /** This theme alone, even a void one. */
    explicit PxThemeList(const PxTheme &theme);
    /** The factory's themes for a comma-separated list of ids; unknown ids are skipped. */
    explicit PxThemeList(const QString &ids);
    /** The same themes. */
    PxThemeList(const QList<PxTheme> &themes);

    /** The instance of PxThemeFactory; not owned. */
    PxThemeFactory *factory() const;

    /** Whether an equal theme is in the list. */
    bool contains(const PxTheme &theme) const;
    /** Whether a theme with exactly this id is in the list. */
    bool contains(const QString &id) const;
    /** Whether PxThemeFactory::defaultTheme() is in the list. */
    bool containsDefaultTheme() const;
    /** The first theme with exactly this id; the void theme if there is none. */
    PxTheme findTheme(const QString &id) const;
    /**
     * The themes for the key account: if `expired`, those that can be ordered; else the expired
     * ones.
     */
    PxThemeList filter(int keyAccount, bool expired) const;
    /** The id of each theme, in order. */
    QStringList idList() const;
    /** The same joined with ",". */
    QString asCommaSeparatedIDList() const;
    /** The German display name of each theme, in order. */
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
