#pragma once

#include "check/findings/PxFinding.h"

#include <QMap>
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
     * Whether what is found at the place is allowed; the allowance is used then. Where parts lie
     * inside each other the innermost counts. All allowances of the file have been added.
     */
    bool allows(const QString &tag, const PxPlace &place);
    /** Those that have allowed nothing. */
    QVector<Allowance> unused() const;

private:
    struct Nested
    {
        Allowance allowance;
        int outer = -1; ///< the one around it; -1 for none
    };
    struct OfTag
    {
        QVector<Nested> nested; // by begin of their parts, when they are sorted
        bool isSorted = false;
    };

    static void sort(OfTag *allowances);

    // By path and tag. No hash: files may hold thousands of tags that are none.
    QMap<QPair<QString, QString>, OfTag> m_allowances;
};
