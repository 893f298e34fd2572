#pragma once

#include "context/PxProductContext.h"

#include <QAbstractListModel>
#include <QString>

/**
 * A list model of the product types for which the current product can be exchanged: the same
 * product with other papers (PxProductComparationAllButPaperType) or other bindings
 * (PxProductComparationAllButBinding).
 *
 * Only products that the theme of the context allows are listed. The text of a row is the paper or
 * the binding of its product; with other criteria rows have no text. Papers and bindings are sorted
 * by these texts, in the same order in every locale. The order of rows with equal texts is not
 * defined.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductTypeVariationListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /** What a row stands for, beside its text. */
    enum Role {
        /** The PxProductType of the row; in QML "productType". */
        ProductTypeRole = Qt::UserRole,
        /** Its name, a QString; in QML "productName". */
        ProductNameRole,
        /** Its code, an int; in QML "productCode". */
        ProductCodeRole,
    };

    /** Queries the products. The parent, if there is one, owns the model. */
    PxProductTypeVariationListModel(const PxProductContext &context,
                                    PxProductComparationCriterion criterion,
                                    QObject *parent = nullptr);

    // As a list model
    /** The number of products; 0 below a row. */
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    /** 1; 0 below a row. */
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    /**
     * The text for Qt::DisplayRole and the values of the roles above; no value for a row that does
     * not exist.
     */
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /** The names of the roles in QML. */
    QHash<int, QByteArray> roleNames() const override;

    // About the products
    /** The unknown type 0 for a row that does not exist. */
    PxProductType productAt(int row) const;
    /** An invalid index if the type is not listed. */
    QModelIndex indexOf(const PxProductType &type) const;
    /** The row of the product of the context; an invalid index if it is not listed. */
    QModelIndex indexOfCurrentProduct() const;
    /** The products of the list that the theme allows, sorted like the rows. */
    PxProductTypeList filterAllowedByTheme(const PxProductTypeList &list) const;

    // Changes
    /**
     * Resets the model, unless the contexts are equal. The product list of the theme is not
     * compared.
     */
    void setProductContext(const PxProductContext &context);
    /** Queries the products again and resets the model. */
    void updateContent();

private:
    QVariant displayName(const PxProductType &product) const;

    PxProductContext m_productContext;
    PxProductComparationCriterion m_criterion;
    PxProductTypeList m_products;
};

/** Compares character codes, independently of language. */
PXPRODUCTPROPERTIES_EXPORT bool lessThanQString(const QString &a, const QString &b);
/** Compares the display names of the bindings. */
PXPRODUCTPROPERTIES_EXPORT bool lessThanBinding(const PxProductType &a, const PxProductType &b);
/** Compares the display names of the papers. */
PXPRODUCTPROPERTIES_EXPORT bool lessThanPaper(const PxProductType &a, const PxProductType &b);
