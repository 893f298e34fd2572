#pragma once

#include "PxXMLFault.h"

#include <QByteArray>
#include <QDomDocument>

class QTextCodec;

/**
 * Reads XML of any kind and encoding with a full parser, within the limits of the loader.
 *
 * It alone decides whether a file is refused, and why.
 */
class PxXMLStrictReader
{
public:
    explicit PxXMLStrictReader(const QByteArray &bytes) : m_bytes(bytes) {}

    /** Sets the encoding of the fault even if the text is read without one. */
    PxXMLFault read();
    /** The document; null unless read() found no fault. */
    QDomDocument document() const { return m_document; }

private:
    PxXMLFault readText(const QTextCodec &codec);

    QByteArray m_bytes;
    QDomDocument m_document;
};
