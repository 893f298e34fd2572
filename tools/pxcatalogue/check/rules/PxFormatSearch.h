#pragma once

#include "format/PxFormatRows.h"

#include <QStringList>

/** Looks for a name where it does not stand: where an author may have meant to put it. */
class PxFormatSearch
{
public:
    /** `from` is where the name stands, and `parent` the element above, which may be null. */
    PxFormatSearch(const PxElementRow &root, const PxElementRow &from, const PxElementRow *parent)
        : m_root(root)
        , m_from(from)
        , m_parent(parent)
    {}

    /** The nearest element that an element of this name belongs into; null when there is none. */
    const PxElementRow *parentOf(const QString &element) const;
    /** The elements that have an attribute of this name; only the nearest ones. */
    QStringList ownersOf(const QString &attribute) const;
    /** The usual names of all elements. */
    QStringList elementNames() const;

private:
    const PxElementRow &m_root;
    const PxElementRow &m_from;
    const PxElementRow *m_parent;
};
