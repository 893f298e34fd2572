#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <initializer_list>

/** A text to print. Control characters are escaped, so no text from a file can break a line. */
class PxOutputText
{
public:
    /** A piece of a line; its colour is an escape sequence, or null. */
    struct Piece
    {
        QString text;
        const char *colour = nullptr;
    };

    PxOutputText() = default;
    /** Splits a text of the program itself into lines, at least one. */
    explicit PxOutputText(const QString &lines);

    void addLine(const QString &text) { addLine({{text}}); }
    void addLine(std::initializer_list<Piece> pieces);
    /**
     * Adds a line of values with commas between them, in double quotes where one has a comma, a
     * quote or a blank at its edge (CSV, RFC 4180).
     */
    void addCommaSeparated(const QStringList &values);
    /** The same with tabs, and without quotes: a tab in a value is escaped. */
    void addTabSeparated(const QStringList &values);

    QByteArray toUtf8() const { return m_bytes; }

private:
    QByteArray m_bytes;
};
