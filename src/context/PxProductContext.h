#pragma once

#include "context/PxProductContextImpl.h"
#include "description/PxProductComparationCriterion.h"
#include "geometry/PxPageContext.h"
#include "geometry/PxPageRotationRedirectList.h"
#include "geometry/PxProductionExtraPageGroupList.h"
#include "geometry/PxSurroundingDescription.h"
#include "values/PxBinding.h"
#include "values/PxJigType.h"
#include "values/PxPageTypeList.h"
#include "values/PxPaperType.h"
#include "values/PxSpaceMagnitude.h"

#include <PxAssemblyWay.h>
#include <PxImageFXs.h>
#include <PxOrientation.h>
#include <PxPageCountOrganization.h>
#include <PxPageNamingStyle.h>
#include <PxProductTypeList.h>

#include <QList>
#include <QMetaType>
#include <QSharedDataPointer>
#include <QSize>
#include <QSizeF>
#include <QString>

class QDebug;

/**
 * A product type together with the theme in which it is designed: everything that the application
 * asks about the product it works on. Other questions, such as sizes with bleed, barcodes, variants
 * and background categories, are answered by the registry for productType().
 *
 * A context is as large as one pointer. Copies share the record, and a setter changes only the
 * context on which it is called. Copying and destroying are safe in any thread. Lengths are in the
 * unit of the product files.
 *
 * A product type without a product file gets the default answers. So does a product of an earlier
 * catalogue, although isValid() is true for it: PxProductTypeConfigRegistry::legacyInstance()
 * answers questions about it.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductContext
{
public:
    /** No product, in the default theme: a void context. */
    PxProductContext();
    /** In the default theme. */
    explicit PxProductContext(const PxProductType &type);
    /** In the theme with this id; in the void theme if there is none. */
    PxProductContext(const PxProductType &type, const QString &themeId);
    /** In this theme, even one that does not allow the product: isValid() is false then. */
    PxProductContext(const PxProductType &type, const PxTheme &theme);
    PxProductContext(const PxProductContext &other);
    PxProductContext &operator=(const PxProductContext &other);
    ~PxProductContext();

    /** Whether the product type is known and the theme allows it. */
    bool isValid() const;
    /** No product, in the default theme. */
    bool isVoidContext() const;

    // Product and theme
    ///@{
    /** What the context was made of, or given by a setter. */
    PxProductType productType() const { return d->productType; }
    PxTheme theme() const { return d->theme; }
    QString themeId() const { return d->theme.id(); }
    ///@}
    /** Whether the theme is "normal". */
    bool isDefaultTheme() const { return d->theme.isDefaultTheme(); }
    ///@{
    /** The answer of PxProductType to the question of this name. */
    QString shortProductName() const { return d->productType.shortProductName(); }
    PxProductClass productClass() const { return d->productType.productClass(); }
    bool isProductClass(PxProductClass classes) const;
    bool isBook() const { return d->productType.isBook(); }
    bool isCalendar() const { return d->productType.isCalendar(); }
    bool isCard() const { return d->productType.isCard(); }
    bool isGift() const { return d->productType.isGift(); }
    bool isDeko() const { return d->productType.isDeko(); }
    ///@}
    /** Whether the first page is a left one, as for the product type with code 13 alone. */
    bool startsWithLeftPage() const;
    /**
     * The products that are interchangeable with this one, have the same size and page increment,
     * and are allowed by the theme.
     */
    PxProductTypeList compatibleProducts() const;
    /**
     * The same with any page increment. Both lists include the product itself if it is offered and
     * allowed by the theme.
     */
    PxProductTypeList compatibleProductsWithTheSameSize() const;
    /**
     * Whether theme, size class, orientation and paper are the same; the product types may differ.
     */
    bool isVerySimilarTo(const PxProductContext &other) const;

    // Page counts and pages
    ///@{
    /**
     * The smallest and the largest page count and the increment, as the page organization of the
     * platform knows them. The last step of a book may be irregular.
     *
     * Products other than books have a single page count, which is both smallest and largest, and
     * the increment 0. For a book without spines the smallest is above the largest. For a book with
     * fewer than three spines the increment is -2147483648. offeredPageCounts() has no such special
     * cases.
     */
    int minPages() const;
    int maxPages() const;
    int pageIncrement() const;
    PxPageCountOrganization pageCountOrganization() const;
    ///@}
    /** The page counts that customers may order, in ascending order. */
    QList<int> offeredPageCounts() const;
    /** Whether it is one of offeredPageCounts(); false for any other number. */
    bool isPageCountOffered(int pageCount) const;
    /** Whether minPages() is 1. */
    bool isOnePage() const;
    /** Whether the binding is one that is printed on one side. */
    bool isSimplex() const;
    /** Whether it is printed on both sides and has more than one page. */
    bool isDuplex() const;
    /** The page count of a new product; -1 if the file states none. */
    int defaultSellingPages() const;
    /** The number of products in one order of it. */
    int productCount() const;
    /**
     * The number of normal pages of a gift, card or decoration, for all its products together; 1 by
     * default.
     */
    int numberOfPages() const;
    /** Pages per product, truncated to a whole number; 0 if the product count is 0. */
    int pagesPerProduct() const;
    /** Whether it consists of several products of several pages each. */
    bool useTwoStoryBoards() const;
    /** The double page with which the editor starts, as the file states it; 0 by default. */
    int editorStartSceneIndex() const;
    ///@{
    /** The answer of PxProductTypeDescription to the question of this name. */
    PxPageTypeList pageTypes(int pageCount) const;
    PxPageAlignment pageAlignment(int page) const;
    ///@}
    /** Whether the theme has content and the product accepts content on this page. */
    bool contentAllowedOnPage(int page) const;
    ///@{
    /** The answer of PxProductTypeDescription to the question of this name. */
    int contentDropRedirect(int page) const;
    PxPageRotationRedirectList rotationRedirectForSourcePage(int page) const;
    PxPageRotationRedirectList rotationRedirectForTargetPage(int page) const;
    PxPageNamingStyle pageNamingStyle() const;
    PxAssemblyWay assemblyWay() const;
    int pageNumberFontSize() const;
    double pageNumberVerticalIndent() const;
    double pageNumberHorizontalIndent() const;
    ///@}

    // Geometry and material
    /** The page after trimming. Not for the spine, whose width depends on the page count. */
    QSizeF usablePrintSize(const PxPageType &pageType) const;
    /**
     * The ratio of a normal page; not finite if its height is 0, and 1.0 for a product without a
     * size.
     */
    double widthByHeight() const;
    /** The size of an icon of this width in pixels; its height is 0 if the ratio is 0 or not
     * finite. */
    QSize optimumIconSizeSinglePage(int width) const;
    /** The same for a spread, which for a duplex product is two pages. */
    QSize optimumIconSize(int width) const;
    /** The smallest picture that the editor makes: 100 by 100 pixels for every product. */
    QSize minimumImageAreaSize() const;
    /** Whether pages lie side by side, not one above the other. */
    bool horizontalPages() const;
    /** The same as horizontalPages(). */
    bool hasHorizontalPages() const { return horizontalPages(); }
    /** Whether pages lie one above the other. */
    bool hasVerticalPages() const { return !hasHorizontalPages(); }
    ///@{
    /** The answer of PxProductTypeDescription to the question of this name. */
    PxOrientation orientation() const;
    PxPaperType paperType() const;
    PxSpaceMagnitude spaceMagnitude() const;
    int foldMargin() const;
    int safetyMargin() const;
    PxBinding binding() const;
    ///@}
    /** Whether it has at least one bit in common with the product's binding. */
    bool hasBinding(const PxBinding &binding) const;
    /** Whether it is stapled. */
    bool hasBookletBinding() const { return hasBinding(PxBindingBooklet); }
    ///@{
    /** The answer of PxProductTypeDescription to the question of this name. */
    bool hasSpine() const;
    int spineWidth(int pageCount) const;
    int spineMaxFontHeight(int pageCount) const;
    bool hasHole() const;
    bool hasHook() const;
    int numberOfSpiralLoops() const;
    ///@}
    /** Whether it is bound by a spiral. */
    bool hasSpiral() const { return numberOfSpiralLoops() > 0; }

    // Decoration and editor
    ///@{
    /** The answer of PxProductTypeDescription to the question of this name. */
    PxSurroundingDescription findSurrounding(const PxSurroundingKey &key) const;
    PxProductionExtraPageGroupList extraProductionContents() const;
    ///@}
    /** As PxProductTypeDescription::fullBackgroundOnEachPage(). */
    bool putFullBackgroundOnEachPage() const;
    /** As PxProductTypeDescription::hasAssistant(). */
    bool hasAssistant() const;
    /** As PxProductTypeDescription::hasContentCategoryBox(). */
    bool hasContentCategoryComboBox() const;
    /** As PxProductTypeDescription::imageFX(). */
    PxImageFXs productImageFXs() const;
    ///@{
    /** The answer of PxProductTypeDescription to the question of this name. */
    bool canHaveShadow() const;
    bool canHaveBorder() const;
    bool supportsJigType(const PxJigType &jigType) const;
    ///@}
    /** Whether it is a book that supports backgrounds. */
    bool canHaveStyles() const;
    /** Whether the theme has the maker's logo for this product. */
    bool mustPaintVemoLogo() const;
    /** As PxProductTypeDescription::mustPaintVemoLogoOnSpine(); the theme is not asked. */
    bool mustPaintVemoLogoOnSpine() const;
    /**
     * The template for a new page: the layout of a double page, the background of a single one. It
     * comes from the theme, or else from the theme "normal"; with `useUserDefaults` the user's own
     * choice comes first. A single empty page always has "Weiss".
     */
    QString defaultTemplateForPage(bool doublePage, const PxPageContext &pageContext,
                                   bool useUserDefaults) const;

    // Changes
    /** Other contexts that share the record keep their theme. */
    void setTheme(const PxTheme &theme);
    /** Other contexts that share the record keep their product type. */
    void setProductType(const PxProductType &type);

    // Comparison
    /** Whether product type and theme are equal. */
    bool operator==(const PxProductContext &other) const;
    bool operator!=(const PxProductContext &other) const { return !(*this == other); }
    /** A hash that is equal for equal contexts. */
    uint hash() const;

private:
    PxProductTypeList compatibleProducts(PxProductComparationCriterion criterion) const;
    QString defaultTemplateForPage(bool doublePage, const PxPageContext &pageContext,
                                   bool useFallback, bool useUserDefaults) const;

    QSharedDataPointer<PxProductContextImpl> d;
};

static_assert(sizeof(PxProductContext) == sizeof(void *),
              "contexts are copied in lists and groups");
Q_DECLARE_TYPEINFO(PxProductContext, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxProductContext)

/** Equal for equal contexts. */
inline uint qHash(const PxProductContext &context, uint seed = 0)
{
    return context.hash() ^ seed;
}

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxProductContext &context);
