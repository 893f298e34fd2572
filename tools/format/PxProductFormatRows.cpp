#include "format/PxFormatFiles.h"

namespace {

using Type = PxValueType;
using Set = PxKeywordSet;
using Occurrence = PxOccurrence;
using Text = PxTextKind;

// clang-format off
constexpr const char *sizeSection = "see [Size](#size-usablesize-margins-covers)";

constexpr PxAttributeRow productAttributes[] = {
    {"name", Type::ProductName, "", {"product name, any case; names the [user-defaults file](#user-defaults-files) letter for letter", "empty: the file is skipped", nullptr, "text"}, "the file is skipped"},
    {"safetymargin", Type::Length, "0", {"strip inside the page, on all four sides, that designs keep clear of"}},
    {"defaultSellingPages", Type::Integer, "-1", {"page count a new product starts with; should be in the `spines` table"}, "none"},
    {"numOfProducts", Type::Integer, "1", {"copies or pieces that one product consists of; never write 0"}},
    {"numOfNormalPages", Type::Integer, "1", {"normal pages of gifts, cards and decoration, all pieces together"}},
    {"normalpagehorizontalclamp", Type::Length, "0", {"width that a clamp takes from every normal page"}},
    {"imageFXs", Type::KeywordList, "none", {"[image effects](#image-effects); `grayscale` also takes away picture borders and shadows", "none"}, nullptr, Set::ImageEffect},
    {"assemblyWay", Type::KeywordList, "factory", {"[who puts the product together](#assembly-ways)"}, nullptr, Set::AssemblyWay},
    {"binding", Type::Keyword, "GIFT", {"[binding](#bindings)"}, nullptr, Set::Binding},
    {"paper", Type::Keyword, "indigo", {"[paper](#papers); a product without paper must say `unbekanntes Papier`"}, nullptr, Set::Paper},
    {"hasContentCategoryComboBox", Type::Boolean, "true", {"the editor offers content by category"}},
    {"showLayoutTab", Type::Boolean, "true", {"the editor offers layouts"}},
    {"canHaveFading", Type::Boolean, "true", {"the editor offers masks"}},
    {"canHaveClipart", Type::Boolean, "true", {"the editor offers clipart"}},
    {"canHaveBackground", Type::Boolean, "true", {"the editor offers backgrounds"}},
    {"hasAssistant", Type::Boolean, "true", {"the product can be filled by the assistant"}},
    {"horizontalPages", Type::Boolean, "true", {"pages of a spread lie side by side; false: one above the other"}},
    {"cardStyleAlignment", Type::Boolean, "false", {"card: every page has bleed on all sides"}},
    {"varioSingleCardStyleAlignment", Type::Boolean, "false", {"single cards: with a one-sided binding every page is in the middle"}},
    {"collegeBlockStyleAlignment", Type::Boolean, "false", {"front and back of a block"}},
    {"numOfSpirals", Type::Integer, "0", {"loops of a spiral binding; 0 is no spiral"}},
    {"hasHook", Type::Boolean, "false", {"hook or hole to hang a calendar up"}},
    {"hasHole", Type::Boolean, "false", {}},
    {"editorStartDoublePage", Type::Integer, "0", {"double page that the editor opens first", nullptr, nullptr, "**int**"}},
    {"hasLogoOnSpine", Type::Boolean, "false", {"the maker's logo is painted on the spine"}},
    {"pageNamingStyle", Type::KeywordList, "", {"[how the editor names the pages](#page-naming-styles)"}, "none", Set::PageNamingStyle},
    {"bleedmargin", Type::Length, "0", {"bleed of normal pages", nullptr, sizeSection}},
    {"bleedmarginhorizontal", Type::Length, nullptr, {"… at the left and right edge", nullptr, sizeSection}, "\"bleedmargin\""},
    {"bleedmarginvertical", Type::Length, nullptr, {"… at the top and bottom edge", nullptr, sizeSection}, "\"bleedmargin\""},
    {"bleedmargincover", Type::Length, "0", {"bleed of covers and spine", nullptr, sizeSection}},
    {"bleedmargincoverhorizontal", Type::Length, nullptr, {"… at the left and right edge", nullptr, sizeSection}, "\"bleedmargincover\""},
    {"bleedmargincoververtical", Type::Length, nullptr, {"… at the top and bottom edge", nullptr, sizeSection}, "\"bleedmargincover\""},
    {"coverextravertical", Type::Length, "0", {"how much higher a cover half is than a page", nullptr, sizeSection}},
    {"coverextrahorizontal", Type::Length, "0", {"how much wider a cover half is than a page; books with a spine lose [10 of it](#page-counts-and-spines-spines)", nullptr, sizeSection}},
    {"orientation", Type::Keyword, "", {sizeSection, ""}, nullptr, Set::Orientation},
    {"space", Type::KeywordList, "", {nullptr, ""}, nullptr, Set::SizeClass},
    {"fullBackgroundOnEachPage", Type::Boolean, nullptr, {"one background covers one page rather than the spread"}, "true for calendars, gifts and cards, else false"},
    {"coverBackgroundCategories", Type::TextList, nullptr, {"categories of backgrounds that are allowed; empty allows all", "`Einfarbig` for decoration, else empty"}},
    {"foldmargin", Type::Length, "-1", {"strip lost in the fold, see [below](#surroundings-surroundings)"}, "computed"},
    {"legacy", Type::ProductName, "", {"name of the older product that this one replaces", nullptr, nullptr, "text"}, "none"},
};
constexpr PxAttributeRow usableSizeAttributes[] = {
    {"width", Type::Length, nullptr, {"size of the trimmed page, without bleed", "-1: the product is not offered"}, "the product is not offered"},
    {"height", Type::Length, nullptr, {nullptr, "-1: the product is not offered"}, "the product is not offered"},
    {"orientation", Type::Keyword, "", {"[orientation](#orientations)"}, "\"orientation\" of \"product\"", Set::Orientation},
    {"space", Type::KeywordList, "", {"[size class](#size-classes), chooses layouts and type sizes"}, "\"space\" of \"product\"", Set::SizeClass},
};
constexpr PxAttributeRow spineAttributes[] = {
    {"pages", Type::Integer, "0", {"page count", "0: a spine for 0 pages, and 0 becomes the smallest page count"}, "the spine is for 0 pages, and 0 becomes the smallest page count"},
    {"width", Type::Length, "0", {"width of the spine"}},
    {"maxfontheight", Type::Length, "0", {"greatest height of type on the spine; not computed from the width"}},
};
constexpr PxAttributeRow surroundingAttributes[] = {
    {"type", Type::OneKeyword, "BOOK", {"[surrounding type](#surrounding-types); an unknown word makes it none, which still hides later ones"}, nullptr, Set::SurroundingType},
    {"pageType", Type::KeywordList, "all", {"[page types](#page-types) it is for"}, nullptr, Set::PageType},
    {"alignment", Type::KeywordList, "left,right,top,bottom,center,middle", {"[positions](#alignments) it is for; `fullpage` only when named"}, nullptr, Set::Alignment},
    {"pageNr", Type::Integer, "-1", {"pins it to one page"}, "none"},
    {"paintOnTop", Type::Boolean, "true", {"above the content of the page rather than below"}},
    {"hasbindingshade", Type::Boolean, "false", {"the image carries the shade of the binding"}},
    {"image", Type::Text, "", {"image, as a path in the resource directory"}},
    {"x", Type::RectanglePart, "0", {"where the image goes, seen from the upper left corner of [the page](#places-on-pages)"}},
    {"y", Type::RectanglePart, "0", {}},
    {"width", Type::RectanglePart, nullptr, {}},
    {"height", Type::RectanglePart, nullptr, {}},
};
constexpr PxAttributeRow defaultsAttributes[] = {
    {"theme", Type::TextList, "normal", {"theme ids, compared exactly; ids of themes are lower case"}},
    {"pageType", Type::KeywordList, "", {"[page types](#page-types)", "empty: no page finds the entry"}, "no page finds the entry", Set::PageType},
    {"alignment", Type::KeywordList, "left,right,top,bottom,center,middle", {"[positions](#alignments); an unknown or empty entry counts as `left`"}, nullptr, Set::Alignment},
    {"templates", Type::TextList, "", {"short form: background, then layout"}},
    {"layout", Type::Text, nullptr, {"layout template", "second name of `templates` when it has exactly two"}, "the second name of \"templates\" is used when it has exactly two"},
    {"background", Type::Text, nullptr, {"background template", "first name of `templates`"}, "the first name of \"templates\" is used"},
};
constexpr PxAttributeRow rotationRedirectAttributes[] = {
    {"from", Type::Integer, nullptr, {"pages; -1 is kept as it is, anything below drops the element"}, "the element is dropped"},
    {"to", Type::Integer, nullptr, {}, "the element is dropped"},
    {"angleinvert", Type::Integer, "1", {"handed to the editor as it is"}},
};
constexpr PxAttributeRow contentRedirectAttributes[] = {
    {"from", Type::PageRange, nullptr, {"`3`, or `3-7` for pages 3 to 7", "dropped with a warning"}, "the element is dropped with a warning"},
    {"to", Type::Integer, nullptr, {"page, 0 or more", "dropped with a warning"}, "the element is dropped with a warning"},
};
constexpr PxAttributeRow barcodeAttributes[] = {
    {"x", Type::RectanglePart, "0", {"place on [the page](#places-on-pages)"}, "there is no barcode on that page"},
    {"y", Type::RectanglePart, "0", {}, "there is no barcode on that page"},
    {"width", Type::RectanglePart, nullptr, {}, "there is no barcode on that page"},
    {"height", Type::RectanglePart, nullptr, {}, "there is no barcode on that page"},
    {"pageNr", Type::Integer, "0", {"page"}},
    {"reverseOrder", Type::Boolean, "false", {"count from the back: the barcode is on page \"number of pages − `pageNr`\""}},
    {"image", Type::Text, "dummy-barcode.png", {"image the editor shows in its place"}},
};
constexpr PxAttributeRow pdfAttributes[] = {
    {"filename", Type::Text, "", {"file; looked up by the production"}},
    {"type", Type::Text, "", {"kind of template, handed to the production as it is"}},
    {"layer", Type::Integer, "0", {"layer to put it on"}},
};
constexpr PxAttributeRow marginAttributes[] = {
    {"verticalMargin", Type::Integer, "50", {"distance of the page number from the edge above or below"}},
    {"horizontalMargin", Type::Integer, "50", {"distance from the edge at the side"}},
};
constexpr PxAttributeRow fontAttributes[] = {
    {"fontSize", Type::Integer, "24", {"type size; no length: the editor gets the number as it is"}},
};
constexpr PxAttributeRow classificationAttributes[] = {
    {"cm", Type::Text, "", {"size name for display, without unit"}},
    {"inch", Type::Text, "", {}},
    {"group", Type::OneKeyword, "", {"[material](#materials), exactly as in the table", "empty: no material", nullptr, "text"}, "there is no material", Set::Material},
};
constexpr PxAttributeRow variantsAttributes[] = {
    {"type", Type::Text, "", {"label of the choice"}},
};

constexpr PxElementRow spine[] = {
    {"spine", Occurrence::Any, Text::None, spineAttributes, {}, {"a page count that the product is sold with"}},
};
constexpr PxElementRow surrounding[] = {
    {"surrounding", Occurrence::Any, Text::None, surroundingAttributes, {}, {"an image painted round or over pages"}},
};
constexpr PxElementRow defaultsEntry[] = {
    {"defaults", Occurrence::Any, Text::None, defaultsAttributes, {}, {"the templates that a new page gets"}},
};
constexpr PxElementRow rotationRedirect[] = {
    {"rotationredirect", Occurrence::Any, Text::None, rotationRedirectAttributes, {}, {"which page takes the place of which when the product is turned"}},
};
constexpr PxElementRow contentRedirect[] = {
    {"contentredirect", Occurrence::Any, Text::None, contentRedirectAttributes, {}, {"where content dropped on a page really goes"}},
};
constexpr PxElementRow barcode[] = {
    {"barcode", Occurrence::Any, Text::None, barcodeAttributes, {}, {"a barcode; the first one that is on a page is used"}},
};
constexpr PxElementRow itemChildren[] = {
    {"target_pages", Occurrence::First, Text::NumberList, {}, {}, {"pages where the content goes", "number list"}, "no page"},
    {"pdf", Occurrence::First, Text::None, pdfAttributes, {}, {"the content"}},
};
constexpr PxElementRow item[] = {
    {"item", Occurrence::Any, Text::None, {}, itemChildren, {"a ready-made PDF page"}},
};
constexpr PxElementRow pageNumberConfigChildren[] = {
    {"margin", Occurrence::First, Text::None, marginAttributes, {}, {"where the page numbers are printed"}},
    {"font", Occurrence::First, Text::None, fontAttributes, {}, {"type of the page numbers"}},
};
constexpr PxElementRow variant[] = {
    {"variant", Occurrence::AnyName, Text::Text, {}, {}, {"identifier of a variant"}},
};

constexpr PxElementRow productChildren[] = {
    {"usablesize", Occurrence::First, Text::None, usableSizeAttributes, {}, {"size of the page"}},
    {"pages", Occurrence::First, Text::PageTypes, {}, {}, {"[page types](#page-types), in the order of an open book seen from the back cover", "keyword list"}, "one normal page"},
    {"spines", Occurrence::First, Text::None, {}, spine, {"the page counts that the product is sold with", "any number of `spine`"}, "no page count"},
    {"surroundings", Occurrence::Any, Text::None, {}, surrounding, {"images painted round or over pages", "any number of `surrounding`"}, "none"},
    {"defaults", Occurrence::First, Text::None, {}, defaultsEntry, {"the templates that a new page gets", "any number of `defaults`"}, "none"},
    {"rotationredirects", Occurrence::First, Text::None, {}, rotationRedirect, {"which page takes the place of which when the product is turned", "any number of `rotationredirect`"}, "none"},
    {"contentredirects", Occurrence::First, Text::None, {}, contentRedirect, {"where content dropped on a page really goes", "any number of `contentredirect`"}, "none"},
    {"barcodes", Occurrence::First, Text::None, {}, barcode, {"places of barcodes", "any number of `barcode`"}, "none"},
    {"productionnumbering", Occurrence::First, Text::NumberList, {}, {}, {"the number that production gives to each page, in page order", "number list"}, "\"1\""},
    {"pageswithcontent", Occurrence::First, Text::NumberList, {}, {}, {"the only pages that take content", "number list"}, "every page"},
    {"extra_production_pages", Occurrence::First, Text::None, {}, item, {"ready-made PDF pages that production adds", "any number of `item`"}, "none"},
    {"pageNumberConfig", Occurrence::First, Text::None, {}, pageNumberConfigChildren, {"page numbers on pages"}},
    {"classification", Occurrence::First, Text::None, classificationAttributes, {}, {"size names and material"}},
    {"variants", Occurrence::First, Text::None, variantsAttributes, variant, {"versions that do not change the product type", "any number of elements"}, "none"},
};
constexpr PxElementRow product[] = {
    {"product", Occurrence::First, Text::None, productAttributes, productChildren, {"the product"}},
};
constexpr PxElementRow userDefaults[] = {
    {"defaults", Occurrence::First, Text::None, {}, defaultsEntry, {"the templates that the user prefers", "any number of `defaults`"}, "none"},
};
// clang-format on

} // namespace

constexpr PxElementRow productFileRow = {
    "productdescription", Occurrence::AnyName, Text::None, {}, product, {"a product"}};
constexpr PxElementRow userDefaultsFileRow = {
    "userdefaults", Occurrence::AnyName,
    Text::None,     {},
    userDefaults,   {"the templates that a user prefers for a product"}};
