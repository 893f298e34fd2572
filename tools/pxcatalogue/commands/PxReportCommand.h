#pragma once

#include "commands/PxCommand.h"
#include "report/PxReport.h"

/** A command that asks the library and prints what it answers, as a text or as JSON. */
class PxReportCommand : public PxCommand
{
public:
    /** Only with the directories of the catalogue can the library be asked. */
    PxExitStatus run(const PxCommandLine &line) const final;

protected:
    /** What is printed, and why the answer is "no". */
    struct Answer
    {
        std::optional<PxReport> report;
        std::optional<PxProblem> no = std::nullopt;
    };

    virtual Answer answer(const PxCommandLine &line) const = 0;

    /** The name of a product, as what a command needs. */
    static PxCommandUsage::Arguments productName();
    /** Ids of themes are in lower case. Empty when none is given. */
    static QString themeId(const PxCommandLine &line);
    static PxProblem unknownProduct(const QString &name);
    /** What is wrong with the id of a theme; an empty one is fine. */
    static std::optional<PxProblem> problemOfTheme(const QString &id);
};
