#include "report/PxTextTable.h"

#include "writing/PxTerminal.h"
#include "writing/PxVisibleText.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

constexpr int gap = 2;
constexpr int legible = 8;  // texts do not become narrower
constexpr int shortest = 3; // the smallest width of a shortened text

/** Limits the length of every text, because all rows are padded to the longest one. */
constexpr int maximumWidth = 1000;

int widthOfLine(const QVector<int> &widths)
{
    return std::accumulate(widths.cbegin(), widths.cend(), gap * (widths.size() - 1));
}

} // namespace

void PxTextTable::addColumn(const QString &heading, Kind kind, int givesWay)
{
    m_columns.append({kind, givesWay, heading.size()});
    m_rows[0].append(heading);
}

void PxTextTable::addRow(const QStringList &texts)
{
    QStringList row;
    for (const QString &text : texts)
        row.append(PxTerminal::shortened(
            PxVisibleText::line(PxTerminal::shortened(text, maximumWidth)), maximumWidth));
    for (int i = 0; i < m_columns.size(); ++i)
        m_columns[i].width = qMax(m_columns[i].width, row[i].size());
    m_rows.append(row);
}

QStringList PxTextTable::lines(int width) const
{
    const QVector<int> columns = columnsThatFit(width);
    const QVector<int> fitting = widths(columns, width, shortest);
    const bool hasHeadings = !m_rows.constFirst().join(QString()).isEmpty();
    QStringList lines;
    for (int row = hasHeadings ? 0 : 1; row < m_rows.size(); ++row)
        lines.append(PxTerminal::shortened(line(m_rows[row], columns, fitting), width));
    return lines;
}

QString PxTextTable::line(const QStringList &row, const QVector<int> &columns,
                          const QVector<int> &widths) const
{
    QString line;
    for (int i = 0; i < columns.size(); ++i) {
        const QString cell = PxTerminal::shortened(row[columns[i]], widths[i]);
        const bool isNumber = m_columns[columns[i]].kind == Kind::Number;
        line += isNumber ? cell.rightJustified(widths[i]) : cell.leftJustified(widths[i]);
        line += QString(gap, ' ');
    }
    while (line.endsWith(' '))
        line.chop(1);
    return line;
}

/** All columns, or those that are left when as many as necessary have given way. */
QVector<int> PxTextTable::columnsThatFit(int width) const
{
    QVector<int> columns(m_columns.size());
    std::iota(columns.begin(), columns.end(), 0);
    const auto order = [this](int column) {
        const int givesWay = m_columns[column].givesWay;
        return givesWay > 0 ? givesWay : std::numeric_limits<int>::max();
    };
    while (widthOfLine(widths(columns, width, legible)) > width) {
        auto *const first = std::min_element(
            columns.begin(), columns.end(), [&order](int a, int b) { return order(a) < order(b); });
        if (m_columns[*first].givesWay == 0)
            break;
        columns.erase(first);
    }
    return columns;
}

/** The widths when texts are shortened as far as necessary, but not below `least`. */
QVector<int> PxTextTable::widths(const QVector<int> &columns, int width, int least) const
{
    QVector<int> widths;
    for (int column : columns)
        widths.append(m_columns[column].width);
    for (int excess = widthOfLine(widths) - width; excess > 0; --excess) {
        int *widest = nullptr;
        for (int i = 0; i < columns.size(); ++i) {
            if (m_columns[columns[i]].kind == Kind::Text && widths[i] > least &&
                (!widest || widths[i] > *widest))
                widest = &widths[i];
        }
        if (!widest)
            break;
        --*widest;
    }
    return widths;
}
