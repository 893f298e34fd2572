#pragma once

#include "PxXMLFault.h"

#include <QByteArray>
#include <QDomDocument>

class QTextCodec;

/**
 * Reads XML of any kind and encoding with a full parser, within the limits of the loader.
 *
 * It alone gives verdicts: what it refuses is refused, and why.
 */
class PxXMLStrictReader
{
public:
    explicit PxXMLStrictReader(const QByteArray &bytes) : m_bytes(bytes) {}

    /** Names the encoding also of what it reads. */
    PxXMLFault read();
    /** Null unless read() found no fault. */
    QDomDocument document() const { return m_document; }

private:
    PxXMLFault readText(const QTextCodec &codec);

    QByteArray m_bytes;
    QDomDocument m_document;
};
