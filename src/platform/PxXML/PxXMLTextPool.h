#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <memory>
#include <string_view>
#include <thread>

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
    struct GiveBack
    {
        void operator()(PxXMLTextPool *pool) const;
    };
    using Loan = std::unique_ptr<PxXMLTextPool, GiveBack>;

    /**
     * A pool for exclusive use until it is given back: the one that this thread gave back earlier,
     * with its texts, or a new one. Threads share no texts, because they would contend for the
     * reference counts.
     *
     * Pools outlive files. Idle ones are never destroyed, because the last static destructor of a
     * process may load a file. Up to a fixed number of idle pools is kept, even after their threads
     * have ended.
     */
    static Loan lend();

    /** The text. An empty one is not null: an empty attribute is not a missing one. */
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
