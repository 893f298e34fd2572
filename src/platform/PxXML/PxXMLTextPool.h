#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <string_view>

/**
 * Makes texts of UTF-8, of recurring ones the same: names and values recur all over a catalogue.
 *
 * One a thread, so that it outlives a file. A slot holds the last short text of its hash value, so
 * a file made of collisions costs no more than one without recurring texts.
 */
class PxXMLTextPool
{
public:
    static PxXMLTextPool &ofThread();

    /** The text; not null when it is empty: an empty attribute is no missing one. */
    QString text(std::string_view utf8);

private:
    struct Slot
    {
        QByteArray utf8;
        QString text;
    };

    std::array<Slot, 2048> m_slots;
};
