#pragma once

#include "diff/PxDiffKeys.h"

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVector>

/** A value that two catalogues have differently. */
struct PxChange
{
    const PxDiffKey *key;
    QString pointer;         ///< in the new product; of a row that is gone, in the old one
    QString row;             ///< which row of a table it is, in words; empty for none
    QJsonValue before;       ///< null for a row that is new
    QJsonValue after;        ///< null for a row that is gone
    QString pageCounts = {}; ///< null if they play no part
    /** The same as places in the list of the page counts that both products have. */
    int begin = 0;
    int end = 0;
    int firstPageCount = 0;
    int lastPageCount = 0;
    QString place = {}; ///< in the new files; empty for none

    bool dependsOnPageCount() const { return end > 0; }
};

/** A product or theme that both catalogues have. */
struct PxChangedObject
{
    QString name; ///< the new one
    QVector<PxChange> changes;
};

struct PxRenamedProduct
{
    int code;
    QString from;
    QString to;
};

/** How the products, legacy products or themes of two catalogues differ. */
struct PxDiffOfKind
{
    QStringList added;
    QStringList removed;
    QVector<PxRenamedProduct> renamed;
    QVector<PxChangedObject> changed;

    bool isEmpty() const
    {
        return added.isEmpty() && removed.isEmpty() && renamed.isEmpty() && changed.isEmpty();
    }
};

/** How two catalogues differ. */
struct PxDiff
{
    PxDiffOfKind products;
    PxDiffOfKind legacyProducts;
    PxDiffOfKind themes;

    bool isEmpty() const
    {
        return products.isEmpty() && legacyProducts.isEmpty() && themes.isEmpty();
    }
};
