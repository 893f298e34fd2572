#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <memory>
#include <string_view>
#include <thread>

/**
 * Makes texts of UTF-8, of recurring ones the same: names and values recur all over a catalogue.
 *
 * A slot holds the last short text of its hash value, so a file made of collisions costs no more
 * than one without recurring texts.
 */
class PxXMLTextPool
{
public:
    struct GiveBack
    {
        void operator()(PxXMLTextPool *pool) const;
    };
    using Loan = std::unique_ptr<PxXMLTextPool, GiveBack>;

    /**
     * A pool that nobody else uses until it is given back: the one that this thread gave back, with
     * its texts, or a new one. Threads share no texts: each would wait for the other's counters.
     *
     * Pools outlive files, and idle ones are never destroyed: the last static destructor of a
     * process may load a file. A few are kept, whatever became of their threads.
     */
    static Loan lend();

    /** The text; not null when it is empty: an empty attribute is no missing one. */
    QString text(std::string_view utf8);

private:
    struct Slot
    {
        QByteArray utf8;
        QString text;
    };

    std::array<Slot, 2048> m_slots;
    const std::thread::id m_thread = std::this_thread::get_id();
};
