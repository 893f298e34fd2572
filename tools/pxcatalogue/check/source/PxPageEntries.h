#pragma once

#include "check/source/PxCheckedFile.h"

#include <values/PxPageTypeList.h>

/** An entry of the page list, with its place. */
struct PxPageEntry
{
    QString text; ///< without blanks around it
    PxPageType type;
    PxSourceRange range;

    /** Whether the entry becomes as many pages as the product has. */
    bool isRange() const { return isRange(type); }
    static bool isRange(const PxPageType &type);
    /** Whether the entry has several page types at once. */
    bool isUnion() const { return isUnion(type); }
    static bool isUnion(const PxPageType &type) { return (type.value() & (type.value() - 1)) != 0; }
};

/** The page list of a product, entry by entry. */
class PxPageEntries
{
public:
    /** Of the first element "pages" in the product; so many entries are read. */
    PxPageEntries(const PxCheckedFile &file, const PxSourceElement &product, int maximum);

    /** Whether the product has a page list, even an empty one. */
    bool isGiven() const { return m_isGiven; }
    /** Whether at least one entry that is read is a page. */
    bool hasPage() const;
    /** Whether every entry that is read is a page. */
    bool isSound() const;
    /** The entries that the library reads, up to its limit. */
    const QVector<PxPageEntry> &read() const { return m_read; }
    /** How many entries the library ignores after that, and where the first of them is. */
    int droppedCount() const { return m_droppedCount; }
    PxSourceRange firstDropped() const { return m_firstDropped; }
    /** How many entries that are read are a single normal page. */
    qint64 normalCount() const;
    /** The first spine; null if there is none. */
    const PxPageEntry *spine() const;

private:
    bool m_isGiven;
    QVector<PxPageEntry> m_read;
    int m_droppedCount = 0;
    PxSourceRange m_firstDropped;
};
