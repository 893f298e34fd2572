#pragma once

#include "check/source/PxSourceRange.h"

#include <QString>
#include <QVector>
#include <QXmlStreamReader>

/** The first fault that keeps a text from being well-formed XML, and its place. */
class PxSourceFault
{
public:
    enum class Kind {
        None,
        NotWellFormed,
        EndMissing,
        EndTagWrong,
        AttributeTwice,
        EntityUndeclared,
    };
    struct Element
    {
        QString name;
        PxSourceRange nameRange;
    };

    explicit PxSourceFault(const QString &text);

    Kind kind() const { return m_kind; }
    /** The element whose end tag is missing, if that is the fault; else null. */
    const Element *unclosed() const { return m_isUnclosed ? &m_open.constLast() : nullptr; }
    /** What is wrong at range(). */
    QString message() const { return m_message; }
    /** What the author can do; empty if the message says enough. */
    QString hint() const { return m_hint; }
    PxSourceRange range() const { return m_range; }

private:
    void open(const QString &name, int begin);
    int nextBegin(QXmlStreamReader::TokenType token, int end) const;
    void classify(bool isEnd, int begin, int end);
    void set(Kind kind, const PxSourceRange &range, const QString &message, const QString &hint);
    void findControlCharacterInNames(int begin, int end);
    void findControlCharacter(const PxSourceRange &range);
    bool findMergeMark(int begin, int end);
    bool findUndeclaredEntity(int end);
    bool findWrongEndTag(int begin, int end);
    bool findLateDeclaration(int begin, int end);
    bool findLateDocumentType(int begin, int end);
    bool findSecondAttribute(int begin, int end);
    bool findContentOutside(int begin, int end);
    bool findUnfinishedTag(int begin, int end);
    bool findMarkupWithoutEnd(int begin);
    void findMissingElement(int end);

    const QString m_text;
    QVector<Element> m_open; // elements without an end tag so far
    QString m_root;          // the name of the document element
    bool m_hasDocumentType = false;
    Kind m_kind = Kind::None;
    bool m_isUnclosed = false; // whether the fault is that the last of them is not closed
    QString m_message;
    QString m_hint;
    PxSourceRange m_range;
};
