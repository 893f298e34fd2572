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
    /** What to print, if anything, and the reason if the answer is "no". */
    struct Answer
    {
        std::optional<PxReport> report;
        std::optional<PxProblem> no = std::nullopt;
        /** Set if the options do not go together: then nothing is printed. */
        std::optional<PxProblem> wrongUsage = std::nullopt;
        /** Printed in place of a report. */
        std::optional<PxOutputText> lines = std::nullopt;
        /** Prints the report as JSON, even without --json. */
        bool isJson = false;
    };

    virtual Answer answer(const PxCommandLine &line) const = 0;
};
