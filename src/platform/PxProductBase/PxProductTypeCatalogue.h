#pragma once

#include "PxProductBaseExport.h"
#include "PxProductTypeEntry.h"

#include <QFileInfo>
#include <QHash>
#include <QMap>
#include <QPair>
#include <QString>

#include <deque>

class QDomElement;

/**
 * The table of all product types: their codes, names and classes.
 *
 * A row is skipped, with a warning that names file, row and reason, if it has no name, a code below
 * 1, an unknown class, or the code or the name of an earlier row.
 */
class PXPRODUCTBASE_EXPORT PxProductTypeCatalogue
{
public:
    /** The catalogue `producttypes.xml` of the resource directories, read on first use. */
    static const PxProductTypeCatalogue *instance();

    /** Empty if the file does not exist or, with a warning, if it cannot be read. */
    explicit PxProductTypeCatalogue(const QFileInfo &file);
    ~PxProductTypeCatalogue();
    Q_DISABLE_COPY(PxProductTypeCatalogue)

    /** Null for a code that is not in the table. The entry lives as long as the catalogue. */
    const PxProductTypeEntry *find(int code) const;
    /** The same by name: trimmed, in any case. */
    const PxProductTypeEntry *find(const QString &name) const;

private:
    /** Returns why the row is skipped; null if it was added. */
    const char *addRow(const QDomElement &row);

    std::deque<PxProductTypeEntry> m_entries; // never moves an entry
    QHash<int, const PxProductTypeEntry *> m_byCode;
    // By hash and name; each name is there as written and case-folded. Comparing the hashes is
    // quick, and a hostile file, in which all names share one hash, still costs only a few
    // comparisons of names for each look-up.
    QMap<QPair<uint, QString>, const PxProductTypeEntry *> m_byName;
};
