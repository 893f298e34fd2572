#include "format/PxFormatFiles.h"

namespace {

// clang-format off
constexpr PxAttributeRow themeAttributes[] = {
    {"id", PxValueType::Text, "unbekannt", "`unbekannt`", "identifier, as [`defaults`](#default-templates-defaults) name it", PxKeywordSet::None, "text, read as lower case"},
    {"producttype", PxValueType::OneKeyword, "", "none (0): the theme is not valid", "[product group](#product-groups) it belongs to", PxKeywordSet::ProductGroup},
    {"expiry", PxValueType::DateTime, "197612302359", "30 December 1976, 23:59: always expired", "last moment at which it can be ordered"},
    {"thumbnail", PxValueType::Path, "", "no preview", "preview image"},
};
constexpr PxAttributeRow spineTextAttributes[] = {
    {"use", PxValueType::Boolean, "false", "false", "text is printed on the spine"},
};
constexpr PxAttributeRow spineLogoAttributes[] = {
    {"use", PxValueType::Boolean, "true", "**true**", "the logo is printed on the spine"},
};
constexpr PxAttributeRow contentAttributes[] = {
    {"movable", PxValueType::Boolean, "false", "false", "the user may move what the theme places"},
    {"normalBackgrounds", PxValueType::Boolean, "true", "**true**", "backgrounds that belong to no theme may be used"},
};
constexpr PxAttributeRow defaultCategoriesAttributes[] = {
    {"background", PxValueType::Text, "", "empty", "backgrounds"},
    {"clipart", PxValueType::Text, "", "empty", "clipart"},
    {"fading", PxValueType::Text, "", "empty", "masks"},
    {"content", PxValueType::Text, "", "empty", "content"},
    {"frame", PxValueType::Text, "", "empty", "frames"},
    {"layout", PxValueType::Text, "", "empty", "layouts"},
};
constexpr PxAttributeRow logoAttributes[] = {
    {"booktype", PxValueType::ProductName, "", "the entry belongs to no product", "product, not only a book"},
    {"filename", PxValueType::Path, "", "a logo without image", "image, as a path in the resource directory"},
    {"x", PxValueType::RectanglePart, "0", "none", "where the image goes"},
    {"y", PxValueType::RectanglePart, "0", "none", nullptr},
    {"width", PxValueType::RectanglePart, nullptr, "none", nullptr},
    {"height", PxValueType::RectanglePart, nullptr, "none", nullptr},
};

constexpr PxElementRow keyAccount[] = {
    {"keyaccount", PxOccurrence::AnyName, PxTextKind::Integer, "number of a key account", {}, {}},
};
constexpr PxElementRow product[] = {
    {"product", PxOccurrence::Any, PxTextKind::ProductName, "product that the theme may be used with", {}, {}},
};
constexpr PxElementRow logo[] = {
    {"logo", PxOccurrence::AnyName, PxTextKind::None, "the logo that is painted on a product", logoAttributes, {}},
};
constexpr PxElementRow themeChildren[] = {
    {"description", PxOccurrence::First, PxTextKind::Text, "display name, German", {}, {}, "text", "`unbekannt`; empty when the element is empty"},
    {"keyaccounts", PxOccurrence::First, PxTextKind::None, "key accounts that the theme is offered to", {}, keyAccount, "any number of elements, each an int", "empty: **offered to nobody**"},
    {"products", PxOccurrence::First, PxTextKind::None, "products it may be used with", {}, product, "any number of `product`, each a product name", "empty: every product"},
    {"logos", PxOccurrence::First, PxTextKind::None, "see [Logos](#logos-logos)", {}, logo, "any number of elements", "none"},
    {"spinetext", PxOccurrence::First, PxTextKind::None, "text on the spine", spineTextAttributes, {}},
    {"spinelogo", PxOccurrence::First, PxTextKind::None, "the logo on the spine", spineLogoAttributes, {}},
    {"content", PxOccurrence::First, PxTextKind::None, "what may be done with the content", contentAttributes, {}},
    {"defaultcategories", PxOccurrence::First, PxTextKind::None, "see [Default categories](#default-categories-defaultcategories)", defaultCategoriesAttributes, {}, nullptr, "six empty names"},
};
constexpr PxElementRow theme[] = {
    {"theme", PxOccurrence::AnyName, PxTextKind::None, "a theme", themeAttributes, themeChildren},
};
// clang-format on

} // namespace

constexpr PxElementRow themeFileRow = {
    "themes", PxOccurrence::First, PxTextKind::None, "any number of themes", {}, theme};
