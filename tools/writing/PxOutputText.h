#pragma once

#include <QByteArray>
#include <QString>

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

    QByteArray toUtf8() const { return m_bytes; }

private:
    QByteArray m_bytes;
};
