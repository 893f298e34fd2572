#pragma once

#include "check/source/PxSourceElement.h"
#include "format/PxFormatRows.h"

#include <QStringList>

#include <initializer_list>
#include <optional>

/** Something that is missing in an element. */
struct PxMissingPart
{
    /** What was probably written instead; if nothing was, its empty value or the element. */
    PxSourceRange range;
    QString hint; ///< empty if nothing looks like it

    QString hintOr(const QString &other) const { return hint.isEmpty() ? other : hint; }
};

/**
 * How the library reads an element, and whether it reads just what is written.
 *
 * If it does not, another finding already says so; do not report its consequences.
 */
class PxElementReading
{
public:
    /** The element stands where the library reads it in such a file. It must outlive this. */
    explicit PxElementReading(const PxSourceElement &element,
                              PxFileKind kind = PxFileKind::Product);
    /** The row is that of the element, in any file. */
    PxElementReading(const PxSourceElement &element, const PxElementRow &row)
        : m_element(element)
        , m_row(row)
    {}

    const PxSourceElement &element() const { return m_element; }
    /** There are no unknown attributes, which might be misspelt ones. */
    bool hasOnlyKnown() const;
    bool isGiven(const char *attribute) const { return m_element.attribute(attribute); }
    /** The attribute is missing, but another one looks like a misspelling of it. */
    bool isMisspelt(const char *attribute) const { return misspelling(attribute); }
    /** For a finding about an attribute that is missing or empty. */
    PxMissingPart missing(const char *attribute) const;
    /** For a finding about the text, which may have been written as an attribute. */
    PxMissingPart missingText() const;
    /** Those of the attributes that are not given. */
    QStringList missingOf(std::initializer_list<const char *> attributes) const;
    /** The attribute is missing, or can be read. */
    bool isReadable(const char *attribute) const;
    /** The same of an attribute that is there, and its row. */
    static bool isReadable(const PxSourceElement &element, const PxSourceAttribute &attribute,
                           const PxAttributeRow &row);
    /** The attribute is there, and a whole number. */
    bool isNumber(const char *attribute) const
    {
        return isGiven(attribute) && isReadable(attribute);
    }
    int number(const char *attribute, int absent = 0) const;

    /** The attribute that may be meant by a name, and is not given; empty for none. */
    QString meant(const QString &name) const;
    /** Where to look for what was meant for a child. */
    enum class Search { Everywhere, Inside };
    /** For a finding about a child that is missing. */
    PxMissingPart missingChild(const char *name, Search search = Search::Everywhere) const;
    /** The same for all entries of a list, which may have been written as text. */
    PxMissingPart missingEntries() const;

private:
    QStringList namesOfMissing() const;
    const PxSourceAttribute *misspelling(const char *attribute) const;
    const PxSourceElement *misplacedChild(const char *name, Search search) const;
    const PxSourceElement *findBelow(const PxSourceElement &parent, const char *name,
                                     int *left) const;

    const PxSourceElement &m_element;
    const PxElementRow &m_row;
    mutable std::optional<bool> m_hasOnlyKnown;
};
