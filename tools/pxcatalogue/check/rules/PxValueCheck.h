#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxSourceParts.h"
#include "format/PxFormatRows.h"

/** Checks whether the library can read the value of an attribute. */
class PxValueCheck
{
public:
    /** All of them must outlive the check. */
    PxValueCheck(const PxSourceElement &element, const PxAttributeRow &row,
                 const PxSourceAttribute &attribute, const PxReporter &report)
        : m_element(element)
        , m_row(row)
        , m_attribute(attribute)
        , m_report(report)
    {}

    void run();

private:
    void checkInteger() const;
    void checkBoolean() const;
    void checkKeywords();
    void checkEmptyKeyword() const;
    void checkOneKeyword() const;
    void checkKeywordList() const;
    void checkUnknownKeyword(const PxSourcePart &entry, const QString &asRead) const;
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
    PxSourceList m_list; // of keywords, without the blanks around them
};
