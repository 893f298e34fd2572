#pragma once

#include "check/source/PxCheckedProduct.h"

/** Checks whether images that a product names are there. */
class PxImageCheck
{
public:
    /** The attribute "image" of the element; `name` is what the library makes of it. */
    static void run(const PxCheckedProduct &product, const PxSourceElement &element,
                    const QString &name, PxFindings *findings);
};
