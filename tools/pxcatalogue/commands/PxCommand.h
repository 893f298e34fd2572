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
        QString name;    ///< as the line "Usage" shows them
        QString meaning; ///< a sentence about them
        QString needed;  ///< what to call them if they are missing; empty if they are optional
        int most = 0;    ///< how many there may be
        PxOption::Form form = PxOption::Form::Usual; ///< of each
    };

    QString name;
    QString description; ///< lines of any length; the list of commands shows only the first one
    /** First its own, then those that other commands have, too; without those of every command. */
    QVector<PxOption> options;
    Arguments arguments = {};
    /** Whether the arguments are catalogues: the options that name one are refused then. */
    bool hasCatalogues = false;

    /** Its own options, and those of every command unless it refuses them. */
    QVector<PxOption> allOptions() const;
};

/** A command of the program. */
class PxCommand
{
public:
    virtual ~PxCommand();

    /** All commands, in the order of --help. */
    static QVector<const PxCommand *> all();
    /** The one of this name, or null. */
    static const PxCommand *find(const QString &name);
    /** What all of them together do, in lines. */
    static QString purposeOfAll();
    static QString exitStatusOfAll();

    virtual PxCommandUsage usage() const = 0;
    /** Whether the user sees the warnings of the library without --verbose, too. */
    virtual bool showsWarnings() const { return true; }
    /** Whether it paints texts, which takes a QGuiApplication. */
    virtual bool needsFonts(const PxCommandLine & /*line*/) const { return false; }
    /** Whether display names are in the language of the locale without --lang; else in German. */
    virtual bool dependsOnLocale() const { return true; }
    /** Runs the command. The line has been checked against usage(). */
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
