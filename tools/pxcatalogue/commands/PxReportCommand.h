#pragma once

#include "commands/PxCommand.h"
#include "report/PxReport.h"

/** A command that queries the library and prints a report, as text or as JSON. */
class PxReportCommand : public PxCommand
{
public:
    /** Sets up the library, calls answer() and prints the result. */
    PxExitStatus run(const PxCommandLine &line) const final;

protected:
    /** The report to print, if any, and the reason if the answer is "no". */
    struct Answer
    {
        std::optional<PxReport> report;
        std::optional<PxProblem> no = std::nullopt;
    };

    virtual Answer answer(const PxCommandLine &line) const = 0;
};
