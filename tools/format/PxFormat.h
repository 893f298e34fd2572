#pragma once

#include "format/PxFormatRows.h"

#include <QString>
#include <QStringList>

/**
 * What files may say: elements, attributes and keywords, with their defaults and meanings.
 *
 * The one table for all that tells authors about the format: checks, schemas and documentation. The
 * library reads the files by itself; a test holds the two against each other.
 */
class PxFormat
{
public:
    /** The document element of a kind of file. */
    static const PxElementRow &root(PxFileKind kind);
    /** By its path from the document element, as in "product/spines/spine"; null for no element. */
    static const PxElementRow *find(PxFileKind kind, const QString &path);
    /** Null for an element that is not read there. */
    static const PxElementRow *child(const PxElementRow &parent, const QString &name);
    /** Whether it is a usual name of such an element. */
    static bool isChildName(const PxElementRow &parent, const QString &name);
    /** Null for an attribute that is not read. */
    static const PxAttributeRow *attribute(const PxElementRow &element, const QString &name);
    /** The usual names. */
    static QStringList childNames(const PxElementRow &parent);
    static QStringList attributeNames(const PxElementRow &element);

    /** The set is not None. */
    static const PxKeywordSetRow &keywords(PxKeywordSet set);
    static QStringList keywordNames(PxKeywordSet set);
    /** Whether the library knows the word, in any case and with blanks around it. */
    static bool isKeyword(PxKeywordSet set, const QString &word);
    /** What the library reads a text as: the value, and its keywords. */
    static int decode(PxKeywordSet set, const QString &text);
    static QString decoded(PxKeywordSet set, const QString &text);
    /** The keyword of a value, or those of its bits. */
    static QString encode(PxKeywordSet set, int value);
};
