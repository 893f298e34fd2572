#pragma once

#include <QDebug>
#include <QList>
#include <QSet>

#include <algorithm>
#include <type_traits>
#include <utility>

/** A set of admitted values, in which the empty set admits every value. */
template <typename T>
class PxEmptyMeansAllSet : public QSet<T>
{
public:
    using QSet<T>::QSet;
    /** Takes the result of an operator of QSet. */
    PxEmptyMeansAllSet(const QSet<T> &set) : QSet<T>(set) {}

    /** Whether the set admits this value. */
    bool sharesKey(const T &key) const { return this->isEmpty() || this->contains(key); }
    /** The given keys that the set admits, in their order. */
    QList<T> sharedKeys(QList<T> keys) const
    {
        const auto isNotShared = [this](const T &key) { return !sharesKey(key); };
        keys.erase(std::remove_if(keys.begin(), keys.end(), isNotShared), keys.end());
        return keys;
    }
    /** Whether both sets admit a common value. */
    bool sharesKeysWith(const PxEmptyMeansAllSet<T> &other) const
    {
        return this->isEmpty() || other.isEmpty() || sharesRealKeysWith(other);
    }
    /**
     * Has an element in common with the other set. Empty sets have none, although they admit every
     * value.
     */
    bool sharesRealKeysWith(const PxEmptyMeansAllSet<T> &other) const
    {
        return this->intersects(other);
    }
    /** The elements in ascending order. The order of the set itself changes from run to run. */
    QList<T> sorted() const
    {
        QList<T> values = this->values();
        std::sort(values.begin(), values.end());
        return values;
    }
};

/** Whether values of this type can be compared with "<". */
template <typename T, typename = void>
inline constexpr bool pxHasOrder = false;
template <typename T>
inline constexpr bool pxHasOrder<T, std::void_t<decltype(std::declval<T>() < std::declval<T>())>> =
    true;

/** The admitted values, in ascending order if they have one, or "all". */
template <typename T>
QDebug operator<<(QDebug debug, const PxEmptyMeansAllSet<T> &set)
{
    if (set.isEmpty())
        return debug << "all";
    if constexpr (pxHasOrder<T>)
        return debug << set.sorted();
    else
        return debug << set.values();
}
