#pragma once

#include "check/source/PxSourceElement.h"
#include "format/PxFormatRows.h"

/** Tells what the library uses in place of an attribute that is missing or that it cannot read. */
class PxMissingValue
{
public:
    /** As in "0 is used"; empty when nothing of use can be said. */
    static QString text(const PxSourceElement &element, const PxAttributeRow &attribute);
    /**
     * What the library answers for an attribute of "product" or "usablesize" that does not decide
     * alone; empty for all others.
     */
    static QString answer(const PxSourceElement &element, const PxAttributeRow &attribute);
};
