#pragma once

#include <PxEmptyMeansAllSet.h>
#include <PxListParts.h>

#include <QTest>
#include <QVariant>

#include <cstring>

// Checks with rows of text, separated by blanks. One that fails is named; the others are checked,
// too.

/** Calls with what the function takes: the text, its words between ";", or its numbers between ",".
 */
template <typename Function>
auto pxCall(Function function, const QString &arguments)
{
    if constexpr (std::is_invocable_v<Function, QList<int>>)
        return function(pxIntList(arguments));
    else if constexpr (std::is_invocable_v<Function, QStringList>)
        return function(arguments.split(';'));
    else
        return function(arguments);
}

/** Each row is "arguments=answer". */
template <typename Question>
void pxCheckAnswers(const char *name, const QString &rows, Question question)
{
    for (const QString &row : rows.split(' ')) {
        const QString arguments = row.section('=', 0, -2);
        const QString answer = QVariant(pxCall(question, arguments)).toString();
        QTest::qCompare(arguments + '=' + answer, row, name, "row", __FILE__, __LINE__);
    }
}

template <typename T, typename = void>
inline constexpr bool pxHasHash = false;
template <typename T>
inline constexpr bool pxHasHash<T, std::void_t<decltype(qHash(std::declval<T>()))>> = true;

/**
 * Equality, and the order and the hash of a class if it has them.
 *
 * Each row says of what a value is created. That of the first one is less than the others,
 * different only in a row that begins with "~", and equal in one that begins with "=".
 */
template <typename Create>
void pxCheckComparison(const char *name, const QString &rows, Create create)
{
    const QStringList list = rows.split(' ');
    const auto first = pxCall(create, list.first());
    using T = decltype(first);
    for (const QString &row : list) {
        const QString arguments = row.mid(row.startsWith('~') || row.startsWith('='));
        const T other = pxCall(create, arguments);
        const bool equal = row.startsWith('=') || row == list.first();
        const auto verify = [&](bool holds, const char *what) {
            QTest::qVerify(holds, what, qPrintable(QString(name) + ' ' + row), __FILE__, __LINE__);
        };
        verify((first == other) == equal, "first == other");
        verify((other == first) == equal, "other == first");
        verify((first != other) != equal, "first != other");
        verify((other != first) != equal, "other != first");
        if constexpr (pxHasOrder<T>) {
            verify((first < other) == (!equal && !row.startsWith('~')), "first < other");
            verify(!(other < first), "other < first");
        }
        if constexpr (pxHasHash<T>) {
            verify((qHash(first, 7) == qHash(other, 7)) == equal, "qHash");
            verify(qHash(other) == qHash(other, 0), "qHash without a seed");
            verify(qHash(other, 7) != qHash(other, 0), "qHash with a seed");
        }
    }
}

/** The places of virtual functions in the table of their class, as gcc and clang lay it out. */
template <typename... Functions>
QList<int> pxVirtualSlots(Functions... members)
{
    const auto slot = [](auto member) {
        std::intptr_t offset; // and perhaps a bit that says "virtual"
        std::memcpy(&offset, &member, sizeof(offset));
        return int(offset / std::intptr_t(sizeof(void *)));
    };
    return {slot(members)...};
}

/** What is logged of a value. */
template <typename T>
QString pxShown(const T &value)
{
    QString text;
    QDebug(&text) << value;
    return text.trimmed();
}
