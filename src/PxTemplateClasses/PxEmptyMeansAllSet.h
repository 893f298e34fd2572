#pragma once

#include <QDebug>
#include <QList>
#include <QSet>

#include <algorithm>

/** A set of admitted values, in which the empty set admits every value. */
template <typename T>
class PxEmptyMeansAllSet : public QSet<T>
{
public:
    using QSet<T>::QSet;

    bool sharesKey(const T &key) const { return this->isEmpty() || this->contains(key); }
    /** Those of the keys that the set admits, in their order. */
    QList<T> sharedKeys(QList<T> keys) const
    {
        const auto isNotShared = [this](const T &key) { return !sharesKey(key); };
        keys.erase(std::remove_if(keys.begin(), keys.end(), isNotShared), keys.end());
        return keys;
    }
    bool sharesKeysWith(const PxEmptyMeansAllSet<T> &other) const
    {
        return this->isEmpty() || other.isEmpty() || sharesRealKeysWith(other);
    }
    /** Has an element in common; "every value" counts for nothing here. */
    bool sharesRealKeysWith(const PxEmptyMeansAllSet<T> &other) const
    {
        return this->intersects(other);
    }
    /** The elements in ascending order: that of the set itself changes from run to run. */
    QList<T> sorted() const
    {
        QList<T> values = this->values();
        std::sort(values.begin(), values.end());
        return values;
    }
};

/** The admitted values in ascending order, or "all". */
template <typename T>
QDebug operator<<(QDebug debug, const PxEmptyMeansAllSet<T> &set)
{
    return set.isEmpty() ? debug << "all" : debug << set.sorted();
}
