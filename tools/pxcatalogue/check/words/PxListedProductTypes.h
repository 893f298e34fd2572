#pragma once

#include "check/words/PxKnownNames.h"

#include <PxProductTypeList.h>

#include <QDomElement>

#include <set>

/** Lists the product types of producttypes.xml, which the library itself only finds by name. */
class PxListedProductTypes
{
public:
    /** Reads the file that the library reads. `isChecked`: the run checks this file, too. */
    explicit PxListedProductTypes(bool isChecked);

    /** Whether rows that the library rejects are reported in producttypes.xml itself. */
    bool isChecked() const { return m_isChecked; }
    /** Whether a row has the name of an earlier one. */
    bool isAnyRepeated() const { return m_isAnyRepeated; }
    /** The product types that the library accepts, each once. */
    const PxProductTypeList &types() const { return m_types; }
    /** If so, names cannot be checked, because each would be unknown. */
    bool isEmpty() const { return m_types.isEmpty(); }
    /** The row exists in the file, even if the library rejects it: the row itself reports why. */
    bool isListed(const QString &name) const
    {
        return !name.trimmed().isEmpty() && m_keys.count(key(name)) > 0;
    }
    /** The product that was probably meant, as a question; empty if none is near. */
    QString hint(const QString &name) { return m_names.hint(name); }

private:
    void addKeysOf(const QDomElement &row);
    static QString key(const QString &name) { return name.trimmed().toCaseFolded(); }

    bool m_isChecked;
    bool m_isAnyRepeated = false;
    PxProductTypeList m_types;
    PxKnownNames m_names;     // of the types
    std::set<QString> m_keys; // no hash: names can be made to collide
};
