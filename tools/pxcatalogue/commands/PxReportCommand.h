#pragma once

#include "commands/PxCommand.h"
#include "report/PxReport.h"

/** A command that asks the library and prints what it answers, as a text or as JSON. */
class PxReportCommand : public PxCommand
{
public:
    /** Sets the library up, asks it and prints the answer. */
    PxExitStatus run(const PxCommandLine &line) const final;

protected:
    /** What is printed, and the reason if the answer is "no". */
    struct Answer
    {
        std::optional<PxReport> report;
        std::optional<PxProblem> no = std::nullopt;
    };

    virtual Answer answer(const PxCommandLine &line) const = 0;

    /** The argument of commands about one product. */
    static PxCommandUsage::Arguments productName();
    /** In lower case, as ids are; empty if no theme is given. */
    static QString themeId(const PxCommandLine &line);
    static PxProblem unknownProduct(const QString &name);
    /** Nothing for an empty id. */
    static std::optional<PxProblem> problemOfTheme(const QString &id);
};
