#pragma once

#include "themes/PxThemeList.h"

#include <QMap>
#include <QString>
#include <QStringList>

class QDir;

/**
 * All design themes, read from the theme files of the themes directory.
 *
 * The instance is created on first use, from any thread, and only read afterwards. While it reads
 * its files, and logs, other threads that ask for it wait.
 */
class PXPRODUCTPROPERTIES_EXPORT PxThemeFactory
{
public:
    /**
     * The most themes of one file. A file cannot hold more that have an id, a product group and an
     * expiry date.
     */
    static constexpr int maximumThemes = 50000;

    /** Has no themes before init() or loadThemeList(). Applications use instance(). */
    PxThemeFactory() = default;
    Q_DISABLE_COPY(PxThemeFactory)

    /**
     * The themes of the themes directory. Created on first use, from any thread. A message handler
     * must not call this while the themes are loaded; see PxProductTypeConfigRegistry::instance().
     */
    static PxThemeFactory *instance();

    /** All themes, in the order in which they were read. */
    PxThemeList themeList() const { return m_themeList; }
    /** The themes that this key account may order now. */
    PxThemeList themeList(int keyAccount) const;
    /** The ids of all themes, in the order in which they were read. */
    QStringList themeNames() const;
    /**
     * The theme "normal"; the first theme if there is no such theme, and the void theme if there is
     * no theme at all.
     */
    PxTheme defaultTheme() const { return m_defaultTheme; }
    /** Whether there is a theme with exactly this id. */
    bool contains(const QString &id) const;
    /** The first theme with exactly this id; the void theme if there is none. */
    PxTheme findTheme(const QString &id) const;
    /**
     * One theme per known id, in the order of the ids. Of two themes with one id, the last one
     * read.
     */
    PxThemeList findThemes(const QStringList &ids) const;
    /** The same for a comma-separated list. Ids are not trimmed. */
    PxThemeList findThemes(const QString &ids) const;
    /**
     * The themes in which backgrounds of no theme may be used, in the order of
     * PxThemeList::normalize().
     */
    PxThemeList findThemesWhichAcceptNormalBackgrounds() const;
    /** The same for layouts. */
    PxThemeList findThemesWhichAcceptNormalLayouts() const;

    /** Reads the themes directory. Called once, by instance(). */
    void init();
    /**
     * Reads the theme files of a directory and returns their themes.
     *
     * The themes are added to those that findThemes() and the two lists of themes that accept
     * normal backgrounds or layouts know. themeList() and defaultTheme() do not change.
     */
    PxThemeList loadThemeList(QDir &directory);

private:
    PxThemeList m_themeList;
    QMap<QString, PxTheme> m_themeOfId;
    PxThemeList m_normalBackgroundThemes;
    PxThemeList m_normalLayoutThemes;
    PxTheme m_defaultTheme = PxTheme::voidTheme();
};
