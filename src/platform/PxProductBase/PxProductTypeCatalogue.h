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
 * A row with a missing name, a code below 1, an unknown class, or a code or a name that an earlier
 * row has is left out with a warning that names file, row and reason.
 */
class PXPRODUCTBASE_EXPORT PxProductTypeCatalogue
{
public:
    /** The catalogue `producttypes.xml` of the resource directories, read on first use. */
    static const PxProductTypeCatalogue *instance();

    /** Empty when there is no such file, or, with a warning, when it cannot be read. */
    explicit PxProductTypeCatalogue(const QFileInfo &file);
    ~PxProductTypeCatalogue();
    Q_DISABLE_COPY(PxProductTypeCatalogue)

    /** Null for a code that no row has. The entry lives as long as the catalogue. */
    const PxProductTypeEntry *find(int code) const;
    /** The same by name: trimmed, in any case. */
    const PxProductTypeEntry *find(const QString &name) const;

private:
    /** Answers why the row is left out; null when it was added. */
    const char *addRow(const QDomElement &row);

    std::deque<PxProductTypeEntry> m_entries; // never moves an entry
    QHash<int, const PxProductTypeEntry *> m_byCode;
    // As written, and case-folded; by hash, then by name. Hashes are quickly compared, and the
    // names of a hostile file, which may share one hash, are still found in a few steps.
    QMap<QPair<uint, QString>, const PxProductTypeEntry *> m_byName;
};
