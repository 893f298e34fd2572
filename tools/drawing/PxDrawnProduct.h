#pragma once

#include <geometry/PxBarcode.h>
#include <geometry/PxMargins.h>
#include <geometry/PxPageContext.h>
#include <geometry/PxSurroundingDescription.h>

#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

#include <PxProductType.h>

/** What is odd about a sheet, and said on it. The order is that of the notes. */
enum class PxDrawnNote {
    CountUnknown,
    BleedNegative,
    BleedOneSided,
    SafeEmpty,
    SpineZero,
    HeightsDiffer,
    MarginTooWide,
    ItemOutside,
    ItemCut,
    ItemEmpty,
    SpiralShortened,
    VerticalSpine,
    ThemeInvalid,
    ThemeLogo
};

/** A page on a sheet, as the library answers about it. Lengths are in the unit of the files. */
struct PxDrawnPage
{
    enum class Role { Back, Spine, Front, Left, Right, Page };

    int number = 0; ///< of the first page of the product that looks so
    PxPageContext context;
    Role role = Role::Page;
    QRect trim; ///< on the sheet, of which the upper left corner of what is trimmed is the origin
    PxMargins bleed;
    PxMargins safetyMargins;
    int foldMargin = 0;      ///< along the inner edge; 0 for none, as on covers
    int clamp = 0;           ///< along the inner edge; 0 for none
    int spineTextHeight = 0; ///< of a spine
    bool hasSpineLogo = false;
    bool isPrinted = true;                ///< false for an empty page
    bool takesContent = true;             ///< whether designs may be put on it
    PxSurroundingDescription surrounding; ///< invalid for none
    PxBarcode barcode; ///< invalid for none; one without an area is invalid, too, but has an image
    bool hasPageNumber = false;
    QPoint pageNumber;          ///< its place on the page, if it has one
    QString layoutTemplate;     ///< with a theme only
    QString backgroundTemplate; ///< with a theme only

    /** The place of the page with its bleed, on the sheet. */
    QRect total() const
    {
        return trim.adjusted(-bleed.left(), -bleed.top(), bleed.right(), bleed.bottom());
    }
};

/** What one would lay on the table in one piece. */
struct PxDrawnSheet
{
    enum class Kind { Cover, Spread, Page };

    Kind kind = Kind::Page;
    int index = 0;              ///< among the sheets of the product, from 0
    QVector<PxDrawnPage> pages; ///< from left to right, without gap or overlap
    /** All page numbers of the product that look like this sheet, ascending. */
    QVector<int> standsFor;
    QRect trim;           ///< the union of the pages
    QRect total;          ///< the union of the pages with their bleed, and of the trim
    bool isCover = false; ///< chosen by "cover": also the front and the back of a calendar
    bool isRound = false;
    int spiralLoops = 0; ///< as drawn
    bool hasHook = false;
    bool hasHole = false;
    QVector<PxDrawnNote> notes; ///< ascending; about the whole product on the first sheet
};

/** A product with one page count: everything that a drawing of it tells. */
struct PxDrawnProduct
{
    PxProductType type;
    QString className; ///< as in the product types: "book"
    int pageCount = 0;
    int listedPages = 0; ///< all pages, covers and spine included
    QString binding;     ///< as displayed
    QString paper;       ///< as displayed
    QString file;        ///< in the catalogue, with "/": "products/book.xml"
    QString themeId;     ///< empty for none
    QString theme;       ///< as displayed
    bool hasHorizontalPages = true;
    QVector<PxDrawnSheet> sheets;
    /** Why nothing can be drawn, for one line on stderr; empty if all can be. */
    QString problem;
};
