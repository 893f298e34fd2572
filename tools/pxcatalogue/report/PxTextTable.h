#pragma once

#include <QStringList>
#include <QVector>

/**
 * Formats rows as aligned columns that fit a width: texts are shortened, never wrapped.
 *
 * Columns that may give way are left out before texts become too short to tell anything. Lines that
 * are still too long are cut off. Extremely long texts are always shortened.
 */
class PxTextTable
{
public:
    enum class Kind {
        Key,    // not shortened to fit: users copy it, or it is short anyway
        Text,   // shortened as far as necessary
        Number, // aligned to the right; never shortened, which would change the number
    };

    /** The column with the smallest `givesWay` is left out first; one with 0 is always shown. */
    void addColumn(const QString &heading, Kind kind, int givesWay = 0);
    /** One text for each column. */
    void addRow(const QStringList &texts);

    bool isEmpty() const { return m_rows.size() == 1; }
    /** The line of headings, unless all are empty, and the rows. */
    QStringList lines(int width) const;

private:
    struct Column
    {
        Kind kind;
        int givesWay;
        int width; // of its longest text
    };

    QVector<int> columnsThatFit(int width) const;
    QVector<int> widths(const QVector<int> &columns, int width, int least) const;
    QString line(const QStringList &row, const QVector<int> &columns,
                 const QVector<int> &widths) const;

    QVector<Column> m_columns;
    QVector<QStringList> m_rows{QStringList()}; // the first one is the headings
};
