#pragma once

#include <QString>

#include <array>
#include <string_view>

/**
 * Converts UTF-8 to texts, and shares recurring ones: names and values recur throughout a
 * catalogue.
 *
 * Each slot holds the last short text with its hash value, so that a file full of hash collisions
 * costs no more than one without recurring texts.
 */
class PxXMLTextPool
{
public:
    /** The text. An empty one is not null: an empty attribute is not a missing one. */
    QString text(std::string_view utf8);

private:
    /** As large as what a processor reads from memory at once. */
    struct alignas(64) Slot
    {
        QString text;
        unsigned char size = 0;
        std::array<char, 55> utf8{};
    };

    std::array<Slot, 1024> m_slots;
};
