#pragma once

#include "themes/PxThemeList.h"

#include <QMap>
#include <QString>
#include <QStringList>

class QDir;

/**
 * All design themes, read from the theme files of the themes directory.
 *
 * The instance is created on first use, from any thread, and only read afterwards. It reads its
 * files, and logs, while other threads that ask for it wait.
 */
class PXPRODUCTPROPERTIES_EXPORT PxThemeFactory
{
public:
    /** Of one file; with an id, a product group and an expiry date more would not fit into it. */
    static constexpr int maximumThemes = 50000;

    /** Without themes until init() or loadThemeList(). Applications use instance(). */
    PxThemeFactory() = default;
    Q_DISABLE_COPY(PxThemeFactory)

    /**
     * The themes of the themes directory. Created on first use, from any thread; not to be asked
     * for by a message handler while it loads, as PxProductTypeConfigRegistry::instance() says.
     */
    static PxThemeFactory *instance();

    /** All themes, in the order in which they were read. */
    PxThemeList themeList() const { return m_themeList; }
    /** The themes that this key account may order now. */
    PxThemeList themeList(int keyAccount) const;
    /** The ids of all themes, in the order in which they were read. */
    QStringList themeNames() const;
    /** The theme "normal"; the first theme when there is none, the void theme when there are none.
     */
    PxTheme defaultTheme() const { return m_defaultTheme; }
    bool contains(const QString &id) const;
    /** The first theme of this id, exactly; the void theme when there is none. */
    PxTheme findTheme(const QString &id) const;
    /** One theme per known id, in their order; of two themes of one id the one read last. */
    PxThemeList findThemes(const QStringList &ids) const;
    /** The same for a comma-separated list. Ids are not trimmed. */
    PxThemeList findThemes(const QString &ids) const;
    PxThemeList findThemesWhichAcceptNormalBackgrounds() const;
    PxThemeList findThemesWhichAcceptNormalLayouts() const;

    /** Reads the themes directory; called once, by instance(). */
    void init();
    /**
     * Reads the theme files of a directory and answers their themes.
     *
     * Adds to what findThemes() and the two lists of themes that accept normal backgrounds or
     * layouts answer; themeList() and defaultTheme() are left as they are.
     */
    PxThemeList loadThemeList(QDir &directory);

private:
    PxThemeList m_themeList;
    QMap<QString, PxTheme> m_themeOfId;
    PxThemeList m_normalBackgroundThemes;
    PxThemeList m_normalLayoutThemes;
    PxTheme m_defaultTheme = PxTheme::voidTheme();
};
