#pragma once

#include "PxListParts.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <algorithm>
#include <cstddef>

/** One row of a keyword table: a keyword of the files, in ASCII, and its value. */
template <typename ENUM>
struct PxKeyword
{
    /** A literal; not null. */
    const char *keyword;
    /** The value; several keywords may have the same. */
    ENUM value;
};

namespace EnumHelper {

/** The rows as a map whose keys are the upper-cased keywords. */
template <typename ENUM, std::size_t COUNT>
QHash<QString, ENUM> keywordMap(const PxKeyword<ENUM> (&rows)[COUNT])
{
    QHash<QString, ENUM> map;
    map.reserve(int(COUNT));
    for (const PxKeyword<ENUM> &row : rows)
        map.insert(QString::fromLatin1(row.keyword).toUpper(), row.value);
    return map;
}

/**
 * The value of one keyword, in any case and with white space around it; `fallback` for any other
 * text.
 */
template <typename ENUM>
ENUM decodeKeyword(const QString &keyword, const QHash<QString, ENUM> &map, ENUM fallback)
{
    return map.value(keyword.trimmed().toUpper(), fallback);
}

/**
 * The union of a comma-separated list of keywords.
 *
 * Each part that is not a keyword adds `fallback`, even an empty one, so an empty text gives
 * `fallback`.
 */
template <typename ENUM>
ENUM decodeKeywordList(const QString &keywords, const QHash<QString, ENUM> &map, ENUM fallback)
{
    int flags = 0;
    pxForEachPart(keywords, [&](QStringView part) {
        flags |= decodeKeyword(pxPartText(keywords, part), map, fallback);
    });
    return static_cast<ENUM>(flags);
}

/**
 * The shortest keyword of a value, the first one in alphabetical order of several; `fallback` for a
 * value without a keyword.
 */
template <typename ENUM>
QString encodeKeyword(ENUM value, const QHash<QString, ENUM> &map, const QString &fallback)
{
    QStringList keywords = map.keys(value);
    keywords.sort();
    const auto shortest =
        std::min_element(keywords.cbegin(), keywords.cend(),
                         [](const QString &a, const QString &b) { return a.size() < b.size(); });
    return shortest == keywords.cend() ? fallback : *shortest;
}

} // namespace EnumHelper
