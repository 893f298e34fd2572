#pragma once

#include "PxXMLExport.h"
#include "PxXMLFault.h"

#include <QDomDocument>
#include <QFileInfo>
#include <QString>

/**
 * Loads XML files of unknown origin safely.
 *
 * All functions return a null node, never a part of a tree, if the file cannot be opened, is not
 * well-formed XML or exceeds a limit. They put the reason into `fault`, or into `error` as one line
 * `FILE:LINE:COLUMN: message`; line and column count from 1, and are 0:0 if the fault has no place
 * in the text. Success clears `error`. Nothing is logged.
 *
 * The tree is that of QDomDocument::setContent() without namespace processing, with these
 * differences: nodes do not know their line and column; line ends, and white space in attribute
 * values, are normalized as XML demands; references to characters beyond U+FFFF give these
 * characters; the name of a document type has no prefix; names of attributes and document types may
 * have characters behind the first one that setContent() refuses, but no control characters; a
 * document type declaration with control characters other than tabs and line ends is refused.
 *
 * Documents can be loaded and destroyed in any thread with a stack of 512 KB or more.
 */
class PXXML_EXPORT PxXMLLoader
{
public:
    // No honest file comes near these limits, and reading larger files would take more time, memory
    // or stack than an unknown file may cost. Another platform may have other limits, so do not
    // compare with these numbers: ask the fault for its kind.
    /** Bytes per file. */
    static constexpr int maximumFileSize = 8 * 1024 * 1024;
    /** Elements nested in each other, including the document element. */
    static constexpr int maximumDepth = 256;
    /** Attributes per tag. */
    static constexpr int maximumAttributes = 256;
    /**
     * Elements, attributes, texts, CDATA sections, comments and processing instructions per file.
     */
    static constexpr int maximumNodes = 200000;

    /** The whole document; null if there is a fault. */
    static QDomDocument loadDocument(const QFileInfo &file, QString *error = nullptr);
    /** The same with the fault as a value. */
    static QDomDocument loadDocument(const QFileInfo &file, PxXMLFault &fault);
    /**
     * The document element alone, without the comments and other nodes around it. It belongs to no
     * document and stays usable without one.
     */
    static QDomElement loadDocumentElement(const QFileInfo &file, QString *error = nullptr);
    /** The same with the fault as a value. */
    static QDomElement loadDocumentElement(const QFileInfo &file, PxXMLFault &fault);
};
