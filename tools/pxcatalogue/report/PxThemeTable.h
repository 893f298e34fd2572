#pragma once

#include <themes/PxThemeList.h>

#include <QJsonObject>

class PxReport;

/** A table of themes. */
class PxThemeTable
{
public:
    /** Sorts them by id. Themes with the same id keep their order. */
    static void addTo(PxReport *report, PxThemeList themes);

    /** Sorts them by id, and those with the same id by what they contain. */
    static PxThemeList sorted(PxThemeList themes);
    /** The row of one theme, by the keys of the columns. */
    static QJsonObject object(const PxTheme &theme);
};
