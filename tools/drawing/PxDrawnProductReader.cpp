#include "drawing/PxDrawnProductReader.h"

#include "drawing/PxPageCounts.h"
#include "drawing/PxPlacedItem.h"
#include "drawing/PxProductFile.h"
#include "drawing/PxSheetGeometry.h"
#include "format/PxCatalogueKeywords.h"

#include <context/PxProductContext.h>
#include <description/PxProductTypeConfigRegistry.h>
#include <geometry/PxClampedArithmetic.h>

#include <algorithm>
#include <map>
#include <tuple>
#include <vector>

namespace {

using Role = PxDrawnPage::Role;
using Kind = PxDrawnSheet::Kind;

constexpr int maximumSpiralLoops = 100;

struct Reading
{
    const PxProductTypeDescription &product;
    const PxProductContext context; // a void one without a theme
    PxDrawnProduct drawn;
    PxPageTypeList pageTypes = {};

    bool hasTheme() const { return !drawn.themeId.isEmpty(); }
    PxPageContext contextOf(int page) const
    {
        return PxPageContext(pageTypes[page], product.pageAlignment(page));
    }
};

bool isCover(const PxPageContext &page)
{
    return page.pageType().matches(PxPageTypeCover);
}

bool isSpine(const PxPageContext &page)
{
    return page.isPageType(PxPageTypeSpine);
}

// Which pages make a sheet

/** Whether no bleed keeps the pages apart, and both are covers or none is. */
bool canTouch(const Reading &reading, const PxPageContext &left, const PxPageContext &right)
{
    const int pageCount = reading.drawn.pageCount;
    return isCover(left) == isCover(right) &&
           reading.product.bleedMargins(left, pageCount).right() == 0 &&
           reading.product.bleedMargins(right, pageCount).left() == 0;
}

/** How many pages the sheet has that begins with this one. */
int pagesOfSheet(const Reading &reading, int first)
{
    const auto isSide = [](const PxPageContext &page, PxPageAlignment side) {
        return page.alignment() == side && !isSpine(page);
    };
    const int count = reading.pageTypes.size();
    const PxPageContext left = reading.contextOf(first);
    if (!reading.drawn.type.isBook() || !reading.drawn.hasHorizontalPages ||
        !isSide(left, PxPageAlignmentLeft) || first + 1 >= count)
        return 1;
    const PxPageContext next = reading.contextOf(first + 1);
    if (!canTouch(reading, left, next))
        return 1;
    if (isSide(next, PxPageAlignmentRight))
        return 2;
    if (!isSpine(next) || next.alignment() != PxPageAlignmentMiddle || first + 2 >= count)
        return 1;
    const PxPageContext right = reading.contextOf(first + 2);
    return isSide(right, PxPageAlignmentRight) && canTouch(reading, next, right) ? 3 : 1;
}

Role roleOf(const PxPageContext &page, int pagesOfSheet)
{
    if (isSpine(page))
        return Role::Spine;
    if (pagesOfSheet == 1)
        return Role::Page;
    if (page.alignment() == PxPageAlignmentLeft)
        return isCover(page) ? Role::Back : Role::Left;
    return isCover(page) ? Role::Front : Role::Right;
}

// Which sheets look the same

auto lookOf(const QRect &rect)
{
    return std::make_tuple(rect.left(), rect.top(), rect.right(), rect.bottom());
}

/** All that may differ between two pages of a product. Sizes depend on the kind of page alone. */
auto lookOf(const Reading &reading, int page)
{
    const PxPageContext context = reading.contextOf(page);
    const PxSurroundingDescription surrounding =
        reading.product.findSurrounding(PxSurroundingKey(context, page));
    const PxBarcode barcode = reading.product.barcodeOnPage(page, reading.pageTypes.size());
    return std::make_tuple(int(context.pageType().value()), int(context.alignment()),
                           reading.product.contentAllowedOnPage(page),
                           int(surrounding.surroundingType()), surrounding.paintOnTop(),
                           lookOf(surrounding.imageRect()), surrounding.image(),
                           lookOf(barcode.rect()), barcode.reverseOrder(), barcode.imageName());
}

using PageLook = decltype(lookOf(std::declval<const Reading &>(), 0));

struct SheetNumbers
{
    int first;
    int count;
    QVector<int> standsFor;
};

/** The different sheets in the order of their first pages; one too many if there are too many. */
QVector<SheetNumbers> differentSheets(const Reading &reading)
{
    QVector<SheetNumbers> sheets;
    std::map<std::vector<PageLook>, int> indexes;
    int count = 0;
    for (int first = 0; first < reading.pageTypes.size(); first += count) {
        count = pagesOfSheet(reading, first);
        std::vector<PageLook> look;
        for (int page = first; page < first + count; ++page)
            look.push_back(lookOf(reading, page));
        const auto found = indexes.emplace(std::move(look), sheets.size());
        if (found.second) {
            sheets.append({first, count, {}});
            if (sheets.size() > PxDrawnProductReader::maximumSheets)
                return sheets;
        }
        for (int page = first; page < first + count; ++page)
            sheets[found.first->second].standsFor.append(page);
    }
    return sheets;
}

// Pages and sheets

QPoint pageNumberOn(const Reading &reading, const PxPageContext &page, const QSize &size)
{
    const int x = int(reading.product.pageNumberHorizontalIndent());
    const int y = int(reading.product.pageNumberVerticalIndent());
    const bool isLeft = page.alignment() == PxPageAlignmentLeft;
    return QPoint(isLeft ? x : pxClampedInt(qint64(size.width()) - x),
                  pxClampedInt(qint64(size.height()) - y));
}

PxDrawnPage drawnPage(const Reading &reading, int number, int pagesOfSheet)
{
    const PxProductTypeDescription &product = reading.product;
    const int pageCount = reading.drawn.pageCount;
    PxDrawnPage page;
    page.number = number;
    page.context = reading.contextOf(number);
    page.role = roleOf(page.context, pagesOfSheet);
    const PxPageSizeSpec pageSize = product.sizeSpec(PxPageSizeKey(page.context, pageCount));
    QSize size = pageSize.usableSize();
    if (page.role == Role::Spine) {
        size.setWidth(qMax(0, size.width()));
        page.spineTextHeight = qMax(0, product.spineMaxFontHeight(pageCount));
        page.hasSpineLogo = product.mustPaintVemoLogoOnSpine();
    }
    page.trim = QRect(QPoint(), size);
    page.bleed = pageSize.bleedMargins();
    page.safetyMargins = pageSize.safetyMargins();
    page.foldMargin = isCover(page.context) ? 0 : qMax(0, product.foldMargin());
    page.clamp = qMax(0, pageSize.horizontalClampExtra());
    page.isPrinted = !page.context.isPageType(PxPageTypeEmptyPage);
    page.takesContent = product.contentAllowedOnPage(number);
    page.surrounding = product.findSurrounding(PxSurroundingKey(page.context, number));
    page.barcode = product.barcodeOnPage(number, reading.drawn.listedPages);
    page.hasPageNumber = reading.drawn.type.isBook() &&
                         page.context.isPageType(PxPageTypeNormalPage) &&
                         (page.context.alignment() == PxPageAlignmentLeft ||
                          page.context.alignment() == PxPageAlignmentRight);
    if (page.hasPageNumber)
        page.pageNumber = pageNumberOn(reading, page.context, size);
    if (reading.hasTheme()) {
        // Not those of the user: a drawing is the same on every machine.
        page.layoutTemplate = reading.context.defaultTemplateForPage(true, page.context, false);
        page.backgroundTemplate =
            reading.context.defaultTemplateForPage(false, page.context, false);
    }
    return page;
}

/** Puts the pages beside each other, centred on the highest. */
void placePages(PxDrawnSheet *sheet)
{
    int width = 0;
    int height = 0;
    for (const PxDrawnPage &page : qAsConst(sheet->pages))
        height = qMax(height, page.trim.height());
    for (PxDrawnPage &page : sheet->pages) {
        page.trim.moveTo(width, (height - page.trim.height()) / 2);
        width += page.trim.width();
    }
    sheet->trim = QRect(0, 0, width, height);
    int left = 0;
    int top = 0;
    int right = width;
    int bottom = height;
    for (const PxDrawnPage &page : qAsConst(sheet->pages)) {
        const QRect total = page.total();
        left = qMin(left, total.left());
        top = qMin(top, total.top());
        right = qMax(right, total.left() + total.width());
        bottom = qMax(bottom, total.top() + total.height());
    }
    sheet->total = QRect(left, top, right - left, bottom - top);
}

PxDrawnSheet drawnSheet(const Reading &reading, const SheetNumbers &numbers, int index)
{
    PxDrawnSheet sheet;
    sheet.index = index;
    sheet.standsFor = numbers.standsFor;
    for (int i = 0; i < numbers.count; ++i)
        sheet.pages.append(drawnPage(reading, numbers.first + i, numbers.count));
    sheet.isCover = isCover(sheet.pages.constFirst().context);
    if (numbers.count > 1)
        sheet.kind = sheet.isCover ? Kind::Cover : Kind::Spread;
    sheet.isRound = reading.product.orientation().matches(PxOrientationRound);
    const bool hasSpine =
        std::any_of(sheet.pages.begin(), sheet.pages.end(),
                    [](const PxDrawnPage &page) { return page.role == Role::Spine; });
    if (!hasSpine)
        sheet.spiralLoops = qBound(0, reading.product.numberOfSpiralLoops(), maximumSpiralLoops);
    const bool isSingle = numbers.count == 1 && !hasSpine;
    sheet.hasHook = isSingle && reading.product.hasHook();
    sheet.hasHole = isSingle && reading.product.hasHole();
    return sheet;
}

// Why a product cannot be drawn

QString problemOfPageCount(const Reading &reading, const QList<int> &offered)
{
    const int pageCount = reading.drawn.pageCount;
    if (offered.isEmpty() || reading.product.isPageCountOffered(pageCount))
        return QString();
    return PxPageCounts::notOffered(reading.drawn.type, offered, pageCount);
}

QString problemOfSize(const PxDrawnPage &page)
{
    const QSize size = page.trim.size();
    if (page.role != Role::Spine && (size.width() <= 0 || size.height() <= 0))
        return QString("has no size: page %1 is %2 x %3")
            .arg(QString::number(page.number), QString::number(size.width()),
                 QString::number(size.height()));
    for (const int length : {size.width(), size.height(), page.bleed.left(), page.bleed.top(),
                             page.bleed.right(), page.bleed.bottom(), page.spineTextHeight}) {
        if (qAbs(qint64(length)) > PxDrawnProductReader::maximumLength)
            return QString("is too large to draw: page %1 has a length of %2 mm")
                .arg(QString::number(page.number), QString::number(length / 10.0, 'f', 1));
    }
    return QString();
}

/** A drawing repeats names, so that long ones would make it endless. */
QString problemOfNames(const QStringList &names)
{
    for (const QString &name : names) {
        if (name.size() > PxDrawnProductReader::maximumNameLength)
            return QString("is too large to draw: it has a name of %1 characters").arg(name.size());
    }
    return QString();
}

QString problemOf(const PxDrawnSheet &sheet)
{
    for (const PxDrawnPage &page : sheet.pages) {
        const QString size = problemOfSize(page);
        if (!size.isEmpty())
            return size;
        const QString names = problemOfNames({page.surrounding.image(), page.barcode.imageName(),
                                              page.layoutTemplate, page.backgroundTemplate});
        if (!names.isEmpty())
            return names;
    }
    return QString();
}

// What is odd

bool leavesNothing(const PxDrawnPage &page)
{
    const auto isEmpty = [](int length, int before, int behind) {
        const qint64 margins = qint64(before) + behind;
        return margins > 0 && length - margins <= 0;
    };
    const PxMargins &margins = page.safetyMargins;
    const bool isHigh = isEmpty(page.trim.height(), margins.top(), margins.bottom());
    if (page.role == Role::Spine) // only a text has a safe area there
        return page.spineTextHeight > 0 && isHigh;
    return isHigh || isEmpty(page.trim.width(), margins.left(), margins.right());
}

bool isMarginTooWide(const PxDrawnPage &page)
{
    const bool isVertical = page.context.alignment() == PxPageAlignmentTop ||
                            page.context.alignment() == PxPageAlignmentBottom;
    const int length = isVertical ? page.trim.height() : page.trim.width();
    return qMax(page.foldMargin, page.clamp) >= length && page.role != Role::Spine;
}

bool isBleedOneSided(const Reading &reading, const PxDrawnSheet &sheet)
{
    using Edge = PxSheetGeometry::Edge;
    const PxDrawnPage &page = sheet.pages.constFirst();
    const struct
    {
        Edge edge;
        int bleed;
    } edges[] = {{Edge::Left, page.bleed.left()},
                 {Edge::Right, page.bleed.right()},
                 {Edge::Top, page.bleed.top()},
                 {Edge::Bottom, page.bleed.bottom()}};
    const Edge inner = PxSheetGeometry::innerEdge(page);
    int atInnerEdge = 0;
    int atOthers = 0;
    for (const auto &row : edges) {
        int &bleed = row.edge == inner ? atInnerEdge : atOthers;
        bleed = qMax(bleed, row.bleed);
    }
    return sheet.pages.size() == 1 && sheet.spiralLoops == 0 && !reading.drawn.type.isBook() &&
           atInnerEdge == 0 && atOthers > 0;
}

void addNotes(const Reading &reading, PxDrawnSheet *sheet)
{
    const QVector<PxDrawnPage> &pages = sheet->pages;
    const auto anyPage = [&pages](auto is) { return std::any_of(pages.begin(), pages.end(), is); };
    const QVector<PxPlacedItem> items = pxPlacedItems(*sheet);
    const auto anyItem = [&items](bool PxPlacedItem::*is) {
        return std::any_of(items.begin(), items.end(),
                           [is](const PxPlacedItem &item) { return item.*is; });
    };
    const bool isFirst = sheet->index == 0;
    const bool isBook = reading.drawn.type.isBook();
    const struct
    {
        PxDrawnNote note;
        bool applies;
    } rows[] = {
        {PxDrawnNote::CountUnknown, isFirst && reading.product.offeredPageCounts().isEmpty()},
        {PxDrawnNote::BleedNegative, anyPage([](const PxDrawnPage &page) {
             const PxMargins &bleed = page.bleed;
             return qMin(qMin(bleed.left(), bleed.right()), qMin(bleed.top(), bleed.bottom())) < 0;
         })},
        {PxDrawnNote::BleedOneSided, isBleedOneSided(reading, *sheet)},
        {PxDrawnNote::SafeEmpty, anyPage(leavesNothing)},
        {PxDrawnNote::SpineZero, anyPage([](const PxDrawnPage &page) {
             return page.role == Role::Spine && page.trim.width() == 0;
         })},
        {PxDrawnNote::HeightsDiffer, anyPage([sheet](const PxDrawnPage &page) {
             return page.trim.height() != sheet->trim.height();
         })},
        {PxDrawnNote::MarginTooWide, anyPage(isMarginTooWide)},
        {PxDrawnNote::ItemOutside, anyItem(&PxPlacedItem::isOutside)},
        {PxDrawnNote::ItemCut, anyItem(&PxPlacedItem::isCut)},
        {PxDrawnNote::ItemEmpty, anyItem(&PxPlacedItem::isEmpty)},
        {PxDrawnNote::SpiralShortened,
         sheet->spiralLoops > 0 && reading.product.numberOfSpiralLoops() > maximumSpiralLoops},
        {PxDrawnNote::VerticalSpine, isFirst && isBook && !reading.drawn.hasHorizontalPages},
        {PxDrawnNote::ThemeInvalid, isFirst && reading.hasTheme() && !reading.context.isValid()},
        {PxDrawnNote::ThemeLogo,
         isFirst && reading.hasTheme() && reading.context.mustPaintVemoLogo()},
    };
    for (const auto &row : rows) {
        if (row.applies)
            sheet->notes.append(row.note);
    }
}

/** The name that people read; empty for a value without one, for which the library has words. */
template <typename Value>
QString nameOf(const Value &value)
{
    const QString name = value.humanReadableName();
    return name == Value().humanReadableName() ? QString() : name;
}

/** Everything but the sheets. */
PxDrawnProduct withoutSheets(const PxProductTypeDescription &product, const PxProductType &type,
                             int pageCount, const QList<int> &offered, const QString &themeId)
{
    PxDrawnProduct drawn;
    drawn.type = type;
    drawn.className = keywordsOf(type.productClass(), productClassKeywords).join(", ");
    drawn.pageCount = pageCount > 0 ? pageCount : PxPageCounts::standard(product, offered);
    drawn.binding = nameOf(product.binding());
    drawn.paper = nameOf(product.paperType());
    drawn.themeId = themeId;
    drawn.hasHorizontalPages = product.horizontalPages();
    return drawn;
}

QString addSheets(Reading *reading)
{
    reading->pageTypes = reading->product.pageTypes(reading->drawn.pageCount);
    reading->drawn.listedPages = reading->pageTypes.size();
    if (reading->pageTypes.size() >= PxProductTypeDescription::maximumListedPages) // cut off there
        return QString("is too large to draw: it has %1 pages or more")
            .arg(PxProductTypeDescription::maximumListedPages);
    const QVector<SheetNumbers> sheets = differentSheets(*reading);
    if (sheets.size() > PxDrawnProductReader::maximumSheets)
        return QString("is too large to draw: it has more than %1 different sheets")
            .arg(PxDrawnProductReader::maximumSheets);
    for (const SheetNumbers &numbers : sheets) {
        PxDrawnSheet sheet = drawnSheet(*reading, numbers, reading->drawn.sheets.size());
        const QString problem = problemOf(sheet);
        if (!problem.isEmpty())
            return problem;
        placePages(&sheet);
        addNotes(*reading, &sheet);
        reading->drawn.sheets.append(sheet);
    }
    return QString();
}

} // namespace

PxDrawnProduct PxDrawnProductReader::read(const PxProductType &type, int pageCount,
                                          const QString &themeId) const
{
    const PxProductTypeDescription &product = *m_registry->description(type);
    const QList<int> offered = product.offeredPageCounts();
    Reading reading{product,
                    themeId.isEmpty() ? PxProductContext() : PxProductContext(type, themeId),
                    withoutSheets(product, type, pageCount, offered, themeId)};
    PxDrawnProduct &drawn = reading.drawn;
    if (reading.hasTheme())
        drawn.theme = reading.context.theme().description();
    drawn.problem = problemOfPageCount(reading, offered);
    if (!drawn.problem.isEmpty())
        return drawn;

    drawn.file = PxProductFile::pathOf(type, m_registry != PxProductTypeConfigRegistry::instance());
    QString problem = problemOfNames({type.productName(), type.shortProductName(), drawn.themeId,
                                      drawn.theme, drawn.binding, drawn.paper});
    if (problem.isEmpty())
        problem = addSheets(&reading);
    if (!problem.isEmpty()) {
        drawn.sheets.clear();
        drawn.problem = type.productName() + QLatin1Char(' ') + problem;
    }
    return drawn;
}
