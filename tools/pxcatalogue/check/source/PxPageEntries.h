#pragma once

#include "check/source/PxCheckedFile.h"

#include <values/PxPageTypeList.h>

/** An entry of the page list and where it stands. */
struct PxPageEntry
{
    QString text; ///< without blanks around it
    PxPageType type;
    PxSourceRange range;

    /** Stands for as many pages as the product has. */
    bool isRange() const { return isRange(type); }
    static bool isRange(const PxPageType &type);
    /** Is several types at once. */
    bool isUnion() const { return isUnion(type); }
    static bool isUnion(const PxPageType &type) { return (type.value() & (type.value() - 1)) != 0; }
};

/** The page list of a product, entry by entry. */
class PxPageEntries
{
public:
    /** Of the first element "pages" in the product; so many entries are read. */
    PxPageEntries(const PxCheckedFile &file, const PxSourceElement &product, int maximum);

    /** The product has a page list, be it empty. */
    bool isGiven() const { return m_isGiven; }
    /** Some entry that is read is a page. */
    bool hasPage() const;
    /** Every entry that is read is a page. */
    bool isSound() const;
    /** Those that the library reads. */
    const QVector<PxPageEntry> &read() const { return m_read; }
    /** How many more there are, and where the first of these stands. */
    int droppedCount() const { return m_droppedCount; }
    PxSourceRange firstDropped() const { return m_firstDropped; }
    /** Null when there is none. */
    const PxPageEntry *spine() const;

private:
    bool m_isGiven;
    QVector<PxPageEntry> m_read;
    int m_droppedCount = 0;
    PxSourceRange m_firstDropped;
};
