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
// The platform keeps these keywords to itself; a test holds both against each other.
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

/** The keywords in their order, but synonyms behind the first keyword of the value. */
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

/** The meaning is the display name. */
QVector<PxKeywordTableRow> materials()
{
    QVector<PxKeywordTableRow> table;
    const QStringList keywords = PxProductMaterial::keywords();
    for (const QString &keyword : keywords)
        table.append(
            {keyword, 0, PxProductMaterial(keyword).visibleDescription(), nullptr, nullptr});
    return table;
}

// No keyword stands for the sign bit alone.
constexpr int noKeyword = std::numeric_limits<int>::min();

template <typename WRAPPER>
bool isKeywordOf(const QString &word)
{
    const auto *table = WRAPPER().enumToStringTable();
    const auto none = static_cast<decltype(WRAPPER().value())>(noKeyword);
    return table->decode(word, none) != none;
}

/** As the wrapper does it, but without a message about what is no keyword: that is told here. */
template <typename WRAPPER>
int decodeAs(const QString &text)
{
    const auto *table = WRAPPER().enumToStringTable();
    int undecodable = pxMaximumMessages;
    return table->decodeCSV(text, undecodable);
}

// The shared map of an enumeration.
// clang-format off
const auto &mapOf(PxPageNamingStyle) { return EnumHelper::globalMapPageNamingStyleString; }
const auto &mapOf(PxAssemblyWay) { return EnumHelper::globalMapAssemblyWayString; }
const auto &mapOf(PxImageFXs) { return EnumHelper::globalMapImageFXsString; }
const auto &mapOf(PxSurroundingType) { return EnumHelper::globalMapSurroundingTypeString; }
const auto &mapOf(PxPageAlignment) { return EnumHelper::globalMapPageAlignmentString; }
const auto &mapOf(PxProductGroupEnum) { return EnumHelper::globalMapProductGroupEnumString; }
// clang-format on

template <typename ENUM>
bool isKeywordIn(const QString &word)
{
    const auto none = static_cast<ENUM>(noKeyword);
    return EnumHelper::decodeKeyword(word, mapOf(none), none) != none;
}

template <auto fallback>
int decodeWord(const QString &text)
{
    return EnumHelper::decodeKeyword(text, mapOf(fallback), fallback);
}

template <auto fallback>
int decodeList(const QString &text)
{
    return EnumHelper::decodeKeywordList(text, mapOf(fallback), fallback);
}

bool isMaterial(const QString &word)
{
    return !PxProductMaterial(word).visibleDescription().isEmpty();
}

// The library keeps the names of the classes to itself; it compares them in upper case.
int decodeProductClass(const QString &text)
{
    const QString keyword = text.trimmed().toUpper();
    const auto *found =
        std::find_if(std::begin(productClasses), std::end(productClasses),
                     [&](const PxKeyword<PxProductClass> &row) {
                         return keyword == QString::fromLatin1(row.keyword).toUpper();
                     });
    return found == std::end(productClasses) ? 0 : found->value;
}

constexpr int decodeNothing(const QString &)
{
    return 0;
}

} // namespace

PxRows<PxKeywordSetRow> keywordSetRows()
{
    using namespace EnumHelper;
    // clang-format off
    static const PxKeywordSetRow ourRows[] = {
        {PxKeywordSet::Binding, "binding", tableOf(PxBinding::ourKeywords, bindings), PxBindingGift, "GIFT",
         isKeywordOf<PxBinding>, decodeAs<PxBinding>},
        {PxKeywordSet::Paper, "paper", tableOf(PxPaperType::ourKeywords, papers), PxPaperTypeIndigo, "indigo",
         isKeywordOf<PxPaperType>, decodeAs<PxPaperType>},
        {PxKeywordSet::SizeClass, "size class", tableOf(PxSpaceMagnitude::ourKeywords, sizeClasses), PxSpaceMagnitudeAny, "every size class",
         isKeywordOf<PxSpaceMagnitude>, decodeAs<PxSpaceMagnitude>},
        {PxKeywordSet::PageType, "page type", tableOf(PxPageType::ourKeywords, pageTypes), PxPageTypeNone, "no page type",
         isKeywordOf<PxPageType>, decodeAs<PxPageType>},
        {PxKeywordSet::PageNamingStyle, "page naming style", tableOf(globalPageNamingStyleKeywords, pageNamingStyles),
         globalPageNamingStyleDefaultValue, "no naming style",
         isKeywordIn<PxPageNamingStyle>,
         decodeList<globalPageNamingStyleDefaultValue>},
        {PxKeywordSet::AssemblyWay, "way of assembly", tableOf(globalAssemblyWayKeywords, assemblyWays),
         globalAssemblyWayDefaultValue, "factory",
         isKeywordIn<PxAssemblyWay>,
         decodeList<globalAssemblyWayDefaultValue>},
        {PxKeywordSet::ImageEffect, "image effect", tableOf(globalImageFXsKeywords, imageEffects),
         globalImageFXsDefaultValue, "none",
         isKeywordIn<PxImageFXs>,
         decodeList<globalImageFXsDefaultValue>},
        {PxKeywordSet::SurroundingType, "surrounding type", tableOf(globalSurroundingTypeKeywords, surroundingTypes),
         globalSurroundingTypeDefaultValue, "no surrounding",
         isKeywordIn<PxSurroundingType>,
         decodeWord<globalSurroundingTypeDefaultValue>},
        {PxKeywordSet::Alignment, "alignment", tableOf(globalPageAlignmentKeywords, alignments),
         globalPageAlignmentDefaultValue, "left",
         isKeywordIn<PxPageAlignment>,
         decodeList<globalPageAlignmentDefaultValue>},
        {PxKeywordSet::ProductGroup, "product group", tableOf(globalProductGroupEnumKeywords, productGroups),
         globalProductGroupEnumDefaultValue, "no product group",
         isKeywordIn<PxProductGroupEnum>,
         decodeWord<globalProductGroupEnumDefaultValue>},
        {PxKeywordSet::Orientation, "orientation", tableOf(orientations), 0, "no orientation",
         isKeywordOf<PxOrientation>, decodeAs<PxOrientation>},
        {PxKeywordSet::Material, "material", materials(), 0, "no material",
         isMaterial, decodeNothing},
        {PxKeywordSet::ProductClass, "product class", tableOf(productClasses), 0, "no product class",
         [](const QString &word) { return decodeProductClass(word) != 0; }, decodeProductClass},
    };
    // clang-format on
    return ourRows;
}
