#pragma once

#include "check/findings/PxReporter.h"

#include <QVector>

/** Finds the comments of a file that silence a tag, and those that only seem to. */
class PxAllowanceComments
{
public:
    /** What a file is checked for: an allowance in it may be for a tag that could not be found. */
    enum class Checked { Everything, Little };

    /** Both must outlive this. */
    PxAllowanceComments(const PxCheckedFile &file, PxFindings &findings)
        : m_file(file)
        , m_findings(findings)
        , m_report(findings, file)
    {}

    /** Before any other check of the file. */
    void find(Checked checked);

private:
    QVector<PxSourceNode> findIn(const QVector<PxSourceNode> &nodes,
                                 const QVector<const PxSourceElement *> &elements, Checked checked);
    void checkNoAllowance(const PxSourceNode &node) const;

    const PxCheckedFile &m_file;
    PxFindings &m_findings;
    const PxReporter m_report;
};
