#include "format/PxKeywordRows.h"

#include <EnumHelper.h>
#include <PxOrientation.h>
#include <PxProductClass.h>
#include <values/PxBinding.h>
#include <values/PxPageType.h>
#include <values/PxPaperType.h>
#include <values/PxProductMaterial.h>
#include <values/PxSpaceMagnitude.h>

#include <algorithm>
#include <limits>

namespace {

using Set = PxKeywordSet;

// clang-format off
constexpr PxKeywordCells bindings[] = {
    {PxBindingHardcover, "printed hard cover"},
    {PxBindingSoftcover, "printed soft cover"},
    {PxBindingCromolinen, "linen cover, not printed"},
    {PxBindingLeather, "leather cover, not printed"},
    {PxBindingArtificialLeather, "imitation leather, not printed"},
    {PxBindingClamp, "linen folder with clamp"},
    {PxBindingBooklet, "stapled"},
    {PxBindingFoil, "rings and clear foil"},
    {PxBindingCalendarSimplex, "month calendar, one side"},
    {PxBindingCalendarDuplex, "month calendar, both sides"},
    {PxBindingCalendarOnePage, "year on one page"},
    {PxBindingCalendarAnnualDuplex, "year on two pages"},
    {PxBindingGift, "none: gifts, cards, decoration, prints"},
};
constexpr PxKeywordCells papers[] = {
    {PxPaperTypeUnknown, "none or not of this table"},
    {PxPaperTypeIndigo, "digital print"},
    {PxPaperTypeGlossy, "digital print, varnished"},
    {PxPaperTypeIndigoMatt, "digital print, heavy matt paper"},
    {PxPaperTypeFotoPaper, "photo paper, matt"},
    {PxPaperTypeFotoPaperGlossy, "photo paper, glossy"},
};
constexpr PxKeywordCells sizeClasses[] = {
    {PxSpaceMagnitude150, "Mini"},
    {PxSpaceMagnitude200, "small"},
    {PxSpaceMagnitude280, "Compact"},
    {PxSpaceMagnitude310, "A5"},
    {PxSpaceMagnitude400, "square"},
    {PxSpaceMagnitude600, "A4"},
    {PxSpaceMagnitude900, "XL"},
    {PxSpaceMagnitude1200, "XXL"},
    {PxSpaceMagnitudeNormal, "all but Mini and XL"},
};
constexpr PxKeywordCells pageTypes[] = {
    {PxPageTypeSpine, "spine", "spine width × cover height"},
    {PxPageTypeClampCoverFront, "front of a clamp folder", "cover"},
    {PxPageTypeClampCoverBack, "back of a clamp folder", "cover"},
    {PxPageTypeFoilCover, "clear foil; front and back are one type", "page"},
    {PxPageTypeNormalPage, "page with content", "page"},
    {PxPageTypeEmptyPage, "blank page", "page"},
    {PxPageTypeFullCover, "half of a printed cover", "cover"},
    {PxPageTypeCalendarCoverFront, "front of a calendar", "page"},
    {PxPageTypeCalendarCoverBack, "back of a calendar", "page"},
    {PxPageTypeCromolinen, "half of a linen cover", "cover"},
    {PxPageTypeLeather, "half of a leather cover", "cover"},
    {PxPageTypeArtificialLeather, "half of an imitation leather cover", "cover"},
    {PxPageTypeDuplexMonthCalendar, "all pages of a month calendar, both sides", "–"},
    {PxPageTypeSimplexYearCalendar, "the page of a year calendar", "–"},
    {PxPageTypeNormalPages, "all normal pages", "–"},
    {PxPageTypeSimplexMonthCalendar, "all pages of a month calendar, one side", "–"},
    {PxPageTypeCover, "spine and every cover type", "–"},
    {PxPageTypeAll, "`cover`, normal and blank pages", "–"},
};
constexpr PxKeywordCells pageNamingStyles[] = {
    {PxPageNamingStylePremiumPillow, "", nullptr, "with a hyphen"},
};
constexpr PxKeywordCells assemblyWays[] = {
    {PxAssemblyWayClient, "the customer"},
    {PxAssemblyWayFactory, "the maker"},
};
constexpr PxKeywordCells imageEffects[] = {
    {PxImageFXsNone, "none"},
    {PxImageFXsGrayscale, "pictures are shown grey, without borders and shadows"},
    {PxImageFXsPreserveAlphaChannel, "transparency of pictures is kept"},
};
constexpr PxKeywordCells surroundingTypes[] = {
    {PxSurroundingTypeBook, "covers and binding shade of books"},
    {PxSurroundingTypeGift, "parts of a gift: handle, flap, seam"},
    {PxSurroundingTypeBorder, "a border, as where canvas folds"},
    {PxSurroundingTypeCalendar, "spiral of a calendar"},
    {PxSurroundingTypeFrame, "frame round every page"},
    {PxSurroundingTypeCollegeBlock, "spiral of a block"},
    {PxSurroundingTypePhotoPaperBook, "covers and fold of photo paper books"},
    {PxSurroundingTypeCopyBook, "exercise book"},
    {PxSurroundingTypeNoteBook, "notebook"},
};
constexpr PxKeywordCells alignments[] = {
    {PxPageAlignmentLeft, "left"},
    {PxPageAlignmentRight, "right"},
    {PxPageAlignmentMiddle, "spine of pages side by side"},
    {PxPageAlignmentFullPage, "whole spread"},
    {PxPageAlignmentTop, "above"},
    {PxPageAlignmentBottom, "below"},
    {PxPageAlignmentCenter, "spine of pages above each other"},
};
constexpr PxKeywordCells productGroups[] = {
    {PxProductGroupFoto, "prints"},
    {PxProductGroupPremiumFoto, "premium prints"},
    {PxProductGroupPoster, "posters"},
    {PxProductGroupBook, "books"},
    {PxProductGroupCalendar, "calendars"},
    {PxProductGroupGift, "gifts"},
    {PxProductGroupDfmFoto, "prints of the kind `dfm`"},
    {PxProductGroupProfessionalFoto, "professional prints"},
};
// The platform does not publish these keywords; a test checks that it decodes them like this.
constexpr PxKeyword<PxOrientationEnum> orientations[] = {
    {"portrait", PxOrientationPortrait},
    {"landscape", PxOrientationLandscape},
    {"quadratic", PxOrientationQuadratic},
    {"square", PxOrientationQuadratic},
    {"panorama", PxOrientationPanorama},
    {"portraitpanorama", PxOrientationPortraitPanorama},
    {"round", PxOrientationRound},
};
constexpr PxKeyword<PxProductClass> productClasses[] = {
    {"book", PxProductClassBook},
    {"calendar", PxProductClassCalendar},
    {"gift", PxProductClassGift},
    {"card", PxProductClassCard},
    {"deko", PxProductClassDecoration},
    {"print", PxProductClassPrint},
};
// clang-format on

/** Keeps the order of the keywords, but puts synonyms behind the first keyword of their value. */
template <typename ENUM, std::size_t COUNT>
QVector<PxKeywordTableRow> tableOf(const PxKeyword<ENUM> (&keywords)[COUNT],
                                   PxRows<PxKeywordCells> cells = {})
{
    QVector<PxKeywordTableRow> table;
    for (const PxKeyword<ENUM> &row : keywords) {
        const QString keyword = QString::fromLatin1(row.keyword);
        const auto isOfValue = [&row](const auto &other) { return other.value == row.value; };
        const auto last = std::find_if(table.rbegin(), table.rend(), isOfValue);
        if (last != table.rend()) {
            table.insert(last.base(), {keyword, row.value, QString(), nullptr, nullptr});
            continue;
        }
        const auto *found = std::find_if(cells.begin(), cells.end(), isOfValue);
        const PxKeywordCells cell = found == cells.end() ? PxKeywordCells{row.value, ""} : *found;
        table.append({keyword, row.value, QString::fromUtf8(cell.meaning), cell.size, cell.note});
    }
    return table;
}

// The sign bit alone, which is the value of no keyword.
constexpr int noKeyword = std::numeric_limits<int>::min();

/** A set that the library decodes with the table of an enumeration, as lists. */
template <typename WRAPPER>
PxKeywordSetRow tableSet(PxKeywordSet set, const char *name, const char *defaultText,
                         const QVector<PxKeywordTableRow> &keywords)
{
    const auto isKeyword = [](const QString &word) {
        const auto none = static_cast<decltype(WRAPPER().value())>(noKeyword);
        return WRAPPER().enumToStringTable()->decode(word, none) != none;
    };
    const auto decode = [](const QString &text) {
        int undecodable = pxMaximumMessages; // logs nothing: findings report unknown keywords
        return int(WRAPPER().enumToStringTable()->decodeCSV(text, undecodable));
    };
    return {set, name, keywords, decode(QString()), defaultText, isKeyword, decode};
}

enum class Reading { Word, List };

/** A set that the library decodes with a map of keywords. */
template <const auto &keywords, auto fallback, Reading reading>
PxKeywordSetRow mapSet(PxKeywordSet set, const char *name, const char *defaultText,
                       PxRows<PxKeywordCells> cells = {})
{
    static const auto ourMap = EnumHelper::keywordMap(keywords);
    const auto isKeyword = [](const QString &word) {
        const auto none = static_cast<decltype(fallback)>(noKeyword);
        return EnumHelper::decodeKeyword(word, ourMap, none) != none;
    };
    const auto decode = [](const QString &text) {
        return int(reading == Reading::List ? EnumHelper::decodeKeywordList(text, ourMap, fallback)
                                            : EnumHelper::decodeKeyword(text, ourMap, fallback));
    };
    return {set, name, tableOf(keywords, cells), fallback, defaultText, isKeyword, decode};
}

/** The meaning of a material is its display name. */
PxKeywordSetRow materialSet()
{
    QVector<PxKeywordTableRow> table;
    const QStringList keywords = PxProductMaterial::keywords();
    for (const QString &word : keywords)
        table.append({word, 0, PxProductMaterial(word).visibleDescription(), nullptr, nullptr});
    const auto isKeyword = [](const QString &word) {
        return !PxProductMaterial(word).visibleDescription().isEmpty();
    };
    return {Set::Material,
            "material",
            table,
            0,
            "no material",
            isKeyword,
            [](const QString &) { return 0; }};
}

} // namespace

PxRows<PxKeywordSetRow> keywordSetRows()
{
    using namespace EnumHelper;
    constexpr Reading word = Reading::Word;
    constexpr Reading list = Reading::List;
    // clang-format off
    static const PxKeywordSetRow ourRows[] = {
        tableSet<PxBinding>(Set::Binding, "binding", "GIFT", tableOf(PxBinding::ourKeywords, bindings)),
        tableSet<PxPaperType>(Set::Paper, "paper", "indigo", tableOf(PxPaperType::ourKeywords, papers)),
        tableSet<PxSpaceMagnitude>(Set::SizeClass, "size class", "every size class", tableOf(PxSpaceMagnitude::ourKeywords, sizeClasses)),
        tableSet<PxPageType>(Set::PageType, "page type", "no page type", tableOf(PxPageType::ourKeywords, pageTypes)),
        mapSet<globalPageNamingStyleKeywords, globalPageNamingStyleDefaultValue, list>(Set::PageNamingStyle, "page naming style", "no naming style", pageNamingStyles),
        mapSet<globalAssemblyWayKeywords, globalAssemblyWayDefaultValue, list>(Set::AssemblyWay, "way of assembly", "factory", assemblyWays),
        mapSet<globalImageFXsKeywords, globalImageFXsDefaultValue, list>(Set::ImageEffect, "image effect", "none", imageEffects),
        mapSet<globalSurroundingTypeKeywords, globalSurroundingTypeDefaultValue, word>(Set::SurroundingType, "surrounding type", "no surrounding", surroundingTypes),
        mapSet<globalPageAlignmentKeywords, globalPageAlignmentDefaultValue, list>(Set::Alignment, "alignment", "left", alignments),
        mapSet<globalProductGroupEnumKeywords, globalProductGroupEnumDefaultValue, word>(Set::ProductGroup, "product group", "no product group", productGroups),
        tableSet<PxOrientation>(Set::Orientation, "orientation", "no orientation", tableOf(orientations)),
        materialSet(),
        mapSet<productClasses, PxProductClassUnknown, word>(Set::ProductClass, "product class", "no product class"),
    };
    // clang-format on
    return ourRows;
}
