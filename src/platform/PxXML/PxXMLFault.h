#pragma once

#include <QString>

/** Why PxXMLLoader refuses a file, and where. */
struct PxXMLFault
{
    /** The kinds of faults. */
    enum class Kind {
        None,          ///< the file has been read
        Unreadable,    ///< it is missing, not a regular file, or cannot be opened or read
        Encoding,      ///< its bytes are invalid in the declared encoding, or that is unknown
        NotWellFormed, ///< its text is not well-formed XML
        Limit,         ///< it exceeds a limit, or has an internal subset or an external entity
    };

    /** What is wrong. */
    Kind kind = Kind::None;
    /** One line; empty if there is no fault. */
    QString message;
    /**
     * The place from which on the text cannot be read, counted from 1; both are 0 if the fault has
     * no place.
     */
    qint64 line = 0;
    qint64 column = 0; ///< in UTF-16 units
    /**
     * The encoding of the text by byte order mark or declaration, even if there is no fault.
     *
     * A name that QTextCodec knows; empty for an unknown encoding, and if nothing was read.
     */
    QString encoding = {};
};
