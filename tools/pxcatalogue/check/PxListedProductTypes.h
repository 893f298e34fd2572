#pragma once

#include <QSet>
#include <QStringList>

/** The product names of the catalogue's producttypes.xml, for what names a product. */
class PxListedProductTypes
{
public:
    /** Reads the file that the library reads. */
    PxListedProductTypes();

    /** Nothing can be said about names then: each would be unknown. */
    bool isEmpty() const { return m_names.isEmpty(); }
    /** Stands there, though the library may leave the row out: that is told at the row. */
    bool isListed(const QString &name) const { return m_keys.contains(key(name)); }
    /** Which product was meant, or an empty text. */
    QString hint(const QString &name);

private:
    static QString key(const QString &name) { return name.trimmed().toCaseFolded(); }

    QStringList m_names; ///< of the rows that the library takes
    QSet<QString> m_keys;
    int m_hintsLeft = 200; // guessing takes time, and so many mistakes are no slips of the pen
};
