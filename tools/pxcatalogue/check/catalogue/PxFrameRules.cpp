#include "check/rules/PxRule.h"

#include <algorithm>

namespace {

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
}

using Is = PxRule::Test;

// clang-format off
constexpr PxRule rules[] = {
    {PxTag::FrameIncomplete, "frame", "id", Is::notEmpty(), "the frame has no \"%2\"", "it is left out"},
    {PxTag::FrameIdTwice, "frame", "id", Is::unique(), "the frame \"%1\" is in %3, too", "the later name is shown: \"%3\"", {}, "name"},
    {PxTag::FrameIdNotAscii, "frame", "id", Is::matching(isAscii), "the id \"%1\" is not plain ASCII", "it is found by exactly these letters", {}, "name"},
    {PxTag::FrameIncomplete, "frame", "name", Is::notEmpty(), "the frame has no \"%2\"", "it is shown as \"%3\"", {}, "id"},
};
// clang-format on

} // namespace

PxRows<PxRule> frameRules()
{
    return rules;
}
