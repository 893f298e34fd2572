#include "format/PxFormatFiles.h"

namespace {

// clang-format off
constexpr const char *sizeSection = "see [Size](#size-usablesize-margins-covers)";

constexpr PxAttributeRow productAttributes[] = {
    {"name", PxValueType::ProductName, "", "empty: the file is skipped", "product name, any case; names the [user-defaults file](#user-defaults-files) letter for letter", PxKeywordSet::None, "text"},
    {"safetymargin", PxValueType::Integer, "0", "0", "strip inside the page, on all four sides, that designs keep clear of"},
    {"defaultSellingPages", PxValueType::Integer, "-1", "-1: none", "page count a new product starts with; should be in the `spines` table"},
    {"numOfProducts", PxValueType::Integer, "1", "1", "copies or pieces that one product consists of; never write 0"},
    {"numOfNormalPages", PxValueType::Integer, "1", "1", "normal pages of gifts, cards and decoration, all pieces together"},
    {"normalpagehorizontalclamp", PxValueType::Integer, "0", "0", "width that a clamp takes from every normal page"},
    {"imageFXs", PxValueType::KeywordList, "none", "none", "[image effects](#image-effects); `grayscale` also takes away picture borders and shadows", PxKeywordSet::ImageEffect},
    {"assemblyWay", PxValueType::KeywordList, "factory", "`factory`", "[who puts the product together](#assembly-ways)", PxKeywordSet::AssemblyWay},
    {"binding", PxValueType::Keyword, "GIFT", "`GIFT`", "[binding](#bindings)", PxKeywordSet::Binding},
    {"paper", PxValueType::Keyword, "indigo", "`indigo`", "[paper](#papers); a product without paper must say `unbekanntes Papier`", PxKeywordSet::Paper},
    {"hasContentCategoryComboBox", PxValueType::Boolean, "true", "true", "the editor offers content by category"},
    {"showLayoutTab", PxValueType::Boolean, "true", "true", "the editor offers layouts"},
    {"canHaveFading", PxValueType::Boolean, "true", "true", "the editor offers masks"},
    {"canHaveClipart", PxValueType::Boolean, "true", "true", "the editor offers clipart"},
    {"canHaveBackground", PxValueType::Boolean, "true", "true", "the editor offers backgrounds"},
    {"hasAssistant", PxValueType::Boolean, "true", "true", "the product can be filled by the assistant"},
    {"horizontalPages", PxValueType::Boolean, "true", "true", "pages of a spread lie side by side; false: one above the other"},
    {"cardStyleAlignment", PxValueType::Boolean, "false", "false", "card: every page has bleed on all sides"},
    {"varioSingleCardStyleAlignment", PxValueType::Boolean, "false", "false", "single cards: with a one-sided binding every page is in the middle"},
    {"collegeBlockStyleAlignment", PxValueType::Boolean, "false", "false", "front and back of a block"},
    {"numOfSpirals", PxValueType::Integer, "0", "0", "loops of a spiral binding; 0 is no spiral"},
    {"hasHook", PxValueType::Boolean, "false", "false", "hook or hole to hang a calendar up"},
    {"hasHole", PxValueType::Boolean, "false", "false", nullptr},
    {"editorStartDoublePage", PxValueType::Integer, "0", "0", "double page that the editor opens first", PxKeywordSet::None, "**int**"},
    {"hasLogoOnSpine", PxValueType::Boolean, "false", "false", "the maker's logo is painted on the spine"},
    {"pageNamingStyle", PxValueType::KeywordList, "", "none", "[how the editor names the pages](#page-naming-styles)", PxKeywordSet::PageNamingStyle},
    {"bleedmargin", PxValueType::Integer, "0", "0", "bleed of normal pages", PxKeywordSet::None, nullptr, sizeSection},
    {"bleedmarginhorizontal", PxValueType::Integer, nullptr, "`bleedmargin`", "… at the left and right edge", PxKeywordSet::None, nullptr, sizeSection},
    {"bleedmarginvertical", PxValueType::Integer, nullptr, "`bleedmargin`", "… at the top and bottom edge", PxKeywordSet::None, nullptr, sizeSection},
    {"bleedmargincover", PxValueType::Integer, "0", "0", "bleed of covers and spine", PxKeywordSet::None, nullptr, sizeSection},
    {"bleedmargincoverhorizontal", PxValueType::Integer, nullptr, "`bleedmargincover`", "… at the left and right edge", PxKeywordSet::None, nullptr, sizeSection},
    {"bleedmargincoververtical", PxValueType::Integer, nullptr, "`bleedmargincover`", "… at the top and bottom edge", PxKeywordSet::None, nullptr, sizeSection},
    {"coverextravertical", PxValueType::Integer, "0", "0", "how much higher a cover half is than a page", PxKeywordSet::None, nullptr, sizeSection},
    {"coverextrahorizontal", PxValueType::Integer, "0", "0", "how much wider a cover half is than a page; books with a spine lose [10 of it](#page-counts-and-spines-spines)", PxKeywordSet::None, nullptr, sizeSection},
    {"orientation", PxValueType::Keyword, "", "", sizeSection, PxKeywordSet::Orientation},
    {"space", PxValueType::KeywordList, "", "", nullptr, PxKeywordSet::SizeClass},
    {"fullBackgroundOnEachPage", PxValueType::Boolean, nullptr, "true for calendars, gifts and cards, else false", "one background covers one page rather than the spread"},
    {"coverBackgroundCategories", PxValueType::TextList, nullptr, "`Einfarbig` for decoration, else empty", "categories of backgrounds that are allowed; empty allows all"},
    {"foldmargin", PxValueType::Integer, "-1", "-1: computed", "strip lost in the fold, see [below](#surroundings-surroundings)"},
    {"legacy", PxValueType::ProductName, "", "none", "name of the older product that this one replaces", PxKeywordSet::None, "text"},
};
constexpr PxAttributeRow usableSizeAttributes[] = {
    {"width", PxValueType::Integer, nullptr, "-1: the product is not offered", "size of the trimmed page, without bleed"},
    {"height", PxValueType::Integer, nullptr, "-1: the product is not offered", nullptr},
    {"orientation", PxValueType::Keyword, "", "`orientation` of `product`", "[orientation](#orientations)", PxKeywordSet::Orientation},
    {"space", PxValueType::KeywordList, "", "`space` of `product`", "[size class](#size-classes), chooses layouts and type sizes", PxKeywordSet::SizeClass},
};
constexpr PxAttributeRow spineAttributes[] = {
    {"pages", PxValueType::Integer, "0", "0: a spine for 0 pages, and 0 becomes the smallest page count", "page count"},
    {"width", PxValueType::Integer, "0", "0", "width of the spine"},
    {"maxfontheight", PxValueType::Integer, "0", "0", "greatest height of type on the spine"},
};
constexpr PxAttributeRow surroundingAttributes[] = {
    {"type", PxValueType::OneKeyword, "BOOK", "`BOOK`", "[surrounding type](#surrounding-types); an unknown word makes it none, which still hides later ones", PxKeywordSet::SurroundingType},
    {"pageType", PxValueType::KeywordList, "all", "`all`", "[page types](#page-types) it is for", PxKeywordSet::PageType},
    {"alignment", PxValueType::KeywordList, "left,right,top,bottom,center,middle", "`left,right,top,bottom,center,middle`", "[positions](#alignments) it is for; `fullpage` only when named", PxKeywordSet::Alignment},
    {"pageNr", PxValueType::Integer, "-1", "-1: none", "pins it to one page"},
    {"paintOnTop", PxValueType::Boolean, "true", "true", "above the content of the page rather than below"},
    {"hasbindingshade", PxValueType::Boolean, "false", "false", "the image carries the shade of the binding"},
    {"image", PxValueType::Text, "", "empty", "image, as a path in the resource directory"},
    {"x", PxValueType::RectanglePart, "0", "none", "where the image goes, seen from the upper left corner of the page"},
    {"y", PxValueType::RectanglePart, "0", "none", nullptr},
    {"width", PxValueType::RectanglePart, nullptr, "none", nullptr},
    {"height", PxValueType::RectanglePart, nullptr, "none", nullptr},
};
constexpr PxAttributeRow defaultsAttributes[] = {
    {"theme", PxValueType::TextList, "normal", "`normal`", "theme ids, compared exactly; ids of themes are lower case"},
    {"pageType", PxValueType::KeywordList, "", "empty: found for no page type", "[page types](#page-types)", PxKeywordSet::PageType},
    {"alignment", PxValueType::KeywordList, "left,right,top,bottom,center,middle", "`left,right,top,bottom,center,middle`", "[positions](#alignments); an unknown or empty entry counts as `left`", PxKeywordSet::Alignment},
    {"templates", PxValueType::TextList, "", "empty", "short form: background, then layout"},
    {"layout", PxValueType::Text, nullptr, "second name of `templates` when it has exactly two", "layout template"},
    {"background", PxValueType::Text, nullptr, "first name of `templates`", "background template"},
};
constexpr PxAttributeRow rotationRedirectAttributes[] = {
    {"from", PxValueType::Integer, nullptr, "the element is dropped", "pages; -1 is kept as it is, anything below drops the element"},
    {"to", PxValueType::Integer, nullptr, "the element is dropped", nullptr},
    {"angleinvert", PxValueType::Integer, "1", "1", "handed to the editor as it is"},
};
constexpr PxAttributeRow contentRedirectAttributes[] = {
    {"from", PxValueType::PageRange, nullptr, "dropped with a warning", "`3`, or `3-7` for pages 3 to 7"},
    {"to", PxValueType::Integer, nullptr, "dropped with a warning", "page, 0 or more"},
};
constexpr PxAttributeRow barcodeAttributes[] = {
    {"x", PxValueType::RectanglePart, "0", "none: there is no barcode on that page", "place on the page"},
    {"y", PxValueType::RectanglePart, "0", "none: there is no barcode on that page", nullptr},
    {"width", PxValueType::RectanglePart, nullptr, "none: there is no barcode on that page", nullptr},
    {"height", PxValueType::RectanglePart, nullptr, "none: there is no barcode on that page", nullptr},
    {"pageNr", PxValueType::Integer, "0", "0", "page"},
    {"reverseOrder", PxValueType::Boolean, "false", "false", "count from the back: the barcode is on page \"number of pages − `pageNr`\""},
    {"image", PxValueType::Text, "dummy-barcode.png", "`dummy-barcode.png`", "image the editor shows in its place"},
};
constexpr PxAttributeRow pdfAttributes[] = {
    {"filename", PxValueType::Text, "", "empty", "file; looked up by the production"},
    {"type", PxValueType::Text, "", "empty", "kind of template, handed to the production as it is"},
    {"layer", PxValueType::Integer, "0", "0", "layer to put it on"},
};
constexpr PxAttributeRow marginAttributes[] = {
    {"verticalMargin", PxValueType::Integer, "50", "50", "distance of the page number from the edge above or below"},
    {"horizontalMargin", PxValueType::Integer, "50", "50", "distance from the edge at the side"},
};
constexpr PxAttributeRow fontAttributes[] = {
    {"fontSize", PxValueType::Integer, "24", "24", "type size"},
};
constexpr PxAttributeRow classificationAttributes[] = {
    {"cm", PxValueType::Text, "", "empty", "size name for display, without unit"},
    {"inch", PxValueType::Text, "", "empty", nullptr},
    {"group", PxValueType::OneKeyword, "", "empty: no material", "[material](#materials), exactly as in the table", PxKeywordSet::Material, "text"},
};
constexpr PxAttributeRow variantsAttributes[] = {
    {"type", PxValueType::Text, "", "empty", "label of the choice"},
};

constexpr PxElementRow spine[] = {
    {"spine", PxOccurrence::Any, PxTextKind::None, "a page count that the product is sold with", spineAttributes, {}},
};
constexpr PxElementRow surrounding[] = {
    {"surrounding", PxOccurrence::Any, PxTextKind::None, "an image painted round or over pages", surroundingAttributes, {}},
};
constexpr PxElementRow defaultsEntry[] = {
    {"defaults", PxOccurrence::Any, PxTextKind::None, "the templates that a new page gets", defaultsAttributes, {}},
};
constexpr PxElementRow rotationRedirect[] = {
    {"rotationredirect", PxOccurrence::Any, PxTextKind::None, "which page takes the place of which when the product is turned", rotationRedirectAttributes, {}},
};
constexpr PxElementRow contentRedirect[] = {
    {"contentredirect", PxOccurrence::Any, PxTextKind::None, "where content dropped on a page really goes", contentRedirectAttributes, {}},
};
constexpr PxElementRow barcode[] = {
    {"barcode", PxOccurrence::Any, PxTextKind::None, "a barcode; the first one that is on a page is used", barcodeAttributes, {}},
};
constexpr PxElementRow itemChildren[] = {
    {"target_pages", PxOccurrence::First, PxTextKind::NumberList, "pages where the content goes", {}, {}, "number list", "no page"},
    {"pdf", PxOccurrence::First, PxTextKind::None, "the content", pdfAttributes, {}},
};
constexpr PxElementRow item[] = {
    {"item", PxOccurrence::Any, PxTextKind::None, "a ready-made PDF page", {}, itemChildren},
};
constexpr PxElementRow pageNumberConfigChildren[] = {
    {"margin", PxOccurrence::First, PxTextKind::None, "where the page numbers are printed", marginAttributes, {}},
    {"font", PxOccurrence::First, PxTextKind::None, "type of the page numbers", fontAttributes, {}},
};
constexpr PxElementRow variant[] = {
    {"variant", PxOccurrence::AnyName, PxTextKind::Text, "identifier of a variant", {}, {}},
};

constexpr PxElementRow productChildren[] = {
    {"usablesize", PxOccurrence::First, PxTextKind::None, "size of the page", usableSizeAttributes, {}},
    {"pages", PxOccurrence::First, PxTextKind::PageTypes, "[page types](#page-types), in the order of an open book seen from the back cover", {}, {}, "keyword list", "one normal page"},
    {"spines", PxOccurrence::First, PxTextKind::None, "the page counts that the product is sold with", {}, spine, "any number of `spine`", "no page count"},
    {"surroundings", PxOccurrence::Any, PxTextKind::None, "images painted round or over pages", {}, surrounding, "any number of `surrounding`", "none"},
    {"defaults", PxOccurrence::First, PxTextKind::None, "the templates that a new page gets", {}, defaultsEntry, "any number of `defaults`", "none"},
    {"rotationredirects", PxOccurrence::First, PxTextKind::None, "which page takes the place of which when the product is turned", {}, rotationRedirect, "any number of `rotationredirect`", "none"},
    {"contentredirects", PxOccurrence::First, PxTextKind::None, "where content dropped on a page really goes", {}, contentRedirect, "any number of `contentredirect`", "none"},
    {"barcodes", PxOccurrence::First, PxTextKind::None, "places of barcodes", {}, barcode, "any number of `barcode`", "none"},
    {"productionnumbering", PxOccurrence::First, PxTextKind::NumberList, "the number that production gives to each page, in page order", {}, {}, "number list", "`1`"},
    {"pageswithcontent", PxOccurrence::First, PxTextKind::NumberList, "the only pages that take content", {}, {}, "number list", "every page"},
    {"extra_production_pages", PxOccurrence::First, PxTextKind::None, "ready-made PDF pages that production adds", {}, item, "any number of `item`", "none"},
    {"pageNumberConfig", PxOccurrence::First, PxTextKind::None, "page numbers on pages", {}, pageNumberConfigChildren},
    {"classification", PxOccurrence::First, PxTextKind::None, "size names and material", classificationAttributes, {}},
    {"variants", PxOccurrence::First, PxTextKind::None, "versions that do not change the product type", variantsAttributes, variant, "any number of elements", "none"},
};
constexpr PxElementRow product[] = {
    {"product", PxOccurrence::First, PxTextKind::None, "the product", productAttributes, productChildren},
};
constexpr PxElementRow userDefaults[] = {
    {"defaults", PxOccurrence::First, PxTextKind::None, "the templates that the user prefers", {}, defaultsEntry, "any number of `defaults`", "none"},
};
// clang-format on

} // namespace

constexpr PxElementRow productFileRow = {
    "productdescription", PxOccurrence::AnyName, PxTextKind::None, "a product", {}, product};
constexpr PxElementRow userDefaultsFileRow = {"userdefaults",
                                              PxOccurrence::AnyName,
                                              PxTextKind::None,
                                              "the templates that a user prefers for a product",
                                              {},
                                              userDefaults};
