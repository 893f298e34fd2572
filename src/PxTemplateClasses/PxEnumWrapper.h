#pragma once

#include "PxCreateOnce.h"
#include "PxEnumToStringTable.h"

#include <QAtomicPointer>
#include <QDebug>
#include <QMutex>
#include <QSet>
#include <QString>

/**
 * The base of the value classes over one bit-flag enumeration: a value, its bit operations and the
 * keyword table of the enumeration. 0 means no value (invalid).
 *
 * A concrete class overrides fillTable() and instantiates this template in its own library, so that
 * an enumeration has one table in a process:
 * `extern template class EXPORT PxEnumWrapper<E>;` in its header, `template class
 * PxEnumWrapper<E>;` in its source. The table is built on first use, from any thread, and only read
 * afterwards.
 */
template <typename ENUM>
class PxEnumWrapper
{
public:
    PxEnumWrapper() = default;
    /** Any value is kept, even one without an enumerator. */
    PxEnumWrapper(ENUM value) : m_value(value) {}
    PxEnumWrapper(const PxEnumWrapper &other) = default;
    PxEnumWrapper &operator=(const PxEnumWrapper &other) = default;
    virtual ~PxEnumWrapper() = default;

    // Applications are built against this order of the virtual operations: append, never reorder.
    /** Compares the numbers, as the other comparisons do. */
    virtual bool operator<(const PxEnumWrapper &other) const { return m_value < other.m_value; }
    /** Compares the numbers. */
    virtual bool operator>(const PxEnumWrapper &other) const { return m_value > other.m_value; }
    virtual bool operator==(const PxEnumWrapper &other) const { return m_value == other.m_value; }
    virtual bool operator!=(const PxEnumWrapper &other) const { return m_value != other.m_value; }
    /** Sets the bits of the other value. */
    virtual PxEnumWrapper &operator|=(const PxEnumWrapper &other)
    {
        return assign(m_value | other.m_value);
    }
    /** Keeps only the bits that both have. */
    virtual PxEnumWrapper &operator&=(const PxEnumWrapper &other)
    {
        return assign(m_value & other.m_value);
    }
    /** The bits that both have. */
    virtual ENUM operator&(const PxEnumWrapper &other) const
    {
        return static_cast<ENUM>(m_value & other.m_value);
    }
    /** The bits that one of them has. */
    virtual ENUM operator|(const PxEnumWrapper &other) const
    {
        return static_cast<ENUM>(m_value | other.m_value);
    }
    /** Clears the bits of the other value. */
    virtual PxEnumWrapper &exclude(const PxEnumWrapper &other)
    {
        return assign(m_value & ~other.m_value);
    }
    /** Clears the given bits. */
    virtual PxEnumWrapper &exclude(ENUM bits) { return assign(m_value & ~bits); }
    /** Sets the given bits. */
    virtual PxEnumWrapper &expandedTo(ENUM bits) { return assign(m_value | bits); }
    /** Whether at least one bit is set. */
    virtual bool isValid() const { return !isNull(); }
    /**
     * Inserts the keywords and sets the defaults of the enumeration. It is called once per process,
     * while other threads that ask for the table wait, and must not decode or encode this
     * enumeration.
     */
    virtual void fillTable(PxEnumToStringTable<ENUM> *table) const = 0;

    /** The flags; 0 by default. */
    ENUM value() const { return m_value; }
    /** Shares at least one bit. */
    bool matches(ENUM bits) const { return (m_value & bits) != 0; }
    /** Is exactly this value. */
    bool hasValue(const ENUM &value) const { return m_value == value; }
    /** Whether no bit is set. */
    bool isNull() const { return m_value == 0; }

    /** The union of a comma-separated keyword list; this value does not change. */
    ENUM decodeCSV(const QString &keywords) const
    {
        return enumToStringTable()->decodeCSV(keywords);
    }
    /** Sets the value to that of a comma-separated keyword list, and returns it. */
    ENUM setValue(const QString &keywords) { return m_value = decodeCSV(keywords); }
    /** The keyword of each single bit, lowest bit first, joined with ", ". */
    QString encodeCSV() const { return enumToStringTable()->encodeCSV(m_value); }
    /** The single bits; none for a value below 1. */
    QSet<ENUM> splitToBits() const { return enumToStringTable()->splitToBits(m_value); }

    /** The one table of the enumeration; never null, never freed. */
    PxEnumToStringTable<ENUM> *enumToStringTable() const;

private:
    PxEnumWrapper &assign(int value)
    {
        m_value = static_cast<ENUM>(value);
        return *this;
    }

    ENUM m_value = static_cast<ENUM>(0);
};

template <typename ENUM>
PxEnumToStringTable<ENUM> *PxEnumWrapper<ENUM>::enumToStringTable() const
{
    static QAtomicPointer<PxEnumToStringTable<ENUM>> ourTable;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourTable, ourMutex, [this] {
        auto *table = new PxEnumToStringTable<ENUM>;
        fillTable(table);
        return table;
    });
}

/** Consistent with ==, for every class derived from the wrapper. */
template <typename ENUM>
uint qHash(const PxEnumWrapper<ENUM> &wrapper, uint seed = 0)
{
    return ::qHash(int(wrapper.value()), seed);
}

/** The keywords and the number, as in `spine, normalpage(17)`. */
template <typename ENUM>
QDebug operator<<(QDebug debug, const PxEnumWrapper<ENUM> &wrapper)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace().noquote() << wrapper.encodeCSV() << '(' << int(wrapper.value()) << ')';
}
