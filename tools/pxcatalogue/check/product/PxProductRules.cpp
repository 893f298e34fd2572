#include "check/rules/PxRule.h"

namespace {

constexpr const char *negativeMargin = "\"%2\" is %1";
constexpr const char *negativeMarginNow = "the negative length is used as it is";
constexpr const char *negativeIndentNow = "the page number is printed beyond the edge";

using Is = PxRule::Test;

// clang-format off
constexpr PxRule rules[] = {
    {PxTag::ProductNameMissing, "product", "name", Is::notBlank(), "the product has no name", "the file is skipped without a word"},
    {PxTag::ProductCountZero, "product", "numOfProducts", Is::atLeast(1), "a product that consists of %1 pieces", "the pages of one piece cannot be computed", "leave it out for a single piece"},
    {PxTag::SizeMissing, "product", "usablesize", Is::hasChild(), "the product has no \"usablesize\"", "the product is never offered"},
    {PxTag::MarginNegative, "product", "safetymargin", Is::atLeast(0), negativeMargin, negativeMarginNow},
    {PxTag::MarginNegative, "product", "bleedmargin", Is::atLeast(0), negativeMargin, negativeMarginNow},
    {PxTag::MarginNegative, "product", "bleedmarginhorizontal", Is::atLeast(0), negativeMargin, negativeMarginNow},
    {PxTag::MarginNegative, "product", "bleedmarginvertical", Is::atLeast(0), negativeMargin, negativeMarginNow},
    {PxTag::MarginNegative, "product", "bleedmargincover", Is::atLeast(0), negativeMargin, negativeMarginNow},
    {PxTag::MarginNegative, "product", "bleedmargincoverhorizontal", Is::atLeast(0), negativeMargin, negativeMarginNow},
    {PxTag::MarginNegative, "product", "bleedmargincoververtical", Is::atLeast(0), negativeMargin, negativeMarginNow},
    {PxTag::MarginNegative, "product", "normalpagehorizontalclamp", Is::atLeast(0), negativeMargin, negativeMarginNow},
    {PxTag::MarginNegative, "product", "foldmargin", Is::atLeast(-1), negativeMargin, negativeMarginNow}, // -1 is computed
    {PxTag::MarginNegative, "product/pageNumberConfig/margin", "verticalMargin", Is::atLeast(0), negativeMargin, negativeIndentNow},
    {PxTag::MarginNegative, "product/pageNumberConfig/margin", "horizontalMargin", Is::atLeast(0), negativeMargin, negativeIndentNow},
};
// clang-format on

} // namespace

PxRows<PxRule> productRules()
{
    return rules;
}
