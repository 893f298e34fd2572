#pragma once

#include <QStringList>

/** The names of all product types that the library knows. */
class PxProductTypeNames
{
public:
    /** Read on first use; empty when no product is known. */
    static const QStringList &all();
};
