#pragma once

#include "classification/PxProductClassification.h"
#include "description/PxProductComparationCriterion.h"
#include "description/PxProductTypeDescriptionSpineData.h"
#include "geometry/PxBarcodeList.h"
#include "geometry/PxBleedMargin.h"
#include "geometry/PxContentDropRedirectList.h"
#include "geometry/PxDefaultTemplateMap.h"
#include "geometry/PxPageRotationRedirectList.h"
#include "geometry/PxPageSizeKey.h"
#include "geometry/PxPageSizeSpec.h"
#include "geometry/PxProductionExtraPageGroupList.h"
#include "geometry/PxSurroundingDescriptionList.h"
#include "themes/PxThematicCategorySet.h"
#include "values/PxBinding.h"
#include "values/PxJigType.h"
#include "values/PxPageTypeList.h"
#include "values/PxPaperType.h"
#include "values/PxSpaceMagnitude.h"

#include <PxAssemblyWay.h>
#include <PxImageFXs.h>
#include <PxPageNamingStyle.h>

#include <QList>
#include <QPair>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

#include <limits>

class PxUserDefaults;
class QDomElement;

/**
 * Everything that is known about one product type, read once from its product file.
 *
 * Lengths are in the one unit that all product files share. Page numbers count the pages of
 * pageTypes() from 0, including covers; queries accept any int. Reading never fails: a missing or
 * invalid value gives its default. A description does not change after it was read, so that it may
 * be used from any thread.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductTypeDescription
{
public:
    /**
     * The length of the longest list of pages or page counts, and the largest page count on offer:
     * far more than any product has, and small enough not to exhaust memory.
     */
    static constexpr int maximumListedPages = 100000;

    /** The invalid description of no product. */
    PxProductTypeDescription();
    /** Reads the "product" element of a product file, and the user-defaults file of the product. */
    explicit PxProductTypeDescription(const QDomElement &product);

    /** Whether binding, orientation and usable size are known. */
    bool isValid() const;

    // The product as a whole
    /** The material and the size by which the shop groups the product, and its type. */
    PxProductClassification classification() const { return m_classification; }
    /** The older product that this one replaces; the unknown type if there is none. */
    PxProductType legacyProduct() const { return m_legacyProduct; }
    /** The orientation in the file, or that of the usable size; 0 if neither is known. */
    PxOrientation orientation() const { return m_orientation; }
    /** The binding; GIFT for a missing or unknown keyword, 0 without a file. */
    PxBinding binding() const { return m_binding; }
    /** The paper; "indigo" for a missing or unknown keyword, 0 without a file. */
    PxPaperType paperType() const { return m_paperType; }
    /** The size class; every class for a missing or unknown keyword, 0 without a file. */
    PxSpaceMagnitude spaceMagnitude() const { return m_spaceMagnitude; }
    /** Who puts it together; the maker by default, none without a file. */
    PxAssemblyWay assemblyWay() const { return m_assemblyWay; }
    /** How all its pictures are shown; as they are by default. */
    PxImageFXs imageFX() const { return m_imageFX; }
    /** Whether pictures may have a border; not if they are shown grey. */
    bool canHaveBorder() const { return (m_imageFX & PxImageFXsGrayscale) == 0; }
    /** Whether pictures may have a shadow; as canHaveBorder(). */
    bool canHaveShadow() const { return canHaveBorder(); }
    /** Whether the assistant can fill it; true by default. */
    bool hasAssistant() const { return m_hasAssistant; }
    /** Whether it has a hook to hang it up; false by default. */
    bool hasHook() const { return m_hasHook; }
    /** Whether it has a hole to hang it up; false by default. */
    bool hasHole() const { return m_hasHole; }
    /** The number of loops of a spiral binding; 0 if there is none. */
    int numberOfSpiralLoops() const { return m_numberOfSpiralLoops; }
    /** What the variants differ in, in German; empty if the file does not say it. */
    QString variantDescription() const { return m_variantDescription; }
    /** The identifiers of the variants, in the order of the file. */
    QStringList variants() const { return m_variants; }
    /** The number of products in one order of it, 1 by default. */
    int explicitNumberOfProducts() const { return m_explicitNumberOfProducts; }
    /** Whether the two products are interchangeable. `criterion` adds to what must be equal. */
    bool isCompatible(const PxProductTypeDescription &other,
                      PxProductComparationCriterion criterion) const;

    // Which design elements the editor offers for it
    /** Whether one of the given kinds is supported. */
    bool supportsJigType(const PxJigType &jigType) const;
    /** Whether it supports ready-made contents. */
    bool hasContentCategoryBox() const { return m_jigTypes.matches(PxJigTypeContent); }
    /** The categories to which backgrounds of the cover are limited; empty for no limit. */
    PxThematicCategorySet allowedBackgroundCategories() const;
    /** Whether backgrounds of the cover are limited to categories. */
    bool limitBackgroundCategories() const { return !m_allowedBackgroundCategories.isEmpty(); }
    /**
     * Whether a background fills each page including the bleed; by default so for calendars, gifts
     * and cards.
     */
    bool fullBackgroundOnEachPage() const { return m_fullBackgroundOnEachPage; }
    /**
     * The template that the editor puts on a new page; empty if there is none.
     *
     * With `useUserDefaults` the user's own choice comes first. With `useFallback` the template of
     * the theme "normal" is used if the product file has none for the theme of the key.
     */
    QString findDefaultTemplate(const PxDefaultTemplateKey &key, bool useFallback,
                                bool useUserDefaults) const;
    /**
     * The ids of the themes for which the product file or the user has default templates, "normal"
     * and ids without a theme included; in ascending order.
     */
    QStringList themesWithDefaultTemplates() const;

    // Pages
    /**
     * The smallest page count in the spine table; the largest int, 2147483647, without spines.
     *
     * This and the next two functions describe only the spine table, which calendars, gifts and
     * cards do not have. For the page counts to offer, ask a PxProductContext or
     * offeredPageCounts().
     */
    int minPages() const;
    /** The largest page count in the spine table; the smallest int, -2147483648, without spines. */
    int maxPages() const;
    /**
     * The number of pages by which the product grows; the smallest int, -2147483648, if there are
     * fewer than three spines.
     */
    int pageIncrement() const { return m_pageIncrement; }
    /**
     * The page counts that customers may order, in ascending order; none for an invalid
     * description.
     *
     * For a book these go from the smallest to the largest page count of its spine table, in steps
     * of the increment, and always include the largest. If the table has fewer than three entries,
     * only these are offered. If the page list contains a spine, page counts without an entry in
     * the table are left out. A calendar has the page count of its binding, a gift, card or
     * decoration its number of normal pages, and any other product 1. Nothing below 1 or above
     * `maximumListedPages` is offered.
     */
    QList<int> offeredPageCounts() const;
    /** Whether it is one of offeredPageCounts(). */
    bool isPageCountOffered(int pageCount) const;
    /** The page count that is offered first; -1 if there is none. */
    int defaultSellingPages() const { return m_defaultSellingPages; }
    /** The number of normal pages of a gift, card or decoration, 1 by default. */
    int explicitNumberOfNormalPages() const { return m_explicitNumberOfNormalPages; }
    /** The number of entries in the page list of the file; a range of pages is one entry. */
    int countAbstractPages() const { return m_abstractPageCount; }
    /** Whether there is a page list, in the file or by its default. */
    bool hasPages() const { return !m_pageTypes.isEmpty(); }
    /** Whether the first page is a cover. */
    bool hasCover() const;
    /** Whether the binding is one that is printed on one side. */
    bool isSimplex() const { return m_binding.isSimplex(); }
    /**
     * The pages of the product in order, at least one. Each range in the list of the file gives
     * `pageCount` normal pages. An invalid entry is skipped with a warning. Pages beyond
     * `maximumListedPages` are left out, with one warning.
     */
    PxPageTypeList pageTypes(int pageCount) const;
    /** How the editor names the pages; unknown by default. */
    PxPageNamingStyle pageNamingStyle() const { return m_pageNamingStyle; }
    /** Whether pages lie side by side, not one above the other; true by default. */
    bool horizontalPages() const { return m_horizontalPages; }
    /** Whether it has the plain card style; not for single cards and college blocks. */
    bool hasCardStyleAlignment() const { return m_cardAlignment == CardAlignment::CardStyle; }
    /**
     * The side of the spread on which a page lies. Page 1 of a product with a spine is the spine.
     */
    PxPageAlignment pageAlignment(int page) const;
    /** The double page with which the editor starts, as the file states it; 0 by default. */
    int editorStartDoublePage() const { return m_editorStartDoublePage; }
    /**
     * The numbers that production gives to the pages: those of the file, cut off or continued from
     * the last one (from 1 if there are none) to exactly `pageCount` numbers, but no more than
     * `maximumListedPages`; a larger page count logs a warning. None for 0 or less.
     */
    QList<int> productionNumberingList(int pageCount) const;
    /** Whether content may be put on the page; on every page if the file does not list any. */
    bool contentAllowedOnPage(int page) const;
    /** The page that receives content dropped on this page; the page itself by default. */
    int contentDropRedirect(int page) const;
    /** Where the content of the page goes when the product is rotated; empty for nowhere else. */
    PxPageRotationRedirectList rotationRedirectForSourcePage(int page) const;
    /** What comes to the page when the product is rotated; empty for nothing. */
    PxPageRotationRedirectList rotationRedirectForTargetPage(int page) const;

    // Sizes
    /** The usable size plus the extra width and height of the cover. */
    QSize coverSize() const;
    /**
     * The size of the page after trimming; the usable size for a union of page types. Only the
     * spine needs a page count: for a page count without a spine it is 0 wide, and -1 logs a
     * warning.
     */
    QSize usablePrintSize(const PxPageType &pageType, int pageCount) const;
    /** The size of a page as usablePrintSize() answers it, with all margins around it. */
    PxPageSizeSpec sizeSpec(const PxPageSizeKey &key) const;
    /** The bleed of all pages but covers and spine; 0 by default. */
    PxBleedMargin bleedMarginNormal() const { return m_bleedMarginNormal; }
    /** The bleed of covers and spine; 0 by default. */
    PxBleedMargin bleedMarginCover() const { return m_bleedMarginCover; }
    /** The bleed of a page. Pages of a bound product have none at the inner edge. */
    PxMargins bleedMargins(const PxPageContext &page, int pageCount) const;
    /**
     * The margin that designs keep free, because its contents could be cut off; 0 by default.
     */
    int safetyMargin() const { return m_safetyMargin; }
    /** The same at each edge. */
    PxMargins safetyMargins() const { return m_safetyMargins; }
    /**
     * The part of a page that disappears in the fold. By default a few per cent of the width if a
     * surrounding shows the shade of the binding, otherwise 0.
     */
    int foldMargin() const { return m_foldMargin; }
    /** The width of a normal page that a clamp binding takes; 0 by default. */
    int normalPageHorizontalClamp() const { return m_normalPageHorizontalClamp; }
    /** The same for any kind of page; 0 for all but normal pages. */
    int clampExtra(const PxPageType &pageType) const;

    // Spine
    /** Whether the page list contains a spine. */
    bool hasSpine() const { return m_hasSpine; }
    /** The width of the spine with this page count, by the spine table; 0 if that has none. */
    int spineWidth(int pageCount) const;
    /**
     * The height of the tallest text that fits on the spine; 0 for a page count without a spine.
     */
    int spineMaxFontHeight(int pageCount) const;
    /** Whether the maker's logo is printed on the spine; false by default. */
    bool mustPaintVemoLogoOnSpine() const { return m_mustPaintVemoLogoOnSpine; }

    // What is printed on and around the pages
    /** Invalid if nothing surrounds the page. */
    PxSurroundingDescription findSurrounding(const PxSurroundingKey &key) const;
    /** Invalid if the page has none. */
    PxBarcode barcodeOnPage(int page, int pageCount) const;
    /** The PDF pages that production inserts; empty by default. */
    PxProductionExtraPageGroupList extraProductionContents() const;
    /** The distance of a printed page number from the edge at the side; 50 by default. */
    double pageNumberHorizontalIndent() const { return m_pageNumberHorizontalIndent; }
    /** Its distance from the edge above or below; 50 by default. */
    double pageNumberVerticalIndent() const { return m_pageNumberVerticalIndent; }
    /** Its font size, as the file states it; 24 by default. */
    int pageNumberFontSize() const { return m_pageNumberFontSize; }

    // Changes. Used only while reading: descriptions in a registry never change
    /** Adds the kinds of design elements, or takes them away. */
    void setJigTypeFlag(const PxJigType &jigType, bool isSupported);
    /** Adds the "defaults" children of the element to the default templates of the user. */
    void updateDefaultUserTemplatesMap(const QDomElement &defaults);

private:
    friend class PxProductTypeDescriptionReader;

    /** The rule for the side of a page, if it is not that of a bound book. */
    enum class CardAlignment { None, CardStyle, VarioSingleCardStyle, CollegeBlockStyle };

    struct Spine
    {
        int pageCount;
        PxProductTypeDescriptionSpineData data;
    };

    // Page and index for each entry of a list, sorted.
    using PageIndexes = QVector<QPair<int, int>>;

    // The most entries of "pages" and of the background categories; far more than any product has.
    static constexpr int maximumListEntries = 1000;

    PxProductTypeDescription(const QDomElement &product, const PxUserDefaults &userDefaults);

    static QString firstEntries(const QString &list, const char *method, const char *attribute,
                                const QDomElement &product);
    void readCounts(const QDomElement &product);
    void readJigTypes(const QDomElement &product);
    void readFlags(const QDomElement &product);
    void readCardAlignment(const QDomElement &product);
    void readPages(const QDomElement &product);
    void readVariants(const QDomElement &variants);
    void initPageSizes(const QDomElement &product);
    void initSpineData(const QDomElement &spines);
    void adjustSpineWidth();
    void initPageNumbering(const QDomElement &pageNumberConfig);
    void initBackgroundCategories(const QDomElement &product);
    void warnOfTooManyPages(const char *method, int pageCount) const;
    const Spine *findSpine(int pageCount) const;
    PxProductTypeDescriptionSpineData spine(int pageCount) const;
    int findPageIncrement() const;
    bool isPageCountOfBook(int pageCount) const;
    int fixedPageCount() const;
    void indexPages();
    void indexSurroundings();
    int decodeFoldMargin(const QDomElement &product) const;

    PxOrientation m_orientation;
    bool m_hasAssistant = true;
    PxBinding m_binding;
    QVector<Spine> m_spines; // sorted by page count
    // Stored, because the search for compatible products queries it for every product.
    int m_pageIncrement = std::numeric_limits<int>::min();
    int m_abstractPageCount = 0;
    bool m_hasSpine = false;
    bool m_mustPaintVemoLogoOnSpine = false;
    PxImageFXs m_imageFX = PxImageFXsNone;
    QSize m_usableSize;
    int m_coverExtraHorizontal = 0;
    int m_coverExtraVertical = 0;
    PxBleedMargin m_bleedMarginNormal{0, 0};
    PxBleedMargin m_bleedMarginCover{0, 0};
    int m_safetyMargin = 0;
    PxMargins m_safetyMargins;
    int m_foldMargin = 0;
    PxPageNamingStyle m_pageNamingStyle = PxPageNamingStyleUnknown;
    PxJigType m_jigTypes;
    PxAssemblyWay m_assemblyWay = PxAssemblyWayNone;
    int m_explicitNumberOfProducts = 1;
    int m_explicitNumberOfNormalPages = 1;
    int m_defaultSellingPages = -1;
    PxSpaceMagnitude m_spaceMagnitude;
    int m_normalPageHorizontalClamp = 0;
    int m_numberOfSpiralLoops = 0;
    bool m_hasHook = false;
    bool m_hasHole = false;
    int m_editorStartDoublePage = 0;
    PxPageTypeList m_pageTypes;
    PxPaperType m_paperType;
    CardAlignment m_cardAlignment = CardAlignment::None;
    bool m_horizontalPages = true;
    QStringList m_variants;
    QString m_variantDescription;
    PxSurroundingDescriptionList m_surroundings;
    QVector<int> m_generalSurroundings; // indexes of those that may be the first match
    PageIndexes m_pinnedSurroundings;
    PxPageRotationRedirectList m_rotationRedirects;
    PageIndexes m_rotationsBySource;
    PxContentDropRedirectList m_contentDropRedirects;
    PxDefaultTemplateMap m_defaultTemplates;
    PxDefaultTemplateMap m_userDefaultTemplates;
    PxBarcodeList m_barcodes;
    PageIndexes m_barcodesFromFront;
    PageIndexes m_barcodesFromBack;
    QList<int> m_productionNumberingPages;
    QList<int> m_pagesWithContent; // sorted, without duplicates
    PxThematicCategorySet m_allowedBackgroundCategories;
    bool m_fullBackgroundOnEachPage = false;
    PxProductionExtraPageGroupList m_extraProductionPages;
    PxProductClassification m_classification;
    int m_pageNumberHorizontalIndent = 50;
    int m_pageNumberVerticalIndent = 50;
    int m_pageNumberFontSize = 24;
    PxProductType m_legacyProduct;
};
