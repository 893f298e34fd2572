#pragma once

#include "check/source/PxSourceRange.h"

#include <QDomElement>
#include <QString>
#include <QVector>

/** An attribute and where it stands. */
struct PxSourceAttribute
{
    QString name;
    QString value; ///< with entities resolved and white space normalized, as the library sees it
    PxSourceRange nameRange;
    PxSourceRange valueRange; ///< without the quotes
};
Q_DECLARE_TYPEINFO(PxSourceAttribute, Q_MOVABLE_TYPE);

/** A text, a comment or a processing instruction between the tags of an element. */
struct PxSourceNode
{
    enum class Kind { Text, CharacterData, Comment, ProcessingInstruction };

    Kind kind = Kind::Text;
    QString text;
    PxSourceRange range;

    /** As in "a comment". */
    static QString kindText(Kind kind);
    bool isText() const { return kind == Kind::Text || kind == Kind::CharacterData; }
    /** A text of nothing but blanks, which the library does not count as a node. */
    bool isBlank() const { return kind == Kind::Text && text.trimmed().isEmpty(); }
};

/**
 * An element and where it stands: what the reading of files does not tell.
 *
 * Elements live as long as their PxSourceDocument.
 */
class PxSourceElement
{
public:
    QString name;
    PxSourceRange nameRange;
    PxSourceRange range; ///< from the start tag to behind the end tag
    QVector<PxSourceAttribute> attributes;
    const PxSourceElement *parent = nullptr;
    QVector<const PxSourceElement *> children;
    QVector<PxSourceNode> nodes; ///< all that is no element, but blank texts
    QDomElement dom;             ///< the same element as the library reads it

    /** Null when there is none. */
    const PxSourceAttribute *attribute(const char *attributeName) const;
    /** An empty text when there is no such attribute. */
    QString value(const char *attributeName) const;
    /** The value of an attribute as the library reads a whole number. */
    int number(const char *attributeName, int absent = 0) const;
    /** The value of an attribute; the name of the element when it is not there. */
    PxSourceRange rangeOf(const char *attributeName) const;
    /** Null when there is none. */
    const PxSourceElement *firstChild(const char *childName) const;
    QVector<const PxSourceElement *> childrenNamed(const char *childName) const;
    /** The text inside, from the first character that is no blank to behind the last one. */
    PxSourceRange textRange() const;
};
