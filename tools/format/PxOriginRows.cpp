#include "format/PxOriginRows.h"

#include <QHash>
#include <QStringList>

namespace {

using When = PxOriginCase;

// An offered product needs a binding, an orientation and a size. The first two have defaults, so
// rows about offers name only the width and the height.
// clang-format off
constexpr PxOriginRow rows[] = {
    {"/format", "", "of this output"},
    {"/lengthUnit", "", "of this output"},

    {"/product/name", "type:@name"},
    {"/product/shortName", "type:@shortname|type:@name"},
    {"/product/code", "type:@code"},
    {"/product/class", "type:@class"},
    {"/product/isOffered", "/product/isLegacy", "no product of an earlier catalogue is offered", When::Legacy},
    {"/product/isOffered", "usablesize@width usablesize@height", "whether the page has a size"},
    {"/product/isLegacy", "file:"},
    {"/product/file", "file:"},
    {"/product/binding", "@binding"},
    {"/product/paper", "@paper"},
    {"/product/orientation", "usablesize@orientation|@orientation", nullptr, When::Given},
    {"/product/orientation", "/sizes/page", "shape of the page"},
    {"/product/space", "usablesize@space", nullptr, When::Written},
    {"/product/space", "@space"},
    {"/product/assemblyWay", "@assemblyWay"},
    {"/product/numberOfProducts", "@numOfProducts"},
    {"/product/numberOfSpiralLoops", "@numOfSpirals"},
    {"/product/hasHook", "@hasHook"},
    {"/product/hasHole", "@hasHole"},

    {"/pages/pageCounts", "spines; /product/class usablesize@width usablesize@height", "the page counts of the spines", When::Book},
    {"/pages/pageCounts", "@binding; /product/class usablesize@width usablesize@height", "as many as a calendar with this binding has", When::Calendar},
    {"/pages/pageCounts", "@numOfNormalPages; /product/class usablesize@width usablesize@height", "normal pages %1", When::Pieces},
    {"/pages/pageCounts", "/product/class; usablesize@width usablesize@height", "one page"},
    {"/pages/defaultSellingPages", "@defaultSellingPages"},
    {"/pages/explicitNumberOfNormalPages", "@numOfNormalPages"},
    {"/pages/pageCount", "asked:pages", nullptr, When::Asked},
    {"/pages/pageCount", "@defaultSellingPages", nullptr, When::Sold},
    {"/pages/pageCount", "/pages/pageCounts", "the smallest that is offered, else 1"},
    {"/pages/isPageCountOffered", "/pages/pageCount /pages/pageCounts /spine/hasSpine", "whether the page count is one of those offered, of a book with a spine those that have a spine", When::NoSpine},
    {"/pages/isPageCountOffered", "/pages/pageCount /pages/pageCounts", "whether the page count is one of those offered"},
    {"/pages/nearestPageCounts", "/pages/pageCount /pages/pageCounts /spine/hasSpine", "the nearest of those offered", When::NoSpine},
    {"/pages/nearestPageCounts", "/pages/pageCount /pages/pageCounts", "the nearest of those offered"},
    {"/pages/printedPages", "pages /pages/pageCount", "the pages of the page list"},
    {"/pages/listEntries", "pages", "the entries of the page list"},
    {"/pages/hasCover", "pages", "whether the page list begins with a cover"},
    {"/pages/isSimplex", "@binding", "whether the binding is one-sided"},
    {"/pages/horizontalPages", "@horizontalPages"},
    {"/pages/hasCardStyleAlignment", "@cardStyleAlignment"},
    {"/pages/namingStyle", "@pageNamingStyle"},
    {"/pages/editorStartDoublePage", "@editorStartDoublePage"},
    {"/pages/pagesWithContent", "pageswithcontent /pages/printedPages", "those that the file lists, else all"},

    {"/sizes/page", "usablesize@width usablesize@height"},
    {"/sizes/page/width", "usablesize@width"},
    {"/sizes/page/height", "usablesize@height"},
    {"/sizes/cover/width", "usablesize@width @coverextrahorizontal /product/class; spines/spine[smallest]@width spines", "page %1 + %2 - 10", When::WideSpines},
    {"/sizes/cover/width", "usablesize@width @coverextrahorizontal /product/class; spines", "page %1 + %2", When::Spines},
    {"/sizes/cover/width", "usablesize@width @coverextrahorizontal", "page %1 + %2"},
    {"/sizes/cover/height", "usablesize@height @coverextravertical", "page %1 + %2"},
    {"/sizes/cover", "/sizes/cover/width /sizes/cover/height", "%1 by %2"},
    {"/sizes/bleed", "@bleedmarginvertical|@bleedmargin @bleedmarginhorizontal|@bleedmargin"},
    {"/sizes/coverBleed", "@bleedmargincoververtical|@bleedmargincover @bleedmargincoverhorizontal|@bleedmargincover"},
    {"/sizes/coverBleed/top", "@bleedmargincoververtical|@bleedmargincover"},
    {"/sizes/safetyMargins", "@safetymargin"},
    {"/sizes/foldMargin", "@foldmargin", nullptr, When::Given},
    {"/sizes/foldMargin", "surroundings /sizes/page /product/orientation", "a part of the page's width if a surrounding has a binding shade"},
    {"/sizes/clamp", "@normalpagehorizontalclamp"},

    {"/pageKinds", "pages /pages/pageCount; @horizontalPages @binding @cardStyleAlignment @varioSingleCardStyleAlignment @collegeBlockStyleAlignment", "the pages of the page list, by type and side", When::Simplex},
    {"/pageKinds", "pages /pages/pageCount; @horizontalPages @binding /spine/hasSpine", "the pages of the page list, by type and side"},
    {"/pageKinds/*", "; /pageKinds"},
    {"/pageKinds/*/pageType", "pages", "the page list"},
    {"/pageKinds/*/alignment", "/pageKinds", "the side on which these pages lie"},
    {"/pageKinds/*/pages", "/pageKinds", "the page list"},
    {"/pageKinds/*/usableSize", "/spine/width /sizes/cover/height", "the spine, as high as the cover", When::SpineKind},
    {"/pageKinds/*/usableSize", "/sizes/cover", "the size of the cover", When::CoverSize},
    {"/pageKinds/*/usableSize", "/sizes/page", "the size of the page"},
    {"/pageKinds/*/bleed", "/sizes/coverBleed/top", "the bleed of the cover, above and below", When::SpineKind},
    {"/pageKinds/*/bleed", "/sizes/coverBleed /pages/hasCardStyleAlignment /pages/pageCount", "the bleed of the cover, but none where it is bound", When::CoverBleed},
    {"/pageKinds/*/bleed", "/sizes/bleed /pages/hasCardStyleAlignment /pages/pageCount", "the bleed, but none where pages are bound"},
    {"/pageKinds/*/totalSize", "/pageKinds/*/usableSize /pageKinds/*/bleed", "usable size and bleed"},
    {"/pageKinds/*/safetyMargins", "/sizes/safetyMargins", "the safety margin"},
    {"/pageKinds/*/clamp", "/sizes/clamp", "what the clamp takes", When::NormalPage},
    {"/pageKinds/*/clamp", "/pageKinds/*/pageType", "only normal pages are clamped"},

    {"/spine/hasSpine", "pages", "whether the page list has a spine"},
    {"/spine/width", "spines/spine[shown]@width; spines/spine[shown]@pages /pages/pageCount /product/class spines/spine[smallest]@width spines", "spine %1 + 20", When::WideSpines},
    {"/spine/width", "spines/spine[shown]@width; spines/spine[shown]@pages /pages/pageCount /product/class spines", nullptr, When::Spines},
    {"/spine/width", "spines/spine[shown]@width; spines/spine[shown]@pages /pages/pageCount spines"},
    {"/spine/maxFontHeight", "spines/spine[shown]@maxfontheight; spines/spine[shown]@pages /pages/pageCount spines"},
    {"/spine/hasLogo", "@hasLogoOnSpine"},

    {"/surroundings", "surroundings; /pageKinds", "the first that fits each page"},
    {"/surroundings/*", "; surroundings/surrounding[row]@type surroundings/surrounding[row]@pageNr|surroundings/surrounding[row]@pageType surroundings/surrounding[row]@pageNr|surroundings/surrounding[row]@alignment /surroundings"},
    {"/surroundings/*/pages", "surroundings/surrounding[row]", "the first that fits these pages"},
    {"/surroundings/*/type", "surroundings/surrounding[row]@type"},
    {"/surroundings/*/rect", "surroundings/surrounding[row]@x surroundings/surrounding[row]@y surroundings/surrounding[row]@width surroundings/surrounding[row]@height"},
    {"/surroundings/*/paintOnTop", "surroundings/surrounding[row]@paintOnTop"},
    {"/surroundings/*/hasBindingShade", "surroundings/surrounding[row]@hasbindingshade"},
    {"/surroundings/*/image", "surroundings/surrounding[row]@image"},

    {"/barcodes", "barcodes /pages/printedPages", "the first of each page"},
    {"/barcodes/*", "; barcodes/barcode[row]@pageNr barcodes/barcode[row]@reverseOrder /barcodes"},
    {"/barcodes/*/page", "barcodes/barcode[row]@pageNr /pages/printedPages", "page %1, from the front or the back"},
    {"/barcodes/*/rect", "barcodes/barcode[row]@x barcodes/barcode[row]@y barcodes/barcode[row]@width barcodes/barcode[row]@height"},
    {"/barcodes/*/isCountedFromBack", "barcodes/barcode[row]@reverseOrder"},
    {"/barcodes/*/image", "barcodes/barcode[row]@image"},

    {"/templates", "/pageKinds", "a row for each kind of page"},
    {"/templates/*/pageType", "/pageKinds/*/pageType", "the kind of page"},
    {"/templates/*/alignment", "/pageKinds/*/alignment", "the kind of page"},
    {"/templates/*/pages", "/pageKinds/*/pages", "the kind of page"},
    {"/templates/*/layout", "defaults/defaults[layout]@layout|defaults/defaults[layout]@templates; defaults/defaults[layout]@theme defaults/defaults[layout]@pageType defaults/defaults[layout]@alignment /templates /theme/id user: defaults"},
    {"/templates/*/background", "/templates/*/pageType /theme/id", "a page that stays empty is white", When::WhitePage},
    {"/templates/*/background", "defaults/defaults[background]@background|defaults/defaults[background]@templates; defaults/defaults[background]@theme defaults/defaults[background]@pageType defaults/defaults[background]@alignment /templates /theme/id user: defaults"},

    {"/theme/id", "asked:theme"},
    {"/theme/description", "theme:description"},
    {"/theme/isValid", "theme:products", "whether the theme allows the product"},
    {"/theme/expiryDay", "theme:@expiry"},
    {"/theme/isExpired", "theme:@expiry clock:", "whether this is in the past"},
    {"/theme/iconSize", "/sizes/page @horizontalPages @binding /pages/pageCounts /product/class", "the shape of a spread"},
    {"/theme/iconSizeSinglePage", "/sizes/page", "the shape of a page"},
    {"/theme/mustPaintLogo", "theme:logos/logo[own]@booktype; theme:logos", "whether the theme has a logo for the product"},
    {"/theme/logoRect", "theme:logos/logo[own]@x theme:logos/logo[own]@y theme:logos/logo[own]@width theme:logos/logo[own]@height; theme:logos/logo[own]@booktype theme:logos"},
    {"/theme/logoSize", "theme:logos/logo[own]@filename; theme:logos/logo[own]@booktype theme:logos", "size of the image"},
    {"/theme/isThemeWithContent", "/theme/id", "every theme but \"normal\" has some"},
    {"/theme/pagesWithContent", "/theme/isThemeWithContent /pages/pagesWithContent", "those of the product if the theme has content"},
    {"/theme/canMoveContent", "theme:content@movable"},
    {"/theme/canUseNormalBackgrounds", "theme:content@normalBackgrounds"},
    {"/theme/useSpineText", "theme:spinetext@use"},
    {"/theme/useSpineLogo", "theme:spinelogo@use"},
    {"/theme/backgroundCategory", "theme:defaultcategories@background"},
    {"/theme/clipartCategory", "theme:defaultcategories@clipart"},
    {"/theme/contentCategory", "theme:defaultcategories@content"},
    {"/theme/layoutCategory", "theme:defaultcategories@layout"},
    {"/theme/fadingCategory", "theme:defaultcategories@fading"},
    {"/theme/frameCategory", "theme:defaultcategories@frame"},
    {"/theme/compatibleProducts", "/product/class /product/orientation /spine/hasSpine /pages/listEntries /product/space spines theme:products", "offered products of this class that agree in all this and in the steps of page counts"},
    {"/theme/compatibleProductsWithTheSameSize", "/product/class /product/orientation /spine/hasSpine /pages/listEntries /product/space theme:products", "offered products of this class that agree in all this"},

    {"/design/designElements", "@hasContentCategoryComboBox @showLayoutTab @canHaveFading @canHaveClipart @canHaveBackground"},
    {"/design/hasAssistant", "@hasAssistant"},
    {"/design/imageEffects", "@imageFXs"},
    {"/design/canHaveBorder", "@imageFXs", "not with the image effect \"grayscale\""},
    {"/design/backgroundCategories", "@coverBackgroundCategories", nullptr, When::Given},
    {"/design/backgroundCategories", "/product/class", "\"Einfarbig\" for decoration, else all"},
    {"/design/fullBackgroundOnEachPage", "@fullBackgroundOnEachPage", nullptr, When::Given},
    {"/design/fullBackgroundOnEachPage", "/product/class", "for calendars, gifts and cards"},
    {"/design/backgroundSize", "/sizes/page @horizontalPages /product/class", "a spread, or one page if pages are not side by side", When::Book},
    {"/design/backgroundSize", "/sizes/page /product/class", "one page"},
    {"/design/backgroundRatio", "/design/backgroundSize", "width by height"},
    {"/design/imagesPerPage", "/product/space", "that of the size class"},
    {"/design/pointSize", "/product/space /sizes/page", "that of the size class, else by the area of the page"},

    {"/variants/description", "variants@type"},
    {"/variants/identifiers", "variants"},

    {"/classification/material", "classification@group"},
    {"/classification/sizeCm", "classification@cm"},
    {"/classification/sizeInch", "classification@inch"},
    {"/classification/area", "usablesize@width usablesize@height", "0 without a width or a height", When::Missing},
    {"/classification/area", "usablesize@width usablesize@height", "page %1 × %2"},

    {"/legacy/replacedBy", "successor:@legacy; successor:@name", "the product that names this one"},
    {"/legacy/replaces", "@legacy"},
    {"/legacy/replacedPage", "replaced:usablesize@width replaced:usablesize@height; replaced:@name /legacy/replaces"},
    {"/legacy/replacedSpine", "replaced:spines replaced:usablesize@height replaced:@coverextravertical; replaced:@name /legacy/replaces /pages/pageCount", "the spine of the replaced product"},
    {"/legacy/replacedCover", "replaced:pages replaced:usablesize@width replaced:usablesize@height replaced:@coverextrahorizontal replaced:@coverextravertical replaced:@horizontalPages; replaced:@name /legacy/replaces /legacy/replacedSpine", "covers and spine of the replaced product"},

    {"/production/numbering", "productionnumbering /pages/printedPages", "those that the file lists, and on from there"},
    {"/production/pageNumberHorizontalIndent", "pageNumberConfig/margin@horizontalMargin"},
    {"/production/pageNumberVerticalIndent", "pageNumberConfig/margin@verticalMargin"},
    {"/production/pageNumberFontSize", "pageNumberConfig/font@fontSize"},
    {"/extraPages", "extra_production_pages"},
    {"/extraPages/*/pages", "extra_production_pages/item[row]/target_pages"},
    {"/extraPages/*/type", "extra_production_pages/item[row]/pdf@type"},
    {"/extraPages/*/layer", "extra_production_pages/item[row]/pdf@layer"},
    {"/extraPages/*/file", "extra_production_pages/item[row]/pdf@filename"},

    {"/contentRedirects", "contentredirects /pages/printedPages", "the last for each page"},
    {"/contentRedirects/*", "; /contentRedirects"},
    {"/contentRedirects/*/page", "contentredirects/contentredirect[row]@from"},
    {"/contentRedirects/*/target", "contentredirects/contentredirect[row]@to; contentredirects/contentredirect[row]@from"},
    {"/rotationRedirects", "rotationredirects /pages/printedPages", "those from each page"},
    {"/rotationRedirects/*", "; /rotationRedirects"},
    {"/rotationRedirects/*/page", "rotationredirects/rotationredirect[row]@from"},
    {"/rotationRedirects/*/target", "rotationredirects/rotationredirect[row]@to; rotationredirects/rotationredirect[row]@from"},
    {"/rotationRedirects/*/angleInvert", "rotationredirects/rotationredirect[row]@angleinvert; rotationredirects/rotationredirect[row]@from"},
};
// clang-format on

} // namespace

PxRows<PxOriginRow> PxOriginRows::all()
{
    return rows;
}

QVector<const PxOriginRow *> PxOriginRows::of(const QString &pattern)
{
    using Rows = QHash<QString, QVector<const PxOriginRow *>>;
    static const auto &ourRows = *[] {
        const auto found = new Rows;
        for (const PxOriginRow &row : rows)
            (*found)[row.pointer].append(&row);
        return found;
    }();
    return ourRows.value(pattern);
}

QString PxOriginRows::patternOf(const QString &pointer)
{
    QStringList steps = pointer.split('/');
    for (QString &step : steps) {
        bool isNumber = false;
        step.toInt(&isNumber);
        if (isNumber)
            step = "*";
    }
    return steps.join('/');
}
