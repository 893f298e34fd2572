#pragma once

#include "themes/PxThemeConfig.h"

#include <QDateTime>
#include <QExplicitlySharedDataPointer>
#include <QImage>
#include <QMap>
#include <QMetaType>
#include <QPair>
#include <QRect>
#include <QString>

class QDebug;

/**
 * A design theme: what a product looks like and may contain if it is designed in this theme.
 *
 * Immutable; copies share the record. The void theme, with the id "unbekannt", means no theme.
 */
class PXPRODUCTPROPERTIES_EXPORT PxTheme
{
public:
    /** A void theme. */
    PxTheme();
    /** Everything is kept as it is. */
    PxTheme(const QString &id, const PxProductGroup &group, const QString &description,
            const QDateTime &expiry, const QImage &thumbnail,
            const PxKeyAccountNumberList &keyAccounts,
            const QMap<PxProductTypeEnum, QPair<QImage, QRect>> &logos, bool useSpineText,
            bool canMoveContent, bool canUseNormalBackgrounds,
            const PxDefaultThematicCategories &categories, bool useSpineLogo,
            const PxEmptyMeansAllSet<PxProductType> &allowedProducts);
    PxTheme(const PxTheme &other);
    PxTheme &operator=(const PxTheme &other);
    virtual ~PxTheme();

    /** No theme: invalid, expired, and offered to nobody. */
    static PxTheme voidTheme();

    /** Belongs to a known product group. */
    bool isValid() const { return d->isValid(); }

    // Identity
    /** The id by which it is found, as it is written in the file. */
    QString id() const { return d->id(); }
    /** The display name, in German; "unbekannt" by default. */
    QString description() const { return d->description(); }
    /** The group of products for which the shop offers it. */
    PxProductGroup productGroup() const { return d->productGroup(); }
    /** Its icon; null if it has none. */
    QImage thumbnail() const { return d->thumbnail(); }
    /** The id is "normal", in any case. */
    bool isDefaultTheme() const;
    /** The id is "design", in any case. */
    bool isDesignTheme() const;
    /** Whether it has content of its own, as every theme but the default one does. */
    bool isThemeWithContent() const { return !isDefaultTheme(); }

    // Who may order it
    /**
     * The last moment at which it can be ordered, in local time; null for the void theme, which
     * counts as expired.
     */
    QDateTime expiryDate() const { return d->expiryDate(); }
    /** Whether the expiry date is over now. */
    bool isExpired() const;
    /** The day of the expiry date, as in "1976-12-30". */
    QString expiryDayToOrderTxt() const;
    /** The key accounts to which it is offered, in the order of the file. */
    PxKeyAccountNumberList keyAccounts() const { return d->keyAccounts(); }
    /** An empty list of key accounts allows none. */
    bool isValidForKeyAccount(int keyAccount) const;
    /** An empty set allows every product type. */
    PxEmptyMeansAllSet<PxProductType> allowedProductTypes() const;

    // What the editor and production may do
    /** Whether text is printed on the spine; false by default. */
    bool useSpineText() const { return d->useSpineText(); }
    /** Whether the logo is printed on the spine; true unless the file says otherwise. */
    bool useSpineLogo() const { return d->useSpineLogo(); }
    /** Whether the user may move what the theme places; false by default. */
    bool canMoveContent() const { return d->canMoveContent(); }
    /** Whether backgrounds that belong to no theme may be used; true by default. */
    bool canUseNormalBackgrounds() const { return d->canUseNormalBackgrounds(); }
    /** Always false: layouts belong to their theme. */
    bool canUseNormalLayouts() const { return d->canUseNormalLayouts(); }
    /** Whether it has a logo for this product type. */
    bool mustPaintVemoLogo(const PxProductType &type) const { return d->hasLogo(type); }
    /** The logo and its place; a null image and an invalid rectangle if there is none. */
    QPair<QImage, QRect> vemoLogo(const PxProductType &type) const { return d->logo(type); }

    // Which category is shown first; an empty one when the theme names none
    ///@{
    /**
     * The category that is shown first for this kind of design element; an empty one if the theme
     * names none.
     */
    PxThematicCategory defaultCategory(const PxJigType &jigType) const;
    PxThematicCategory defaultBackgroundCategory() const;
    PxThematicCategory defaultClipartCategory() const;
    PxThematicCategory defaultContentCategory() const;
    PxThematicCategory defaultFadingCategory() const;
    PxThematicCategory defaultFrameCategory() const;
    ///@}

    /** Compares everything but the allowed product types. */
    bool operator==(const PxTheme &other) const;
    bool operator!=(const PxTheme &other) const { return !(*this == other); }
    /**
     * A key for sorted tables of many themes. Equal themes have the same key, as do themes that
     * differ only in their images; the text has no other meaning.
     */
    QString sortingKey() const { return d->sortingKey(); }

private:
    static const PxTheme &ourVoidTheme;

    QExplicitlySharedDataPointer<const PxThemeConfig> d;
};

Q_DECLARE_TYPEINFO(PxTheme, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxTheme)

/** Hashes id and expiry date. */
PXPRODUCTPROPERTIES_EXPORT uint qHash(const PxTheme &theme, uint seed = 0);
PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxTheme &theme);
