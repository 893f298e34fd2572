#pragma once

#include "check/source/PxPlace.h"
#include "check/source/PxSourceElement.h"

#include <deque>

/**
 * The text of an XML file, its elements and where each thing stands.
 *
 * Looks for markup only: whether the text is well-formed is for others to say. Of a text that is
 * not, some elements are found.
 */
class PxSourceDocument
{
public:
    explicit PxSourceDocument(const QString &text);
    Q_DISABLE_COPY(PxSourceDocument)

    QString text() const { return m_text; }
    /** Null when there is no document element. */
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
     * Connects the elements with those of the same file as the library reads them, and takes the
     * values of their attributes from there. Answers false when it is not the same file.
     */
    bool connectTo(const QDomElement &root);

    /** In characters, as editors count them; without a path. */
    PxPlace place(const PxSourceRange &range) const;
    /** Of one character, or the end of the text; line and column, in UTF-16 units, count from 1. */
    PxPlace place(int line, int column) const;

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
    QVector<int> m_secondHalves;            // of the characters that are two in the text
    std::deque<PxSourceElement> m_elements; // whose addresses stay
    const PxSourceElement *m_root = nullptr;
    QVector<PxSourceElement *> m_open; // elements whose end tag has not come yet
    QVector<PxSourceNode> m_prolog;
};
