#pragma once

#include "report/PxReport.h"

#include <PxProductTypeList.h>

#include <QJsonObject>
#include <QStringList>
#include <QVector>

class PxProductTypeConfigRegistry;

/** A table of products, with a row for each. */
class PxProductTable
{
public:
    /** The products must be those of the registry. */
    PxProductTable(const PxProductTypeConfigRegistry *registry, const PxProductTypeList &products);

    /** The keys of all columns, also of those that only JSON has if none are chosen. */
    static QStringList keys();

    /**
     * Sorts by the values of these columns, downwards where "-" stands before the key. Rows without
     * a value come first; equal rows keep their order.
     */
    void sort(const QStringList &keys);
    /**
     * Shows these columns only, in this order. The keys must be some of keys(). None of the columns
     * gives way where there is little room.
     */
    void choose(const QStringList &keys);

    void addTo(PxReport *report) const;
    /** The keys of the chosen columns, else of all, and the texts of each row. */
    QVector<QStringList> texts() const;

private:
    QVector<PxReport::Column> chosenColumns() const;

    QStringList m_chosen; // keys; empty for all
    QVector<QJsonObject> m_rows;
};
