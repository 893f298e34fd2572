#include "report/PxProductReport.h"

#include "report/PxCatalogueProducts.h"

#include <PxProductProperties.h>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {

using Format = PxReportFormat;

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
    categories.sort(); // they come in the order of a hash
    return QJsonArray::fromStringList(categories);
}

/**
 * `wanted`, or when that is 0 the page count with which the product is sold; lowered, with a
 * warning, when it is too large.
 */
int shownPageCount(const PxProductTypeDescription &product, const QList<int> &offered, int wanted)
{
    // Every entry of the page list may stand for that many pages: a million is enough for anyone.
    const int entries = qMax(1, product.countAbstractPages());
    const int limit = qBound(1, 1000000 / entries, PxProductReport::maximumPageCount);
    const int soldWith = product.defaultSellingPages();
    const int standard = soldWith > 0 ? soldWith : offered.value(0, 1);
    const int pageCount = wanted > 0 ? wanted : standard;
    if (pageCount <= limit)
        return pageCount;
    qWarning("%d pages are too many to show: %d are shown", pageCount, limit);
    return limit;
}

/** All that makes a surrounding equal to another one, in an order that is strict. */
auto orderOf(const PxSurroundingDescription &surrounding)
{
    const QRect rect = surrounding.imageRect();
    return std::make_tuple(int(surrounding.surroundingType()), int(surrounding.pageTypes().value()),
                           int(surrounding.alignments()), surrounding.pageNr(),
                           surrounding.paintOnTop(), surrounding.hasBindingShade(),
                           surrounding.image(), rect.left(), rect.top(), rect.right(),
                           rect.bottom());
}

/** The next smaller one and the next larger one, as far as there are any; none if it is offered. */
QList<int> nearestPageCounts(const QList<int> &offered, int pageCount)
{
    const auto larger = std::lower_bound(offered.begin(), offered.end(), pageCount);
    QList<int> nearest;
    if (larger != offered.end() && *larger == pageCount)
        return nearest;
    if (larger != offered.begin())
        nearest.append(*std::prev(larger));
    if (larger != offered.end())
        nearest.append(*larger);
    return nearest;
}

void warnOfPageCount(const PxProductType &type, int pageCount, const QList<int> &nearest)
{
    QString text = type.productName() + QString(" is not offered with %1 ").arg(pageCount) +
                   (pageCount == 1 ? "page" : "pages");
    if (nearest.size() == 1)
        text += QString(", the nearest is %1").arg(nearest[0]);
    else if (!nearest.isEmpty())
        text += QString(", the nearest are %1 and %2")
                    .arg(QString::number(nearest[0]), QString::number(nearest[1]));
    qWarning("%s", qUtf8Printable(text));
}

} // namespace

PxProductReport::PxProductReport(const PxProductTypeConfigRegistry *registry,
                                 const PxProductType &type, int pageCount, const QString &themeId)
    : m_registry(registry)
    , m_type(type)
    , m_product(registry->description(type))
    , m_offeredPageCounts(m_product->offeredPageCounts())
    , m_pageCount(shownPageCount(*m_product, m_offeredPageCounts, pageCount))
    , m_themeId(themeId)
{
    if (pageCount > 0 && !m_product->isPageCountOffered(m_pageCount))
        warnOfPageCount(type, m_pageCount, nearestPageCounts(m_offeredPageCounts, m_pageCount));
    for (const PxPageType &pageType : m_product->pageTypes(m_pageCount)) {
        const PxPageContext page(pageType, m_product->pageAlignment(m_pages.size()));
        if (!m_kinds.contains(page)) {
            m_kinds.append(page);
            m_pagesOfKind.append(QList<int>());
        }
        m_pagesOfKind[m_kinds.indexOf(page)].append(m_pages.size());
        m_pages.append(page);
    }
    addProduct();
    addPages();
    addSizes();
    addPageKinds();
    addSpine();
    addSurroundings();
    addBarcodes();
    addTemplates();
    addTheme();
    addDesign();
    addVariants();
    addClassification();
    addLegacy();
    addProduction();
    addRedirects();
}

void PxProductReport::addProduct()
{
    const bool isLegacy = m_registry != PxProductTypeConfigRegistry::instance();
    // clang-format off
    m_report.addFields("product", "Product", {
        {"name", "Name", m_type.productName()},
        {"shortName", "Short name", m_type.shortProductName()},
        {"code", "Code", int(m_type.type())},
        {"class", "Class", PxCatalogueProducts::className(m_type)},
        {"isOffered", "Offered", PxCatalogueProducts::isOffered(m_registry, m_type)},
        {"isLegacy", "Of earlier catalogue", isLegacy},
        {"binding", "Binding", PxReportValue::name(m_product->binding()), Format::Name},
        {"paper", "Paper", PxReportValue::name(m_product->paperType()), Format::Name},
        {"orientation", "Orientation", keywordOf(m_product->orientation())},
        {"space", "Size class", PxReportValue::name(m_product->spaceMagnitude()), Format::Name},
        {"assemblyWay", "Put together by", keywordArray(m_product->assemblyWay(), EnumHelper::globalMapAssemblyWayString)},
        {"numberOfProducts", "Pieces per order", m_product->explicitNumberOfProducts()},
        {"numberOfSpiralLoops", "Spiral loops", m_product->numberOfSpiralLoops()},
        {"hasHook", "Hook", m_product->hasHook()},
        {"hasHole", "Hole", m_product->hasHole()},
    });
    // clang-format on
}

void PxProductReport::addPages()
{
    const int sellingPages = m_product->defaultSellingPages();
    const QList<int> nearest = nearestPageCounts(m_offeredPageCounts, m_pageCount);
    QList<int> withContent;
    for (int page = 0; page < m_pages.size(); ++page) {
        if (m_product->contentAllowedOnPage(page))
            withContent.append(page);
    }
    // clang-format off
    m_report.addFields("pages", "Pages", {
        {"pageCounts", "Page counts", PxReportValue::pageCounts(m_offeredPageCounts, m_product->pageIncrement()), Format::PageCounts},
        {"defaultSellingPages", "Sold with", sellingPages == -1 ? QJsonValue() : sellingPages},
        {"explicitNumberOfNormalPages", "Normal pages", m_product->explicitNumberOfNormalPages()},
        {"pageCount", "Shown with", m_pageCount},
        {"isPageCountOffered", "Offered with these", m_product->isPageCountOffered(m_pageCount)},
        {"nearestPageCounts", "Nearest offered", PxReportValue::numbers(nearest)},
        {"printedPages", "With covers and spine", m_pages.size()},
        {"listEntries", "Entries of page list", m_product->countAbstractPages()},
        {"hasCover", "Cover", m_product->hasCover()},
        {"isSimplex", "Printed on one side", m_product->isSimplex()},
        {"horizontalPages", "Pages side by side", m_product->horizontalPages()},
        {"hasCardStyleAlignment", "Card style", m_product->hasCardStyleAlignment()},
        {"namingStyle", "Page names", keywordArray(m_product->pageNamingStyle(), EnumHelper::globalMapPageNamingStyleString)},
        {"editorStartDoublePage", "Editor starts at", m_product->editorStartDoublePage()},
        {"pagesWithContent", "Pages with content", PxReportValue::numbers(withContent), Format::PageNumbers},
    });
    // clang-format on
}

void PxProductReport::addSizes()
{
    const auto bleed = [](const PxBleedMargin &margin) {
        return PxReportValue::margins(PxMargins(margin.vertical(), margin.vertical(),
                                                margin.horizontal(), margin.horizontal()));
    };
    // clang-format off
    m_report.addFields("sizes", "Sizes", {
        {"page", "Page", PxReportValue::size(m_product->usablePrintSize(PxPageTypeNormalPage, m_pageCount)), Format::Size},
        {"cover", "Cover", PxReportValue::size(m_product->coverSize()), Format::Size},
        {"bleed", "Bleed", bleed(m_product->bleedMarginNormal()), Format::Margins},
        {"coverBleed", "Bleed of the cover", bleed(m_product->bleedMarginCover()), Format::Margins},
        {"safetyMargins", "Safety margin", PxReportValue::margins(m_product->safetyMargins()), Format::Margins},
        {"foldMargin", "Fold margin", m_product->foldMargin(), Format::Length},
        {"clamp", "Clamp takes", m_product->normalPageHorizontalClamp(), Format::Length},
    });
    // clang-format on
}

void PxProductReport::addPageKinds()
{
    QVector<QJsonArray> rows;
    for (int i = 0; i < m_kinds.size(); ++i) {
        const PxPageContext &kind = m_kinds[i];
        const PxPageSizeSpec size = m_product->sizeSpec(PxPageSizeKey(kind, m_pageCount));
        rows.append(
            {keywordOf(kind.pageType()), sideOf(kind), PxReportValue::numbers(m_pagesOfKind[i]),
             PxReportValue::size(size.usableSize()), PxReportValue::margins(size.bleedMargins()),
             PxReportValue::size(size.totalSize()), size.horizontalClampExtra()});
    }
    // clang-format off
    m_report.addTable("pageKinds", "Size of each kind of page (bleed: top/bottom/left/right)", {
        {"pageType", "Page", Format::Key},
        {"alignment", "Side", Format::Key},
        {"pages", "Numbers", Format::PageNumbers},
        {"usableSize", "Usable", Format::Size},
        {"bleed", "Bleed", Format::Margins},
        {"totalSize", "Total", Format::Size},
        {"clamp", "Clamp", Format::Length},
    }, rows);
    // clang-format on
}

void PxProductReport::addSpine()
{
    // clang-format off
    m_report.addFields("spine", "Spine", {
        {"hasSpine", "Printed", m_product->hasSpine()},
        {"width", "Width", m_product->spineWidth(m_pageCount), Format::Length},
        {"maxFontHeight", "Largest text height", m_product->spineMaxFontHeight(m_pageCount), Format::Length},
        {"hasLogo", "Maker's logo", m_product->mustPaintVemoLogoOnSpine()},
    });
    // clang-format on
}

void PxProductReport::addSurroundings()
{
    QVector<QPair<PxSurroundingDescription, QList<int>>> found;
    QMap<decltype(orderOf(PxSurroundingDescription())), int> indexes; // in `found`
    for (int page = 0; page < m_pages.size(); ++page) {
        const PxSurroundingDescription surrounding =
            m_product->findSurrounding(PxSurroundingKey(m_pages[page], page));
        if (!surrounding.isValid())
            continue;
        const auto same =
            indexes.insert(orderOf(surrounding), indexes.value(orderOf(surrounding), found.size()));
        if (*same == found.size())
            found.append({surrounding, {}});
        found[*same].second.append(page);
    }
    QVector<QJsonArray> rows;
    for (const auto &[surrounding, pages] : qAsConst(found))
        rows.append({PxReportValue::numbers(pages),
                     keywordArray(surrounding.surroundingType(),
                                  EnumHelper::globalMapSurroundingTypeString),
                     PxReportValue::rect(surrounding.imageRect()), surrounding.paintOnTop(),
                     surrounding.hasBindingShade(), surrounding.image()});
    // clang-format off
    m_report.addTable("surroundings", "Surroundings", {
        {"pages", "Numbers", Format::PageNumbers},
        {"type", "Type", Format::Key},
        {"rect", "Place", Format::Rect},
        {"paintOnTop", "On top", Format::Key},
        {"hasBindingShade", "Shade", Format::Key},
        {"image", "Image"},
    }, rows);
    // clang-format on
}

void PxProductReport::addBarcodes()
{
    QVector<QJsonArray> rows;
    for (int page = 0; page < m_pages.size(); ++page) {
        const PxBarcode barcode = m_product->barcodeOnPage(page, m_pages.size());
        if (barcode.isValid())
            rows.append({page, PxReportValue::rect(barcode.rect()), barcode.reverseOrder(),
                         barcode.imageName()});
    }
    // clang-format off
    m_report.addTable("barcodes", "Barcodes", {
        {"page", "Number", Format::Key},
        {"rect", "Place", Format::Rect},
        {"isCountedFromBack", "From the back", Format::Key},
        {"image", "Image"},
    }, rows);
    // clang-format on
}

void PxProductReport::addTemplates()
{
    QVector<QJsonArray> rows;
    for (int i = 0; i < m_kinds.size(); ++i) {
        const PxPageContext &kind = m_kinds[i];
        rows.append({keywordOf(kind.pageType()), sideOf(kind),
                     PxReportValue::numbers(m_pagesOfKind[i]),
                     defaultTemplate(kind, DefaultTemplateTypeLayout),
                     defaultTemplate(kind, DefaultTemplateTypeBackground)});
    }
    const QString heading = QString("Default templates (theme %1, with the user's own)")
                                .arg(m_themeId.isEmpty() ? "normal" : m_themeId);
    // clang-format off
    m_report.addTable("templates", heading.toUtf8(), {
        {"pageType", "Page", Format::Key},
        {"alignment", "Side", Format::Key},
        {"pages", "Numbers", Format::PageNumbers},
        {"layout", "Layout"},
        {"background", "Background"},
    }, rows);
    // clang-format on
}

void PxProductReport::addTheme()
{
    if (m_themeId.isEmpty())
        return;
    const PxProductContext context(m_type, m_themeId);
    const PxTheme theme = context.theme();
    const auto [logo, logoRect] = theme.vemoLogo(m_type);
    const bool hasLogo = context.mustPaintVemoLogo();
    QList<int> withContent;
    for (int page = 0; page < m_pages.size(); ++page) {
        if (context.contentAllowedOnPage(page))
            withContent.append(page);
    }
    const auto category = [&theme](PxJigTypeEnum type) {
        return theme.defaultCategory(type).name();
    };
    const auto others = [this](PxProductTypeList products) {
        products.removeAll(m_type);
        return PxCatalogueProducts::nameArray(products);
    };
    // clang-format off
    m_report.addFields("theme", "In this theme", {
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
        {"pagesWithContent", "Pages with content", PxReportValue::numbers(withContent), Format::PageNumbers},
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
    // clang-format on
}

void PxProductReport::addDesign()
{
    const QSizeF background = m_registry->usablePrintSizeForBackgroundTemplate(m_type, false);
    // clang-format off
    m_report.addFields("design", "Design", {
        {"designElements", "Editor offers", designElementsOf(m_product)},
        {"hasAssistant", "Assistant", m_product->hasAssistant()},
        {"imageEffects", "Image effects", keywordArray(m_product->imageFX(), EnumHelper::globalMapImageFXsString)},
        {"canHaveBorder", "Borders and shadows", m_product->canHaveBorder()},
        {"backgroundCategories", "Cover backgrounds", backgroundCategoriesOf(m_product)},
        {"fullBackgroundOnEachPage", "One background a page", m_product->fullBackgroundOnEachPage()},
        {"backgroundSize", "Background", PxReportValue::size(background), Format::Size},
        {"backgroundRatio", "Width by height", m_registry->backgroundRatio(m_type, false)},
        {"imagesPerPage", "Images on a page", m_product->spaceMagnitude().maxReasonableImagesPerPage()},
        {"pointSize", "Type size", m_registry->suitablePointSize(m_type), Format::Points},
    });
    // clang-format on
}

void PxProductReport::addVariants()
{
    // clang-format off
    m_report.addFields("variants", "Variants", {
        {"description", "Differ in", m_product->variantDescription()},
        {"identifiers", "Variants", QJsonArray::fromStringList(m_product->variants())},
    });
    // clang-format on
}

void PxProductReport::addClassification()
{
    const PxProductClassification classification = m_product->classification();
    const PxProductMaterial material = classification.material();
    // clang-format off
    m_report.addFields("classification", "In the shop", {
        {"material", "Material", PxReportValue::name(material.value(), material.visibleDescription()), Format::Name},
        {"sizeCm", "Size in cm", classification.sizeName(true)},
        {"sizeInch", "Size in inches", classification.sizeName(false)},
        {"area", "Area", classification.areaSize(), Format::Area},
    });
    // clang-format on
}

void PxProductReport::addLegacy()
{
    const PxProductType legacy = m_product->legacyProduct();
    const PxProductType successor =
        PxProductTypeConfigRegistry::instance()->findProductForLegacy(m_type);
    const auto *sizes = PxLegacyProductTypeConfig::instance();
    const bool isKnown = PxCatalogueProducts::isLegacy(legacy);
    QList<PxPageType> cover;
    for (const PxPageType &pageType : sizes->description(legacy)->pageTypes(m_pageCount)) {
        if (pageType.matches(PxPageTypeCover))
            cover.append(pageType);
    }
    const auto sizeOf = [&](const QSizeF &size) {
        return isKnown && !size.isEmpty() ? PxReportValue::size(size.toSize()) : QJsonValue();
    };
    // clang-format off
    m_report.addFields("legacy", "Earlier and later catalogues", {
        {"replacedBy", "Replaced by", successor.productName()},
        {"replaces", "Replaces", legacy.productName()},
        {"replacedPage", "Its page", sizeOf(sizes->usablePrintSize(legacy, PxPageTypeNormalPage, m_pageCount)), Format::Size},
        {"replacedSpine", "Its spine", sizeOf(sizes->usablePrintSize(legacy, PxPageTypeSpine, m_pageCount)), Format::Size},
        {"replacedCover", "Its open cover", sizeOf(sizes->usableSize(legacy, m_pageCount, cover)), Format::Size},
    });
    // clang-format on
}

void PxProductReport::addProduction()
{
    const QList<int> numbering = m_product->productionNumberingList(m_pages.size());
    // clang-format off
    m_report.addFields("production", "Production", {
        {"numbering", "Numbers of the pages", PxReportValue::numbers(numbering), Format::PageNumbers},
        {"pageNumberHorizontalIndent", "Page number from side", m_product->pageNumberHorizontalIndent(), Format::Length},
        {"pageNumberVerticalIndent", "Above or below", m_product->pageNumberVerticalIndent(), Format::Length},
        {"pageNumberFontSize", "Page number type size", m_product->pageNumberFontSize()},
    });
    // clang-format on

    QVector<QJsonArray> rows;
    for (const PxProductionExtraPageGroup &group : m_product->extraProductionContents())
        rows.append({PxReportValue::numbers(group.targetPages()), group.content().templateType(),
                     group.content().targetLayer(), group.content().filename()});
    // clang-format off
    m_report.addTable("extraPages", "Extra production pages", {
        {"pages", "Numbers", Format::PageNumbers},
        {"type", "Type"},
        {"layer", "Layer", Format::Key},
        {"file", "File"},
    }, rows);
    // clang-format on
}

void PxProductReport::addRedirects()
{
    QVector<QJsonArray> contents;
    QVector<QJsonArray> rotations;
    for (int page = -1; page < m_pages.size(); ++page) { // -1 stands for no page of the product
        const int target = m_product->contentDropRedirect(page);
        if (target != page)
            contents.append({page, target});
        for (const PxPageRotationRedirect &redirect :
             m_product->rotationRedirectForSourcePage(page))
            rotations.append({page, redirect.targetPageNr(), redirect.angleInvert()});
    }
    // clang-format off
    m_report.addTable("contentRedirects", "Content dropped on a page goes to", {
        {"page", "Number", Format::Key},
        {"target", "Goes to", Format::Key},
    }, contents);
    m_report.addTable("rotationRedirects", "Pages that change places when turned", {
        {"page", "Number", Format::Key},
        {"target", "Goes to", Format::Key},
        {"angleInvert", "Angle by", Format::Key},
    }, rotations);
    // clang-format on
}

QString PxProductReport::defaultTemplate(const PxPageContext &kind, DefaultTemplateType type) const
{
    if (!m_themeId.isEmpty()) // as the editor asks: it has a background of its own for empty pages
        return PxProductContext(m_type, m_themeId)
            .defaultTemplateForPage(type == DefaultTemplateTypeLayout, kind, true);
    return m_product->findDefaultTemplate(PxDefaultTemplateKey("normal", kind, type), true, true);
}
