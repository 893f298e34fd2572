#pragma once

#include "check/PxSourceElement.h"

#include <initializer_list>

/**
 * Whether the library reads just what is written.
 *
 * Where it does not, that is a finding already, and what follows from it shall be none.
 */
class PxPlainReading
{
public:
    /** There are no other attributes, which might be misspelt ones of these. */
    static bool hasOnly(const PxSourceElement &element,
                        std::initializer_list<const char *> attributes);
    /** The attribute is missing, and none of the others looks like a misspelling of it. */
    static bool isMissing(const PxSourceElement &element, const char *attribute);

    // The attribute is missing, or can be read
    static bool isInt(const PxSourceElement &element, const char *attribute);
    static bool isBool(const PxSourceElement &element, const char *attribute);
    static bool isPageTypes(const PxSourceElement &element, const char *attribute);
    static bool isAlignments(const PxSourceElement &element, const char *attribute);
    static bool isSurroundingType(const PxSourceElement &element, const char *attribute);
    static bool isBindings(const PxSourceElement &element, const char *attribute);
};
