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

class QDomElement;

/**
 * Everything that is known about one product type, read once from its product file.
 *
 * Lengths are in the one unit that all product files share. Page numbers count the pages of
 * pageTypes() from 0, covers included; any int may be asked. Reading never fails: what is missing
 * has its default, what is broken too. A record never changes after it was read, so that any thread
 * may ask it.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductTypeDescription
{
public:
    /**
     * No list of pages or page counts has more entries, and no larger page count is offered: far
     * more than a product has, and far less than the memory of a process.
     */
    static constexpr int maximumListedPages = 100000;

    /** The description of no product: invalid. */
    PxProductTypeDescription();
    /** Reads the "product" element of a product file, and the user-defaults file of the product. */
    explicit PxProductTypeDescription(const QDomElement &product);

    /** Binding, orientation and usable size are known. */
    bool isValid() const;

    // The product as a whole
    PxProductClassification classification() const { return m_classification; }
    /** The older product that this one replaces; the unknown type when it replaces none. */
    PxProductType legacyProduct() const { return m_legacyProduct; }
    PxOrientation orientation() const { return m_orientation; }
    PxBinding binding() const { return m_binding; }
    PxPaperType paperType() const { return m_paperType; }
    PxSpaceMagnitude spaceMagnitude() const { return m_spaceMagnitude; }
    PxAssemblyWay assemblyWay() const { return m_assemblyWay; }
    PxImageFXs imageFX() const { return m_imageFX; }
    /** Images in grey have neither border nor shadow. */
    bool canHaveBorder() const { return (m_imageFX & PxImageFXsGrayscale) == 0; }
    bool canHaveShadow() const { return canHaveBorder(); }
    bool hasAssistant() const { return m_hasAssistant; }
    bool hasHook() const { return m_hasHook; }
    bool hasHole() const { return m_hasHole; }
    /** Of a spiral binding; 0 for none. */
    int numberOfSpiralLoops() const { return m_numberOfSpiralLoops; }
    /** What the variants differ in. */
    QString variantDescription() const { return m_variantDescription; }
    /** The identifiers of the variants. */
    QStringList variants() const { return m_variants; }
    /** How many products one order of it is, 1 by default. */
    int explicitNumberOfProducts() const { return m_explicitNumberOfProducts; }
    /** Whether the two are interchangeable; `criterion` names what must agree beside the rest. */
    bool isCompatible(const PxProductTypeDescription &other,
                      PxProductComparationCriterion criterion) const;

    // Which design elements the editor offers for it
    /** One of the given kinds. */
    bool supportsJigType(const PxJigType &jigType) const;
    bool hasContentCategoryBox() const { return m_jigTypes.matches(PxJigTypeContent); }
    /** The categories to which the cover's backgrounds are limited; empty for no limit. */
    PxThematicCategorySet allowedBackgroundCategories() const;
    bool limitBackgroundCategories() const { return !m_allowedBackgroundCategories.isEmpty(); }
    /** A background fills each page, bleed included; by default so for calendars, gifts and cards.
     */
    bool fullBackgroundOnEachPage() const { return m_fullBackgroundOnEachPage; }
    /**
     * The template that the editor puts on a new page; empty for none.
     *
     * With `useUserDefaults` the user's own choice comes first. With `useFallback` the product file
     * answers for the theme "normal" when it has nothing for the key's theme.
     */
    QString findDefaultTemplate(const PxDefaultTemplateKey &key, bool useFallback,
                                bool useUserDefaults) const;

    // Pages
    /**
     * The smallest page count of the spine table; the largest int, 2147483647, without spines.
     *
     * This and the next two tell of the table alone, which calendars, gifts and cards do not have:
     * for the page counts to offer ask a PxProductContext, or offeredPageCounts().
     */
    int minPages() const;
    /** The largest page count of the table; the smallest int, -2147483648, without spines. */
    int maxPages() const;
    /**
     * By how many pages the product grows at a time; the smallest int, -2147483648, with fewer than
     * three spines.
     */
    int pageIncrement() const { return m_pageIncrement; }
    /**
     * The page counts that customers may order, in ascending order; none for an invalid
     * description.
     *
     * A book has those from the smallest to the largest of its spine table, in steps of the
     * increment, and always the largest; with fewer than three entries it has only these. If the
     * page list has a spine, page counts without an entry of their own are left out. A calendar has
     * as many pages as its binding says, a gift, card or decoration its number of normal pages, and
     * any other product 1. Nothing below 1 or above `maximumListedPages` is offered.
     */
    QList<int> offeredPageCounts() const;
    /** One of offeredPageCounts(). */
    bool isPageCountOffered(int pageCount) const;
    /** The page count that is offered first; -1 for none. */
    int defaultSellingPages() const { return m_defaultSellingPages; }
    /** How many normal pages a gift, card or decoration has, 1 by default. */
    int explicitNumberOfNormalPages() const { return m_explicitNumberOfNormalPages; }
    /** How many entries the file's page list has; a range of pages is one. */
    int countAbstractPages() const { return m_abstractPageCount; }
    bool hasPages() const { return !m_pageTypes.isEmpty(); }
    /** The first page is a cover. */
    bool hasCover() const;
    bool isSimplex() const { return m_binding.isSimplex(); }
    /**
     * The pages of the product, in order and at least one; each range in the file's list stands for
     * `pageCount` normal pages. An illegal entry is left out with a warning, and so is, with one
     * warning, what is behind the first `maximumListedPages`.
     */
    PxPageTypeList pageTypes(int pageCount) const;
    PxPageNamingStyle pageNamingStyle() const { return m_pageNamingStyle; }
    /** Pages lie side by side, not one above the other. */
    bool horizontalPages() const { return m_horizontalPages; }
    /** Only for the plain card style, not for single cards or college blocks. */
    bool hasCardStyleAlignment() const { return m_cardAlignment == CardAlignment::CardStyle; }
    /** On which side of a spread a page lies. Page 1 of a product with a spine is the spine. */
    PxPageAlignment pageAlignment(int page) const;
    /** The double page with which the editor starts. */
    int editorStartDoublePage() const { return m_editorStartDoublePage; }
    /**
     * The numbers that production gives the pages: those of the file, cut off or counted on from
     * the last (from 1 without any) to exactly `pageCount`; none for 0 or less. No more than
     * `maximumListedPages`, with a warning for a larger page count.
     */
    QList<int> productionNumberingList(int pageCount) const;
    /** Always so when the file does not list the pages. */
    bool contentAllowedOnPage(int page) const;
    /** Where content goes that is dropped on the page; the page itself by default. */
    int contentDropRedirect(int page) const;
    PxPageRotationRedirectList rotationRedirectForSourcePage(int page) const;
    PxPageRotationRedirectList rotationRedirectForTargetPage(int page) const;

    // Sizes
    /** The usable size with the cover's extra width and height. */
    QSize coverSize() const;
    /**
     * The page after trimming; the usable size for a union of page types, too. Only the spine needs
     * a page count: it is 0 wide for one without a spine of its own, and -1 is reported.
     */
    QSize usablePrintSize(const PxPageType &pageType, int pageCount) const;
    PxPageSizeSpec sizeSpec(const PxPageSizeKey &key) const;
    PxBleedMargin bleedMarginNormal() const { return m_bleedMarginNormal; }
    PxBleedMargin bleedMarginCover() const { return m_bleedMarginCover; }
    /** The bleed of a page; pages of a bound product have none at the inner edge. */
    PxMargins bleedMargins(const PxPageContext &page, int pageCount) const;
    /** The margin in which designs put nothing that must not be cut off. */
    int safetyMargin() const { return m_safetyMargin; }
    PxMargins safetyMargins() const { return m_safetyMargins; }
    /** The part of a page that disappears in the fold. */
    int foldMargin() const { return m_foldMargin; }
    /** The width that a clamp binding takes of a normal page. */
    int normalPageHorizontalClamp() const { return m_normalPageHorizontalClamp; }
    /** The same for any kind of page: 0 for all but normal pages. */
    int clampExtra(const PxPageType &pageType) const;

    // Spine
    bool hasSpine() const { return m_hasSpine; }
    /** 0 for a page count without a spine of its own. */
    int spineWidth(int pageCount) const;
    int spineMaxFontHeight(int pageCount) const;
    bool mustPaintVemoLogoOnSpine() const { return m_mustPaintVemoLogoOnSpine; }

    // What is printed on and around the pages
    /** Invalid when nothing surrounds the page. */
    PxSurroundingDescription findSurrounding(const PxSurroundingKey &key) const;
    /** Invalid when the page has none. */
    PxBarcode barcodeOnPage(int page, int pageCount) const;
    PxProductionExtraPageGroupList extraProductionContents() const;
    /** Where page numbers are printed, 50 from the edges by default, and their size, 24. */
    double pageNumberHorizontalIndent() const { return m_pageNumberHorizontalIndent; }
    double pageNumberVerticalIndent() const { return m_pageNumberVerticalIndent; }
    int pageNumberFontSize() const { return m_pageNumberFontSize; }

    // Changes; for reading only, a record in the registry stays as it is
    void setJigTypeFlag(const PxJigType &jigType, bool isSupported);
    /** Adds the "defaults" children of the element to the user's own default templates. */
    void updateDefaultUserTemplatesMap(const QDomElement &defaults);

private:
    /** Which rule other than that of a bound book tells the side of a page. */
    enum class CardAlignment { None, CardStyle, VarioSingleCardStyle, CollegeBlockStyle };

    struct Spine
    {
        int pageCount;
        PxProductTypeDescriptionSpineData data;
    };

    // For the entries of a list: the page and the index of each, sorted.
    using PageIndexes = QVector<QPair<int, int>>;

    // Of "pages" and of the background categories: far more than a product has.
    static constexpr int maximumListEntries = 1000;

    static QString firstEntries(const QString &list, const char *method, const char *attribute,
                                const QDomElement &product);
    void readCounts(const QDomElement &product);
    void readJigTypes(const QDomElement &product);
    void readFlags(const QDomElement &product);
    void readCardAlignment(const QDomElement &product);
    void readUserDefaults(const QString &productName);
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
    QVector<Spine> m_spines; // by page count
    // Asked of every product when compatible ones are looked for: the record itself answers.
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
    QVector<int> m_generalSurroundings; // indexes of those that some page may find first
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
    QList<int> m_pagesWithContent; // sorted, each once
    PxThematicCategorySet m_allowedBackgroundCategories;
    bool m_fullBackgroundOnEachPage = false;
    PxProductionExtraPageGroupList m_extraProductionPages;
    PxProductClassification m_classification;
    int m_pageNumberHorizontalIndent = 50;
    int m_pageNumberVerticalIndent = 50;
    int m_pageNumberFontSize = 24;
    PxProductType m_legacyProduct;
};
