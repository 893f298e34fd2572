#pragma once

#include "format/PxFormatRows.h"

#include <QString>
#include <QVector>

/** When a row of origins holds. */
enum class PxOriginCase {
    Always,
    Given,      ///< the first input is there, and not the text that means the default
    Written,    ///< the first input is there, if only as a word that nobody knows
    Missing,    ///< one of the inputs is not there
    Asked,      ///< the page count is from the command line
    Sold,       ///< the product says with how many pages it is sold
    Legacy,     ///< the product is of an earlier catalogue
    Book,       ///< the product is of this class, …
    Calendar,   ///< …
    Pieces,     ///< … gifts, cards and decoration
    WideSpines, ///< a book whose spines gain what the covers lose
    Spines,     ///< a book with spines
    NoSpine,    ///< a book without a spine for the page count
    Simplex,    ///< the binding is one-sided
    // Of rows that are about a kind of page
    SpineKind,
    CoverSize,  ///< it is as large as the cover
    CoverBleed, ///< it has the bleed of the cover
    NormalPage,
    WhitePage, ///< it stays empty, and the product is shown in a theme
};

// Where a value of the report about a product comes from. The first row that holds is used.
//
// Inputs are separated by blanks; of those joined by "|" the first that is there counts:
// - "/sizes/page" is another value, "/pageKinds/*/bleed" one in the same row of the table;
// - "@binding", "usablesize@width" and "pages" are attributes and elements of the product file,
//   below its "product"; "[…]" says which one of several elements is meant;
// - "user:", "theme:" and "type:" are below the defaults of the user, the theme and the row of the
//   product type; "replaced:" and "successor:" are below other products;
// - "asked:" is the command line, "file:" the product file as a whole, "clock:" the time.
//
// What stands behind a ";" chooses between elements. The row of a table ("/barcodes/*") has what
// chooses for all its values.
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
    /** The rows of a value, or of a pattern of values, in their order. */
    static QVector<const PxOriginRow *> of(const QString &pattern);
    // "/pageKinds/3/bleed" as "/pageKinds/*/bleed".
    static QString patternOf(const QString &pointer);
};
