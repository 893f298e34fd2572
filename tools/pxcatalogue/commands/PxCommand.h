#pragma once

#include "commands/PxExitStatus.h"
#include "commands/PxOption.h"
#include "writing/PxTerminal.h"

#include <QString>
#include <QVector>

class PxCommandLine;

/** The name, purpose, arguments and options of a command, as --help shows them. */
struct PxCommandUsage
{
    /** What follows the name of a command. */
    struct Arguments
    {
        QString name;    ///< as "Usage" shows them
        QString meaning; ///< a sentence about them
        QString needed;  ///< what is missing if there are none; empty if they are optional
        int most = 0;
    };

    QString name;
    QString description; ///< lines; the first one is the summary among all commands
    /** First its own, then those that it shares; not those of every command. */
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
    /** Does what the line asks for, which fits the usage. */
    virtual PxExitStatus run(const PxCommandLine &line) const = 0;

    /** Prints the problem to stderr. */
    static PxExitStatus fail(const PxProblem &problem);
    /** Prints a text or JSON to stdout. */
    template <typename OUTPUT>
    static PxExitStatus printed(const OUTPUT &output)
    {
        return PxTerminal::write(output) ? PxExitStatus::Done : PxExitStatus::CannotRun;
    }
};
