#include "report/PxProductReport.h"

#include "drawing/PxPageCounts.h"
#include "drawing/PxProductFile.h"
#include "format/PxCatalogueKeywords.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxReplacedProduct.h"
#include "report/PxShownProduct.h"

#include <PxProductProperties.h>

#include <QHash>
#include <QJsonArray>
#include <QList>
#include <QRect>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

using Format = PxReportFormat;
using Shown = PxShownProduct;
constexpr auto ShownOnly = PxReport::ShownOnly;

constexpr int iconWidth = 300;

QString sideOf(const PxPageContext &page)
{
    return keywordsOf(page.alignment(), EnumHelper::globalMapPageAlignmentString).join(", ");
}

template <typename ENUM>
QJsonArray keywordArray(ENUM flags, const QHash<QString, ENUM> &map)
{
    return QJsonArray::fromStringList(keywordsOf(flags, map));
}

QJsonArray designElementsOf(const PxProductTypeDescription *product)
{
    QJsonArray elements;
    for (const PxJigType jigType :
         {PxJigTypeBackground, PxJigTypeClipart, PxJigTypeContent, PxJigTypeLayout,
          PxJigTypePassepartout, PxJigTypeStyle, PxJigTypeFrame}) {
        if (product->supportsJigType(jigType))
            elements.append(keywordOf(jigType));
    }
    return elements;
}

QJsonArray backgroundCategoriesOf(const PxProductTypeDescription *product)
{
    QStringList categories = product->allowedBackgroundCategories().toDataStringList();
    categories.sort(); // the library returns them in the order of a hash
    return QJsonArray::fromStringList(categories);
}

/** Returns `wanted`, or the page count with which the product is sold if `wanted` is 0. */
int wantedPageCount(const Shown &shown, int wanted)
{
    return wanted > 0 ? wanted : PxPageCounts::standard(*shown.product, shown.offeredPageCounts);
}

/** The largest page count that is shown. */
int pageCountLimit(const PxProductTypeDescription &product)
{
    // Each entry of the page list may stand for that many pages, so the total is limited, too.
    const int entries = qMax(1, product.countAbstractPages());
    return qBound(1, 1000000 / entries, PxProductReport::maximumPageCount);
}

void addPagesTo(Shown *shown)
{
    for (const PxPageType &pageType : shown->product->pageTypes(shown->pageCount)) {
        const int number = shown->pages.size();
        const PxPageContext page(pageType, shown->product->pageAlignment(number));
        if (!shown->kinds.contains(page)) {
            shown->kinds.append(page);
            shown->pagesOfKind.append(QList<int>());
        }
        shown->pagesOfKind[shown->kinds.indexOf(page)].append(number);
        shown->pages.append(page);
    }
    shown->redirectedPages = shown->pages.size();
}

void addSurroundingsTo(Shown *shown)
{
    for (int page = 0; page < shown->pages.size(); ++page) {
        const PxSurroundingDescription surrounding =
            shown->product->findSurrounding(PxSurroundingKey(shown->pages[page], page));
        if (surrounding.isValid())
            shown->surroundings[shown->indexOf(surrounding)].second.append(page);
    }
}

void addBarcodesTo(Shown *shown)
{
    for (int page = 0; page < shown->pages.size(); ++page) {
        const PxBarcode barcode = shown->product->barcodeOnPage(page, shown->pages.size());
        if (barcode.isValid())
            shown->barcodes.append({barcode, page});
    }
}

/** `product` is a product description, or the context of the product and a theme. */
template <typename Product>
QJsonValue pagesWithContent(const Shown &shown, const Product &product)
{
    QList<int> pages;
    for (int page = 0; page < shown.pages.size(); ++page) {
        if (product.contentAllowedOnPage(page))
            pages.append(page);
    }
    return PxReportValue::numbers(pages);
}

// Most of the following code consists of tables.
// clang-format off

void addProduct(const Shown &shown, PxReport *report)
{
    report->addFields("product", "Product", {
        {"name", "Name", shown.type.productName()},
        {"shortName", "Short name", shown.type.shortProductName()},
        {"code", "Code", int(shown.type.type())},
        {"class", "Class", PxCatalogueProducts::className(shown.type)},
        {"isOffered", "Offered", PxCatalogueProducts::isOffered(shown.registry, shown.type)},
        {"isLegacy", "Of earlier catalogue", shown.isLegacy()},
        {"file", "File", shown.file, Format::Plain, ShownOnly},
        {"binding", "Binding", PxReportValue::name(shown.product->binding()), Format::Name},
        {"paper", "Paper", PxReportValue::name(shown.product->paperType()), Format::Name},
        {"orientation", "Orientation", keywordOf(shown.product->orientation())},
        {"space", "Size class", PxReportValue::name(shown.product->spaceMagnitude()), Format::Name},
        {"assemblyWay", "Put together by", keywordArray(shown.product->assemblyWay(), EnumHelper::globalMapAssemblyWayString)},
        {"numberOfProducts", "Pieces per order", shown.product->explicitNumberOfProducts()},
        {"numberOfSpiralLoops", "Spiral loops", shown.product->numberOfSpiralLoops()},
        {"hasHook", "Hook", shown.product->hasHook()},
        {"hasHole", "Hole", shown.product->hasHole()},
    });
}

void addPages(const Shown &shown, PxReport *report)
{
    const int sellingPages = shown.product->defaultSellingPages();
    const QList<int> nearest = PxPageCounts::nearest(shown.offeredPageCounts, shown.pageCount);
    report->addFields("pages", "Pages", {
        {"pageCounts", "Page counts", PxReportValue::pageCounts(shown.offeredPageCounts, shown.product->pageIncrement()), Format::PageCounts, ShownOnly},
        {"defaultSellingPages", "Sold with", sellingPages == -1 ? QJsonValue() : sellingPages},
        {"explicitNumberOfNormalPages", "Normal pages", shown.product->explicitNumberOfNormalPages()},
        {"pageCount", "Shown with", shown.pageCount, Format::Plain, ShownOnly},
        {"isPageCountOffered", "Offered with these", shown.product->isPageCountOffered(shown.pageCount), Format::Plain, ShownOnly},
        {"nearestPageCounts", "Nearest offered", PxReportValue::numbers(nearest), Format::Plain, ShownOnly},
        {"printedPages", "With covers and spine", shown.pages.size(), Format::Plain, ShownOnly},
        {"listEntries", "Entries of page list", shown.product->countAbstractPages()},
        {"hasCover", "Cover", shown.product->hasCover()},
        {"isSimplex", "Printed on one side", shown.product->isSimplex()},
        {"horizontalPages", "Pages side by side", shown.product->horizontalPages()},
        {"hasCardStyleAlignment", "Card style", shown.product->hasCardStyleAlignment()},
        {"namingStyle", "Page names", keywordArray(shown.product->pageNamingStyle(), EnumHelper::globalMapPageNamingStyleString)},
        {"editorStartDoublePage", "Editor starts at", shown.product->editorStartDoublePage()},
        {"pagesWithContent", "Pages with content", pagesWithContent(shown, *shown.product), Format::PageNumbers, ShownOnly},
    });
}

void addSizes(const Shown &shown, PxReport *report)
{
    const auto bleed = [](const PxBleedMargin &margin) {
        return PxReportValue::margins(PxMargins(margin.vertical(), margin.vertical(),
                                                margin.horizontal(), margin.horizontal()));
    };
    report->addFields("sizes", "Sizes", {
        {"page", "Page", PxReportValue::size(shown.product->usablePrintSize(PxPageTypeNormalPage, shown.pageCount)), Format::Size},
        {"cover", "Cover", PxReportValue::size(shown.product->coverSize()), Format::Size},
        {"bleed", "Bleed", bleed(shown.product->bleedMarginNormal()), Format::Margins},
        {"coverBleed", "Bleed of the cover", bleed(shown.product->bleedMarginCover()), Format::Margins},
        {"safetyMargins", "Safety margin", PxReportValue::margins(shown.product->safetyMargins()), Format::Margins},
        {"foldMargin", "Fold margin", shown.product->foldMargin(), Format::Length},
        {"clamp", "Clamp takes", shown.product->normalPageHorizontalClamp(), Format::Length},
    });
}

void addPageKinds(const Shown &shown, PxReport *report)
{
    QVector<QJsonArray> rows;
    for (int i = 0; i < shown.kinds.size(); ++i) {
        const PxPageContext &kind = shown.kinds[i];
        const PxPageSizeSpec size = shown.product->sizeSpec(PxPageSizeKey(kind, shown.pageCount));
        rows.append(
            {keywordOf(kind.pageType()), sideOf(kind), PxReportValue::numbers(shown.pagesOfKind[i]),
             PxReportValue::size(size.usableSize()), PxReportValue::margins(size.bleedMargins()),
             PxReportValue::size(size.totalSize()), PxReportValue::margins(size.safetyMargins()),
             size.horizontalClampExtra()});
    }
    report->addTable("pageKinds", "Size of each kind of page (bleed: top/bottom/left/right)", {
        {"pageType", "Page", Format::Key},
        {"alignment", "Side", Format::Key},
        {"pages", "Numbers", Format::PageNumbers, ShownOnly},
        {"usableSize", "Usable", Format::Size},
        {"bleed", "Bleed", Format::Margins},
        {"totalSize", "Total", Format::Size},
        {"safetyMargins", "", Format::JsonOnly},
        {"clamp", "Clamp", Format::Length},
    }, rows);
}

void addSpine(const Shown &shown, PxReport *report)
{
    report->addFields("spine", "Spine", {
        {"hasSpine", "Printed", shown.product->hasSpine()},
        {"width", "Width", shown.product->spineWidth(shown.pageCount), Format::Length},
        {"maxFontHeight", "Largest text height", shown.product->spineMaxFontHeight(shown.pageCount), Format::Length},
        {"hasLogo", "Maker's logo", shown.product->mustPaintVemoLogoOnSpine()},
    });
}

void addSurroundings(const Shown &shown, PxReport *report)
{
    QVector<QJsonArray> rows;
    for (const auto &[surrounding, pages] : shown.surroundings)
        rows.append({PxReportValue::numbers(pages),
                     keywordArray(surrounding.surroundingType(),
                                  EnumHelper::globalMapSurroundingTypeString),
                     PxReportValue::rect(surrounding.imageRect()), surrounding.paintOnTop(),
                     surrounding.hasBindingShade(), surrounding.image()});
    report->addTable("surroundings", "Surroundings", {
        {"pages", "Numbers", Format::PageNumbers, ShownOnly},
        {"type", "Type", Format::Key},
        {"rect", "Place", Format::Rect},
        {"paintOnTop", "On top", Format::Key},
        {"hasBindingShade", "Shade", Format::Key},
        {"image", "Image"},
    }, rows);
}

void addBarcodes(const Shown &shown, PxReport *report)
{
    QVector<QJsonArray> rows;
    for (const auto &[barcode, page] : shown.barcodes)
        rows.append({page, PxReportValue::rect(barcode.rect()), barcode.reverseOrder(),
                     barcode.imageName()});
    report->addTable("barcodes", "Barcodes", {
        {"page", "Number", Format::Key},
        {"rect", "Place", Format::Rect},
        {"isCountedFromBack", "From the back", Format::Key},
        {"image", "Image"},
    }, rows);
}

using ThemeContext = std::optional<PxProductContext>; // nothing without a theme

QString defaultTemplate(const Shown &shown, const ThemeContext &context, const PxPageContext &kind,
                        DefaultTemplateType type)
{
    if (!context)
        return shown.product->findDefaultTemplate({"normal", kind, type}, true, true);
    // Asks like the editor, which has its own background for empty pages.
    return context->defaultTemplateForPage(type == DefaultTemplateTypeLayout, kind, true);
}

void addTemplates(const Shown &shown, const ThemeContext &context, PxReport *report)
{
    QVector<QJsonArray> rows;
    for (int i = 0; i < shown.kinds.size(); ++i) {
        const PxPageContext &kind = shown.kinds[i];
        rows.append({keywordOf(kind.pageType()), sideOf(kind),
                     PxReportValue::numbers(shown.pagesOfKind[i]),
                     defaultTemplate(shown, context, kind, DefaultTemplateTypeLayout),
                     defaultTemplate(shown, context, kind, DefaultTemplateTypeBackground)});
    }
    const QString heading = QString("Default templates (theme %1, with the user's own)")
                                .arg(shown.themeId.isEmpty() ? "normal" : shown.themeId);
    report->addTable("templates", heading.toUtf8(), {
        {"pageType", "Page", Format::Key},
        {"alignment", "Side", Format::Key},
        {"pages", "Numbers", Format::PageNumbers, ShownOnly},
        {"layout", "Layout"},
        {"background", "Background"},
    }, rows);
}

void addTemplates(const Shown &shown, PxReport *report)
{
    addTemplates(shown,
                 shown.themeId.isEmpty()
                     ? ThemeContext()
                     : ThemeContext(PxProductContext(shown.type, shown.themeId)),
                 report);
}

void addTheme(const Shown &shown, PxReport *report)
{
    if (shown.themeId.isEmpty())
        return;
    const PxProductContext context(shown.type, shown.themeId);
    const PxTheme theme = context.theme();
    const auto [logo, logoRect] = theme.vemoLogo(shown.type);
    const bool hasLogo = context.mustPaintVemoLogo();
    const auto category = [&theme](PxJigTypeEnum type) {
        return theme.defaultCategory(type).name();
    };
    const auto others = [&shown](PxProductTypeList products) {
        products.removeAll(shown.type);
        return PxCatalogueProducts::nameArray(products);
    };
    report->addFields("theme", "In this theme", {
        {"id", "Theme", theme.id()},
        {"description", "Description", theme.description()},
        {"isValid", "Valid together", context.isValid()},
        {"expiryDay", "Until", theme.expiryDayToOrderTxt()},
        {"isExpired", "Expired", theme.isExpired()},
        {"iconSize", "Icon", PxReportValue::size(context.optimumIconSize(iconWidth)), Format::Pixels},
        {"iconSizeSinglePage", "Icon of a page", PxReportValue::size(context.optimumIconSizeSinglePage(iconWidth)), Format::Pixels},
        {"mustPaintLogo", "Logo painted", hasLogo},
        {"logoRect", "Place of the logo", hasLogo ? PxReportValue::rect(logoRect) : QJsonValue(), Format::Rect},
        {"logoSize", "Image of the logo", PxReportValue::size(logo.isNull() ? QSize() : logo.size()), Format::Pixels},
        {"isThemeWithContent", "Content of its own", theme.isThemeWithContent()},
        {"pagesWithContent", "Pages with content", pagesWithContent(shown, context), Format::PageNumbers},
        {"canMoveContent", "Content movable", theme.canMoveContent()},
        {"canUseNormalBackgrounds", "Normal backgrounds", theme.canUseNormalBackgrounds()},
        {"useSpineText", "Text on the spine", theme.useSpineText()},
        {"useSpineLogo", "Logo on the spine", theme.useSpineLogo()},
        {"backgroundCategory", "Backgrounds begin at", category(PxJigTypeBackground)},
        {"clipartCategory", "Cliparts", category(PxJigTypeClipart)},
        {"contentCategory", "Content", category(PxJigTypeContent)},
        {"layoutCategory", "Layouts", category(PxJigTypeLayout)},
        {"fadingCategory", "Fadings", category(PxJigTypePassepartout)},
        {"frameCategory", "Frames", category(PxJigTypeFrame)},
        {"compatibleProducts", "Compatible products", others(context.compatibleProducts())},
        {"compatibleProductsWithTheSameSize", "Same size", others(context.compatibleProductsWithTheSameSize())},
    });
}

void addDesign(const Shown &shown, PxReport *report)
{
    const QSizeF background =
        shown.registry->usablePrintSizeForBackgroundTemplate(shown.type, false);
    report->addFields("design", "Design", {
        {"designElements", "Editor offers", designElementsOf(shown.product)},
        {"hasAssistant", "Assistant", shown.product->hasAssistant()},
        {"imageEffects", "Image effects", keywordArray(shown.product->imageFX(), EnumHelper::globalMapImageFXsString)},
        {"canHaveBorder", "Borders and shadows", shown.product->canHaveBorder()},
        {"backgroundCategories", "Cover backgrounds", backgroundCategoriesOf(shown.product)},
        {"fullBackgroundOnEachPage", "One background a page", shown.product->fullBackgroundOnEachPage()},
        {"backgroundSize", "Background", PxReportValue::size(background), Format::Size},
        {"backgroundRatio", "Width by height", shown.registry->backgroundRatio(shown.type, false)},
        {"imagesPerPage", "Images on a page", shown.product->spaceMagnitude().maxReasonableImagesPerPage()},
        {"pointSize", "Type size", shown.registry->suitablePointSize(shown.type), Format::Points},
    });
}

void addVariants(const Shown &shown, PxReport *report)
{
    report->addFields("variants", "Variants", {
        {"description", "Differ in", shown.product->variantDescription()},
        {"identifiers", "Variants", QJsonArray::fromStringList(shown.product->variants())},
    });
}

void addClassification(const Shown &shown, PxReport *report)
{
    const PxProductClassification classification = shown.product->classification();
    const PxProductMaterial material = classification.material();
    report->addFields("classification", "In the shop", {
        {"material", "Material", PxReportValue::name(material.value(), material.visibleDescription()), Format::Name},
        {"sizeCm", "Size in cm", classification.sizeName(true)},
        {"sizeInch", "Size in inches", classification.sizeName(false)},
        {"area", "Area", classification.areaSize(), Format::Area},
    });
}

void addLegacy(const Shown &shown, PxReport *report)
{
    const PxReplacedProduct replaced(*shown.product);
    const PxProductType successor =
        PxProductTypeConfigRegistry::instance()->findProductForLegacy(shown.type);
    report->addFields("legacy", "Earlier and later catalogues", {
        {"replacedBy", "Replaced by", successor.productName()},
        {"replaces", "Replaces", replaced.name()},
        {"replacedPage", "Its page", PxReportValue::size(replaced.page()), Format::Size},
        {"replacedSpine", "Its spine", PxReportValue::size(replaced.spine(shown.pageCount)), Format::Size},
        {"replacedCover", "Its open cover", PxReportValue::size(replaced.cover(shown.pageCount)), Format::Size},
    });
}

void addProduction(const Shown &shown, PxReport *report)
{
    const QList<int> numbering = shown.product->productionNumberingList(shown.pages.size());
    report->addFields("production", "Production", {
        {"numbering", "Numbers of the pages", PxReportValue::numbers(numbering), Format::PageNumbers, ShownOnly},
        {"pageNumberHorizontalIndent", "Page number from side", shown.product->pageNumberHorizontalIndent(), Format::Length},
        {"pageNumberVerticalIndent", "Above or below", shown.product->pageNumberVerticalIndent(), Format::Length},
        {"pageNumberFontSize", "Page number type size", shown.product->pageNumberFontSize()},
    });

    QVector<QJsonArray> rows;
    for (const PxProductionExtraPageGroup &group : shown.product->extraProductionContents())
        rows.append({PxReportValue::numbers(group.targetPages()), group.content().templateType(),
                     group.content().targetLayer(), group.content().filename()});
    report->addTable("extraPages", "Extra production pages", {
        {"pages", "Numbers", Format::PageNumbers},
        {"type", "Type"},
        {"layer", "Layer", Format::Key},
        {"file", "File"},
    }, rows);
}

void addRedirects(const Shown &shown, PxReport *report)
{
    QVector<QJsonArray> contents;
    QVector<QJsonArray> rotations;
    for (int page = -1; page < shown.redirectedPages; ++page) { // -1 means no page of the product
        const int target = shown.product->contentDropRedirect(page);
        if (target != page)
            contents.append({page, target});
        for (const PxPageRotationRedirect &redirect :
             shown.product->rotationRedirectForSourcePage(page))
            rotations.append({page, redirect.targetPageNr(), redirect.angleInvert()});
    }
    report->addTable("contentRedirects", "Content dropped on a page goes to", {
        {"page", "Number", Format::Key},
        {"target", "Goes to", Format::Key},
    }, contents);
    report->addTable("rotationRedirects", "Pages that change places when turned", {
        {"page", "Number", Format::Key},
        {"target", "Goes to", Format::Key},
        {"angleInvert", "Angle by", Format::Key},
    }, rotations);
}

// clang-format on

} // namespace

PxShownProduct PxProductReport::shown(const PxProductTypeConfigRegistry *registry,
                                      const PxProductType &type, int pageCount,
                                      const QString &themeId)
{
    Shown shown{registry, type, themeId};
    shown.pageCount = qMin(wantedPageCount(shown, pageCount), pageCountLimit(*shown.product));
    shown.isPageCountAsked = pageCount > 0;
    shown.file = PxProductFile::pathOf(type, shown.isLegacy());
    addPagesTo(&shown);
    addSurroundingsTo(&shown);
    addBarcodesTo(&shown);
    return shown;
}

void PxProductReport::warnOfPageCount(const PxShownProduct &shown, int pageCount)
{
    const int wanted = wantedPageCount(shown, pageCount);
    if (wanted > shown.pageCount)
        qWarning("%d pages are too many to show: %d are shown", wanted, shown.pageCount);
    if (pageCount > 0 && !shown.product->isPageCountOffered(shown.pageCount))
        qWarning("%s", qUtf8Printable(PxPageCounts::notOffered(shown.type, shown.offeredPageCounts,
                                                               shown.pageCount)));
}

PxReport PxProductReport::of(const PxShownProduct &shown)
{
    PxReport report;
    for (void (*const add)(const Shown &, PxReport *) :
         {addProduct, addPages, addSizes, addPageKinds, addSpine, addSurroundings, addBarcodes,
          addTemplates, addTheme, addDesign, addVariants, addClassification, addLegacy,
          addProduction, addRedirects})
        add(shown, &report);
    return report;
}

PxReport PxProductReport::ofTheme(const PxShownProduct &shown, const PxTheme &theme)
{
    const PxProductContext context(shown.type, theme);
    PxReport report;
    report.addFields("theme", "",
                     {{"pagesWithContent", "Pages with content", pagesWithContent(shown, context),
                       Format::PageNumbers}});
    addTemplates(shown, context, &report);
    return report;
}
