#pragma once

#include "PxXMLTextPool.h"

#include <QByteArray>

#include <memory>
#include <thread>

/** Memory that is used again for each file that a thread reads: its bytes, and recurring texts. */
class PxXMLScratch
{
public:
    struct GiveBack
    {
        void operator()(PxXMLScratch *scratch) const;
    };
    using Loan = std::unique_ptr<PxXMLScratch, GiveBack>;

    /**
     * For exclusive use until it is given back: what this thread gave back earlier, or a new one.
     * Threads share no texts, because they would contend for the reference counts.
     *
     * Idle ones are never destroyed, because the last static destructor of a process may load a
     * file. Up to a fixed number of them is kept, even after their threads have ended.
     */
    static Loan lend();

    PxXMLTextPool &texts() { return m_texts; }
    /**
     * A buffer for the bytes of a file. It is not allocated for each file in that file's size: then
     * the heap would tidy itself up each time.
     */
    QByteArray &bytes() { return m_bytes; }

private:
    PxXMLScratch() { m_bytes.reserve(usualFileSize); }

    static constexpr int usualFileSize = 64 * 1024;

    PxXMLTextPool m_texts;
    QByteArray m_bytes;
    const std::thread::id m_thread = std::this_thread::get_id();
};
