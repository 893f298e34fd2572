#pragma once

#include <QMap>

/**
 * Display texts by key: an ordered table with a default for what it does not hold.
 *
 * Both defaults are default-built until setDefaults() is called.
 */
template <typename K, typename V>
class PxLookUpTable
{
public:
    void insert(K key, const V &value) { m_map.insert(key, value); }
    void setDefaults(K key, const V &value)
    {
        m_defaultKey = key;
        m_defaultValue = value;
    }

    V findByKey(K key) const { return m_map.value(key, m_defaultValue); }
    /** The smallest key that has this value. */
    K findByValue(const V &value) const { return m_map.key(value, m_defaultKey); }

private:
    QMap<K, V> m_map;
    K m_defaultKey{};
    V m_defaultValue{};
};
