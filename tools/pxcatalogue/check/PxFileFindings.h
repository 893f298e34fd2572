#pragma once

#include "check/PxCheckedFile.h"

/** Adds the findings of one check in one file, and stops where nobody would read on. */
class PxFileFindings
{
public:
    PxFileFindings(const PxCheckedFile &file, PxFindings *findings)
        : m_file(file)
        , m_findings(findings)
    {}

    /** More are not taken: a damaged file may have as many as it has characters. */
    bool isFull() const { return m_count >= maximumCount; }
    void add(const char *tag, const PxSourceRange &range, const QString &message,
             const QString &now = QString(), const QString &hint = QString());
    const PxCheckedFile &file() const { return m_file; }

private:
    static constexpr int maximumCount = 1000;

    const PxCheckedFile &m_file;
    PxFindings *m_findings;
    int m_count = 0;
};
