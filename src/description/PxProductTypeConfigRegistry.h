#pragma once

#include "classification/PxProductClassificationManager.h"
#include "description/PxProductTypeDescription.h"

#include <PxProductChecker.h>
#include <PxProductTypeList.h>

#include <QHash>
#include <QList>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVector>

class QDir;

/**
 * The descriptions of all products in one directory, by product type.
 *
 * The registry never changes once it is built, so that it may be used from any thread. For a type
 * without a product file it answers from a default description, which is invalid.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductTypeConfigRegistry : public PxProductChecker
{
public:
    /**
     * Reads every product file in the directory, many of them in several threads, and logs a
     * warning for each one that cannot be read. A missing directory has no products.
     */
    explicit PxProductTypeConfigRegistry(const QDir &directory);
    Q_DISABLE_COPY(PxProductTypeConfigRegistry)
    /**
     * Does not free the descriptions: those that were handed out stay usable until the process
     * ends.
     */
    ~PxProductTypeConfigRegistry() override;

    /**
     * The current products, in the resource directory "products". Created on first use, from any
     * thread.
     *
     * A message handler must not call this while the registry loads: it would wait forever for
     * itself. A debug build of the library ends the program with a message instead.
     */
    static PxProductTypeConfigRegistry *instance();
    /** The same for the products of earlier catalogues, in "products/legacy". */
    static PxProductTypeConfigRegistry *legacyInstance();

    // As a product checker
    /** The same as exists(). */
    bool isValid(const PxProductType &type) const override;
    /** The kind of this checker in the checker registry. */
    int type() const override { return 4; }
    ///@{
    /**
     * The limits of the spine table. A product without spines, such as every calendar, gift and
     * card, answers 2147483647, -2147483648 and -2147483648, in this order. For the page counts to
     * offer, ask a PxProductContext or offeredPageCounts().
     */
    int minPages(const PxProductType &type) const override;
    int maxPages(const PxProductType &type) const override;
    int pageIncrement(const PxProductType &type) const override;
    ///@}

    /** Never null; owned by the registry. */
    const PxProductTypeDescription *description(const PxProductType &type) const;
    /** Whether the type has a description and that is valid. */
    bool exists(const PxProductType &type) const;

    // Answers from the description of the type
    ///@{
    /** The answer of the type's PxProductTypeDescription to the question of this name. */
    PxProductType legacyProduct(const PxProductType &type) const;
    PxOrientation orientation(const PxProductType &type) const;
    PxBinding binding(const PxProductType &type) const;
    PxPaperType paperType(const PxProductType &type) const;
    PxSpaceMagnitude spaceMagnitude(const PxProductType &type) const;
    QString variantDescription(const PxProductType &type) const;
    QStringList variants(const PxProductType &type) const;
    PxThematicCategorySet allowedBackgroundCategories(const PxProductType &type) const;
    bool limitBackgroundCategories(const PxProductType &type) const;
    bool fullBackgroundOnEachPage(const PxProductType &type) const;
    QList<int> offeredPageCounts(const PxProductType &type) const;
    bool isPageCountOffered(const PxProductType &type, int pageCount) const;
    int explicitNumberOfNormalPages(const PxProductType &type) const;
    PxPageTypeList pageTypes(const PxProductType &type, int pageCount) const;
    bool horizontalPages(const PxProductType &type) const;
    PxPageAlignment pageAlignment(const PxProductType &type, int page) const;
    QList<int> productionNumberingList(const PxProductType &type, int pageCount) const;
    QSizeF usablePrintSize(const PxProductType &type, const PxPageType &pageType,
                           int pageCount) const;
    PxPageSizeSpec sizeSpec(const PxProductType &type, const PxPageSizeKey &key) const;
    PxBarcode barcodeOnPage(const PxProductType &type, int page, int pageCount) const;
    ///@}

    // Across products
    /** The products on offer, for which exists() is true, by product class and then by name. */
    PxProductTypeList products() const;
    /**
     * The current product that replaces a legacy one; type 0 if there is none, and of several the
     * one with the smallest code.
     */
    PxProductType findProductForLegacy(const PxProductType &legacy) const;
    /** The products on offer that are interchangeable with the type, including the type itself. */
    PxProductTypeList findCompatibleProducts(const PxProductType &type,
                                             PxProductComparationCriterion criterion) const;
    /** The classifications of the products of a class. (The name is the one applications use.) */
    PxProductClassificationManager createProductClassifationManager(
        const PxProductClass &productClass) const;

    // Computed for one product
    /**
     * The file names of the pages, in the order in which production numbers the pages; as given for
     * a product that does not number them otherwise. What the names are does not matter.
     */
    QStringList sortPageFileNameListInInternOrder(const PxProductType &type,
                                                  const QStringList &fileNames) const;
    /**
     * The font size, in points, of a text that is easy to read on a page of the product: by its
     * size class, or without one by the area of a normal page.
     */
    int suitablePointSize(const PxProductType &type) const;
    /**
     * The size of a normal page, or, unless `singlePage`, of the double page of a book whose pages
     * lie side by side. Negative for a product without a size.
     */
    QSizeF usablePrintSizeForBackgroundTemplate(const PxProductType &type, bool singlePage) const;
    /** The ratio of width to height of that size; 0.0 if the height is 0 or less. */
    double backgroundRatio(const PxProductType &type, bool singlePage) const;

private:
    struct Product
    {
        PxProductType type;
        const PxProductTypeDescription *description;
    };

    QHash<PxProductType, PxProductTypeDescription *> m_descriptions;
    PxProductTypeDescription *m_defaultDescription;
    // The same products in an array, by code: iterating over the hash would wait for memory at each
    // node.
    QVector<Product> m_products;
};

// Inline: products are queried while the user drags a page, and a call into the library would cost
// half as much as the look-up itself.
inline const PxProductTypeDescription *PxProductTypeConfigRegistry::description(
    const PxProductType &type) const
{
    return m_descriptions.value(type, m_defaultDescription);
}

// Forwarders: each calls the query of the same name of the type's description.
// clang-format off
inline PxProductType PxProductTypeConfigRegistry::legacyProduct(const PxProductType &type) const { return description(type)->legacyProduct(); }
inline PxOrientation PxProductTypeConfigRegistry::orientation(const PxProductType &type) const { return description(type)->orientation(); }
inline PxBinding PxProductTypeConfigRegistry::binding(const PxProductType &type) const { return description(type)->binding(); }
inline PxPaperType PxProductTypeConfigRegistry::paperType(const PxProductType &type) const { return description(type)->paperType(); }
inline PxSpaceMagnitude PxProductTypeConfigRegistry::spaceMagnitude(const PxProductType &type) const { return description(type)->spaceMagnitude(); }
inline QString PxProductTypeConfigRegistry::variantDescription(const PxProductType &type) const { return description(type)->variantDescription(); }
inline QStringList PxProductTypeConfigRegistry::variants(const PxProductType &type) const { return description(type)->variants(); }
inline PxThematicCategorySet PxProductTypeConfigRegistry::allowedBackgroundCategories(const PxProductType &type) const { return description(type)->allowedBackgroundCategories(); }
inline bool PxProductTypeConfigRegistry::limitBackgroundCategories(const PxProductType &type) const { return description(type)->limitBackgroundCategories(); }
inline bool PxProductTypeConfigRegistry::fullBackgroundOnEachPage(const PxProductType &type) const { return description(type)->fullBackgroundOnEachPage(); }
inline QList<int> PxProductTypeConfigRegistry::offeredPageCounts(const PxProductType &type) const { return description(type)->offeredPageCounts(); }
inline bool PxProductTypeConfigRegistry::isPageCountOffered(const PxProductType &type, int pageCount) const { return description(type)->isPageCountOffered(pageCount); }
inline int PxProductTypeConfigRegistry::explicitNumberOfNormalPages(const PxProductType &type) const { return description(type)->explicitNumberOfNormalPages(); }
inline PxPageTypeList PxProductTypeConfigRegistry::pageTypes(const PxProductType &type, int pageCount) const { return description(type)->pageTypes(pageCount); }
inline bool PxProductTypeConfigRegistry::horizontalPages(const PxProductType &type) const { return description(type)->horizontalPages(); }
inline PxPageAlignment PxProductTypeConfigRegistry::pageAlignment(const PxProductType &type, int page) const { return description(type)->pageAlignment(page); }
inline QList<int> PxProductTypeConfigRegistry::productionNumberingList(const PxProductType &type, int pageCount) const { return description(type)->productionNumberingList(pageCount); }
inline QSizeF PxProductTypeConfigRegistry::usablePrintSize(const PxProductType &type, const PxPageType &pageType, int pageCount) const { return description(type)->usablePrintSize(pageType, pageCount); }
inline PxPageSizeSpec PxProductTypeConfigRegistry::sizeSpec(const PxProductType &type, const PxPageSizeKey &key) const { return description(type)->sizeSpec(key); }
inline PxBarcode PxProductTypeConfigRegistry::barcodeOnPage(const PxProductType &type, int page, int pageCount) const { return description(type)->barcodeOnPage(page, pageCount); }
// clang-format on
