#pragma once

#include "check/source/PxSourceRange.h"

#include <QString>
#include <QVector>
#include <QXmlStreamReader>

/** What keeps a text from being well-formed, and where: the first fault of a strict reader. */
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
    /** The element that lacks its end tag, when that is the fault; else null. */
    const Element *unclosed() const { return m_isUnclosed ? &m_open.constLast() : nullptr; }
    /** What is wrong, in the parser's words where we have no better ones; at `range()`. */
    QString message() const { return m_message; }
    /** What to do, when more can be said than the message says; else empty. */
    QString hint() const { return m_hint; }
    PxSourceRange range() const { return m_range; }

private:
    void open(const QString &name, int begin);
    int nextBegin(QXmlStreamReader::TokenType token, int end) const;
    void classify(const QXmlStreamReader &reader, int begin);
    bool findUndeclaredEntity(int end);
    bool findWrongEndTag(int begin, int end);
    bool findLateDeclaration(int begin, int end);
    bool findSecondAttribute(int begin, int end);
    void findUnfinishedTag(int begin, int end);
    void findMarkupWithoutEnd(int begin);

    const QString m_text;
    QVector<Element> m_open; // elements whose end tag has not come yet
    Kind m_kind = Kind::None;
    bool m_isUnclosed = false; // the last of them, when that is the fault
    QString m_message;
    QString m_hint;
    PxSourceRange m_range;
};
