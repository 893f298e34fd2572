#pragma once

#include <PxProductTypeList.h>

#include <QDomElement>
#include <QSet>
#include <QStringList>

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
        return !name.trimmed().isEmpty() && m_keys.contains(key(name));
    }
    /** Which product was meant, or an empty text. */
    QString hint(const QString &name);

private:
    PxListedProductTypes();
    void addKeysOf(const QDomElement &row);
    static QString key(const QString &name) { return name.trimmed().toCaseFolded(); }

    PxProductTypeList m_types;
    QStringList m_names; // of the types
    QSet<QString> m_keys;
    // Names to compare: guessing takes time, and so many mistakes are no slips of the pen.
    int m_comparisonsLeft = 1000000;
};
