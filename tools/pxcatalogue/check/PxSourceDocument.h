#pragma once

#include "check/PxPlace.h"
#include "check/PxSourceElement.h"

#include <QXmlStreamReader>

#include <deque>

/**
 * The text of an XML file, its elements and where each thing stands.
 *
 * Reading is strict and stops at the first fault; what stands before it is kept.
 */
class PxSourceDocument
{
public:
    enum class Fault {
        None,
        NotWellFormed,
        EndMissing,
        EndTagWrong,
        AttributeTwice,
        EntityUndeclared,
    };

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
     * Connects the elements with those of the same file as the library reads them. Answers false
     * when it is not the same file.
     */
    bool connectTo(const QDomElement &root);

    Fault fault() const { return m_fault; }
    /** The innermost element whose end tag has not come before the fault; null for none. */
    const PxSourceElement *unclosed() const { return m_open.isEmpty() ? nullptr : m_open.last(); }
    /** What is wrong, as the parser says it, and where: the name in question if there is one. */
    QString faultMessage() const { return m_faultMessage; }
    PxSourceRange faultRange() const { return m_faultRange; }

    /** In characters, as editors count them; without a path. */
    PxPlace place(const PxSourceRange &range) const;

private:
    void read();
    int nextBegin(QXmlStreamReader::TokenType token, int end) const;
    void readStartTag(QXmlStreamReader &reader, int begin);
    void readNode(const QXmlStreamReader &reader, int begin, int end);
    void classifyFault(const QXmlStreamReader &reader, int begin);
    bool findUndeclaredEntity(int end);
    bool findWrongEndTag(int begin, int end);
    void findSecondAttribute(int begin, int end);
    QPair<int, int> lineAndColumn(int index) const;

    QString m_text;
    QVector<int> m_lineStarts;
    QVector<int> m_secondHalves;            // of the characters that are two in the text
    std::deque<PxSourceElement> m_elements; // whose addresses stay
    const PxSourceElement *m_root = nullptr;
    QVector<PxSourceElement *> m_open; // elements whose end tag has not come yet
    QVector<PxSourceNode> m_prolog;
    Fault m_fault = Fault::None;
    QString m_faultMessage;
    PxSourceRange m_faultRange;
};
