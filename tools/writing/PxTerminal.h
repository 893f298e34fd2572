#pragma once

#include "writing/PxJsonLines.h"

#include <QString>

#include <limits>

class PxOutputText;
class QJsonObject;

/** Prints to stdout and stderr; nothing else in the program does. */
class PxTerminal
{
public:
    /**
     * Must be called first. Afterwards, exceeding the file size limit is an error instead of a
     * signal, and a file that the program opens never becomes its stdin, stdout or stderr.
     */
    static void prepare();

    /** More columns than anything takes. */
    static constexpr int unlimited = std::numeric_limits<int>::max();
    /** The value of COLUMNS, else the width of the terminal; `ofPipe` if the output is none. */
    static int columns(int ofPipe = 100);

    /** Whether stdout is a terminal whose user has not switched colours off. */
    static bool hasColours();

    /** How many columns a visible character takes: 1, for wide ones 2, for combining ones 0. */
    static int width(uint character);
    /** Cut off with an ellipsis if it is longer than `width`. */
    static QString shortened(const QString &text, int width);
    /** Broken into lines of at most `width` characters; longer words stay whole. */
    static QString wrapped(const QString &text, int width);

    /**
     * Writes to stdout. A failure is reported on stderr, unless the reader closed the pipe. Returns
     * whether all was written.
     */
    static bool write(const PxOutputText &text);
    static bool write(const QJsonObject &json);
    static bool write(const PxJsonLines &lines);

    /** One line on stderr, with the name of the program before it. */
    static void printError(const QString &message);
    /** If stderr is a terminal: in place of the line shown before. An empty text removes it. */
    static void showProgress(const QString &text);
};
