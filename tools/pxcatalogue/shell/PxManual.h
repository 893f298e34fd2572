#pragma once

#include "writing/PxOutputText.h"

/** The manual page of the program, in the language of man(7). */
class PxManual
{
public:
    static PxOutputText text();
};
