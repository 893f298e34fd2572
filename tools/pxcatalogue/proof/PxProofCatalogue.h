#pragma once

#include "check/findings/PxCheckReport.h"

#include <PxProductType.h>
#include <themes/PxThemeList.h>

#include <QString>
#include <QStringList>
#include <QVector>

class PxProductTypeConfigRegistry;

/** A product of the catalogue, with its page in the folder. */
struct PxProofProduct
{
    const PxProductTypeConfigRegistry *registry;
    PxProductType type;
    bool isLegacy;
    QString page; ///< the name of its file without ending
    QVector<PxFinding> findings = {};
    QStringList themes = {}; ///< the ids of those that allow it
};

/** What all pages of the proof show and link to. */
struct PxProofCatalogue
{
    QString title;
    QVector<PxProofProduct> products;
    QVector<PxProofProduct> legacyProducts;
    PxThemeList themes;
    QVector<PxFinding> findings; ///< of files that belong to no product

    /** Asks the library and takes the findings over. */
    static PxProofCatalogue of(const QString &title, const PxCheckReport &check);
};
