#pragma once

#include "report/PxReplacedProduct.h"
#include "report/PxShownProduct.h"

#include <QByteArray>
#include <QJsonValue>
#include <QSize>
#include <QString>
#include <QVector>

class PxJsonLine;
class PxReport;

/**
 * The values of a product that change with the page count: a table with a row for each run of page
 * counts that have the same values, and a column for each value, named by its JSON pointer.
 */
class PxPageCountTable
{
public:
    /** Moves the values out of the report, where null takes their place. */
    PxPageCountTable(const PxShownProduct &product, PxReport *report);

    /** Adds the table as "byPageCount"; null if no value changes. */
    void addTo(PxJsonLine *line) const;

private:
    struct Column
    {
        QByteArray pointer;
        QVector<QJsonValue> values;
    };

    void findRows();
    void moveSpine(PxReport *report);
    void movePageKinds(PxReport *report);
    void moveLegacy(PxReport *report);
    template <typename Ask>
    auto answers(Ask ask) const;
    template <typename Answer>
    QJsonValue moved(const QByteArray &pointer, const QVector<Answer> &answers);
    QJsonValue movedSize(const QByteArray &pointer, const QVector<QSize> &sizes);

    const PxShownProduct &m_shown;
    PxReplacedProduct m_replaced;
    QVector<int> m_rows; // the first page count of each row
    QVector<QString> m_pageCounts;
    QVector<Column> m_columns;
};
