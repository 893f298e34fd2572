#pragma once

#include "check/findings/PxCheckTag.h"

#include <QString>

/** What a tag means, as Markdown. */
class PxTagHelp
{
public:
    /** The severity, the explanation and the example. */
    static QString markdown(const PxCheckTag &tag);
    /** A text of which Markdown shows every character. */
    static QString escaped(const QString &text);
    /** Where the documentation of the tag is. */
    static QString url(const PxCheckTag &tag);
};
