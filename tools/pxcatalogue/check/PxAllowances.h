#pragma once

#include "check/PxFinding.h"

#include <QHash>
#include <QPair>
#include <QVector>

/** The comments in the files that silence a tag for the element behind them. */
class PxAllowances
{
public:
    struct Allowance
    {
        QString tag;
        PxPlace comment;
        PxPlace part;         ///< of the file; two parts lie apart, or one inside the other
        bool isOfUse = false; ///< for all that is known, also when it allows nothing now
    };

    void add(const Allowance &allowance);
    /**
     * Takes out the findings that are allowed; they are sorted by place. Where parts lie inside
     * each other the innermost counts. Answers the allowances that allow nothing.
     */
    QVector<Allowance> apply(QVector<PxFinding> *findings) const;

private:
    QHash<QPair<QString, QString>, QVector<Allowance>> m_allowances; // by path and tag
};
