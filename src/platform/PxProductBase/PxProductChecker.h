#pragma once

#include "PxProductBaseExport.h"

class PxProductType;

/**
 * Answers whether product types can be ordered, and how many pages they may have. Called from any
 * thread.
 */
class PXPRODUCTBASE_EXPORT PxProductChecker
{
public:
    PxProductChecker() = default;
    PxProductChecker(const PxProductChecker &other) = default;
    PxProductChecker &operator=(const PxProductChecker &other) = default;

    // Applications are built against this order of the virtual operations: append, never reorder.
    virtual ~PxProductChecker();
    /** Whether the product can be ordered. */
    virtual bool isValid(const PxProductType &type) const = 0;
    /** The kind of this checker, by which the registry selects checkers; never 0. */
    virtual int type() const = 0;
    /** The smallest page count of the product. */
    virtual int minPages(const PxProductType &type) const = 0;
    /** The largest page count of the product. */
    virtual int maxPages(const PxProductType &type) const = 0;
    /** By how many pages a product grows or shrinks at a time. */
    virtual int pageIncrement(const PxProductType &type) const = 0;
};
