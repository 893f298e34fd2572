#include "format/PxFormatFiles.h"

namespace {

// clang-format off
constexpr PxAttributeRow productTypeAttributes[] = {
    {"code", PxValueType::Integer, nullptr, "the row is left out", "number of the product type in orders; never reuse one", PxKeywordSet::None, "int above 0"},
    {"name", PxValueType::Text, nullptr, "the row is left out", "product name"},
    {"class", PxValueType::OneKeyword, nullptr, "the row is left out", "`book`, `calendar`, `gift`, `card`, `deko` or `print`", PxKeywordSet::ProductClass, "keyword"},
    {"shortname", PxValueType::Text, "", "the name", "display name"},
};
constexpr PxAttributeRow frameAttributes[] = {
    {"id", PxValueType::Text, nullptr, "the row is left out", "identifier in orders, plain ASCII: `ue` for `ü`, `ss` for `ß`"},
    {"name", PxValueType::Text, nullptr, "the row is left out", "display name, German"},
};

constexpr PxElementRow productType[] = {
    {"producttype", PxOccurrence::Any, PxTextKind::None, "a product type, current or older", productTypeAttributes, {}},
};
constexpr PxElementRow frame[] = {
    {"frame", PxOccurrence::Any, PxTextKind::None, "a frame model", frameAttributes, {}},
};
// clang-format on

} // namespace

constexpr PxElementRow productTypesFileRow = {
    "producttypes", PxOccurrence::First, PxTextKind::None, "the product types", {}, productType};
constexpr PxElementRow framesFileRow = {
    "frames", PxOccurrence::AnyName, PxTextKind::None, "the frame models", {}, frame};
