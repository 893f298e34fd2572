#include "report/PxTextTable.h"

#include "writing/PxTerminal.h"
#include "writing/PxVisibleText.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int gap = 2;
constexpr int legible = 3; // the smallest width of a shortened text

/** Limits the length of every text, because all rows are padded to the longest one. */
constexpr int maximumWidth = 1000;

} // namespace

void PxTextTable::addColumn(const QString &heading, Kind kind)
{
    m_kinds.append(kind);
    m_rows[0].append(heading);
}

void PxTextTable::addRow(const QStringList &texts)
{
    QStringList row;
    for (const QString &text : texts)
        row.append(PxTerminal::shortened(
            PxVisibleText::line(PxTerminal::shortened(text, maximumWidth)), maximumWidth));
    m_rows.append(row);
}

QStringList PxTextTable::lines(int width) const
{
    const QVector<int> fitting = widths(width);
    const bool hasHeadings = !m_rows.constFirst().join(QString()).isEmpty();
    QStringList lines;
    for (int row = hasHeadings ? 0 : 1; row < m_rows.size(); ++row) {
        QString line;
        for (int column = 0; column < fitting.size(); ++column) {
            const QString cell = PxTerminal::shortened(m_rows[row][column], fitting[column]);
            const bool isNumber = m_kinds[column] == Kind::Number;
            line += isNumber ? cell.rightJustified(fitting[column])
                             : cell.leftJustified(fitting[column]);
            line += QString(gap, ' ');
        }
        while (line.endsWith(' '))
            line.chop(1);
        lines.append(PxTerminal::shortened(line, width));
    }
    return lines;
}

QVector<int> PxTextTable::widths(int width) const
{
    QVector<int> widths(m_kinds.size(), 0);
    for (const QStringList &row : m_rows) {
        for (int column = 0; column < widths.size(); ++column)
            widths[column] = qMax(widths[column], row[column].size());
    }
    int excess = std::accumulate(widths.cbegin(), widths.cend(), gap * (widths.size() - 1)) - width;
    for (; excess > 0; --excess) {
        int *widest = nullptr;
        for (int column = 0; column < widths.size(); ++column) {
            if (m_kinds[column] == Kind::Text && widths[column] > legible &&
                (!widest || widths[column] > *widest))
                widest = &widths[column];
        }
        if (!widest)
            break;
        --*widest;
    }
    return widths;
}
