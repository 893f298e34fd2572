#pragma once

#include "format/PxFormatRows.h"

#include <QStringList>

/** Where a row of origins holds, if not for every product and in every row of a table. */
enum class PxOriginCase {
    Always,
    Given,   ///< the first input is there, and not the text that means the default
    Written, ///< the first input is not empty
    Asked,   ///< the page count is from the command line
    Sold,    ///< the product says with how many pages it is sold
    Legacy,
    Book,
    Calendar,
    Pieces,     ///< gifts, cards and decoration
    WideSpines, ///< a book whose spines gain what the covers lose
    Spines,     ///< the product has a table of spines
    Simplex,
    SpineKind, ///< the page in this row is the spine, …
    SizeOfCover,
    BleedOfCover,
    NormalPage,
    EmptyPage, ///< … a page that stays empty
};

/**
 * Where a value of the report about a product comes from. The first row that holds is used.
 *
 * Inputs are separated by blanks; of those joined by "|" the first that is there counts:
 * - "/sizes/page" is another value, "/pageKinds/&#42;/bleed" one in the same row of a table;
 * - "@binding", "usablesize@width" and "pages" are attributes and elements of the product file,
 *   below its "product"; "[…]" says which one of several elements is meant;
 * - the same with "theme:" is below the "theme", with "type:" below the "producttype";
 * - "asked:pages", "asked:theme" and "clock:" are none of files.
 */
struct PxOriginRow
{
    const char *pointer; ///< to the value in the JSON; "*" is any row of a table
    const char *inputs;
    /** A formula or what the value means, with %1 for the first input; null if it is an input. */
    const char *rule = nullptr;
    PxOriginCase when = PxOriginCase::Always;
};

/** Where the values of the report come from, as far as it follows from the format. */
class PxOriginRows
{
public:
    static PxRows<PxOriginRow> all();
    /** The rows of a value, or of a pattern of values. */
    static QVector<const PxOriginRow *> of(const QString &pointer);
    /**
     * The other values of the report from which a value is computed, as JSON pointers. A pointer
     * may lead to a part, such as "/sizes/coverBleed/top".
     */
    static QStringList inputsOf(const QString &pointer);
    /** "/pageKinds/3/bleed" as "/pageKinds/&#42;/bleed". */
    static QString patternOf(const QString &pointer);
};
