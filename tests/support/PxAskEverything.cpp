#include "PxAskEverything.h"

#include <description/PxProductTypeDescription.h>
#include <themes/PxTheme.h>

#include <QDebug>

#include <limits>

namespace {

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

constexpr PxPageTypeEnum pageTypes[] = {
    PxPageTypeNone,  PxPageTypeSpine, PxPageTypeNormalPage,  PxPageTypeFullCover,
    PxPageTypeCover, PxPageTypeAll,   PxPageTypeNormalPages, PxPageTypeEnum(smallest)};

constexpr PxPageAlignment alignments[] = {PxPageAlignmentNone, PxPageAlignmentLeft,
                                          PxPageAlignmentRight, PxPageAlignmentAll,
                                          PxPageAlignment(largest)};

void askAboutThePage(const PxProductTypeDescription &description, int page, int pageCount,
                     QDebug &answers)
{
    answers << description.pageAlignment(page) << description.contentAllowedOnPage(page)
            << description.contentDropRedirect(page) << description.barcodeOnPage(page, pageCount);
    for (const PxPageRotationRedirect &redirect : description.rotationRedirectForSourcePage(page))
        answers << redirect;
    for (const PxPageRotationRedirect &redirect : description.rotationRedirectForTargetPage(page))
        answers << redirect;
}

void askAboutTheKind(const PxProductTypeDescription &description, const PxPageContext &kind,
                     int pageCount, QDebug &answers)
{
    const PxPageSizeSpec size = description.sizeSpec(PxPageSizeKey(kind, pageCount));
    answers << description.usablePrintSize(kind.pageType(), pageCount) << size << size.totalSize()
            << size.topLeftOffsetOfUsablePrintArea() << description.bleedMargins(kind, pageCount)
            << description.clampExtra(kind.pageType())
            << description.findSurrounding(PxSurroundingKey(kind, pageCount));
    for (const char *theme : {"normal", "hochzeit", ""}) {
        const PxDefaultTemplateKey key(QLatin1String(theme), kind, DefaultTemplateTypeLayout);
        answers << description.findDefaultTemplate(key, true, true).size();
    }
}

} // namespace

QString pxAskEverything(const PxProductTypeDescription &description, int longestList)
{
    QString text; // to print the answers looks into all of them
    QDebug answers(&text);
    answers << description.isValid() << description.classification() << description.legacyProduct()
            << description.orientation() << description.binding() << description.paperType()
            << description.spaceMagnitude() << description.assemblyWay() << description.imageFX()
            << description.canHaveShadow() << description.variantDescription().size()
            << description.variants().size() << description.explicitNumberOfProducts()
            << description.isCompatible(PxProductTypeDescription(),
                                        PxProductComparationAllButBinding)
            << description.allowedBackgroundCategories().toDataStringList().size()
            << description.minPages() << description.maxPages() << description.pageIncrement()
            << description.offeredPageCounts().size() << description.defaultSellingPages()
            << description.explicitNumberOfNormalPages() << description.hasCover()
            << description.pageNamingStyle() << description.editorStartDoublePage()
            << description.coverSize() << description.bleedMarginNormal()
            << description.bleedMarginCover() << description.safetyMargins()
            << description.safetyMargins().totalMarginWH() << description.foldMargin()
            << description.normalPageHorizontalClamp() << description.pageNumberHorizontalIndent()
            << description.pageNumberFontSize() << description.extraProductionContents().size();

    for (const int pageCount : {smallest, -1, 0, 1, 26, largest, description.minPages()}) {
        answers << description.spineWidth(pageCount) << description.spineMaxFontHeight(pageCount)
                << description.isPageCountOffered(pageCount);
        for (const PxPageTypeEnum pageType : pageTypes) {
            for (const PxPageAlignment alignment : alignments)
                askAboutTheKind(description, PxPageContext(pageType, alignment), pageCount,
                                answers);
        }
        for (const int page : {smallest, -1, 0, 1, 26, largest})
            askAboutThePage(description, page, pageCount, answers);
    }
    for (const int pageCount : {smallest, -1, 0, 1, 26, longestList})
        answers << description.pageTypes(pageCount).size()
                << description.productionNumberingList(pageCount).size();
    return text;
}

QString pxAskEverything(const PxTheme &theme)
{
    QString text;
    QDebug answers(&text);
    answers << theme << theme.isValid() << theme.description().size()
            << theme.productGroup().isValid() << theme.thumbnail().size() << theme.isDefaultTheme()
            << theme.isDesignTheme() << theme.expiryDate() << theme.isExpired()
            << theme.expiryDayToOrderTxt() << theme.keyAccounts().size()
            << theme.isValidForKeyAccount(largest) << theme.allowedProductTypes().size()
            << theme.useSpineText() << theme.canUseNormalBackgrounds()
            << theme.mustPaintVemoLogo(PxProductType())
            << theme.vemoLogo(PxProductType(largest)).second
            << theme.defaultBackgroundCategory().name() << theme.defaultFrameCategory().name()
            << (theme == PxTheme::voidTheme()) << qHash(theme);
    return text;
}
