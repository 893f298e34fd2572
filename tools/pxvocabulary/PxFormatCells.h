#pragma once

#include "format/PxFormatRows.h"

#include <QString>

/** Table cells of the documentation, in Markdown, as the row states them or derived from it. */
class PxFormatCells
{
public:
    static QString type(const PxAttributeRow &row);
    /** What is used if the attribute is absent or unreadable. */
    static QString absent(const PxAttributeRow &row);
    static QString absent(const PxElementRow &row);
};
