#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>
#include <QVector>

/** A value that may change with the page count. */
struct PxValueByPageCount
{
    QJsonValue fixed;
    QVector<QPair<QString, QJsonArray>> columns; ///< of its members, or of itself if that is empty

    /** The value in a row of the table of page counts. */
    QJsonValue at(int row) const;
};

/** An exported product whose values can be asked for with each of its page counts. */
class PxComparedProduct
{
public:
    explicit PxComparedProduct(const QByteArray &line);

    /** Page numbers or page counts, as an export has them; none if they cannot be read. */
    static QList<int> numbersOf(const QJsonValue &text);

    const QList<int> &pageCounts() const { return m_pageCounts; }
    /** The row of the table of page counts in which a page count of the list is; -1 if in none. */
    int rowOf(int index) const { return m_rows[index]; }
    /** How many pages are printed with the largest page count. */
    int printedPages() const;
    /** Leaves out what is known of pages behind these, which another product does not have. */
    void limitPages(int pages);
    /** "normalpage left" for each kind of page. */
    QSet<QString> kindsOfPages() const;
    /** Leaves out where surroundings are on such pages, and on kinds of pages other than these. */
    void limitSurroundings(int pages, const QSet<QString> &kinds);
    /** Leaves out the templates of other themes than these. */
    void limitThemes(const QSet<QString> &ids);

    /** The rows of a table of the product; null for one that is left out. */
    QJsonArray table(const QString &section) const { return m_product[section].toArray(); }
    /** Undefined if the product has no such value. */
    QJsonValue value(const QString &pointer) const;
    PxValueByPageCount valueByPageCount(const QString &pointer) const;

private:
    void readRows(const QJsonArray &pageCounts);

    QJsonObject m_product;
    QList<int> m_pageCounts;
    QVector<int> m_rows;
    QMap<QString, QJsonArray> m_columns;
};
