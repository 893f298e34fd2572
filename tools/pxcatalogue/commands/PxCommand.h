#pragma once

#include "commands/PxExitStatus.h"
#include "commands/PxOption.h"
#include "writing/PxTerminal.h"

class PxCommandLine;

/** What a command is called, takes and is for, as --help shows it. */
struct PxCommandUsage
{
    /** What follows the name of a command. */
    struct Arguments
    {
        QString name;    ///< as the usage shows them
        QString meaning; ///< a sentence
        QString needed;  ///< what the first one is; empty if there may be none
        int most = 0;
    };

    QString name;
    QString description; ///< lines, of which the first one is a summary
    /** Its own ones, then those that it shares; without those of every command. */
    QVector<PxOption> options;
    Arguments arguments = {};
};

/** A command of the program. */
class PxCommand
{
public:
    virtual ~PxCommand();

    /** All commands, in the order of --help. */
    static QVector<const PxCommand *> all();

    virtual PxCommandUsage usage() const = 0;
    /** Whether the user sees the warnings of the library without --verbose, too. */
    virtual bool showsWarnings() const { return true; }
    /** Runs as this line of the usage says. */
    virtual PxExitStatus run(const PxCommandLine &line) const = 0;

    /** Prints the problem, for which the program ends. */
    static PxExitStatus fail(const PxProblem &problem);
    /** Writes a text or JSON to stdout. */
    template <typename OUTPUT>
    static PxExitStatus printed(const OUTPUT &output)
    {
        return PxTerminal::write(output) ? PxExitStatus::Done : PxExitStatus::CannotRun;
    }
};
