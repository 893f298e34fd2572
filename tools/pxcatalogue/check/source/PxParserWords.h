#pragma once

#include "check/source/PxSourceRange.h"

#include <QString>

/** Says in the words of an author what a parser stumbles over. */
class PxParserWords
{
public:
    /**
     * The parser has stopped at the last character of the text, in what begins with `token`: a tag,
     * a comment, or a text.
     */
    PxParserWords(const QString &textUpToFault, int token);

    /** Empty when there is nothing better to say; then there is neither hint nor range. */
    QString message() const { return m_message; }
    QString hint() const { return m_hint; }
    PxSourceRange range() const { return m_range; }

private:
    QString m_message;
    QString m_hint;
    PxSourceRange m_range;
};
