#pragma once

#include <QString>

/** Why PxXMLLoader refuses a file, and where. */
struct PxXMLFault
{
    enum class Kind {
        None,          ///< the file is read
        Unreadable,    ///< it is missing, no regular file, or cannot be opened or read
        Encoding,      ///< its bytes are no text in the encoding it declares, or that is unknown
        NotWellFormed, ///< its text is no well-formed XML
        Limit,         ///< it is over a limit, or has an internal subset or an external entity
    };

    Kind kind = Kind::None;
    /** One line; empty without a fault. */
    QString message;
    /** Where the text ceases to be readable, from 1; both 0 if the fault has no place in it. */
    qint64 line = 0;
    qint64 column = 0; ///< in UTF-16 units
    /**
     * The encoding of the text, by byte order mark or declaration, also of a file that is read.
     *
     * A name that QTextCodec knows; empty for an unknown encoding, and if nothing was read.
     */
    QString encoding = {};
};
