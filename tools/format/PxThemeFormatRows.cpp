#include "format/PxFormatFiles.h"

namespace {

using Type = PxValueType;
using Set = PxKeywordSet;
using Occurrence = PxOccurrence;
using Text = PxTextKind;

// clang-format off
constexpr PxAttributeRow themeAttributes[] = {
    {"id", Type::Text, "unbekannt", {"identifier, as [`defaults`](#default-templates-defaults) name it", nullptr, nullptr, "text, read as lower case"}},
    {"producttype", Type::OneKeyword, "", {"[product group](#product-groups) it belongs to", "none (0): the theme is not valid"}, "the theme is not valid", Set::ProductGroup},
    {"expiry", Type::DateTime, "197612302359", {"last moment at which it can be ordered", "30 December 1976, 23:59: always expired"}},
    {"thumbnail", Type::Path, "", {"preview image", "no preview"}, "there is no preview"},
};
constexpr PxAttributeRow spineTextAttributes[] = {
    {"use", Type::Boolean, "false", {"text is printed on the spine"}},
};
constexpr PxAttributeRow spineLogoAttributes[] = {
    {"use", Type::Boolean, "true", {"the logo is printed on the spine", "**true**"}},
};
constexpr PxAttributeRow contentAttributes[] = {
    {"movable", Type::Boolean, "false", {"the user may move what the theme places"}},
    {"normalBackgrounds", Type::Boolean, "true", {"backgrounds that belong to no theme may be used", "**true**"}},
};
constexpr PxAttributeRow defaultCategoriesAttributes[] = {
    {"background", Type::Text, "", {"backgrounds"}},
    {"clipart", Type::Text, "", {"clipart"}},
    {"fading", Type::Text, "", {"masks"}},
    {"content", Type::Text, "", {"content"}},
    {"frame", Type::Text, "", {"frames"}},
    {"layout", Type::Text, "", {"layouts"}},
};
constexpr PxAttributeRow logoAttributes[] = {
    {"booktype", Type::ProductName, "", {"product, not only a book"}, "the entry belongs to no product"},
    {"filename", Type::Path, "", {"image, as a path in the resource directory", "a logo without image"}, "the logo has no image"},
    {"x", Type::RectanglePart, "0", {"where the image goes"}},
    {"y", Type::RectanglePart, "0", {}},
    {"width", Type::RectanglePart, nullptr, {}},
    {"height", Type::RectanglePart, nullptr, {}},
};

constexpr PxElementRow keyAccount[] = {
    {"keyaccount", Occurrence::AnyName, Text::Integer, {}, {}, {"number of a key account"}},
};
constexpr PxElementRow product[] = {
    {"product", Occurrence::Any, Text::ProductName, {}, {}, {"product that the theme may be used with"}},
};
constexpr PxElementRow logo[] = {
    {"logo", Occurrence::AnyName, Text::None, logoAttributes, {}, {"the logo that is painted on a product"}},
};
constexpr PxElementRow themeChildren[] = {
    {"description", Occurrence::First, Text::Text, {}, {}, {"display name, German", "text"}, "\"unbekannt\"; empty when the element is empty"},
    {"keyaccounts", Occurrence::First, Text::None, {}, keyAccount, {"key accounts that the theme is offered to", "any number of elements, each an int", "empty: **offered to nobody**"}},
    {"products", Occurrence::First, Text::None, {}, product, {"products it may be used with", "any number of `product`, each a product name"}, "empty: every product"},
    {"logos", Occurrence::First, Text::None, {}, logo, {"see [Logos](#logos-logos)", "any number of elements"}, "none"},
    {"spinetext", Occurrence::First, Text::None, spineTextAttributes, {}, {"text on the spine"}},
    {"spinelogo", Occurrence::First, Text::None, spineLogoAttributes, {}, {"the logo on the spine"}},
    {"content", Occurrence::First, Text::None, contentAttributes, {}, {"what may be done with the content"}},
    {"defaultcategories", Occurrence::First, Text::None, defaultCategoriesAttributes, {}, {"see [Default categories](#default-categories-defaultcategories)"}, "six empty names"},
};
constexpr PxElementRow theme[] = {
    {"theme", Occurrence::AnyName, Text::None, themeAttributes, themeChildren, {"a theme"}},
};
// clang-format on

} // namespace

constexpr PxElementRow themeFileRow = {"themes", Occurrence::First,       Text::None, {},
                                       theme,    {"any number of themes"}};
