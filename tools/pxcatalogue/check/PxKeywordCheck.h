#pragma once

#include "check/PxFileFindings.h"
#include "vocabulary/PxVocabularyRows.h"

#include <QVector>

/** Checks the keywords in the value of an attribute. */
class PxKeywordCheck
{
public:
    /** All of them must outlive the check. */
    PxKeywordCheck(const PxSourceElement &element, const PxAttributeRow &row,
                   const PxSourceAttribute &attribute);

    void run(PxFileFindings &findings) const;

    /** A value in a message, cut off where it is too long for one. */
    static QString shown(const QString &value);

private:
    /** What stands between two commas, trimmed. */
    struct Entry
    {
        QString word;
        int begin; // in the value
    };

    void checkEmpty(PxFileFindings &findings) const;
    void checkOneKeyword(PxFileFindings &findings) const;
    void checkList(PxFileFindings &findings) const;
    void checkUnknown(const Entry &entry, const QString &asRead, PxFileFindings &findings) const;
    /** Whether it found something, and so below. */
    bool checkGap(PxFileFindings &findings) const;
    bool checkSeveral(PxFileFindings &findings) const;
    void checkRepeated(PxFileFindings &findings) const;

    bool isKnown(const QString &word) const;
    PxSourceRange rangeOf(const Entry &entry) const;
    /** What the library makes of the whole value. */
    QString now() const;

    const PxSourceElement &m_element;
    const PxAttributeRow &m_row;
    const PxSourceAttribute &m_attribute;
    QVector<Entry> m_entries;
};
