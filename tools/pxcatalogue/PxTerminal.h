#pragma once

#include <QString>

/** What the reader of the output sees: how wide it is, and how texts of unknown origin look. */
class PxTerminal
{
public:
    /** From the environment or the terminal; 100 when stdout is no terminal. */
    static int columns();

    /** One line without anything that a terminal might obey. */
    static QString printable(const QString &text);
    /** At most so many characters; an ellipsis stands for what is missing. */
    static QString shortened(const QString &text, int width);

    /** One line on stderr, with the name of the program before it. */
    static void printError(const QString &message);
};
