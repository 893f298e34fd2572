#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxSourceParts.h"
#include "format/PxFormatRows.h"

/** Checks the keywords in the value of an attribute. */
class PxKeywordCheck
{
public:
    /** All of them must outlive the check. */
    PxKeywordCheck(const PxSourceElement &element, const PxAttributeRow &row,
                   const PxSourceAttribute &attribute, const PxReporter &report);

    void run();

private:
    void checkEmpty() const;
    void checkOneKeyword() const;
    void checkList() const;
    void checkUnknown(const PxSourcePart &entry, const QString &asRead) const;
    /** Whether it found something, and so below. */
    bool checkGap() const;
    bool checkSeveral() const;
    void checkRepeated() const;

    bool isKnown(const QString &word) const;
    /** What the library makes of the whole value. */
    QString now() const;

    const PxSourceElement &m_element;
    const PxAttributeRow &m_row;
    const PxSourceAttribute &m_attribute;
    const PxReporter m_report;
    PxSourceList m_list; // texts without blanks
};
