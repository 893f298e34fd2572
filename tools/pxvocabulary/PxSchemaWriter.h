#pragma once

#include "PxSchemaTypes.h"

#include <QXmlStreamWriter>

class QIODevice;

/**
 * The XML schema of a kind of file, for editors and validators.
 *
 * Where the library accepts an element of any name, the schema accepts only the usual name.
 */
class PxSchemaWriter
{
public:
    explicit PxSchemaWriter(QIODevice *device);

    void write(PxFileKind kind);

private:
    void writeElement(const PxElementRow &row, bool isOptional);
    void writeContents(const PxElementRow &row);
    /** Gets the meaning separately, because adjacent attributes may share one. */
    void writeAttribute(const PxAttributeRow &row, const QString &meaning);
    void writeDocumentation(const QString &text);

    QXmlStreamWriter m_xml;
    PxSchemaTypes m_types;
};
