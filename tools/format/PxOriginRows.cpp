#include "format/PxOriginRows.h"

namespace {

using When = PxOriginCase;

// Most of the following code consists of tables.
// clang-format off
constexpr PxOriginRow rows[] = {
    {"/format", "", "of this output"},
    {"/lengthUnit", "", "of this output"},

    {"/product/name", "type:@name"},
    {"/product/shortName", "type:@shortname|type:@name"},
    {"/product/code", "type:@code"},
    {"/product/class", "type:@class"},
    {"/product/isOffered", "/product/isLegacy", "no product of an earlier catalogue is offered", When::Legacy},
    {"/product/isOffered", "@binding /product/orientation usablesize@width usablesize@height", "binding, orientation and page size are known"},
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

    {"/pages/pageCounts", "spines /product/class /spine/hasSpine @binding /product/orientation usablesize@width usablesize@height", "page counts of the spines", When::Book},
    {"/pages/pageCounts", "/product/binding /product/class /product/orientation usablesize@width usablesize@height", "as many as a calendar with this binding has", When::Calendar},
    {"/pages/pageCounts", "@numOfNormalPages /product/class @binding /product/orientation usablesize@width usablesize@height", "normal pages %1", When::Pieces},
    {"/pages/pageCounts", "/product/class @binding /product/orientation usablesize@width usablesize@height", "one page"},
    {"/pages/defaultSellingPages", "@defaultSellingPages"},
    {"/pages/explicitNumberOfNormalPages", "@numOfNormalPages"},
    {"/pages/pageCount", "asked:pages", nullptr, When::Asked},
    {"/pages/pageCount", "@defaultSellingPages", nullptr, When::Sold},
    {"/pages/pageCount", "/pages/pageCounts", "the smallest that is offered"},
    {"/pages/isPageCountOffered", "/pages/pageCount /pages/pageCounts", "the page count is one of those offered"},
    {"/pages/nearestPageCounts", "/pages/pageCount /pages/pageCounts", "the nearest of those offered"},
    {"/pages/printedPages", "pages /pages/pageCount", "pages of the page list"},
    {"/pages/listEntries", "pages", "entries of the page list"},
    {"/pages/hasCover", "pages", "the page list begins with a cover"},
    {"/pages/isSimplex", "@binding", "the binding is one-sided"},
    {"/pages/horizontalPages", "@horizontalPages"},
    {"/pages/hasCardStyleAlignment", "@cardStyleAlignment"},
    {"/pages/namingStyle", "@pageNamingStyle"},
    {"/pages/editorStartDoublePage", "@editorStartDoublePage"},
    {"/pages/pagesWithContent", "pageswithcontent /pages/printedPages", "those of the file, else all"},

    {"/sizes/page", "usablesize@width usablesize@height"},
    {"/sizes/page/width", "usablesize@width"},
    {"/sizes/page/height", "usablesize@height"},
    {"/sizes/cover", "/sizes/cover/width /sizes/cover/height", "%1 by %2"},
    {"/sizes/cover/width", "usablesize@width @coverextrahorizontal spines /product/class", "page %1 + %2 - 10", When::WideSpines},
    {"/sizes/cover/width", "usablesize@width @coverextrahorizontal", "page %1 + %2"},
    {"/sizes/cover/height", "usablesize@height @coverextravertical", "page %1 + %2"},
    {"/sizes/bleed", "@bleedmarginvertical|@bleedmargin @bleedmarginhorizontal|@bleedmargin"},
    {"/sizes/coverBleed", "@bleedmargincoververtical|@bleedmargincover @bleedmargincoverhorizontal|@bleedmargincover"},
    {"/sizes/coverBleed/top", "@bleedmargincoververtical|@bleedmargincover"},
    {"/sizes/safetyMargins", "@safetymargin"},
    {"/sizes/foldMargin", "@foldmargin", nullptr, When::Given},
    {"/sizes/foldMargin", "surroundings /sizes/page /product/orientation", "a part of the page's width if a surrounding has a binding shade"},
    {"/sizes/clamp", "@normalpagehorizontalclamp"},

    {"/pageKinds/*/usableSize", "/spine/width /sizes/cover/height pages", "the spine, as high as the cover", When::SpineKind},
    {"/pageKinds/*/usableSize", "/sizes/cover pages", "a cover", When::SizeOfCover},
    {"/pageKinds/*/usableSize", "/sizes/page pages", "a page"},
    {"/pageKinds/*/bleed", "/sizes/coverBleed/top pages", "that of the cover above and below", When::SpineKind},
    {"/pageKinds/*/bleed", "/sizes/coverBleed /pageKinds/*/alignment /pages/hasCardStyleAlignment /pages/pageCount pages", "that of the cover, none where it is bound", When::BleedOfCover},
    {"/pageKinds/*/bleed", "/sizes/bleed /pageKinds/*/alignment /pages/hasCardStyleAlignment /pages/pageCount pages", "that of pages, none where they are bound"},
    {"/pageKinds/*/totalSize", "/pageKinds/*/usableSize /pageKinds/*/bleed", "usable size and bleed"},
    {"/pageKinds/*/safetyMargins", "/sizes/safetyMargins", "that of the product"},
    {"/pageKinds/*/clamp", "/sizes/clamp pages", "that of the product", When::NormalPage},
    {"/pageKinds/*/clamp", "pages", "only normal pages have one"},

    {"/spine/hasSpine", "pages", "the page list has a spine"},
    {"/spine/width", "spines/spine[shown]@width spines/spine[shown]@pages /pages/pageCount /product/class spines", "spine %1 + 20", When::WideSpines},
    {"/spine/width", "spines/spine[shown]@width spines/spine[shown]@pages /pages/pageCount spines"},
    {"/spine/maxFontHeight", "spines/spine[shown]@maxfontheight spines/spine[shown]@pages /pages/pageCount spines"},
    {"/spine/hasLogo", "@hasLogoOnSpine"},

    {"/legacy/replaces", "@legacy"},
    {"/legacy/replacedPage", "/legacy/replaces", "page size of that product"},
    {"/legacy/replacedSpine", "/legacy/replaces /pages/pageCount", "spine of that product with as many pages"},
    {"/legacy/replacedCover", "/legacy/replaces /legacy/replacedSpine", "covers and spine of that product"},
};
// clang-format on

} // namespace

PxRows<PxOriginRow> PxOriginRows::all()
{
    return rows;
}

QVector<const PxOriginRow *> PxOriginRows::of(const QString &pointer)
{
    const QString pattern = patternOf(pointer);
    QVector<const PxOriginRow *> found;
    for (const PxOriginRow &row : rows) {
        if (pattern == QLatin1String(row.pointer))
            found.append(&row);
    }
    return found;
}

QStringList PxOriginRows::inputsOf(const QString &pointer)
{
    QStringList inputs;
    for (const PxOriginRow *row : of(pointer)) {
        for (QString input : QString(row->inputs).split(' ')) {
            if (!input.startsWith('/'))
                continue;
            if (input.contains("/*/"))
                input.replace("/*/", '/' + pointer.section('/', 2, 2) + '/');
            inputs.append(input);
        }
    }
    inputs.removeDuplicates();
    return inputs;
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
