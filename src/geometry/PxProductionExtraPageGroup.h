#pragma once

#include "geometry/PxProductionExtraPage.h"

#include <QList>

class QDebug;
class QDomElement;

/** One extra page and the positions at which production inserts it. */
class PXPRODUCTPROPERTIES_EXPORT PxProductionExtraPageGroup
{
public:
    PxProductionExtraPageGroup() = default;
    /** Reads an "item" element: the numbers of "target_pages" and the "pdf". */
    explicit PxProductionExtraPageGroup(const QDomElement &item);

    /** In the order of the file, with repetitions. */
    QList<int> targetPages() const { return m_targetPages; }
    /** What is inserted; empty by default. */
    PxProductionExtraPage content() const { return m_content; }

    bool operator==(const PxProductionExtraPageGroup &other) const;
    bool operator!=(const PxProductionExtraPageGroup &other) const { return !(*this == other); }

private:
    QList<int> m_targetPages;
    PxProductionExtraPage m_content;
};

Q_DECLARE_TYPEINFO(PxProductionExtraPageGroup, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxProductionExtraPageGroup &group);
