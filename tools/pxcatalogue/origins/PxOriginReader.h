#pragma once

#include "origins/PxOriginEntries.h"
#include "origins/PxOriginFile.h"
#include "origins/PxOriginRule.h"

#include <QMap>
#include <QVector>

class PxReport;
struct PxShownProduct;

/** Applies the rows of origins to one product. */
class PxOriginReader
{
public:
    /** All of them must outlive this. */
    PxOriginReader(const PxShownProduct &shown, const PxOriginFiles &files, const PxReport &report);

    /** By JSON pointer. Of long tables only the first rows have origins of their own. */
    QMap<QString, PxOrigin> read();

private:
    /** What a file, the command line or another value contributes. */
    struct Input
    {
        bool isThere = false;
        bool isWritten = false; ///< is there, though perhaps it cannot be read
        bool isDefault = false; ///< says the same as if it was not there
        PxOrigin::Kind kind = PxOrigin::Kind::Computed;
        PxPlace place = PxOrigin::nowhere();
        QString pointer = {}; ///< to another value
        QString value = {};

        bool isNamed() const { return !pointer.isEmpty() || place.line > 0; }
        PxOrigin::Part part() const { return {pointer, place}; }
    };
    using Inputs = QVector<Input>;

    void removeUnprinted();
    int rowsOf(const PxOriginRules &value) const;
    void readRow(const PxOriginRules &value, int index);
    const PxOriginRule *ruleFor(const PxOriginRules &value, int index) const;
    bool holds(const PxOriginRule &rule, int index) const;
    bool holdsForPage(PxOriginCase when, int index) const;
    PxOrigin originOf(const PxOriginRule &rule, int index) const;
    /** Terms of the rule, those that are not there left out. */
    Inputs inputsOf(const PxOriginRule &rule, const QVector<PxOriginRule::Alternatives> &terms,
                    int index) const;
    Inputs furtherLists(const PxOriginTerm &term) const;
    Input input(const PxOriginRule::Alternatives &alternatives, int index) const;
    Input inputAt(const PxOriginTerm &term, int index) const;
    PxOriginElement elementAt(const PxOriginTerm &term, int index) const;
    static Input inputOf(const PxOriginElement &element);
    static Input attributeOf(const PxOriginElement &owner, const QString &name);
    QVector<PxOrigin::Part> filled(const QString &rule, const Inputs &inputs) const;

    const PxShownProduct &m_shown;
    const PxReport &m_report;
    const PxOriginFiles &m_files;
    PxOriginEntries m_entries;
    QMap<QString, PxOrigin> m_origins;
};
