#pragma once

#include "PxProductPropertiesExport.h"

#include <PxProductType.h>

#include <QAbstractListModel>
#include <QColor>
#include <QIcon>
#include <QList>
#include <QMap>
#include <QPixmap>
#include <QString>
#include <QStringList>

/**
 * The variants of one product type for a list view: each row has a name, and a swatch if its name,
 * as shown or before translation, is that of a colour.
 *
 * Rows are sorted by their identifiers, so that the default variant comes first. Swatches are
 * pixmaps: model and swatches need a QGuiApplication and must be used in its thread.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductVariantListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /** What a row stands for, beside its name and swatch. */
    enum Role {
        /** The identifier of the variant, a QString; in QML "identifier". */
        IdentifierRole = Qt::UserRole,
        /** Its colour, a QColor; no value if the variant is not a colour; in QML "color". */
        ColorRole,
    };

    /** Lists the variants of the product. The parent, if there is one, owns the model. */
    explicit PxProductVariantListModel(const PxProductType &type, QObject *parent = nullptr);

    /**
     * A square of 100 x 100 pixels in the colour with this German name, in any case; null for any
     * other text. Needs a QGuiApplication.
     */
    static QPixmap colorDescriptionToPixmap(const QString &description);

    // As a list model
    /** The number of variants; 0 below a row. */
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    /** 1; 0 below a row. */
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    /** An invalid index: rows are not nested. */
    QModelIndex parent(const QModelIndex &child) const override;
    /** The object that owns the model. */
    using QObject::parent;
    /**
     * Names for Qt::DisplayRole, swatches for Qt::DecorationRole (a null icon if the variant is not
     * a colour), and the values of the roles above.
     */
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /** The names of the roles in QML. */
    QHash<int, QByteArray> roleNames() const override;

    // About the variants
    /** The product whose variants are listed. */
    PxProductType product() const { return m_product; }
    /** The row of the identifier; -1 if it is not listed. */
    int indexOf(const QString &identifier) const;
    /** The identifier of the first row with this name; empty if there is none. */
    QString identifier(const QString &name) const;
    /** Empty for a row that does not exist. */
    QString identifier(int row) const { return m_identifiers.value(row); }
    /**
     * The length of the longest name ever listed, so that a view that is wide enough need not grow.
     */
    int sizeNeeded() const { return m_sizeNeeded; }

    /** Resets the model. A product without variants has no rows. */
    void setProduct(const PxProductType &type);

private:
    static QColor colorOf(const QString &name);

    static const QMap<QString, QColor> &ourColors; // by name in lower case

    QStringList m_names;
    QStringList m_identifiers;
    QList<QColor> m_colors;
    QList<QIcon> m_icons;
    PxProductType m_product;
    int m_sizeNeeded = 0;
};
