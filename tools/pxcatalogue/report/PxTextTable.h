#pragma once

#include <QStringList>
#include <QVector>

/**
 * Lines of aligned columns that fit a width: texts are shortened, never wrapped.
 *
 * Where that is not enough, the lines lose their ends. A text without end is shortened in any case.
 */
class PxTextTable
{
public:
    enum class Kind {
        Key,    // not shortened to fit: it is copied from the table, or too short to lose anything
        Text,   // shortened as far as it must be
        Number, // aligned to the right, never shortened: it would be another number
    };

    void addColumn(const QString &heading, Kind kind);
    /** One text for each column. */
    void addRow(const QStringList &texts);

    bool isEmpty() const { return m_rows.size() == 1; }
    /** The headings, unless all are empty, and the rows. */
    QStringList lines(int width) const;

private:
    QVector<int> widths(int width) const;

    QVector<Kind> m_kinds;
    QVector<QStringList> m_rows{QStringList()}; // the first one is the headings
};
