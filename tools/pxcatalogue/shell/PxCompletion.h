#pragma once

#include "writing/PxOutputText.h"

#include <QStringList>

/**
 * What a shell may put in place of the word that is being typed.
 *
 * A candidate is a line, with a tab and a description behind it if there is one. A line ":files" or
 * ":directories" asks the shell for its own completion of paths.
 */
class PxCompletion
{
public:
    /** The words behind the name of the program; the last one is being typed and may be empty. */
    static PxOutputText of(const QStringList &words);
};
