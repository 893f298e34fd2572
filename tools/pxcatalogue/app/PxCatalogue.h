#pragma once

#include "commands/PxCommandLine.h"

class PxProductType;
class PxReport;

/** The program: runs the command of its command line and answers the exit status. */
class PxCatalogue
{
public:
    explicit PxCatalogue(const QStringList &arguments);

    /**
     * 0 when done, 1 when the answer is "no", 2 for wrong usage, an unreadable directory or
     * output that cannot be written; for
     * "check" see PxCheckCommand.
     */
    int run() const;

private:
    int list() const;
    int show() const;
    int showCompatible() const;
    int showThemes() const;
    int showVariants() const;

    int print(const PxReport &report) const;
    /** Also why the report is empty, when it is. */
    int print(const PxReport &report, bool isEmpty, const QString &reason) const;
    int printNo(const QString &reason) const;
    int printUnknownProduct() const;
    int printUnknownTheme() const;
    bool isThemeKnown() const;

    PxCommandLine m_commandLine;
};
