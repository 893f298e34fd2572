#pragma once

#include "check/PxCheckedFile.h"

/** Adds the findings of one check in one file, and stops where nobody would read on. */
class PxFileFindings
{
public:
    /** More of one list would tell the author nothing new. */
    static constexpr int maximumOfList = 100;

    PxFileFindings(const PxCheckedFile &file, PxFindings *findings, int maximum = 1000)
        : m_file(file)
        , m_findings(findings)
        , m_maximum(maximum)
    {}

    bool isEmpty() const { return m_count == 0; }
    /** More are not taken: a damaged file may have as many as it has characters. */
    bool isFull() const { return m_count >= m_maximum; }
    void add(const char *tag, const PxSourceRange &range, const QString &message,
             const QString &now = QString(), const QString &hint = QString());
    const PxCheckedFile &file() const { return m_file; }

private:
    const PxCheckedFile &m_file;
    PxFindings *m_findings;
    int m_maximum;
    int m_count = 0;
};
