#pragma once

#include <QString>

class PxOutputText;
class QJsonObject;

/** The one way from the program to its reader, on stdout and stderr, and what is known of that. */
class PxTerminal
{
public:
    /**
     * To be called first: a file that may not grow gives an error instead of a signal, and what the
     * program opens never takes the place of a closed stdin, stdout or stderr.
     */
    static void prepare();

    /** From the environment or the terminal; 100 when stdout is no terminal. */
    static int columns();

    /** Whether stdout is a terminal, and its user does not want it without colours. */
    static bool hasColours();

    /** At most so many characters; an ellipsis stands for what is missing. */
    static QString shortened(const QString &text, int width);
    /** Broken into lines of at most so many characters, if its words allow. */
    static QString wrapped(const QString &text, int width);

    /**
     * To stdout. Answers false when that cannot be done, which is told on stderr, unless the reader
     * has seen enough and closed the pipe.
     */
    static bool write(const PxOutputText &text);
    static bool write(const QJsonObject &json);

    /** One line on stderr, with the name of the program before it. */
    static void printError(const QString &message);
};
