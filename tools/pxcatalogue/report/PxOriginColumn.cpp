#include "report/PxOriginColumn.h"

#include "writing/PxTerminal.h"
#include "writing/PxVisibleText.h"

#include <algorithm>

namespace {

constexpr int gap = 2;
constexpr int labelWidth = 22;
constexpr int valueColumn = labelWidth + gap;
constexpr int widestValue = 40;
constexpr int legible = 8;     // values do not become narrower
constexpr int place = 38;      // the width that the place of an attribute mostly takes
constexpr int indent = 4;      // of an origin below its value
constexpr int longest = 10000; // characters of a value or an origin

QString visible(const QString &text)
{
    return PxVisibleText::line(PxTerminal::shortened(text, longest));
}

int longestWord(const QString &text)
{
    int length = 0;
    for (const QString &word : text.split(' '))
        length = qMax(length, word.size());
    return length;
}

} // namespace

void PxOriginColumn::add(const QString &label, const QString &value, const QString &origin)
{
    m_rows.append({label.leftJustified(labelWidth), visible(value), visible(origin)});
}

QStringList PxOriginColumn::lines(int width) const
{
    int valueWidth = 0;
    for (const Row &row : m_rows)
        valueWidth = qMax(valueWidth, row.value.size());
    const int room = qMax(legible, width - valueColumn - gap - place);
    valueWidth = std::min({valueWidth, widestValue, room});
    QStringList lines;
    for (const Row &row : m_rows)
        lines += linesOf(row, valueColumn + valueWidth + gap, width);
    return lines;
}

/** `column` is where the origins begin. */
QStringList PxOriginColumn::linesOf(const Row &row, int column, int width)
{
    const int end = row.label.size() + gap + row.value.size();
    const bool isUnlimited = width == PxTerminal::unlimited;
    const bool isBeside = isUnlimited || end + gap <= column;
    const bool isBelow = longestWord(row.origin) > width - column;
    const int begin = isBelow ? indent : column;
    QString line = row.label + QString(gap, ' ') + row.value;
    while (line.endsWith(' '))
        line.chop(1);
    QStringList lines;
    if (!isBeside || isBelow) {
        lines.append(line);
        line.clear();
    }
    for (const QString &part : PxTerminal::wrapped(row.origin, width - begin).split('\n')) {
        const bool isAppended = line.size() + gap > begin;
        line = (isAppended ? line + QString(gap, ' ') : line.leftJustified(begin)) + part;
        lines.append(line);
        line.clear();
    }
    return lines;
}
