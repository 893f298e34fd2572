#pragma once

#include <QCoreApplication>
#include <QMap>

#include <cstddef>

/**
 * Display texts by key, in the order of the keys, with a default for missing ones.
 *
 * Both defaults are default-constructed until setDefaults() is called.
 */
template <typename K, typename V>
class PxLookUpTable
{
public:
    /** Adds a text, or replaces that of the key. */
    void insert(K key, const V &value) { m_map.insert(key, value); }
    /**
     * Inserts rows of a `value` and a `text`. The texts are translated now, in the given context.
     */
    template <typename ROW, std::size_t COUNT>
    void insertTranslated(const char *context, const ROW (&rows)[COUNT])
    {
        for (const ROW &row : rows)
            insert(row.value, QCoreApplication::translate(context, row.text));
    }
    /** Sets what the two searches return when they find nothing. */
    void setDefaults(K key, const V &value)
    {
        m_defaultKey = key;
        m_defaultValue = value;
    }

    /** The text of the key; the default value if it has none. */
    V findByKey(K key) const { return m_map.value(key, m_defaultValue); }
    /** The smallest key that has this value; the default key if none has. */
    K findByValue(const V &value) const { return m_map.key(value, m_defaultKey); }

private:
    QMap<K, V> m_map;
    K m_defaultKey{};
    V m_defaultValue{};
};
