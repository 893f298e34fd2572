#pragma once

#include "check/findings/PxCheckReport.h"
#include "check/source/PxKeptFiles.h"
#include "diff/PxDiff.h"

#include <PxProductType.h>
#include <themes/PxTheme.h>

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QString>
#include <QVector>

#include <optional>

class PxProductTypeConfigRegistry;

/** What an object has that another catalogue has differently, or does not have. */
struct PxProofChanges
{
    bool isNew = false;
    QString oldName = {}; ///< if it is renamed
    QVector<PxChange> changes = {};

    bool isEmpty() const { return !isNew && oldName.isEmpty() && changes.isEmpty(); }
};

struct PxProofVariant
{
    QString identifier;
    QString name;
    QColor color; ///< invalid if the name is not a colour
};

/** A product of the catalogue, with its page in the folder. */
struct PxProofProduct
{
    const PxProductTypeConfigRegistry *registry;
    PxProductType type;
    bool isLegacy;
    QString page; ///< the name of its file without ending
    QVector<PxFinding> findings = {};
    QVector<int> themes = {}; ///< the indices of those that allow it, ascending
    QVector<PxProofVariant> variants = {};
    PxProofChanges changes = {};
};

/** A theme of the catalogue, with its page in the folder. */
struct PxProofTheme
{
    PxTheme theme;
    QString page;
    bool hasPicture;
    PxProofChanges changes = {};
};

/** What all pages of the proof show and link to. */
struct PxProofCatalogue
{
    QString title;
    QByteArray exported;              ///< as "export" writes it
    QVector<PxProofProduct> products; ///< as PxCatalogueProducts sorts them
    QVector<PxProofProduct> legacyProducts;
    QVector<PxProofTheme> themes;
    QVector<PxFinding> findings;       ///< of files that belong to no product
    QHash<QString, QString> fileNames; ///< in the catalogue, by the path as the check has it
    PxKeptFiles files;                 ///< of products, as the check has read them
    std::optional<PxDiff> diff;        ///< to an earlier catalogue

    /** Asks the library for products and themes. Needs the thread of the QGuiApplication. */
    PxProofCatalogue();
    void addFindings(const PxCheckReport &check);
    void addChanges(const PxDiff &changes);
};
