#pragma once

#include <themes/PxThemeList.h>

class PxJsonLine;
class PxReport;

/** A table of themes. */
class PxThemeTable
{
public:
    /** Sorts them by id. Themes with the same id keep their order. */
    static void addTo(PxReport *report, PxThemeList themes);

    /** Sorts them by id, and those with the same id by what they contain. */
    static PxThemeList sorted(PxThemeList themes);
    /** Adds what is exported of the row of one theme. */
    static void addTo(PxJsonLine *line, const PxTheme &theme);
    /** Adds what is exported of a theme as single values. */
    static void addFieldsTo(PxReport *report, const PxTheme &theme);
};
