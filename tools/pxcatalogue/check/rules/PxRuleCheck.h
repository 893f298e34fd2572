#pragma once

#include "check/findings/PxReporter.h"
#include "check/rules/PxElementReading.h"
#include "check/rules/PxRule.h"

#include <QMap>

/** Checks the elements of a file by a table of rules. */
class PxRuleCheck
{
public:
    /** The paths of the rules start at the element, whose row is given. It must outlive this. */
    PxRuleCheck(const PxSourceElement &start, const PxElementRow &row, const PxRows<PxRule> &rules,
                const PxReporter &report)
        : m_start(start)
        , m_startRow(row)
        , m_rules(rules)
        , m_report(report)
    {}

    void run();

private:
    /** What a rule is about. */
    struct Value
    {
        QString text;
        bool isGiven;
        const PxSourceElement *sameBefore = nullptr; ///< the element that has it already
    };

    void checkPath(const PxRule *begin, const PxRule *end);
    void checkElement(const PxSourceElement &element, const PxElementRow &row, const PxRule *begin,
                      const PxRule *end);
    bool holds(const PxRule &rule, const PxElementReading &reading, Value *value);
    bool isFirst(const PxRule &rule, const PxSourceElement &element, Value *value);
    void add(const PxRule &rule, const PxElementReading &reading, const Value &value) const;

    const PxSourceElement &m_start;
    const PxElementRow &m_startRow;
    const PxRows<PxRule> m_rules;
    const PxReporter m_report;
    // What unique values have been met below the parent, by rule and key.
    QMap<QPair<const PxRule *, QString>, const PxSourceElement *> m_known;
    const PxSourceElement *m_parent = nullptr;
};
