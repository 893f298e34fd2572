#pragma once

#include "check/findings/PxFinding.h"

#include <QMap>
#include <QPair>
#include <QVector>

/** The comments that silence a tag for the element after them. */
class PxAllowances
{
public:
    struct Allowance
    {
        QString tag;
        PxPlace comment;
        PxPlace part; ///< what it covers: parts of a file are nested or do not overlap
        bool silencesSomething =
            false; ///< has silenced a finding, or nobody knows whether it would
    };

    void add(const Allowance &allowance);
    /**
     * Whether an allowance silences a finding at the place; it then counts as used. If several do,
     * that is the innermost one. Call it when all allowances of the file have been added.
     */
    bool allows(const QString &tag, const PxPlace &place);
    /** The allowances that silenced nothing. */
    QVector<Allowance> unused() const;

private:
    struct Nested
    {
        Allowance allowance;
        int outer = -1; ///< the one around it; -1 for none
    };
    struct OfTag
    {
        QVector<Nested> nested; // sorted by where their parts begin if `isSorted`
        bool isSorted = false;
    };

    static void sort(OfTag *allowances);

    // By path and tag. No hash: names of tags in files can be made to collide.
    QMap<QPair<QString, QString>, OfTag> m_allowances;
};
