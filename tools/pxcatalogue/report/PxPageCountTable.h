#pragma once

#include "report/PxReplacedProduct.h"
#include "report/PxShownProduct.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

/**
 * The values of a product that change with the page count: a table with a row for each run of page
 * counts that have the same values, and a column for each value, named by its JSON pointer.
 */
class PxPageCountTable
{
public:
    explicit PxPageCountTable(const PxShownProduct &product);

    /** Moves the values that change out of the product into the table; null if none changes. */
    QJsonValue moveFrom(QJsonObject *product);

private:
    void moveFromSpine(QJsonObject *spine);
    void moveFromPageKinds(QJsonArray *kinds);
    void moveFromLegacy(QJsonObject *legacy);
    template <typename Ask>
    void moveSize(const QString &pointer, QJsonObject *object, const char *key, Ask ask);
    template <typename Ask>
    void move(const QString &pointer, QJsonObject *object, const char *key, Ask ask);

    const PxShownProduct &m_shown;
    PxReplacedProduct m_replaced;
    QVector<int> m_rows; // the first page count of each row
    QJsonArray m_pageCounts;
    QJsonObject m_columns;
};
