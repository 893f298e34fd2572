#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/**
 * Calls `function` with each part of a list text, in order, as a view into `text`.
 *
 * Parts are neither trimmed nor skipped: an empty text has one empty part.
 */
template <typename Function>
void pxForEachPart(QStringView text, QChar separator, Function function)
{
    qsizetype start = 0;
    for (qsizetype end = text.indexOf(separator); end >= 0; end = text.indexOf(separator, start)) {
        function(text.mid(start, end - start));
        start = end + 1;
    }
    function(text.mid(start));
}

/** The same for the lists in product files, which are always separated by commas. */
template <typename Function>
void pxForEachPart(QStringView text, Function function)
{
    pxForEachPart(text, QLatin1Char(','), function);
}

/** A part as a text of its own. Most lists have one part: the list itself is not copied. */
inline QString pxPartText(const QString &list, QStringView part)
{
    return part.size() == list.size() ? list : part.toString();
}

/**
 * The whole numbers of a comma-separated list, in order; parts that are not numbers are skipped.
 */
inline QList<int> pxIntList(const QString &text)
{
    QList<int> numbers;
    const QStringView whole(text);
    pxForEachPart(whole, [&](QStringView part) {
        bool isNumber;
        const int number = // a QStringView would have to be copied
            text.midRef(int(part.data() - whole.data()), int(part.size())).toInt(&isNumber);
        if (isNumber)
            numbers.append(number);
    });
    return numbers;
}
