#pragma once

#include "check/source/PxSourceRange.h"

#include <QString>

/** Describes, in words that authors understand, what stopped an XML parser. */
class PxParserWords
{
public:
    /**
     * The parser has stopped at the last character of the text. `token` is where the tag, comment
     * or text begins in which it stopped.
     */
    PxParserWords(const QString &textUpToFault, int token);

    /** Whether the mistake is known; if not, the message only says what cannot be read. */
    bool isCertain() const { return m_isCertain; }
    QString message() const { return m_message; }
    QString hint() const { return m_hint; }
    PxSourceRange range() const { return m_range; }

    /** For example "the control character U+0001". */
    static QString nameOf(QChar character);
    /** Whether it is a control character other than blanks, or no character at all. */
    static bool isForbidden(QChar character);

private:
    void set(const PxSourceRange &range, const QString &message, const QString &hint);
    bool findForbidden(const QString &text);
    bool findStrange(const QString &text, int token);
    bool findPattern(const QString &text, int token);
    bool findInDeclaration(const QString &text);
    void describe(const QString &text, int token);

    bool m_isCertain = true;
    QString m_message;
    QString m_hint;
    PxSourceRange m_range;
};
