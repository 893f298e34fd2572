#pragma once

#include "context/PxProductContext.h"

#include <QAbstractListModel>
#include <QString>

/**
 * The product types that the current product can be exchanged for, for a list view: the same
 * product in other papers (PxProductComparationAllButPaperType) or with other bindings
 * (PxProductComparationAllButBinding).
 *
 * Only what the theme of the context allows is listed. A row reads as the paper or the binding of
 * its product; by any other criterion rows have no text. Papers and bindings are sorted by these
 * texts, in an order that is the same in every locale; rows that read the same come in any order.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductTypeVariationListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        /** The PxProductType of the row; in QML "productType". */
        ProductTypeRole = Qt::UserRole,
        /** Its name, a QString; in QML "productName". */
        ProductNameRole,
        /** Its code, an int; in QML "productCode". */
        ProductCodeRole,
    };

    PxProductTypeVariationListModel(const PxProductContext &context,
                                    PxProductComparationCriterion criterion,
                                    QObject *parent = nullptr);

    // As a list model
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    // About the products
    /** The unknown type 0 for a row that is none. */
    PxProductType productAt(int row) const;
    /** An invalid index when the type is not listed. */
    QModelIndex indexOf(const PxProductType &type) const;
    QModelIndex indexOfCurrentProduct() const;
    /** What of the list the theme allows, sorted as the rows are. */
    PxProductTypeList filterAllowedByTheme(const PxProductTypeList &list) const;

    // Changes
    /** Resets the model, unless the contexts are equal, which the products of a theme do not
     * decide. */
    void setProductContext(const PxProductContext &context);
    /** Asks for the products again, and resets the model. */
    void updateContent();

private:
    QVariant displayName(const PxProductType &product) const;

    PxProductContext m_productContext;
    PxProductComparationCriterion m_criterion;
    PxProductTypeList m_products;
};

/** By character code, never by the rules of a language. */
PXPRODUCTPROPERTIES_EXPORT bool lessThanQString(const QString &a, const QString &b);
/** By the display names of the bindings. */
PXPRODUCTPROPERTIES_EXPORT bool lessThanBinding(const PxProductType &a, const PxProductType &b);
/** By the display names of the papers. */
PXPRODUCTPROPERTIES_EXPORT bool lessThanPaper(const PxProductType &a, const PxProductType &b);
