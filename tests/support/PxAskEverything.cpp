#include "PxAskEverything.h"

#include <context/PxIndirectProductDescription.h>
#include <context/PxProductContext.h>
#include <description/PxProductTypeConfigRegistry.h>
#include <themes/PxTheme.h>

#include <QDebug>

// A question in the words in which it is asked, and its answer. To print an answer looks into all
// of it.
#define PX_ASK(question) answers << '\n' << about.constData() << #question ":" << asked.question

namespace {

constexpr PxPageTypeEnum pageTypes[] = {
    PxPageTypeNone,  PxPageTypeSpine, PxPageTypeNormalPage,  PxPageTypeFullCover,
    PxPageTypeCover, PxPageTypeAll,   PxPageTypeNormalPages, PxPageTypeEnum(PxArguments::smallest)};

constexpr PxPageAlignment alignments[] = {PxPageAlignmentNone, PxPageAlignmentLeft,
                                          PxPageAlignmentAll,
                                          PxPageAlignment(PxArguments::largest)};

constexpr PxJigTypeEnum jigTypes[] = {PxJigTypeBackground, PxJigTypeClipart,      PxJigTypeContent,
                                      PxJigTypeLayout,     PxJigTypePassepartout, PxJigTypeStyle,
                                      PxJigTypeFrame};

/** "registry, page 3:" from "registry:". */
QByteArray with(const QByteArray &about, const char *argument, int value)
{
    return about.chopped(1) + ", " + argument + ' ' + QByteArray::number(value) + ':';
}

QByteArray with(const QByteArray &about, const PxPageContext &kind)
{
    return with(with(about, "page type", kind.pageType().value()), "side", kind.alignment());
}

constexpr char product[] = "description:";
constexpr char registry[] = "registry:";
constexpr char context[] = "context:";

QStringList sorted(const PxThematicCategorySet &categories)
{
    QStringList names = categories.toDataStringList();
    names.sort();
    return names;
}

void askAboutTheProduct(const PxProductTypeDescription &asked, QDebug &answers)
{
    QByteArray about = product;
    // clang-format off
    PX_ASK(isValid()); PX_ASK(classification()); PX_ASK(classification().areaSize());
    PX_ASK(classification().sizeName(true)); PX_ASK(classification().sizeName(false)); PX_ASK(legacyProduct());
    PX_ASK(orientation()); PX_ASK(binding()); PX_ASK(paperType()); PX_ASK(spaceMagnitude()); PX_ASK(assemblyWay());
    PX_ASK(imageFX()); PX_ASK(canHaveBorder()); PX_ASK(canHaveShadow()); PX_ASK(hasAssistant()); PX_ASK(hasHook());
    PX_ASK(hasHole()); PX_ASK(numberOfSpiralLoops()); PX_ASK(variantDescription()); PX_ASK(variants());
    PX_ASK(explicitNumberOfProducts()); PX_ASK(explicitNumberOfNormalPages()); PX_ASK(hasContentCategoryBox());
    PX_ASK(isCompatible(PxProductTypeDescription(), PxProductComparationAllButBinding));
    PX_ASK(limitBackgroundCategories()); PX_ASK(fullBackgroundOnEachPage()); PX_ASK(themesWithDefaultTemplates());
    PX_ASK(minPages()); PX_ASK(maxPages()); PX_ASK(pageIncrement()); PX_ASK(offeredPageCounts().mid(0, 100)); PX_ASK(defaultSellingPages());
    PX_ASK(countAbstractPages()); PX_ASK(hasPages()); PX_ASK(hasCover()); PX_ASK(isSimplex());
    PX_ASK(pageNamingStyle()); PX_ASK(horizontalPages()); PX_ASK(hasCardStyleAlignment());
    PX_ASK(editorStartDoublePage()); PX_ASK(coverSize()); PX_ASK(bleedMarginNormal()); PX_ASK(bleedMarginCover());
    PX_ASK(safetyMargin()); PX_ASK(safetyMargins()); PX_ASK(safetyMargins().totalMarginWH()); PX_ASK(foldMargin());
    PX_ASK(normalPageHorizontalClamp()); PX_ASK(hasSpine()); PX_ASK(mustPaintVemoLogoOnSpine());
    PX_ASK(extraProductionContents()); PX_ASK(pageNumberHorizontalIndent()); PX_ASK(pageNumberVerticalIndent());
    PX_ASK(pageNumberFontSize());
    // clang-format on
    answers << "\ndescription: allowedBackgroundCategories():"
            << sorted(asked.allowedBackgroundCategories());
    for (const PxJigTypeEnum jigType : jigTypes) {
        about = with(product, "jig type", jigType);
        PX_ASK(supportsJigType(jigType));
    }
}

/** Of a product, alone or in its context. */
template <typename Asked>
void askAboutThePage(const Asked &asked, const QByteArray &about, QDebug &answers, int page)
{
    // clang-format off
    PX_ASK(pageAlignment(page)); PX_ASK(contentAllowedOnPage(page)); PX_ASK(contentDropRedirect(page));
    PX_ASK(rotationRedirectForSourcePage(page)); PX_ASK(rotationRedirectForTargetPage(page));
    // clang-format on
}

void askAboutTheKind(const PxProductTypeDescription &asked, const PxPageContext &kind,
                     const PxArguments &arguments, QDebug &answers)
{
    QByteArray about = with(product, kind);
    PX_ASK(clampExtra(kind.pageType()));
    for (const int pageCount : arguments.pageCounts) {
        const PxPageSizeKey key(kind, pageCount);
        about = with(with(product, kind), "page count", pageCount);
        // clang-format off
        PX_ASK(usablePrintSize(kind.pageType(), pageCount)); PX_ASK(sizeSpec(key));
        PX_ASK(sizeSpec(key).totalSize()); PX_ASK(sizeSpec(key).topLeftOffsetOfUsablePrintArea());
        PX_ASK(bleedMargins(kind, pageCount));
        // clang-format on
    }
    for (const int page : arguments.pages) {
        const PxSurroundingKey key(kind, page);
        about = with(with(product, kind), "page", page);
        PX_ASK(findSurrounding(key));
        PX_ASK(findSurrounding(key).paintOnTop());
        PX_ASK(findSurrounding(key).hasBindingShade());
    }
    for (const QString &theme : arguments.themes) {
        for (const auto type : {DefaultTemplateTypeLayout, DefaultTemplateTypeBackground}) {
            about = with(with(product, kind), qPrintable("theme " + theme + ", template"), type);
            PX_ASK(findDefaultTemplate({theme, kind, type}, true, true));
        }
    }
}

} // namespace

QVector<PxPageContext> PxArguments::allKinds()
{
    QVector<PxPageContext> kinds;
    for (const PxPageTypeEnum pageType : pageTypes) {
        for (const PxPageAlignment alignment : alignments)
            kinds.append(PxPageContext(pageType, alignment));
    }
    return kinds;
}

QString pxAskEverything(const PxProductTypeDescription &asked, const PxArguments &arguments)
{
    QString text;
    QDebug answers(&text);
    askAboutTheProduct(asked, answers);
    for (const int pageCount : arguments.pageCounts) {
        const QByteArray about = with(product, "page count", pageCount);
        const int listed = qMin(pageCount, arguments.longestList);
        // clang-format off
        PX_ASK(spineWidth(pageCount)); PX_ASK(spineMaxFontHeight(pageCount)); PX_ASK(isPageCountOffered(pageCount));
        PX_ASK(pageTypes(listed).mid(0, 100)); PX_ASK(productionNumberingList(listed).mid(0, 100));
        // clang-format on
    }
    for (const PxPageContext &kind : arguments.kinds)
        askAboutTheKind(asked, kind, arguments, answers);
    for (const int page : arguments.pages) {
        askAboutThePage(asked, with(product, "page", page), answers, page);
        for (const int pageCount : arguments.pageCounts) {
            const QByteArray about = with(with(product, "page", page), "page count", pageCount);
            PX_ASK(barcodeOnPage(page, pageCount));
        }
    }
    return text;
}

QString pxAskEverything(const PxProductTypeConfigRegistry &asked, const PxProductType &type,
                        const PxArguments &arguments)
{
    QString text;
    QDebug answers(&text);
    QByteArray about = registry;
    // clang-format off
    PX_ASK(exists(type)); PX_ASK(isValid(type)); PX_ASK(type()); PX_ASK(minPages(type)); PX_ASK(maxPages(type));
    PX_ASK(pageIncrement(type)); PX_ASK(legacyProduct(type)); PX_ASK(orientation(type)); PX_ASK(binding(type));
    PX_ASK(paperType(type)); PX_ASK(spaceMagnitude(type)); PX_ASK(variantDescription(type)); PX_ASK(variants(type));
    PX_ASK(limitBackgroundCategories(type)); PX_ASK(fullBackgroundOnEachPage(type));
    PX_ASK(offeredPageCounts(type).mid(0, 100)); PX_ASK(explicitNumberOfNormalPages(type));
    PX_ASK(horizontalPages(type)); PX_ASK(suitablePointSize(type));
    PX_ASK(sortPageFileNameListInInternOrder(type, {"a", "b", "c"}));
    // clang-format on
    for (const bool singlePage : {false, true}) {
        about = with(registry, "single page", singlePage);
        PX_ASK(usablePrintSizeForBackgroundTemplate(type, singlePage));
        PX_ASK(backgroundRatio(type, singlePage));
    }
    answers << "\nregistry: allowedBackgroundCategories(type):"
            << sorted(asked.allowedBackgroundCategories(type));
    for (const int pageCount : arguments.pageCounts) {
        about = with(registry, "page count", pageCount);
        const int listed = qMin(pageCount, arguments.longestList);
        PX_ASK(isPageCountOffered(type, pageCount));
        PX_ASK(pageTypes(type, listed).mid(0, 100));
        PX_ASK(productionNumberingList(type, listed).mid(0, 100));
        for (const PxPageContext &kind : arguments.kinds) {
            about = with(with(registry, kind), "page count", pageCount);
            PX_ASK(usablePrintSize(type, kind.pageType(), pageCount));
            PX_ASK(sizeSpec(type, PxPageSizeKey(kind, pageCount)));
        }
    }
    for (const int page : arguments.pages) {
        about = with(registry, "page", page);
        PX_ASK(pageAlignment(type, page));
        for (const int pageCount : arguments.pageCounts) {
            about = with(with(registry, "page", page), "page count", pageCount);
            PX_ASK(barcodeOnPage(type, page, pageCount));
        }
    }
    return text;
}

namespace {

void askAboutTheProduct(const PxProductContext &asked, QDebug &answers)
{
    const QByteArray about = context;
    // clang-format off
    PX_ASK(isValid()); PX_ASK(isVoidContext()); PX_ASK(productType()); PX_ASK(theme()); PX_ASK(themeId());
    PX_ASK(isDefaultTheme()); PX_ASK(shortProductName()); PX_ASK(productClass()); PX_ASK(isBook());
    PX_ASK(isCalendar()); PX_ASK(isCard()); PX_ASK(isGift()); PX_ASK(isDeko()); PX_ASK(startsWithLeftPage());
    PX_ASK(compatibleProducts().contains(asked.productType()));
    PX_ASK(compatibleProductsWithTheSameSize().contains(asked.productType())); PX_ASK(minPages());
    PX_ASK(maxPages()); PX_ASK(pageIncrement()); PX_ASK(pageCountOrganization());
    PX_ASK(offeredPageCounts().mid(0, 100)); PX_ASK(isOnePage()); PX_ASK(isSimplex()); PX_ASK(isDuplex());
    PX_ASK(defaultSellingPages()); PX_ASK(productCount()); PX_ASK(numberOfPages()); PX_ASK(pagesPerProduct());
    PX_ASK(useTwoStoryBoards()); PX_ASK(editorStartSceneIndex()); PX_ASK(pageNamingStyle()); PX_ASK(assemblyWay());
    PX_ASK(pageNumberFontSize()); PX_ASK(pageNumberVerticalIndent()); PX_ASK(pageNumberHorizontalIndent());
    PX_ASK(widthByHeight()); PX_ASK(optimumIconSizeSinglePage(300)); PX_ASK(optimumIconSize(300));
    PX_ASK(minimumImageAreaSize()); PX_ASK(horizontalPages()); PX_ASK(hasHorizontalPages());
    PX_ASK(hasVerticalPages()); PX_ASK(orientation()); PX_ASK(paperType()); PX_ASK(spaceMagnitude());
    PX_ASK(foldMargin()); PX_ASK(safetyMargin()); PX_ASK(binding()); PX_ASK(hasBinding(PxBindingClamp));
    PX_ASK(hasBookletBinding()); PX_ASK(hasSpine()); PX_ASK(hasHole()); PX_ASK(hasHook());
    PX_ASK(numberOfSpiralLoops()); PX_ASK(hasSpiral()); PX_ASK(extraProductionContents());
    PX_ASK(putFullBackgroundOnEachPage()); PX_ASK(hasAssistant()); PX_ASK(hasContentCategoryComboBox());
    PX_ASK(productImageFXs()); PX_ASK(canHaveShadow()); PX_ASK(canHaveBorder()); PX_ASK(canHaveStyles());
    PX_ASK(mustPaintVemoLogo()); PX_ASK(mustPaintVemoLogoOnSpine());
    // clang-format on
}

} // namespace

QString pxAskEverything(const PxProductContext &asked, const PxArguments &arguments)
{
    QString text;
    QDebug answers(&text);
    askAboutTheProduct(asked, answers);
    QByteArray about;
    for (const PxProductClass classes : {PxProductClassBook, PxProductClassGift}) {
        about = with(context, "class", classes);
        PX_ASK(isProductClass(classes));
    }
    for (const PxJigTypeEnum jigType : jigTypes) {
        about = with(context, "jig type", jigType);
        PX_ASK(supportsJigType(jigType));
    }
    for (const int pageCount : arguments.pageCounts) {
        about = with(context, "page count", pageCount);
        PX_ASK(isPageCountOffered(pageCount));
        const int listed = qMin(pageCount, arguments.longestList);
        PX_ASK(pageTypes(listed).mid(0, 100));
        PX_ASK(spineWidth(pageCount));
        PX_ASK(spineMaxFontHeight(pageCount));
    }
    for (const int page : arguments.pages)
        askAboutThePage(asked, with(context, "page", page), answers, page);
    for (const PxPageContext &kind : arguments.kinds) {
        about = with(context, kind);
        // clang-format off
        PX_ASK(usablePrintSize(kind.pageType())); PX_ASK(findSurrounding(PxSurroundingKey(kind, 1)));
        PX_ASK(defaultTemplateForPage(false, kind, true)); PX_ASK(defaultTemplateForPage(true, kind, true));
        // clang-format on
    }
    return text;
}

QString pxAskEverything(const PxIndirectProductDescription &asked)
{
    QString text;
    QDebug answers(&text);
    const QByteArray about = "indirect description:";
    // clang-format off
    PX_ASK(isEmpty()); PX_ASK(isValid()); PX_ASK(templateTypes()); PX_ASK(orientation());
    PX_ASK(defaultWidthHeightRatio());
    // clang-format on
    return text;
}

QString pxAskEverything(const PxTheme &asked, const PxArguments &arguments)
{
    QString text;
    QDebug answers(&text);
    QByteArray about = "theme:";
    const PxProductType type(arguments.productType);
    answers << asked;
    // clang-format off
    PX_ASK(isValid()); PX_ASK(id()); PX_ASK(description()); PX_ASK(productGroup()); PX_ASK(thumbnail().size());
    PX_ASK(isDefaultTheme()); PX_ASK(isDesignTheme()); PX_ASK(isThemeWithContent());
    PX_ASK(expiryDate().toString(Qt::ISODate)); PX_ASK(isExpired()); PX_ASK(expiryDayToOrderTxt());
    PX_ASK(keyAccounts()); PX_ASK(isValidForKeyAccount(PxArguments::largest)); PX_ASK(allowedProductTypes());
    PX_ASK(useSpineText()); PX_ASK(useSpineLogo()); PX_ASK(canMoveContent()); PX_ASK(canUseNormalBackgrounds());
    PX_ASK(canUseNormalLayouts()); PX_ASK(mustPaintVemoLogo(type)); PX_ASK(vemoLogo(type).first.size());
    PX_ASK(vemoLogo(type).second); PX_ASK(defaultBackgroundCategory().name());
    PX_ASK(defaultClipartCategory().name()); PX_ASK(defaultContentCategory().name());
    PX_ASK(defaultFadingCategory().name()); PX_ASK(defaultFrameCategory().name());
    // clang-format on
    for (const PxJigTypeEnum jigType : jigTypes) {
        about = with("theme:", "jig type", jigType);
        PX_ASK(defaultCategory(jigType).name());
    }
    return text;
}
