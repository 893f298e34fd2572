#pragma once

#include "format/PxFormatRows.h"

#include <QString>
#include <QStringList>

/**
 * The file format: elements, attributes and keywords, with their defaults and meanings.
 *
 * Checks, schemas and documentation are made from it. The library has its own readers; a test
 * compares them with these rows in both directions.
 */
class PxFormat
{
public:
    /** The document element of a kind of file. */
    static const PxElementRow &root(PxFileKind kind);
    /**
     * The element at a path below the document element, such as "product/spines/spine"; null if the
     * library does not read it.
     */
    static const PxElementRow *find(PxFileKind kind, const QString &path);
    /** Null for an element that the library does not read there. */
    static const PxElementRow *child(const PxElementRow &parent, const QString &name);
    /** Whether the row of a child has this name; child() also finds rows that allow any name. */
    static bool isChildName(const PxElementRow &parent, const QString &name);
    /** Null for an attribute that the library does not read. */
    static const PxAttributeRow *attribute(const PxElementRow &element, const QString &name);
    static QStringList childNames(const PxElementRow &parent);
    static QStringList attributeNames(const PxElementRow &element);

    /** The set must not be None. */
    static const PxKeywordSetRow &keywords(PxKeywordSet set);
    static QStringList keywordNames(PxKeywordSet set);
    /** The first keyword of each meaning, without its synonyms. */
    static QStringList mainKeywordNames(PxKeywordSet set);
    /** Whether the library accepts the word as a keyword of the set. */
    static bool isKeyword(PxKeywordSet set, const QString &word);
    /** The value that the library reads from a text. */
    static int decode(PxKeywordSet set, const QString &text);
    /** The keywords of that value. */
    static QString decoded(PxKeywordSet set, const QString &text);
    /** The keyword of a value, or the keywords of its bits. */
    static QString encode(PxKeywordSet set, int value);
};
