#pragma once

#include <QString>
#include <QVector>

#include <cstddef>

/** The rows of a table. They live as long as the program. */
template <typename ROW>
class PxRows
{
public:
    constexpr PxRows() = default;
    template <std::size_t COUNT>
    constexpr PxRows(const ROW (&array)[COUNT]) : m_first(array)
                                                , m_count(int(COUNT))
    {}

    constexpr const ROW *begin() const { return m_first; }
    constexpr const ROW *end() const { return m_first + m_count; }
    constexpr int size() const { return m_count; }
    constexpr bool isEmpty() const { return m_count == 0; }

private:
    const ROW *m_first = nullptr;
    int m_count = 0;
};

/** The kinds of files that authors write. */
enum class PxFileKind { Product, Theme, UserDefaults, ProductTypes, Frames };

/** The keyword tables. */
enum class PxKeywordSet {
    None,
    Binding,
    Paper,
    SizeClass,
    PageType,
    PageNamingStyle,
    AssemblyWay,
    ImageEffect,
    SurroundingType,
    Alignment,
    ProductGroup,
    Orientation,
    Material,
    ProductClass,
};

/** What the value of an attribute is. */
enum class PxValueType {
    Integer,
    Length, ///< a whole number of tenths of a millimetre
    Boolean,
    Text,
    TextList,
    Path,
    DateTime,
    Keyword,     ///< read as a list, though only one keyword makes sense
    KeywordList, ///< the values of the keywords add up
    OneKeyword,  ///< not read as a list
    PageRange,
    RectanglePart, ///< one of x, y, width and height, each a length
    ProductName,
};

/**
 * What the documentation of the file format says about an attribute, in Markdown.
 *
 * If `type` or `absent` is null, the cell is derived from the other fields of the row.
 */
struct PxAttributeCells
{
    /** Null if the attribute shares the table line of the attribute before it. */
    const char *meaning = nullptr;
    const char *absent = nullptr; ///< what is used if it is absent or unreadable
    /**
     * A reference to the section that documents the attribute, if the main table of the element
     * does not. That table has one line for adjacent attributes with the same reference, which is
     * then the meaning.
     */
    const char *section = nullptr;
    const char *type = nullptr;
};

/** An attribute of an element. */
struct PxAttributeRow
{
    const char *name;
    PxValueType type;
    /** The text that the library reads like a missing attribute, or null if no text does that. */
    const char *defaultText;
    PxAttributeCells cells;
    /**
     * What happens if the attribute is absent or unreadable, apart from using the default; "none"
     * if the default means that there is no value. Plain text, with names in quotes.
     */
    const char *consequence = nullptr;
    PxKeywordSet keywords = PxKeywordSet::None;
};

/** Which of the children of an element the library reads. */
enum class PxOccurrence {
    First,   ///< the first with the name
    Any,     ///< all with the name
    AnyName, ///< all, whatever their names; the row has the usual name
};

/** How the library reads the text between the tags of an element. */
enum class PxTextKind { None, Text, Integer, NumberList, PageTypes, ProductName };

/** What the documentation of the file format says about an element, in Markdown. */
struct PxElementCells
{
    const char *meaning;
    const char *contents = nullptr; ///< in the columns "Contents" and "Type"
    const char *absent = nullptr;   ///< replaces PxElementRow::absent
};

/** An element, and what it may contain. */
struct PxElementRow
{
    const char *name;
    PxOccurrence occurrence;
    PxTextKind text;
    PxRows<PxAttributeRow> attributes;
    PxRows<PxElementRow> children;
    PxElementCells cells;
    /** What is used if it is absent or empty. Plain text, with names in quotes. */
    const char *absent = nullptr;
};

/** What the documentation of the file format says about the keywords of a value. */
struct PxKeywordCells
{
    int value;
    const char *meaning;        ///< may be empty
    const char *size = nullptr; ///< of a page of this type
    const char *note = nullptr; ///< in parentheses after the keyword
};

/** A keyword with its value and meaning. */
struct PxKeywordTableRow
{
    QString keyword;
    int value; ///< 0 in sets whose keywords have no values
    /** Null for a synonym of the keyword above; empty if there is nothing to say. */
    QString meaning;
    const char *size;
    const char *note;
};

/** A keyword table. */
struct PxKeywordSetRow
{
    PxKeywordSet set;
    const char *name; ///< singular
    QVector<PxKeywordTableRow> keywords;
    int defaultValue;        ///< the value of an unknown word or an empty entry
    const char *defaultText; ///< the same in words
    /** Asks the library whether it knows a word. */
    bool (*isKeyword)(const QString &word);
    /** Asks the library which value it reads from a text; in most sets this may be a list. */
    int (*decode)(const QString &text);
};
