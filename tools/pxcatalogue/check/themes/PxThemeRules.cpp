#include "check/rules/PxRule.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <PxProductGroup.h>
#include <PxProductType.h>

namespace {

bool hasNoComma(const QString &text)
{
    return !text.contains(QLatin1Char(','));
}

bool isTrimmed(const QString &text)
{
    return text == text.trimmed();
}

QString tidyIdHint(const QString &id)
{
    return QString("write \"%1\"").arg(id.trimmed().toLower());
}

bool isLower(const QString &text)
{
    return text == text.toLower();
}

QString lowerIdNow(const QString &id)
{
    return QString("the id is \"%1\"").arg(id.toLower());
}

bool isProductGroup(const QString &text)
{
    return PxProductGroup(text).isValid();
}

QString productGroupHint(const QString &text)
{
    constexpr PxKeywordSet groups = PxKeywordSet::ProductGroup;
    if (!hasNoComma(text))
        return "name one product group only";
    const QString near = PxSpelling::hint(text, PxFormat::keywordNames(groups));
    return near.isEmpty() ? PxSpelling::oneOf(PxFormat::mainKeywordNames(groups)) : near;
}

bool isInteger(const QString &text)
{
    bool isInteger = false;
    static_cast<void>(text.toInt(&isInteger));
    return isInteger;
}

QString keyAccountHint(const QString &text)
{
    return hasNoComma(text) ? QString() : "write an element for each key account";
}

/** The usual spelling; empty for an unknown product. */
QString productName(const QString &text)
{
    const PxProductType type(text.toUpper());
    return type.isValid() ? type.productName() : QString();
}

constexpr const char *invalidTheme = "the theme is not valid";
constexpr const char *expiredTheme = "the theme has expired, it is never offered";
constexpr const char *expiryForm = "write year to minute, as in \"205012312359\"";
constexpr const char *firstKeyAccount = "it counts as key account 0";
constexpr const char *noProduct = "the logo belongs to no product";
constexpr const char *noImage = "the logo has no image";

using Is = PxRule::Test;

// clang-format off
constexpr PxRule rules[] = {
    {PxTag::ThemeIdMissing, "theme", "id", Is::given(), "the theme has no \"id\"", "its id is \"unbekannt\""},
    {PxTag::ThemeIdMissing, "theme", "id", Is::notEmpty(), "the \"id\" of the theme is empty", "its id is \"\""},
    {PxTag::ThemeIdUnlistable, "theme", "id", Is::matching(hasNoComma), "the id \"%1\" holds a comma", "no list of ids finds the theme"},
    {PxTag::ThemeIdUnlistable, "theme", "id", Is::matching(isTrimmed), "the id \"%1\" begins or ends with a blank", "the blank belongs to the id", tidyIdHint},
    {PxTag::ThemeGroupMissing, "theme", "producttype", Is::given(), "the theme has no \"producttype\"", invalidTheme, "name the product group, as in \"book\""},
    {PxTag::ThemeGroupMissing, "theme", "producttype", Is::notBlank(), "the \"producttype\" of the theme is empty", invalidTheme, "name the product group, as in \"book\""},
    {PxTag::ThemeGroupUnknown, "theme", "producttype", Is::matching(isProductGroup), "\"%1\" is no product group", invalidTheme, productGroupHint},
    {PxTag::ThemeIdLowered, "theme", "id", Is::matching(isLower), "the id \"%1\" has upper-case letters", lowerIdNow}, // no neighbour of the other rules for ids: reported beside them
    {PxTag::ThemeExpiryMissing, "theme", "expiry", Is::given(), "the theme has no \"expiry\"", expiredTheme, expiryForm},
    {PxTag::ThemeExpiryMissing, "theme", "expiry", Is::notBlank(), "the \"expiry\" of the theme is empty", expiredTheme, expiryForm},
    {PxTag::ThemeDescriptionMissing, "theme", "description", Is::hasChild(), "the theme has no \"description\"", "it is shown as \"unbekannt\""},
    {PxTag::ThemeDescriptionMissing, "theme/description", nullptr, Is::notBlank(), "the \"description\" of the theme is empty", "it is shown as \"\""},
    {PxTag::ThemeKeyAccountMalformed, "theme/keyaccounts/keyaccount", nullptr, Is::notBlank(), "the key account is empty", firstKeyAccount},
    {PxTag::ThemeKeyAccountMalformed, "theme/keyaccounts/keyaccount", nullptr, Is::matching(isInteger), "\"%1\" is no number of a key account", firstKeyAccount, keyAccountHint},
    {PxTag::ThemeLogoProductMissing, "theme/logos/logo", "booktype", Is::given(), "the logo names no product: \"booktype\" is missing", noProduct},
    {PxTag::ThemeLogoProductMissing, "theme/logos/logo", "booktype", Is::notBlank(), "the logo names no product: \"booktype\" is empty", noProduct},
    {PxTag::ThemeLogoTwice, "theme/logos/logo", "booktype", Is::unique(productName), "%1 has a logo in %3, too", "the later one is used, image and place together"},
    {PxTag::ThemeImageMissing, "theme/logos/logo", "filename", Is::given(), "the logo names no image: \"filename\" is missing", noImage},
    {PxTag::ThemeImageMissing, "theme/logos/logo", "filename", Is::notEmpty(), "the logo names no image: \"filename\" is empty", noImage},
};
// clang-format on

} // namespace

PxRows<PxRule> themeRules()
{
    return rules;
}
