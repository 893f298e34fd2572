#pragma once

#include <QByteArray>
#include <QString>

#include <initializer_list>

/** What a program prints for people: lines of texts of any origin, which stay lines. */
class PxOutputText
{
public:
    /** A piece of a line, in a colour as terminals want it, or in none. */
    struct Piece
    {
        QString text;
        const char *colour = nullptr;
    };

    PxOutputText() = default;
    /** The lines of a text of the program, which has one at least. */
    explicit PxOutputText(const QString &lines);

    void addLine(const QString &text) { addLine({{text}}); }
    void addLine(std::initializer_list<Piece> pieces);

    QByteArray toUtf8() const { return m_bytes; }

private:
    QByteArray m_bytes;
};
