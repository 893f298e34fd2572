#pragma once

#include "PxXMLExport.h"
#include "PxXMLFault.h"

#include <QDomDocument>
#include <QFileInfo>
#include <QString>

/**
 * The gate through which XML files of unknown origin come in.
 *
 * All functions answer a null node when the file cannot be opened, is no well-formed XML or breaks
 * a limit, never a part of a tree. They put the reason into `fault`, or, as one line
 * `file:line:column: message`, into `error`, with line and column counted from 1, and 0:0 when the
 * fault has no place in the text. Success clears `error`. Nothing is logged.
 *
 * The tree is the one of QDomDocument::setContent() without namespace processing, with these
 * differences: nodes do not know their line and column; line ends, and white space in attribute
 * values, are normalized as XML demands; references to characters beyond U+FFFF give these
 * characters; the name of a document type has no prefix; names of attributes and document types
 * may have any character but control characters behind the first, where setContent() refuses some;
 * and no document type declaration may have control characters other than tab and line ends.
 * Any thread with a stack of 512 KB or more may load and destroy documents.
 */
class PXXML_EXPORT PxXMLLoader
{
public:
    // What no honest file comes near; larger ones would cost more time, memory or stack than we
    // are ready to give an unknown file. Another platform may have other limits: what reads files
    // through it asks the fault for its kind.
    /** Bytes of a file. */
    static constexpr int maximumFileSize = 8 * 1024 * 1024;
    /** Elements inside each other, the document element included. */
    static constexpr int maximumDepth = 256;
    /** Attributes of one tag. */
    static constexpr int maximumAttributes = 256;
    /** Elements, attributes, texts, CDATA sections, comments, processing instructions of a file. */
    static constexpr int maximumNodes = 200000;

    static QDomDocument loadDocument(const QFileInfo &file, QString *error = nullptr);
    static QDomDocument loadDocument(const QFileInfo &file, PxXMLFault &fault);
    /**
     * The document element alone, without comments and the like around it: it has no document, and
     * is used without one.
     */
    static QDomElement loadDocumentElement(const QFileInfo &file, QString *error = nullptr);
    static QDomElement loadDocumentElement(const QFileInfo &file, PxXMLFault &fault);
};
