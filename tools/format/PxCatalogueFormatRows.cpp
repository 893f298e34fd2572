#include "format/PxFormatFiles.h"

namespace {

using Type = PxValueType;
using Set = PxKeywordSet;
using Occurrence = PxOccurrence;
using Text = PxTextKind;

// clang-format off
constexpr PxAttributeRow productTypeAttributes[] = {
    {"code", Type::Integer, nullptr, {"number of the product type in orders; never reuse one", nullptr, nullptr, "int above 0"}, "the row is left out"},
    {"name", Type::Text, nullptr, {"product name"}, "the row is left out"},
    {"class", Type::OneKeyword, nullptr, {"`book`, `calendar`, `gift`, `card`, `deko` or `print`", nullptr, nullptr, "keyword"}, "the row is left out", Set::ProductClass},
    {"shortname", Type::Text, "", {"display name", "the name"}, "the name is shown"},
};
constexpr PxAttributeRow frameAttributes[] = {
    {"id", Type::Text, nullptr, {"identifier in orders, plain ASCII: `ue` for `ü`, `ss` for `ß`"}, "the row is left out"},
    {"name", Type::Text, nullptr, {"display name, German"}, "the row is left out"},
};

constexpr PxElementRow productType[] = {
    {"producttype", Occurrence::Any, Text::None, productTypeAttributes, {}, {"a product type, current or older"}},
};
constexpr PxElementRow frame[] = {
    {"frame", Occurrence::Any, Text::None, frameAttributes, {}, {"a frame model"}},
};
// clang-format on

} // namespace

constexpr PxElementRow productTypesFileRow = {"producttypes", Occurrence::First,    Text::None, {},
                                              productType,    {"the product types"}};
constexpr PxElementRow framesFileRow = {"frames", Occurrence::AnyName, Text::None, {},
                                        frame,    {"the frame models"}};
