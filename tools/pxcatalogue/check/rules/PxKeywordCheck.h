#pragma once

#include "check/findings/PxFileFindings.h"
#include "check/source/PxSourceParts.h"
#include "format/PxFormatRows.h"

/** Checks the keywords in the value of an attribute. */
class PxKeywordCheck
{
public:
    /** All of them must outlive the check. */
    PxKeywordCheck(const PxCheckedFile &file, const PxSourceElement &element,
                   const PxAttributeRow &row, const PxSourceAttribute &attribute);

    void run(PxFileFindings &findings) const;

private:
    void checkEmpty(PxFileFindings &findings) const;
    void checkOneKeyword(PxFileFindings &findings) const;
    void checkList(PxFileFindings &findings) const;
    void checkUnknown(const PxSourcePart &entry, const QString &asRead,
                      PxFileFindings &findings) const;
    /** Whether it found something, and so below. */
    bool checkGap(PxFileFindings &findings) const;
    bool checkSeveral(PxFileFindings &findings) const;
    void checkRepeated(PxFileFindings &findings) const;

    bool isKnown(const QString &word) const;
    /** What the library makes of the whole value. */
    QString now() const;

    const PxSourceElement &m_element;
    const PxAttributeRow &m_row;
    const PxSourceAttribute &m_attribute;
    PxSourceList m_list; // texts without blanks
};
