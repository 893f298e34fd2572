#pragma once

#include "format/PxFormatRows.h"

#include <QString>

/** Cells of the tables in the documentation, in Markdown: as written in the row, or from its facts.
 */
class PxFormatCells
{
public:
    static QString type(const PxAttributeRow &row);
    /** What is used if the attribute is absent or unreadable. */
    static QString absent(const PxAttributeRow &row);
    static QString absent(const PxElementRow &row);
};
