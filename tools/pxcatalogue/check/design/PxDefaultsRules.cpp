#include "check/rules/PxRule.h"

#include <algorithm>

namespace {

/** Whether the list holds more than commas and blanks. */
bool isList(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) {
        return character != QLatin1Char(',') && !character.isSpace();
    });
}

constexpr const char *pageTypeNow = "no page finds these templates";
constexpr const char *pageTypeHint = "name the types of pages, as pageType=\"normalpage\"";

using Is = PxRule::Test;

// clang-format off
constexpr PxRule rules[] = {
    {PxTag::DefaultsThemeUnknown, "defaults/defaults", "theme", Is::matching(isList), "\"theme\" names no theme", "no theme finds these templates", "without the attribute they are for \"normal\""},
    {PxTag::DefaultsPageTypeMissing, "defaults/defaults", "pageType", Is::given(), "\"pageType\" is missing", pageTypeNow, pageTypeHint},
    {PxTag::DefaultsPageTypeMissing, "defaults/defaults", "pageType", Is::matching(isList), "\"pageType\" names no type of page", pageTypeNow, pageTypeHint},
};
// clang-format on

} // namespace

PxRows<PxRule> defaultsRules()
{
    return rules;
}
