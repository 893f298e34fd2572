#pragma once

#include "check/source/PxCheckedProduct.h"

#include <QMap>
#include <QSet>

/** Holds the files of a catalogue against each other: products, older products, product types. */
class PxCatalogueCheck
{
public:
    void checkProductTypes(const PxCheckedFile &file, PxFindings *findings);
    /** Remembers what the others are held against; neither file nor product is kept. */
    void addProduct(const PxCheckedProduct &product);
    /** When all products have been added. */
    void finish(PxFindings *findings) const;

private:
    struct Product
    {
        PxProductType type; ///< invalid for an unknown name, which is told elsewhere
        bool isLegacy;
        PxPlace name;
        QString legacyName;
        PxPlace legacy;
        QSize size;
        PxPlace width;
    };

    bool checkNames(PxFindings *findings) const;
    void checkPredecessors(PxFindings *findings) const;
    void checkSizes(PxFindings *findings) const;
    void checkTypesHaveFiles(PxFindings *findings) const;
    bool isComplete() const;

    QVector<Product> m_products;
    QSet<QString> m_files; ///< canonical paths of those that the library gets a product from
    QMap<PxProductType, PxPlace> m_types;
};
