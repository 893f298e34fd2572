#pragma once

#include "context/PxIndirectProductDescription.h"
#include "themes/PxThemeList.h"

#include <PxProductTypeList.h>

#include <QString>
#include <QStringList>

class QDebug;
class QDomElement;

/**
 * The product types and themes in which a document or an offer may be realised.
 *
 * An empty set of product types or of themes admits all of them. The indirect description says what
 * fits a document that names no product type.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductContextsGroup
{
public:
    /** Admits everything. */
    PxProductContextsGroup() = default;
    explicit PxProductContextsGroup(const PxProductContext &context);
    explicit PxProductContextsGroup(const PxThemeList &themes);
    PxProductContextsGroup(const PxProductTypeList &productTypes, const PxThemeList &themes);
    PxProductContextsGroup(const PxProductContextsGroup &other);
    PxProductContextsGroup &operator=(const PxProductContextsGroup &other);
    virtual ~PxProductContextsGroup();

    // What is admitted
    PxIndirectProductDescription indirectProductDescription() const;
    /** The explicit product types in ascending order. */
    PxProductTypeList explicitProductTypes() const;
    /** The ids of the explicit themes; in the order of toXml() and of defaultContext(). */
    QStringList themeNames() const;
    /** The id of the theme that comes first when they are normalized; null when all are admitted.
     */
    QString themeName() const;
    /** The first admitted product in the first admitted theme; void unless both sets name some. */
    PxProductContext defaultContext() const;
    /** Of the default context, else of the indirect description; not finite for a height of 0. */
    double defaultWidthHeightRatio() const;

    // Whether something fits
    bool containsProduct(const PxProductType &type) const;
    bool containsTheme(const PxTheme &theme) const;
    /** A context without a valid theme fits by its product alone. */
    bool containsContext(const PxProductContext &context) const;
    /** Somewhat: an empty set on either side is enough. Explicitly: both name a common member. */
    bool productsMatchSomewhat(const PxProductContextsGroup &other) const;
    bool productsMatchExplicitly(const PxProductContextsGroup &other) const;
    bool themesMatchSomewhat(const PxProductContextsGroup &other) const;
    bool themesMatchExplicitly(const PxProductContextsGroup &other) const;
    /** By common product types, or else, when either names none, by the indirect descriptions. */
    bool productMatches(const PxProductContextsGroup &other) const;
    bool matches(const PxProductContextsGroup &other) const;

    // Changes
    void setProductTypes(const PxProductTypeList &productTypes);
    void addThemes(const PxThemeList &themes);
    void setThemes(const PxThemeList &themes);
    void setIndirectProductDescription(const PxIndirectProductDescription &description);
    /**
     * When the default theme is admitted, admits the themes that accept its backgrounds or layouts.
     *
     * A group that admits every theme admits only these afterwards, if there are any.
     */
    void expandThemesIfMyThemesContainTheDefaultTheme(bool acceptNormalBackgrounds,
                                                      bool acceptNormalLayouts);

    /** Appends "product" and "theme" children and what the indirect description writes. */
    void toXml(QDomElement &parent) const;

private:
    PxEmptyMeansAllSet<PxProductType> m_productTypes;
    PxEmptyMeansAllSet<PxTheme> m_themes;
    PxIndirectProductDescription m_indirectProductDescription;
};

Q_DECLARE_TYPEINFO(PxProductContextsGroup, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxProductContextsGroup &group);
