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
 * A product type together with the theme it is designed in: what the application asks about the
 * product it works on. The rest, such as sizes with bleed, barcodes, variants and background
 * categories, the registry answers by productType().
 *
 * One pointer wide; copies share the record, and a setter changes only the context it is called on.
 * Copying and destroying are safe from any thread. A product type without a product file is
 * answered from the defaults of an empty one. So is a product of an earlier catalogue, which
 * PxProductTypeConfigRegistry::legacyInstance() knows and answers by product type; isValid() is
 * true for it nevertheless. Lengths are in the unit of the product files.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductContext
{
public:
    /** No product, in the default theme: void. */
    PxProductContext();
    /** In the default theme. */
    explicit PxProductContext(const PxProductType &type);
    /** In the theme of this id; in the void theme when there is none. */
    PxProductContext(const PxProductType &type, const QString &themeId);
    PxProductContext(const PxProductType &type, const PxTheme &theme);
    PxProductContext(const PxProductContext &other);
    PxProductContext &operator=(const PxProductContext &other);
    ~PxProductContext();

    /** The product type is known, and the theme allows it. */
    bool isValid() const;
    /** No product, in the default theme. */
    bool isVoidContext() const;

    // Product and theme
    PxProductType productType() const { return d->productType; }
    PxTheme theme() const { return d->theme; }
    QString themeId() const { return d->theme.id(); }
    bool isDefaultTheme() const { return d->theme.isDefaultTheme(); }
    QString shortProductName() const { return d->productType.shortProductName(); }
    PxProductClass productClass() const { return d->productType.productClass(); }
    bool isProductClass(PxProductClass classes) const;
    bool isBook() const { return d->productType.isBook(); }
    bool isCalendar() const { return d->productType.isCalendar(); }
    bool isCard() const { return d->productType.isCard(); }
    bool isGift() const { return d->productType.isGift(); }
    bool isDeko() const { return d->productType.isDeko(); }
    bool startsWithLeftPage() const;
    /** Interchangeable, with the same size and page increment, and allowed by the theme. */
    PxProductTypeList compatibleProducts() const;
    /**
     * The same with any page increment. The product itself is one of both, if it is offered and its
     * theme allows it.
     */
    PxProductTypeList compatibleProductsWithTheSameSize() const;
    /** Theme, size class, orientation and paper are the same, whatever the product types are. */
    bool isVerySimilarTo(const PxProductContext &other) const;

    // Page counts and pages
    /**
     * The page counts to offer as the platform's page organization knows them: the smallest, the
     * largest and the increment, with the last step of a book perhaps irregular.
     *
     * What is no book has one page count, twice, and the increment 0. A book without spines has
     * none: its smallest is above its largest. With fewer than three its increment is -2147483648.
     * offeredPageCounts() needs no such cases.
     */
    int minPages() const;
    int maxPages() const;
    int pageIncrement() const;
    PxPageCountOrganization pageCountOrganization() const;
    /** The page counts that customers may order, in ascending order. */
    QList<int> offeredPageCounts() const;
    bool isPageCountOffered(int pageCount) const;
    bool isOnePage() const;
    bool isSimplex() const;
    /** Printed on both sides, and more than a single page. */
    bool isDuplex() const;
    /** -1 for none. */
    int defaultSellingPages() const;
    /** How many products one order of it is. */
    int productCount() const;
    int numberOfPages() const;
    /** Truncated; 0 for a product count of 0. */
    int pagesPerProduct() const;
    /** Several products of several pages each. */
    bool useTwoStoryBoards() const;
    int editorStartSceneIndex() const;
    PxPageTypeList pageTypes(int pageCount) const;
    PxPageAlignment pageAlignment(int page) const;
    /** The theme brings content, and the product takes some on this page. */
    bool contentAllowedOnPage(int page) const;
    int contentDropRedirect(int page) const;
    PxPageRotationRedirectList rotationRedirectForSourcePage(int page) const;
    PxPageRotationRedirectList rotationRedirectForTargetPage(int page) const;
    PxPageNamingStyle pageNamingStyle() const;
    PxAssemblyWay assemblyWay() const;
    int pageNumberFontSize() const;
    double pageNumberVerticalIndent() const;
    double pageNumberHorizontalIndent() const;

    // Geometry and material
    /** The page after trimming. Not for the spine, whose width needs a page count. */
    QSizeF usablePrintSize(const PxPageType &pageType) const;
    /** Of a normal page; not finite when its height is 0, and 1.0 for a product without a size. */
    double widthByHeight() const;
    /** An icon of this width; its height is 0 when the ratio is 0 or not finite. */
    QSize optimumIconSizeSinglePage(int width) const;
    /** The same for a spread: two pages of a duplex product. */
    QSize optimumIconSize(int width) const;
    QSize minimumImageAreaSize() const;
    bool horizontalPages() const;
    bool hasHorizontalPages() const { return horizontalPages(); }
    bool hasVerticalPages() const { return !hasHorizontalPages(); }
    PxOrientation orientation() const;
    PxPaperType paperType() const;
    PxSpaceMagnitude spaceMagnitude() const;
    int foldMargin() const;
    int safetyMargin() const;
    PxBinding binding() const;
    /** Shares at least one bit with the product's binding. */
    bool hasBinding(const PxBinding &binding) const;
    bool hasBookletBinding() const { return hasBinding(PxBindingBooklet); }
    bool hasSpine() const;
    int spineWidth(int pageCount) const;
    int spineMaxFontHeight(int pageCount) const;
    bool hasHole() const;
    bool hasHook() const;
    int numberOfSpiralLoops() const;
    bool hasSpiral() const { return numberOfSpiralLoops() > 0; }

    // Decoration and editor
    PxSurroundingDescription findSurrounding(const PxSurroundingKey &key) const;
    PxProductionExtraPageGroupList extraProductionContents() const;
    bool putFullBackgroundOnEachPage() const;
    bool hasAssistant() const;
    bool hasContentCategoryComboBox() const;
    PxImageFXs productImageFXs() const;
    bool canHaveShadow() const;
    bool canHaveBorder() const;
    bool supportsJigType(const PxJigType &jigType) const;
    bool canHaveStyles() const;
    bool mustPaintVemoLogo() const;
    bool mustPaintVemoLogoOnSpine() const;
    /**
     * The template of a new page, by the theme or else by the theme "normal": the layout of a
     * double page, the background of a single one; with `useUserDefaults` the user's own first.
     * A single empty page always has "Weiss".
     */
    QString defaultTemplateForPage(bool doublePage, const PxPageContext &pageContext,
                                   bool useUserDefaults) const;

    // Changes
    /** Other contexts that share the record keep their theme. */
    void setTheme(const PxTheme &theme);
    /** Other contexts that share the record keep their product type. */
    void setProductType(const PxProductType &type);

    // Comparison: by product type and theme
    bool operator==(const PxProductContext &other) const;
    bool operator!=(const PxProductContext &other) const { return !(*this == other); }
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

inline uint qHash(const PxProductContext &context, uint seed = 0)
{
    return context.hash() ^ seed;
}

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxProductContext &context);
