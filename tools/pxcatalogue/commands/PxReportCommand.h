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

    /** The argument of a command about one product. */
    static PxCommandUsage::Arguments productName();
    /** The id in --theme, in lower case like all ids; empty if no theme is given. */
    static QString themeId(const PxCommandLine &line);
    static PxProblem unknownProduct(const QString &name);
    /** Returns a problem if no theme has this id; an empty id is not a problem. */
    static std::optional<PxProblem> problemOfTheme(const QString &id);
};
