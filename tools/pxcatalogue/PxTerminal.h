#pragma once

#include <QJsonObject>
#include <QString>

/** What the reader of the output sees: how wide it is, and how texts of unknown origin look. */
class PxTerminal
{
public:
    /** From the environment or the terminal; 100 when stdout is no terminal. */
    static int columns();

    /** Whether stdout is a terminal, and its user does not want it without colours. */
    static bool hasColours();

    /** One line without anything that a terminal might obey. */
    static QString printable(const QString &text);
    /** The same object, with all that a terminal might obey escaped. */
    static QByteArray printable(const QJsonObject &json);
    /** At most so many characters; an ellipsis stands for what is missing. */
    static QString shortened(const QString &text, int width);

    /** To stdout. Answers false when that cannot be done, which is told on stderr. */
    static bool write(const QByteArray &output);
    /** Broken into lines of at most so many characters, if its words allow. */
    static QString wrapped(const QString &text, int width);

    /** One line on stderr, with the name of the program before it. */
    static void printError(const QString &message);
};
