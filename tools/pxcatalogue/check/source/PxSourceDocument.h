#pragma once

#include "check/source/PxPlace.h"
#include "check/source/PxSourceElement.h"

#include <deque>

/**
 * The text of an XML file and its elements, each with its place.
 *
 * It only looks for markup and does not check whether the text is well-formed. If it is not, some
 * of the elements may be missing.
 */
class PxSourceDocument
{
public:
    explicit PxSourceDocument(const QString &text);
    Q_DISABLE_COPY(PxSourceDocument)

    QString text() const { return m_text; }
    /** Null if there is no document element. */
    const PxSourceElement *root() const { return m_root; }
    /** Comments and processing instructions before the document element. */
    QVector<PxSourceNode> prolog() const { return m_prolog; }
    /** Calls `visit(element)` for each element, in the order of their start tags. */
    template <typename Visit>
    void forEachElement(Visit visit) const
    {
        for (const PxSourceElement &element : m_elements)
            visit(element);
    }
    /**
     * Connects each element with the one that the library has read from the same file, and takes
     * the values of attributes from there. Returns false if the elements do not match.
     */
    bool connectTo(const QDomElement &root);

    /** A line, counted from 1, without its end; empty if there are not so many. */
    QStringView line(int number) const;
    /** The place of a range, without a path. Columns count characters, like editors. */
    PxPlace place(const PxSourceRange &range) const;
    /**
     * The place of one character, or of the end of the text. `line` and `column` count from 1, the
     * column in UTF-16 units.
     */
    PxPlace place(int line, int column) const;
    /** Whether a line ends with this character: CR, LF and CRLF are line ends. */
    static bool endsLine(const QString &text, int index);

private:
    void findLines();
    void read();
    void readText(int begin, int end);
    int readMarkup(int begin);
    int readNode(int begin, const char *opening, const char *closing, PxSourceNode::Kind kind);
    void addNode(const PxSourceNode &node);
    int readStartTag(int begin);
    int readEndTag(int begin);
    int behindDocumentType(int begin) const;
    int behind(const char *token, int from) const;
    QPair<int, int> lineAndColumn(int index) const;

    QString m_text;
    QVector<int> m_lineStarts;
    QVector<int> m_secondHalves;            // indexes of low surrogates
    std::deque<PxSourceElement> m_elements; // a deque, because addresses must not change
    const PxSourceElement *m_root = nullptr;
    QVector<PxSourceElement *> m_open; // elements without an end tag so far
    QVector<PxSourceNode> m_prolog;
};
