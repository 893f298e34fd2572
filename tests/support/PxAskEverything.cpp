#include "PxAskEverything.h"

#include <description/PxProductTypeDescription.h>
#include <themes/PxTheme.h>

#include <QDebug>

namespace {

constexpr PxPageTypeEnum pageTypes[] = {
    PxPageTypeNone,  PxPageTypeSpine, PxPageTypeNormalPage,  PxPageTypeFullCover,
    PxPageTypeCover, PxPageTypeAll,   PxPageTypeNormalPages, PxPageTypeEnum(PxArguments::smallest)};

constexpr PxPageAlignment alignments[] = {PxPageAlignmentNone,
                                          PxPageAlignmentLeft,
                                          PxPageAlignmentRight,
                                          PxPageAlignmentTop,
                                          PxPageAlignmentCenter,
                                          PxPageAlignmentAll,
                                          PxPageAlignment(PxArguments::largest)};

void askAboutThePage(const PxProductTypeDescription &description, int page,
                     const QVector<int> &pageCounts, QDebug &answers)
{
    answers << description.pageAlignment(page) << description.contentAllowedOnPage(page)
            << description.contentDropRedirect(page);
    for (const int pageCount : pageCounts)
        answers << description.barcodeOnPage(page, pageCount);
    for (const PxPageRotationRedirect &redirect : description.rotationRedirectForSourcePage(page))
        answers << redirect;
    for (const PxPageRotationRedirect &redirect : description.rotationRedirectForTargetPage(page))
        answers << redirect;
}

void askAboutTheKind(const PxProductTypeDescription &description, const PxPageContext &kind,
                     const PxArguments &arguments, QDebug &answers)
{
    answers << description.clampExtra(kind.pageType());
    for (const int pageCount : arguments.pageCounts) {
        const PxPageSizeSpec size = description.sizeSpec(PxPageSizeKey(kind, pageCount));
        answers << description.usablePrintSize(kind.pageType(), pageCount) << size
                << size.totalSize() << size.topLeftOffsetOfUsablePrintArea()
                << description.bleedMargins(kind, pageCount);
    }
    for (const int page : arguments.pages) {
        const PxSurroundingDescription surrounding =
            description.findSurrounding(PxSurroundingKey(kind, page));
        answers << surrounding << surrounding.paintOnTop() << surrounding.hasBindingShade();
    }
    for (const QString &theme : arguments.themes) {
        for (auto type : {DefaultTemplateTypeLayout, DefaultTemplateTypeBackground})
            answers << description.findDefaultTemplate({theme, kind, type}, true, true);
    }
}

void askAboutTheProduct(const PxProductTypeDescription &description, QDebug &answers)
{
    const PxProductClassification classification = description.classification();
    answers << description.isValid() << classification << classification.areaSize()
            << classification.sizeName(true) << classification.sizeName(false)
            << description.legacyProduct() << description.orientation() << description.binding()
            << description.paperType() << description.spaceMagnitude() << description.assemblyWay()
            << description.imageFX() << description.canHaveShadow() << description.hasAssistant()
            << description.hasHook() << description.hasHole() << description.numberOfSpiralLoops()
            << description.variantDescription() << description.variants()
            << description.explicitNumberOfProducts() << description.explicitNumberOfNormalPages()
            << description.isCompatible(PxProductTypeDescription(),
                                        PxProductComparationAllButBinding)
            << description.fullBackgroundOnEachPage() << description.minPages()
            << description.maxPages() << description.pageIncrement()
            << description.offeredPageCounts().size() << description.defaultSellingPages()
            << description.hasPages() << description.hasCover() << description.hasSpine()
            << description.pageNamingStyle() << description.horizontalPages()
            << description.hasCardStyleAlignment() << description.editorStartDoublePage()
            << description.coverSize() << description.bleedMarginNormal()
            << description.bleedMarginCover() << description.safetyMargins()
            << description.safetyMargins().totalMarginWH() << description.foldMargin()
            << description.normalPageHorizontalClamp() << description.mustPaintVemoLogoOnSpine()
            << description.pageNumberHorizontalIndent() << description.pageNumberVerticalIndent()
            << description.pageNumberFontSize() << description.extraProductionContents();
    QStringList categories = description.allowedBackgroundCategories().toDataStringList();
    categories.sort();
    answers << categories;
    for (PxJigTypeEnum type : {PxJigTypeBackground, PxJigTypeClipart, PxJigTypeContent,
                               PxJigTypeLayout, PxJigTypePassepartout})
        answers << description.supportsJigType(type);
}

} // namespace

QString pxAskEverything(const PxProductTypeDescription &description, const PxArguments &arguments)
{
    QString text; // to print the answers looks into all of them
    QDebug answers(&text);
    askAboutTheProduct(description, answers);
    for (const int pageCount : arguments.pageCounts) {
        const int listed = qMin(pageCount, arguments.longestList);
        answers << description.spineWidth(pageCount) << description.spineMaxFontHeight(pageCount)
                << description.isPageCountOffered(pageCount)
                << description.pageTypes(listed).mid(0, 100)
                << description.productionNumberingList(listed).mid(0, 100);
    }
    for (const PxPageTypeEnum pageType : pageTypes) {
        for (const PxPageAlignment alignment : alignments)
            askAboutTheKind(description, PxPageContext(pageType, alignment), arguments, answers);
    }
    for (const int page : arguments.pages)
        askAboutThePage(description, page, arguments.pageCounts, answers);
    return text;
}

QString pxAskEverything(const PxTheme &theme, const PxArguments &arguments)
{
    QString text;
    QDebug answers(&text);
    const PxProductType type(arguments.productType);
    answers << theme << theme.isValid() << theme.id() << theme.description()
            << theme.productGroup().value() << theme.thumbnail().size() << theme.isDefaultTheme()
            << theme.isDesignTheme() << theme.expiryDate() << theme.isExpired()
            << theme.expiryDayToOrderTxt() << theme.keyAccounts()
            << theme.isValidForKeyAccount(PxArguments::largest)
            << theme.allowedProductTypes().values() << theme.useSpineText() << theme.useSpineLogo()
            << theme.canMoveContent() << theme.canUseNormalBackgrounds()
            << theme.mustPaintVemoLogo(type) << theme.vemoLogo(type).first.size()
            << theme.vemoLogo(type).second << (theme == PxTheme::voidTheme()) << qHash(theme);
    for (PxJigTypeEnum jig : {PxJigTypeBackground, PxJigTypeClipart, PxJigTypeContent,
                              PxJigTypeLayout, PxJigTypePassepartout, PxJigTypeFrame})
        answers << theme.defaultCategory(jig).name();
    return text;
}
