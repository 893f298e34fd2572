#pragma once

#include "check/source/PxCheckedFile.h"

/** Adds the findings of one check in one file. */
class PxFileFindings
{
public:
    PxFileFindings(const PxCheckedFile &file, PxFindings *findings)
        : m_file(file)
        , m_findings(findings)
    {}

    bool isEmpty() const { return m_isEmpty; }
    /** Whether the texts of one more are looked at. */
    bool isTold(const char *tag, const PxSourceRange &range) const
    {
        return m_file.isTold(m_findings, tag, range);
    }
    void add(const char *tag, const PxSourceRange &range, const QString &message,
             const QString &now = QString(), const QString &hint = QString());
    const PxCheckedFile &file() const { return m_file; }

private:
    const PxCheckedFile &m_file;
    PxFindings *m_findings;
    bool m_isEmpty = true;
};
