#pragma once

#include "format/PxFormatRows.h"

#include <QString>
#include <QStringList>

/**
 * The file format: elements, attributes and keywords, with their defaults and meanings.
 *
 * Checks, schemas and documentation all take it from here. The library has readers of its own; a
 * test compares them with these rows, both ways.
 */
class PxFormat
{
public:
    /** The document element of a kind of file. */
    static const PxElementRow &root(PxFileKind kind);
    /** By its path from the document element, as in "product/spines/spine"; null if not read. */
    static const PxElementRow *find(PxFileKind kind, const QString &path);
    /** Null for an element that the library does not read there. */
    static const PxElementRow *child(const PxElementRow &parent, const QString &name);
    /** Whether a row has this name; child() may also find rows that allow any name. */
    static bool isChildName(const PxElementRow &parent, const QString &name);
    /** Null for an attribute that the library does not read. */
    static const PxAttributeRow *attribute(const PxElementRow &element, const QString &name);
    /** The names of the rows. */
    static QStringList childNames(const PxElementRow &parent);
    static QStringList attributeNames(const PxElementRow &element);

    /** The set must not be None. */
    static const PxKeywordSetRow &keywords(PxKeywordSet set);
    static QStringList keywordNames(PxKeywordSet set);
    /** Whether the library knows the word, in any case and with white space around it. */
    static bool isKeyword(PxKeywordSet set, const QString &word);
    /** The value that the library reads a text as, and the keywords of that value. */
    static int decode(PxKeywordSet set, const QString &text);
    static QString decoded(PxKeywordSet set, const QString &text);
    /** The keyword of a value, or the keywords of its bits. */
    static QString encode(PxKeywordSet set, int value);
};
