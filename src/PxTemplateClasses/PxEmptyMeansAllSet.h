#pragma once

#include <QSet>

/** A set of admitted values, in which the empty set admits every value. */
template <typename T>
class PxEmptyMeansAllSet : public QSet<T>
{
public:
    using QSet<T>::QSet;

    bool sharesKey(const T &key) const { return this->isEmpty() || this->contains(key); }
    bool sharesKeysWith(const PxEmptyMeansAllSet<T> &other) const
    {
        return this->isEmpty() || other.isEmpty() || sharesRealKeysWith(other);
    }
    /** Has an element in common; "every value" counts for nothing here. */
    bool sharesRealKeysWith(const PxEmptyMeansAllSet<T> &other) const
    {
        return this->intersects(other);
    }
};
