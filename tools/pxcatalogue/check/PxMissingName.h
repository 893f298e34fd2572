#pragma once

#include "check/PxCheckedProduct.h"

#include <QStringList>

/**
 * Tells whether something is missing only because its name is wrong.
 *
 * Whoever misspells a name is told so at that place, and need not be told twice.
 */
class PxMissingName
{
public:
    /** Whether the element has an attribute whose name is nearer to `wanted` than to `others`. */
    static bool isMisspelt(const PxSourceElement &element, const QString &wanted,
                           const QStringList &others = {});
    /** Whether a child that the product lacks is misspelt, or stands elsewhere in the file. */
    static bool isMisplaced(const PxCheckedProduct &product, const QString &wanted);
};
