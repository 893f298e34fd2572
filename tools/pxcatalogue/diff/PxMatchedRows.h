#pragma once

#include <QJsonArray>
#include <QPair>
#include <QStringList>
#include <QVector>

/** Finds which rows of two tables are the same one, so that others may come or go between them. */
class PxMatchedRows
{
public:
    /** The indices of a row in both tables; -1 in a table that does not have it. */
    using Pairs = QVector<QPair<int, int>>;

    /**
     * Rows that are equal in the first set of columns belong together, of the others those that are
     * equal in the next one. In the order of the new table; what is gone comes last.
     */
    static Pairs of(const QJsonArray &oldRows, const QJsonArray &newRows,
                    const QVector<QStringList> &identities);
};
