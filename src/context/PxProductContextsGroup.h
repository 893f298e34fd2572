#pragma once

#include "context/PxIndirectProductDescription.h"
#include "themes/PxThemeList.h"

#include <PxProductTypeList.h>

#include <QString>
#include <QStringList>

class QDebug;
class QDomElement;

/**
 * The product types and themes in which a document or an offer can be made.
 *
 * An empty set of product types or of themes admits all. The indirect description says what suits a
 * document that names no product type.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductContextsGroup
{
public:
    /** Admits everything. */
    PxProductContextsGroup() = default;
    /**
     * Admits the product and the theme of the context, and describes the product indirectly, too.
     */
    explicit PxProductContextsGroup(const PxProductContext &context);
    /** Admits every product in these themes. */
    explicit PxProductContextsGroup(const PxThemeList &themes);
    /** Admits these products in these themes; an empty list admits all. */
    PxProductContextsGroup(const PxProductTypeList &productTypes, const PxThemeList &themes);
    PxProductContextsGroup(const PxProductContextsGroup &other);
    PxProductContextsGroup &operator=(const PxProductContextsGroup &other);
    virtual ~PxProductContextsGroup();

    // What is admitted
    /** What suits if no product type is named; by default everything. */
    PxIndirectProductDescription indirectProductDescription() const;
    /** The explicit product types in ascending order. */
    PxProductTypeList explicitProductTypes() const;
    /** The ids of the explicit themes, in the order that toXml() and defaultContext() use. */
    QStringList themeNames() const;
    /** The id of the first theme after normalizing them; null if all themes are admitted. */
    QString themeName() const;
    /** The first admitted product in the first admitted theme; void unless the group names both. */
    PxProductContext defaultContext() const;
    /**
     * The ratio of the default context, or else of the indirect description; not finite if the
     * height is 0.
     */
    double defaultWidthHeightRatio() const;

    // Whether something fits
    /** Whether the product type is admitted. */
    bool containsProduct(const PxProductType &type) const;
    /** Whether the theme is admitted. */
    bool containsTheme(const PxTheme &theme) const;
    /** A context without a valid theme is judged by its product alone. */
    bool containsContext(const PxProductContext &context) const;
    /** Whether the product types have a member in common, or one of the sets is empty. */
    bool productsMatchSomewhat(const PxProductContextsGroup &other) const;
    /** Whether both name a common product type. */
    bool productsMatchExplicitly(const PxProductContextsGroup &other) const;
    /** Whether the themes have a member in common, or one of the sets is empty. */
    bool themesMatchSomewhat(const PxProductContextsGroup &other) const;
    /** Whether both name a common theme. */
    bool themesMatchExplicitly(const PxProductContextsGroup &other) const;
    /** Compares the product types, or, if a group names none, the indirect descriptions. */
    bool productMatches(const PxProductContextsGroup &other) const;
    /** Whether productMatches() and themesMatchSomewhat() are true. */
    bool matches(const PxProductContextsGroup &other) const;

    // Changes
    /** Admits only these product types; all if the list is empty. */
    void setProductTypes(const PxProductTypeList &productTypes);
    /**
     * Admits these themes in addition. A group that admits every theme admits only these
     * afterwards.
     */
    void addThemes(const PxThemeList &themes);
    /** Admits only these themes; all if the list is empty. */
    void setThemes(const PxThemeList &themes);
    /** Replaces the indirect description. */
    void setIndirectProductDescription(const PxIndirectProductDescription &description);
    /**
     * If the default theme is admitted, admits the themes that accept its backgrounds or layouts.
     *
     * A group that admits every theme admits only these themes afterwards, unless there are none.
     */
    void expandThemesIfMyThemesContainTheDefaultTheme(bool acceptNormalBackgrounds,
                                                      bool acceptNormalLayouts);

    /** Appends "product" and "theme" children and those of the indirect description. */
    void toXml(QDomElement &parent) const;

private:
    PxEmptyMeansAllSet<PxProductType> m_productTypes;
    PxEmptyMeansAllSet<PxTheme> m_themes;
    PxIndirectProductDescription m_indirectProductDescription;
};

Q_DECLARE_TYPEINFO(PxProductContextsGroup, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxProductContextsGroup &group);
