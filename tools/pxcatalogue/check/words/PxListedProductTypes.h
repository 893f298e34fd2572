#pragma once

#include "check/words/PxKnownNames.h"

#include <PxProductTypeList.h>

#include <QDomElement>

#include <set>

/** The product types of producttypes.xml, which the library finds by name, but does not list. */
class PxListedProductTypes
{
public:
    /** Reads the file that the library reads. `isChecked`: it is one of the checked files, too. */
    explicit PxListedProductTypes(bool isChecked);

    /** A row that the library rejects is reported there. */
    bool isChecked() const { return m_isChecked; }
    /** Those that the library takes, each once. */
    const PxProductTypeList &types() const { return m_types; }
    /** Names cannot be checked then: each would be unknown. */
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
    PxProductTypeList m_types;
    PxKnownNames m_names;     // of the types
    std::set<QString> m_keys; // no hash: names can be made to collide
};
