#pragma once

#include "PxXMLFault.h"

#include <QByteArray>
#include <QDomDocument>

#include <optional>

/**
 * Reads XML of any kind and encoding with a full parser, within the limits of the loader.
 *
 * It alone gives verdicts: what it refuses is refused, and why.
 */
class PxXMLStrictReader
{
public:
    explicit PxXMLStrictReader(const QByteArray &bytes) : m_bytes(bytes) {}

    std::optional<PxXMLFault> read();
    /** Null unless read() was successful. */
    QDomDocument document() const { return m_document; }

private:
    QByteArray m_bytes;
    QDomDocument m_document;
};
