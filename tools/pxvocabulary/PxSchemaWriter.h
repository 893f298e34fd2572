#pragma once

#include "PxSchemaTypes.h"

#include <QXmlStreamWriter>

class QIODevice;

/**
 * The XML schema of a kind of file, for editors and validators.
 *
 * Where the library takes any name of an element, the schema has the usual one.
 */
class PxSchemaWriter
{
public:
    explicit PxSchemaWriter(QIODevice *device);

    void write(PxFileKind kind);

private:
    void writeElement(const PxElementRow &row, bool isOptional);
    void writeContents(const PxElementRow &row);
    /** Neighbours may share a meaning. */
    void writeAttribute(const PxAttributeRow &row, const QString &meaning);
    void writeDocumentation(const QString &text);

    QXmlStreamWriter m_xml;
    PxSchemaTypes m_types;
};
