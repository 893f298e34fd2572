#pragma once

#include <QStringList>
#include <QVector>

/**
 * Lines with a label, a value and where the value comes from, in three columns.
 *
 * Origins are wrapped to fit. One that does not fit beside its value stands below it.
 */
class PxOriginColumn
{
public:
    void add(const QString &label, const QString &value, const QString &origin);
    QStringList lines(int width) const;

private:
    struct Row
    {
        QString label;
        QString value;
        QString origin;
    };

    static QStringList linesOf(const Row &row, int column, int width);

    QVector<Row> m_rows;
};
