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

    /** Empty if the parser's own message is not improved; hint and range are then empty, too. */
    QString message() const { return m_message; }
    QString hint() const { return m_hint; }
    PxSourceRange range() const { return m_range; }

private:
    QString m_message;
    QString m_hint;
    PxSourceRange m_range;
};
