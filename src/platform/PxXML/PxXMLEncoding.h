#pragma once

#include <QByteArray>
#include <QRegularExpressionMatch>

class QTextCodec;

/** Determines the encoding of an XML file. */
class PxXMLEncoding
{
public:
    /**
     * The codec by byte order mark or else by declaration; UTF-8 without either, and null for an
     * unknown encoding.
     */
    static QTextCodec *codecOf(const QByteArray &bytes);
    /** The encoding that the XML declaration names, as the first group; no match without one. */
    static QRegularExpressionMatch declared(const QByteArray &bytes);
    /**
     * The XML declaration at the start of an ASCII-compatible text, without its closing "?>"; empty
     * if there is none.
     */
    static QByteArray declaration(const QByteArray &text);
};
