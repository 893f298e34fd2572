#pragma once

#include "check/findings/PxReporter.h"

#include <QVector>

/** Finds the comments of a file that silence a tag, and reports those that nearly do. */
class PxAllowanceComments
{
public:
    /** Whether all checks run on the file. If not, an unused allowance is not reported. */
    enum class Checked { Everything, Little };

    /** Both must outlive this. */
    PxAllowanceComments(const PxCheckedFile &file, PxFindings &findings)
        : m_file(file)
        , m_findings(findings)
        , m_report(findings, file)
    {}

    /** Must be called before any other check of the file. */
    void find(Checked checked);

private:
    QVector<PxSourceNode> findIn(const QVector<PxSourceNode> &nodes,
                                 const QVector<const PxSourceElement *> &elements,
                                 const PxSourceElement *parent, Checked checked);
    void checkNoAllowance(const PxSourceNode &node) const;

    const PxCheckedFile &m_file;
    PxFindings &m_findings;
    const PxReporter m_report;
};
