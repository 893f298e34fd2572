#include "diff/PxDiffKeys.h"

namespace {

using Format = PxReportFormat;
using Words = PxDiffKey::Words;
constexpr bool Customers = true;
constexpr bool Production = false;

constexpr const char *words[][2] = {
    {"", ""}, {"narrower", "wider"}, {"lower", "higher"}, {"smaller", "larger"}, {"less", "more"},
};

// Most of the following code consists of tables.
// clang-format off
constexpr PxDiffKey productKeys[] = {
    {"/product/isOffered", "offered", Format::Plain, Customers},
    {"/product/shortName", "name in the shop", Format::Plain, Customers},
    {"/product/class", "class", Format::Plain, Customers},
    {"/product/code", "code"},
    {"/pages/offered", "page counts", Format::Plain, Customers},
    {"/pages/defaultSellingPages", "sold with", Format::Plain, Customers},
    {"/sizes/page", "page size", Format::Size, Customers, Words::Size},
    {"/sizes/cover", "cover size", Format::Size, Customers, Words::Size},
    {"/sizes/bleed", "bleed", Format::Margins, Customers, Words::Amount},
    {"/sizes/coverBleed", "bleed of the cover", Format::Margins, Customers, Words::Amount},
    {"/sizes/safetyMargins", "safety margin", Format::Margins, Customers, Words::Amount},
    {"/sizes/foldMargin", "fold margin", Format::Length, Production, Words::Amount},
    {"/sizes/clamp", "clamp", Format::Length, Production, Words::Amount},
    {"/spine/hasSpine", "printed spine", Format::Plain, Customers},
    {"/spine/width", "spine", Format::Length, Customers, Words::Width},
    {"/spine/maxFontHeight", "largest text height on the spine", Format::Length, Customers, Words::Height},
    {"/spine/hasLogo", "maker's logo on the spine", Format::Plain, Customers},
    {"/product/binding", "binding", Format::Name, Customers},
    {"/product/paper", "paper", Format::Name, Customers},
    {"/product/orientation", "orientation", Format::Plain, Customers},
    {"/product/space", "size class", Format::Name, Customers},
    {"/product/numberOfProducts", "pieces per order", Format::Plain, Customers},
    {"/product/hasHook", "hook", Format::Plain, Customers},
    {"/product/hasHole", "hole", Format::Plain, Customers},
    {"/variants/description", "variants differ in", Format::Plain, Customers},
    {"/variants/identifiers", "variants", Format::Plain, Customers},
    {"/classification/material", "material in the shop", Format::Name, Customers},
    {"/classification/sizeCm", "size in cm in the shop", Format::Plain, Customers},
    {"/classification/sizeInch", "size in inches in the shop", Format::Plain, Customers},
    {"/classification/area", "area in the shop", Format::Area, Customers},
    {"/pageKinds/*", ""},
    {"/pageKinds/*/usableSize", "usable size", Format::Size, Customers, Words::Size},
    {"/pageKinds/*/totalSize", "total size", Format::Size, Customers, Words::Size},
    {"/pageKinds/*/bleed", "bleed", Format::Margins, Customers, Words::Amount},
    {"/pageKinds/*/safetyMargins", "safety margin", Format::Margins, Customers, Words::Amount},
    {"/pageKinds/*/clamp", "clamp", Format::Length, Production, Words::Amount},
    {"/product/assemblyWay", "put together by"},
    {"/product/numberOfSpiralLoops", "spiral loops"},
    {"/pages/explicitNumberOfNormalPages", "normal pages"},
    {"/pages/list", "page list", Format::JsonOnly},
    {"/pages/listEntries", "entries of the page list"},
    {"/pages/sides", "sides of pages", Format::JsonOnly},
    {"/pages/hasCover", "cover", Format::Plain, Customers},
    {"/pages/isSimplex", "printed on one side"},
    {"/pages/horizontalPages", "pages side by side"},
    {"/pages/hasCardStyleAlignment", "card style"},
    {"/pages/namingStyle", "page names"},
    {"/pages/editorStartDoublePage", "editor starts at"},
    {"/pages/pagesWithContent", "pages with content"},
    {"/surroundings/*", ""},
    {"/surroundings/*/places", "pages", Format::JsonOnly},
    {"/surroundings/*/type", "type"},
    {"/surroundings/*/rect", "place", Format::Rect},
    {"/surroundings/*/paintOnTop", "on top"},
    {"/surroundings/*/hasBindingShade", "shade"},
    {"/surroundings/*/image", "image"},
    {"/barcodes/*", ""},
    {"/barcodes/*/page", "page"},
    {"/barcodes/*/isCountedFromBack", "counted from the back"},
    {"/barcodes/*/rect", "place", Format::Rect},
    {"/barcodes/*/image", "image"},
    {"/templates/*", ""},
    {"/templates/*/layout", "layout"},
    {"/templates/*/background", "background"},
    {"/themeTemplates/*", ""},
    {"/themeTemplates/*/layout", "layout"},
    {"/themeTemplates/*/background", "background"},
    {"/design/designElements", "editor offers"},
    {"/design/hasAssistant", "assistant"},
    {"/design/imageEffects", "image effects"},
    {"/design/canHaveBorder", "borders and shadows"},
    {"/design/backgroundCategories", "cover backgrounds"},
    {"/design/fullBackgroundOnEachPage", "one background a page"},
    {"/design/backgroundSize", "background size", Format::Size, Production, Words::Size},
    {"/design/backgroundRatio", "width of the background by height"},
    {"/design/imagesPerPage", "images on a page"},
    {"/design/pointSize", "type size", Format::Points},
    {"/legacy/replacedBy", "replaced by"},
    {"/legacy/replaces", "replaces"},
    {"/legacy/replacedPage", "page of the replaced product", Format::Size, Production, Words::Size},
    {"/legacy/replacedSpine", "spine of the replaced product", Format::Size, Production, Words::Size},
    {"/legacy/replacedCover", "open cover of the replaced product", Format::Size, Production, Words::Size},
    {"/production/numbering", "numbers of the pages"},
    {"/production/pageNumberHorizontalIndent", "page number from the side", Format::Length, Production, Words::Amount},
    {"/production/pageNumberVerticalIndent", "page number above or below", Format::Length, Production, Words::Amount},
    {"/production/pageNumberFontSize", "page number type size"},
    {"/extraPages/*", ""},
    {"/extraPages/*/pages", "pages", Format::PageNumbers},
    {"/extraPages/*/type", "type"},
    {"/extraPages/*/layer", "layer"},
    {"/extraPages/*/file", "file"},
    {"/contentRedirects/*", ""},
    {"/contentRedirects/*/page", "page"},
    {"/contentRedirects/*/target", "goes to"},
    {"/rotationRedirects/*", ""},
    {"/rotationRedirects/*/page", "page"},
    {"/rotationRedirects/*/target", "goes to"},
    {"/rotationRedirects/*/angleInvert", "angle by"},
};

constexpr PxDiffKey themeKeys[] = {
    {"description", "description", Format::Plain, Customers},
    {"group", "group", Format::Plain, Customers},
    {"expiryDay", "until", Format::Plain, Customers},
    {"keyAccounts", "key accounts", Format::Plain, Customers},
    {"allowedProducts", "products", Format::CountOrAll, Customers},
};

constexpr PxDiffTable tableRows[] = {
    {"pageKinds", "page kind", "pageType alignment"},
    {"surroundings", "surrounding on", "places; type rect image; places type"},
    {"barcodes", "barcode on page", "page isCountedFromBack; rect image"},
    {"templates", "default template of", "pageType alignment"},
    {"themeTemplates", "default template in theme", "theme pageType alignment"},
    {"extraPages", "extra production pages", "pages type layer file; pages type layer; type layer file"},
    {"contentRedirects", "content dropped on page", "page; target"},
    {"rotationRedirects", "rotation of page", "page target; page; target angleInvert"},
};
// clang-format on

} // namespace

QString PxDiffKey::word(Words words, bool isLarger)
{
    return ::words[int(words)][isLarger ? 1 : 0];
}

QVector<QStringList> PxDiffTable::identityColumns() const
{
    QVector<QStringList> columns;
    for (const QString &identity : QString(identities).split("; "))
        columns.append(identity.split(' '));
    return columns;
}

PxRows<PxDiffKey> PxDiffKeys::ofProducts()
{
    return productKeys;
}

PxRows<PxDiffKey> PxDiffKeys::ofThemes()
{
    return themeKeys;
}

PxRows<PxDiffTable> PxDiffKeys::tables()
{
    return tableRows;
}

QStringList PxDiffKeys::all()
{
    QStringList all{"added", "removed", "renamed"};
    for (const auto &keys : {ofProducts(), ofThemes()}) {
        for (const PxDiffKey &key : keys) {
            const QString pointer = key.pointer;
            const QString section = pointer.section('/', 0, 1);
            if (!all.contains(section))
                all.append(section);
            if (pointer != section && !pointer.endsWith('*'))
                all.append(pointer);
        }
    }
    return all;
}
