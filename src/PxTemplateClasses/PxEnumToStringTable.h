#pragma once

#include "PxKeyword.h"
#include "PxMessage.h"
#include "PxMessageLimit.h"
#include "splitEnumType.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <limits>
#include <typeinfo>

/**
 * The two-way table between the keywords of the files and the flag values of one enumeration.
 *
 * Keywords are found in any case and with white space around them. Insert all keywords before other
 * threads start: they read the table without a lock.
 */
template <typename ENUM>
class PxEnumToStringTable
{
public:
    /**
     * Adds a keyword, without white space around it, or replaces its value. Encoding writes the
     * keyword that was inserted first for a value, as it is spelled here.
     */
    void insert(const QString &keyword, ENUM value)
    {
        m_keywordToValue.insert(keyword.toLower(), value);
        if (!m_valueToKeyword.contains(value))
            m_valueToKeyword.insert(value, keyword);
    }
    /** Adds the keywords of all rows, in their order. */
    template <std::size_t COUNT>
    void insert(const PxKeyword<ENUM> (&rows)[COUNT])
    {
        for (const PxKeyword<ENUM> &row : rows)
            insert(QString::fromLatin1(row.keyword), row.value);
    }

    /** The value that each undecodable part of a list adds; 0 by default. */
    void setDefaultValue(ENUM value) { m_defaultValue = value; }
    /** The text for a value without a keyword; empty by default. */
    void setDefaultString(const QString &text) { m_defaultString = text; }

    /** The value of one keyword, or `fallback` for any other text. */
    ENUM decode(const QString &keyword, ENUM fallback) const
    {
        return m_keywordToValue.value(keyword.trimmed().toLower(), fallback);
    }

    /**
     * The union of a comma-separated list of keywords.
     *
     * A part that is not a keyword, even an empty one, adds the default value and is logged at
     * debug level, at most `pxMaximumMessages` of them one by one. An empty text gives the default
     * value and logs nothing.
     */
    ENUM decodeCSV(const QString &keywords) const
    {
        int undecodable = 0;
        const ENUM value = decodeParts(keywords, undecodable, Q_FUNC_INFO);
        reportMoreUndecodable(undecodable);
        return value;
    }

    /**
     * The same for one of several texts. `undecodable` counts the undecodable parts of all of them,
     * so that together they log no more than one text.
     */
    ENUM decodeCSV(const QString &keywords, int &undecodable) const
    {
        return decodeParts(keywords, undecodable, Q_FUNC_INFO);
    }

    /** Logs how many undecodable parts were not logged one by one. Call it after the last text. */
    static void reportMoreUndecodable(int undecodable)
    {
        if (undecodable > pxMaximumMessages)
            PxMessageLogger("../PxTemplateClasses/PxEnumToStringTable", 161, Q_FUNC_INFO,
                            pxLoggingCategory())
                    .debug()
                << "undecodable: (using default in " << typeid(ENUM).name() << ")"
                << undecodable - pxMaximumMessages << "more";
    }

    /** The keyword of exactly this value; a union without a keyword of its own has none. */
    QString encode(ENUM value) const { return m_valueToKeyword.value(value, m_defaultString); }

    /** The single bits, in ascending order; none for a value below 1. */
    QList<ENUM> splitToBitsSorted(ENUM value) const { return splitEnumType(value); }
    /** The same without an order. */
    QSet<ENUM> splitToBits(ENUM value) const
    {
        const QList<ENUM> bits = splitEnumType(value);
        return QSet<ENUM>(bits.begin(), bits.end());
    }

    /** The keyword of each single bit, lowest bit first. */
    QStringList encodeAsList(ENUM value) const
    {
        QStringList keywords;
        const QList<ENUM> bits = splitEnumType(value);
        for (ENUM bit : bits)
            keywords.append(encode(bit));
        return keywords;
    }

    /** The same joined with ", "; the default string for a value without bits. */
    QString encodeCSV(ENUM value) const
    {
        const QStringList keywords = encodeAsList(value);
        return keywords.isEmpty() ? m_defaultString : keywords.join(QStringLiteral(", "));
    }

private:
    // The sign bit alone: no keyword has this value, because it splits into no bits.
    static constexpr ENUM noValue = static_cast<ENUM>(std::numeric_limits<int>::min());

    ENUM decodeParts(const QString &keywords, int &undecodable, const char *function) const
    {
        int flags = 0;
        pxForEachPart(keywords, [&](QStringView part) {
            const QString keyword = pxPartText(keywords, part);
            ENUM value = decode(keyword, noValue);
            if (value == noValue) {
                value = m_defaultValue;
                if (!keywords.isEmpty() && ++undecodable <= pxMaximumMessages)
                    reportUndecodable(keyword, function);
            }
            flags |= value;
        });
        return static_cast<ENUM>(flags);
    }

    static void reportUndecodable(const QString &keyword, const char *function)
    {
        PxMessageLogger("../PxTemplateClasses/PxEnumToStringTable", 161, function).debug()
            << "undecodable: (using default in " << typeid(ENUM).name() << ")" << keyword;
    }

    QHash<QString, ENUM> m_keywordToValue;
    QHash<ENUM, QString> m_valueToKeyword;
    QString m_defaultString;
    ENUM m_defaultValue = static_cast<ENUM>(0);
};
