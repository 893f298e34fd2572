#pragma once

#include "check/findings/PxCheckReport.h"
#include "commands/check/PxCheckOptions.h"

class PxCommandLine;

/** The command "check": finds the files, runs the checks and prints what they found. */
class PxCheckCommand
{
public:
    explicit PxCheckCommand(const PxCommandLine &commandLine);

    /**
     * Answers the exit status: 0 when nothing is as bad as the user fears, 1 when something is, 2
     * for wrong usage or what cannot be read or written, 3 for a fault of ours.
     */
    int run();

private:
    int runChecks();
    /** Answers what is wrong, in one line; empty for nothing. */
    QString check();
    int explain() const;
    int print() const;
    bool write() const;

    const PxCommandLine &m_commandLine;
    const PxCheckOptions m_options;
    PxCheckReport m_report;
};
