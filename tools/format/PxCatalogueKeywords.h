#pragma once

#include <PxEnumWrapper.h>
#include <PxKeyword.h>
#include <PxProductClass.h>
#include <description/PxProductComparationCriterion.h>

#include <QHash>
#include <QStringList>

#include <cstddef>

// Keywords that only the program uses; those of the product files belong to the library.

inline constexpr PxKeyword<PxProductClass> productClassRows[] = {
    {"book", PxProductClassBook},       {"calendar", PxProductClassCalendar},
    {"gift", PxProductClassGift},       {"card", PxProductClassCard},
    {"deko", PxProductClassDecoration}, {"print", PxProductClassPrint},
};
inline const QHash<QString, PxProductClass> productClassKeywords =
    EnumHelper::keywordMap(productClassRows);

inline constexpr PxKeyword<PxProductComparationCriterion> criterionRows[] = {
    {"binding", PxProductComparationBinding},
    {"paper", PxProductComparationPaperType},
    {"space", PxProductComparationSpaceMagnitude},
    {"increment", PxProductComparationPageIncrement},
};
inline const QHash<QString, PxProductComparationCriterion> criterionKeywords =
    EnumHelper::keywordMap(criterionRows);

/** The keywords of the rows, in their order. */
template <typename ENUM, std::size_t COUNT>
QStringList keywordList(const PxKeyword<ENUM> (&rows)[COUNT])
{
    QStringList keywords;
    for (const PxKeyword<ENUM> &row : rows)
        keywords.append(row.keyword);
    return keywords;
}

/** The lower-case keyword of each bit, lowest bit first; the shortest if a bit has several. */
template <typename ENUM>
QStringList keywordsOf(ENUM flags, const QHash<QString, ENUM> &map)
{
    QStringList keywords;
    for (const ENUM bit : splitEnumType(flags)) {
        const QString keyword = EnumHelper::encodeKeyword(bit, map, QString());
        if (!keyword.isEmpty())
            keywords.append(keyword.toLower());
    }
    return keywords;
}

/** The keyword of the value; if it has none, those of its bits. */
template <typename ENUM>
QString keywordOf(const PxEnumWrapper<ENUM> &wrapper)
{
    const auto *table = wrapper.enumToStringTable();
    const QString keyword = table->encode(wrapper.value());
    // A value without keyword is encoded as the default, which is the keyword of another value.
    const ENUM decoded = table->decode(keyword, static_cast<ENUM>(-1));
    return decoded == wrapper.value() ? keyword : wrapper.encodeCSV();
}
