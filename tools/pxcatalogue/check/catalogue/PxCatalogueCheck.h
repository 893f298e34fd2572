#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"
#include "check/words/PxListedProductTypes.h"

#include <QMap>
#include <QSet>

/** Compares the files of a catalogue with each other: products, older products, product types. */
class PxCatalogueCheck
{
public:
    /** Both must outlive the check. */
    PxCatalogueCheck(PxListedProductTypes &names, const PxReporter &report)
        : m_names(names)
        , m_report(report)
    {}

    /** Where the name of each product type stands in producttypes.xml. */
    void setProductTypes(const QMap<PxProductType, PxPlace> &types) { m_types = types; }
    /**
     * Remembers what the others are compared with; neither file nor product is kept. A size in
     * another unit is reported for the product itself.
     */
    void addProduct(const PxCheckedProduct &product, bool isInOtherUnit);

    /** After all products have been added, also if they are not all of the catalogue. */
    void checkUnknownNames();
    /** After all products have been added. `isEveryFileRead`: none lies where it is not read. */
    void run(bool isEveryFileRead);

private:
    struct Product
    {
        PxProductType type; ///< invalid for an unknown name
        bool isLegacy;
        QString writtenName;
        PxPlace name;
        QString legacyName;
        PxPlace legacy;
        QSize size;
        PxPlace width;
    };

    QString hintForUnknown(const Product &product, PxKnownNames &free) const;
    bool checkNames() const;
    void checkPredecessors() const;
    void checkSizes() const;
    void checkTypesHaveFiles() const;
    bool isComplete() const;

    PxListedProductTypes &m_names;
    const PxReporter m_report;
    QVector<Product> m_products;
    QSet<QString> m_files; ///< canonical paths of files with a known product
    QMap<PxProductType, PxPlace> m_types;
};
