#pragma once

#include "diff/PxComparedProduct.h"
#include "diff/PxDiff.h"

/** The changes of one product. */
class PxProductDiff
{
public:
    /** `themes` are the ids of those that both catalogues have. */
    PxProductDiff(const QByteArray &oldLine, const QByteArray &newLine,
                  const QSet<QString> &themes);

    /** In the order of the keys; with those that follow from others. */
    QVector<PxChange> changes();

private:
    struct PageCount
    {
        int pageCount;
        int oldRow;
        int newRow;
    };

    void findCommonPageCounts();
    void compareTable(const PxDiffTable &table);
    void compare(const PxDiffKey &key, const QString &oldPointer, const QString &newPointer,
                 const QString &row);
    void compareByPageCount(const PxChange &change, const PxValueByPageCount &before,
                            const PxValueByPageCount &after);

    PxComparedProduct m_old;
    PxComparedProduct m_new;
    QVector<PageCount> m_common; ///< page counts of both, in their order
    QVector<PxChange> m_changes;
};
