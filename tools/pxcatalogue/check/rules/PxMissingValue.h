#pragma once

#include "check/source/PxSourceElement.h"
#include "format/PxFormatRows.h"

/** What the library uses instead of an attribute that is missing or that it cannot read. */
class PxMissingValue
{
public:
    /** As in "0 is used"; may be empty. */
    static QString text(const PxSourceElement &element, const PxAttributeRow &attribute);
    /**
     * What the library answers for an attribute of "product" or "usablesize" whose default depends
     * on others; empty for all other attributes.
     */
    static QString answer(const PxSourceElement &element, const PxAttributeRow &attribute);
};
