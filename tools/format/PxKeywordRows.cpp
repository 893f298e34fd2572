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
constexpr PxKeywordTableRow bindings[] = {
    {"HARDCOVER", PxBindingHardcover, "printed hard cover"},
    {"SOFTCOVER", PxBindingSoftcover, "printed soft cover"},
    {"CROMOLINEN", PxBindingCromolinen, "linen cover, not printed"},
    {"LEATHER", PxBindingLeather, "leather cover, not printed"},
    {"ARTIFICIALLEATHER", PxBindingArtificialLeather, "imitation leather, not printed"},
    {"CLAMP", PxBindingClamp, "linen folder with clamp"},
    {"CLAMPCOVER", PxBindingClamp, nullptr},
    {"BOOKLET", PxBindingBooklet, "stapled"},
    {"FOIL", PxBindingFoil, "rings and clear foil"},
    {"CALENDAR_SIMPLEX", PxBindingCalendarSimplex, "month calendar, one side"},
    {"CALENDAR_DUPLEX", PxBindingCalendarDuplex, "month calendar, both sides"},
    {"CALENDAR_ONE_PAGE", PxBindingCalendarOnePage, "year on one page"},
    {"CALENDAR_ANNUAL_SIMPLEX", PxBindingCalendarOnePage, nullptr},
    {"CALENDAR_ANNUAL_DUPLEX", PxBindingCalendarAnnualDuplex, "year on two pages"},
    {"GIFT", PxBindingGift, "none: gifts, cards, decoration, prints"},
};
constexpr PxKeywordTableRow papers[] = {
    {"unbekanntes Papier", PxPaperTypeUnknown, "none or not of this table"},
    {"indigo", PxPaperTypeIndigo, "digital print"},
    {"glossy", PxPaperTypeGlossy, "digital print, varnished"},
    {"indigo-matt", PxPaperTypeIndigoMatt, "digital print, heavy matt paper"},
    {"fotopaper", PxPaperTypeFotoPaper, "photo paper, matt"},
    {"fotopaper-glossy", PxPaperTypeFotoPaperGlossy, "photo paper, glossy"},
};
constexpr PxKeywordTableRow sizeClasses[] = {
    {"150cm2", PxSpaceMagnitude150, "Mini"},
    {"200cm2", PxSpaceMagnitude200, "small"},
    {"280cm2", PxSpaceMagnitude280, "Compact"},
    {"310cm2", PxSpaceMagnitude310, "A5"},
    {"400cm2", PxSpaceMagnitude400, "square"},
    {"600cm2", PxSpaceMagnitude600, "A4"},
    {"900cm2", PxSpaceMagnitude900, "XL"},
    {"xl", PxSpaceMagnitude900, nullptr},
    {"1200cm2", PxSpaceMagnitude1200, "XXL"},
    {"normal", PxSpaceMagnitudeNormal, "all but Mini and XL"},
};
constexpr PxKeywordTableRow pageTypes[] = {
    {"spine", PxPageTypeSpine, "spine", "spine width × cover height"},
    {"clampcoverfront", PxPageTypeClampCoverFront, "front of a clamp folder", "cover"},
    {"clampcoverback", PxPageTypeClampCoverBack, "back of a clamp folder", "cover"},
    {"foilcoverfront", PxPageTypeFoilCover, "clear foil; front and back are one type", "page"},
    {"foilcoverback", PxPageTypeFoilCover, nullptr},
    {"foilcover", PxPageTypeFoilCover, nullptr},
    {"normalpage", PxPageTypeNormalPage, "page with content", "page"},
    {"normal", PxPageTypeNormalPage, nullptr},
    {"content", PxPageTypeNormalPage, nullptr},
    {"emptypage", PxPageTypeEmptyPage, "blank page", "page"},
    {"empty", PxPageTypeEmptyPage, nullptr},
    {"fullcover", PxPageTypeFullCover, "half of a printed cover", "cover"},
    {"calendercoverfront", PxPageTypeCalendarCoverFront, "front of a calendar", "page"},
    {"calendarfront", PxPageTypeCalendarCoverFront, nullptr},
    {"calendercoverback", PxPageTypeCalendarCoverBack, "back of a calendar", "page"},
    {"calendarback", PxPageTypeCalendarCoverBack, nullptr},
    {"cromolinen", PxPageTypeCromolinen, "half of a linen cover", "cover"},
    {"leather", PxPageTypeLeather, "half of a leather cover", "cover"},
    {"artificialleather", PxPageTypeArtificialLeather, "half of an imitation leather cover", "cover"},
    {"duplexmonthcalendar", PxPageTypeDuplexMonthCalendar, "all pages of a month calendar, both sides", "–"},
    {"simplexyearcalendar", PxPageTypeSimplexYearCalendar, "the page of a year calendar", "–"},
    {"normalpages", PxPageTypeNormalPages, "all normal pages", "–"},
    {"simplexmonthcalendar", PxPageTypeSimplexMonthCalendar, "all pages of a month calendar, one side", "–"},
    {"cover", PxPageTypeCover, "spine and every cover type", "–"},
    {"all", PxPageTypeAll, "`cover`, normal and blank pages", "–"},
};
constexpr PxKeywordTableRow pageNamingStyles[] = {
    {"BOOK", PxPageNamingStyleBook, ""},
    {"CALENDAR", PxPageNamingStyleCalendar, ""},
    {"SINGLE_SIDED_CARD", PxPageNamingStyleSingleSidedCard, ""},
    {"BOTH_SIDED_CARD", PxPageNamingStyleBothSidedCard, ""},
    {"MEMORY", PxPageNamingStyleMemory, ""},
    {"COLLEGE_BLOCK", PxPageNamingStyleCollegeBlock, ""},
    {"PREMIUM-PILLOW", PxPageNamingStylePremiumPillow, "", nullptr, "with a hyphen"},
    {"COPYBOOK", PxPageNamingStyleCopyBook, ""},
    {"STICKER", PxPageNamingStyleSticker, ""},
    {"ADDRESSBOOK", PxPageNamingStyleAddressBook, ""},
    {"CALENDAR_ANNUAL_DUPLEX", PxPageNamingStyleCalendarAnnualDuplex, ""},
};
constexpr PxKeywordTableRow assemblyWays[] = {
    {"client", PxAssemblyWayClient, "the customer"},
    {"factory", PxAssemblyWayFactory, "the maker"},
};
constexpr PxKeywordTableRow imageEffects[] = {
    {"none", PxImageFXsNone, "none"},
    {"grayscale", PxImageFXsGrayscale, "pictures are shown grey, without borders and shadows"},
    {"PRESERVE_ALPHA_CHANNEL", PxImageFXsPreserveAlphaChannel, "transparency of pictures is kept"},
};
constexpr PxKeywordTableRow surroundingTypes[] = {
    {"BOOK", PxSurroundingTypeBook, "covers and binding shade of books"},
    {"GIFT", PxSurroundingTypeGift, "parts of a gift: handle, flap, seam"},
    {"BORDER", PxSurroundingTypeBorder, "a border, as where canvas folds"},
    {"CALENDAR", PxSurroundingTypeCalendar, "spiral of a calendar"},
    {"FRAME", PxSurroundingTypeFrame, "frame round every page"},
    {"COLLEGEBLOCK", PxSurroundingTypeCollegeBlock, "spiral of a block"},
    {"PHOTOPAPERBOOK", PxSurroundingTypePhotoPaperBook, "covers and fold of photo paper books"},
    {"COPYBOOK", PxSurroundingTypeCopyBook, "exercise book"},
    {"NOTEBOOK", PxSurroundingTypeNoteBook, "notebook"},
};
constexpr PxKeywordTableRow alignments[] = {
    {"left", PxPageAlignmentLeft, "left"},
    {"leftpage", PxPageAlignmentLeft, nullptr},
    {"cover", PxPageAlignmentLeft, nullptr},
    {"coverpage", PxPageAlignmentLeft, nullptr},
    {"right", PxPageAlignmentRight, "right"},
    {"rightpage", PxPageAlignmentRight, nullptr},
    {"middle", PxPageAlignmentMiddle, "spine of pages side by side"},
    {"fullpage", PxPageAlignmentFullPage, "whole spread"},
    {"top", PxPageAlignmentTop, "above"},
    {"bottom", PxPageAlignmentBottom, "below"},
    {"center", PxPageAlignmentCenter, "spine of pages above each other"},
};
constexpr PxKeywordTableRow productGroups[] = {
    {"foto", PxProductGroupFoto, "prints"},
    {"premiumfoto", PxProductGroupPremiumFoto, "premium prints"},
    {"product_foto", PxProductGroupPremiumFoto, nullptr},
    {"poster", PxProductGroupPoster, "posters"},
    {"product_poster", PxProductGroupPoster, nullptr},
    {"book", PxProductGroupBook, "books"},
    {"product_fotobook", PxProductGroupBook, nullptr},
    {"calendar", PxProductGroupCalendar, "calendars"},
    {"printfun", PxProductGroupCalendar, nullptr},
    {"product_calendar", PxProductGroupCalendar, nullptr},
    {"gift", PxProductGroupGift, "gifts"},
    {"fun", PxProductGroupGift, nullptr},
    {"product_gift", PxProductGroupGift, nullptr},
    {"dfmfoto", PxProductGroupDfmFoto, "prints of the kind `dfm`"},
    {"professionalfoto", PxProductGroupProfessionalFoto, "professional prints"},
};
constexpr PxKeywordTableRow orientations[] = {
    {"portrait", PxOrientationPortrait, ""},
    {"landscape", PxOrientationLandscape, ""},
    {"quadratic", PxOrientationQuadratic, ""},
    {"square", PxOrientationQuadratic, nullptr},
    {"panorama", PxOrientationPanorama, ""},
    {"portraitpanorama", PxOrientationPortraitPanorama, ""},
    {"round", PxOrientationRound, ""},
};
constexpr PxKeywordTableRow materials[] = { // the meaning is the display name
    {"Poster", 0, "Poster-Collage"},
    {"Deko-Poster", 0, "Poster-Collage"},
    {"Leinwand", 0, "Fotoleinwand"},
    {"Poster auf Alu-Dibond", 0, "Poster auf Alu-Dibond"},
    {"Poster hinter Acryl-Glas", 0, "Poster hinter Acryl-Glas"},
    {"Poster auf Alu-Dibond digital", 0, "Poster auf Alu-Dibond (Direktdruck)"},
    {"Poster hinter Acryl-Glas digital", 0, "Poster hinter Acryl-Glas (Direktdruck)"},
    {"Posterdruck XXL", 0, "Posterdruck XXL"},
    {"Posterdruck XXL quadratisch", 0, "Posterdruck XXL Quadratisch"},
    {"Posterdruck XXL Panorama", 0, "Posterdruck XXL Panorama"},
    {"Poster auf Hartschaumplatte digital", 0, "Poster auf Hartschaum (Direktdruck)"},
    {"Gallery Print digital", 0, "Gallery Print"},
};
constexpr PxKeywordTableRow productClasses[] = {
    {"book", PxProductClassBook, ""},
    {"calendar", PxProductClassCalendar, ""},
    {"gift", PxProductClassGift, ""},
    {"card", PxProductClassCard, ""},
    {"deko", PxProductClassDecoration, ""},
    {"print", PxProductClassPrint, ""},
};
// clang-format on

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
    const auto *found = std::find_if(
        std::begin(productClasses), std::end(productClasses), [&](const PxKeywordTableRow &row) {
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
    static constexpr PxKeywordSetRow rows[] = {
        {PxKeywordSet::Binding, "binding", bindings, PxBindingGift, "GIFT",
         isKeywordOf<PxBinding>, decodeAs<PxBinding>},
        {PxKeywordSet::Paper, "paper", papers, PxPaperTypeIndigo, "indigo",
         isKeywordOf<PxPaperType>, decodeAs<PxPaperType>},
        {PxKeywordSet::SizeClass, "size class", sizeClasses, PxSpaceMagnitudeAny, "every size class",
         isKeywordOf<PxSpaceMagnitude>, decodeAs<PxSpaceMagnitude>},
        {PxKeywordSet::PageType, "page type", pageTypes, PxPageTypeNone, "no page type",
         isKeywordOf<PxPageType>, decodeAs<PxPageType>},
        {PxKeywordSet::PageNamingStyle, "page naming style", pageNamingStyles,
         globalPageNamingStyleDefaultValue, "no naming style",
         isKeywordIn<PxPageNamingStyle>,
         decodeList<globalPageNamingStyleDefaultValue>},
        {PxKeywordSet::AssemblyWay, "way of assembly", assemblyWays,
         globalAssemblyWayDefaultValue, "factory",
         isKeywordIn<PxAssemblyWay>,
         decodeList<globalAssemblyWayDefaultValue>},
        {PxKeywordSet::ImageEffect, "image effect", imageEffects,
         globalImageFXsDefaultValue, "none",
         isKeywordIn<PxImageFXs>,
         decodeList<globalImageFXsDefaultValue>},
        {PxKeywordSet::SurroundingType, "surrounding type", surroundingTypes,
         globalSurroundingTypeDefaultValue, "no surrounding",
         isKeywordIn<PxSurroundingType>,
         decodeWord<globalSurroundingTypeDefaultValue>},
        {PxKeywordSet::Alignment, "alignment", alignments,
         globalPageAlignmentDefaultValue, "left",
         isKeywordIn<PxPageAlignment>,
         decodeList<globalPageAlignmentDefaultValue>},
        {PxKeywordSet::ProductGroup, "product group", productGroups,
         globalProductGroupEnumDefaultValue, "no product group",
         isKeywordIn<PxProductGroupEnum>,
         decodeWord<globalProductGroupEnumDefaultValue>},
        {PxKeywordSet::Orientation, "orientation", orientations, 0, "no orientation",
         isKeywordOf<PxOrientation>, decodeAs<PxOrientation>},
        {PxKeywordSet::Material, "material", materials, 0, "no material",
         isMaterial, decodeNothing},
        {PxKeywordSet::ProductClass, "product class", productClasses, 0, "no product class",
         [](const QString &word) { return decodeProductClass(word) != 0; }, decodeProductClass},
    };
    // clang-format on
    return rows;
}
