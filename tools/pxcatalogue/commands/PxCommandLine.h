#pragma once

#include "writing/PxProblem.h"

#include <QCommandLineParser>
#include <QStringList>
#include <QVector>

#include <optional>

class PxCommand;
struct PxOption;

/** The command line, parsed: a command with its options, or a request for --help or --version. */
class PxCommandLine
{
public:
    /** The words of the command line; the first one is the program. */
    explicit PxCommandLine(const QStringList &words);

    /** Why the command line cannot be understood. */
    std::optional<PxProblem> problem() const { return m_problem; }
    /** The text of --help or --version. */
    std::optional<QString> information() const { return m_information; }
    /** The command to run. Call it only if there is neither a problem nor an information. */
    const PxCommand &command() const { return *m_command; }

    /** What follows the name of the command. */
    QStringList arguments() const { return m_parser.positionalArguments().mid(1); }
    bool isSet(const QString &option) const { return m_parser.isSet(option); }
    /** The value of an option that the command takes; empty if it is not given. */
    QString value(const QString &option) const { return m_parser.value(option); }
    /** The keywords in the value of an option, spelt as the option spells them. */
    QStringList keywords(const QString &option) const;
    /** All values of an option that may be given several times. */
    QStringList values(const QString &option) const { return m_parser.values(option); }

private:
    void findCommand(const QStringList &words, QCommandLineParser *parser);
    void readOptions(const QStringList &words);
    bool informs(const QCommandLineParser &parser);
    void checkArguments();
    void checkValues(const QVector<PxOption> &options);
    void setProblem(const QString &problem);

    QCommandLineParser m_parser;
    const PxCommand *m_command = nullptr;
    std::optional<PxProblem> m_problem;
    std::optional<QString> m_information;
};
