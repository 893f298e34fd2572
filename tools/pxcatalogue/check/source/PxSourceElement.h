#pragma once

#include "check/source/PxSourceRange.h"

#include <QDomElement>
#include <QString>
#include <QVector>

/** An attribute with its place. */
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

    /** For example "a comment". */
    static QString kindText(Kind kind);
    bool isText() const { return kind == Kind::Text || kind == Kind::CharacterData; }
    /** Whether this is a text of blanks only, which the library does not count as a node. */
    bool isBlank() const { return kind == Kind::Text && text.trimmed().isEmpty(); }
};

/**
 * An element with its place, which the library's reader does not provide.
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
    QVector<PxSourceNode> nodes; ///< all other child nodes, except blank texts
    QDomElement dom;             ///< the same element as the library reads it

    /** Null if there is none. */
    const PxSourceAttribute *attribute(const char *attributeName) const;
    /** Empty if there is no such attribute. */
    QString value(const char *attributeName) const;
    /** The value of an attribute as the library reads a whole number. */
    int number(const char *attributeName, int absent = 0) const;
    /** The range of an attribute's value, or of the element's name if the attribute is missing. */
    PxSourceRange rangeOf(const char *attributeName) const;
    /** Null if there is none. */
    const PxSourceElement *firstChild(const char *childName) const;
    QVector<const PxSourceElement *> childrenNamed(const char *childName) const;
    /** The range of the text inside, without the blanks around it. */
    PxSourceRange textRange() const;
};
