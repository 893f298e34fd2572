#pragma once

#include "check/words/PxKnownNames.h"

#include <PxProductTypeList.h>

#include <QDomElement>

#include <set>

/** The product types of producttypes.xml: the library finds them by name, but does not list them.
 */
class PxListedProductTypes
{
public:
    /** Those of the file that the library reads; read on first use. */
    static PxListedProductTypes &instance();

    /** Those that the library takes, each once. */
    const PxProductTypeList &types() const { return m_types; }
    /** Nothing can be said about names then: each would be unknown. */
    bool isEmpty() const { return m_types.isEmpty(); }
    /** Stands there, though the library may leave the row out: that is told at the row. */
    bool isListed(const QString &name) const
    {
        return !name.trimmed().isEmpty() && m_keys.count(key(name)) > 0;
    }
    /** Which product was meant, or an empty text. */
    QString hint(const QString &name) { return m_names.hint(name); }

private:
    PxListedProductTypes();
    void addKeysOf(const QDomElement &row);
    static QString key(const QString &name) { return name.trimmed().toCaseFolded(); }

    PxProductTypeList m_types;
    PxKnownNames m_names;     // of the types
    std::set<QString> m_keys; // no hash: names can be made to collide
};
