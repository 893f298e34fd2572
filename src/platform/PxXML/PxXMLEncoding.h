#pragma once

#include <QByteArray>

class QTextCodec;

/** Finds out which encoding an XML file is in. */
class PxXMLEncoding
{
public:
    /**
     * By byte order mark or declaration, UTF-8 without these; null for an encoding we do not know.
     */
    static QTextCodec *codecOf(const QByteArray &bytes);
    /** The XML declaration at the start of an ASCII-compatible text, without its end; or empty. */
    static QByteArray declaration(const QByteArray &text);
};
