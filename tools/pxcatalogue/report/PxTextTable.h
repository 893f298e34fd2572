#pragma once

#include <QStringList>
#include <QVector>

/**
 * Formats rows as aligned columns that fit a width: texts are shortened, never wrapped.
 *
 * Lines that are still too long are cut off. Extremely long texts are always shortened.
 */
class PxTextTable
{
public:
    enum class Kind {
        Key,    // not shortened to fit: users copy it, or it is short anyway
        Text,   // shortened as far as necessary
        Number, // aligned to the right; never shortened, which would change the number
    };

    void addColumn(const QString &heading, Kind kind);
    /** One text for each column. */
    void addRow(const QStringList &texts);

    bool isEmpty() const { return m_rows.size() == 1; }
    /** The line of headings, unless all are empty, and the rows. */
    QStringList lines(int width) const;

private:
    QVector<int> widths(int width) const;

    QVector<Kind> m_kinds;
    QVector<QStringList> m_rows{QStringList()}; // the first one is the headings
};
