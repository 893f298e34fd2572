#include "drawing/PxSheetGeometry.h"

#include "drawing/PxDrawnPath.h"
#include "drawing/PxDrawnStyle.h"
#include "drawing/PxPlacedItem.h"
#include "format/PxCatalogueKeywords.h"

#include <cmath>

namespace {

using Edge = PxSheetGeometry::Edge;
using Role = PxDrawnPage::Role;
using Shapes = QVector<PxDrawnShape>;
using Steps = PxDrawnPath::Steps;

constexpr double hatchDistance = 2.4;
constexpr double cropMarkGap = 1;

QString number(double value)
{
    return QString::number(std::round(value * 100) / 100, 'g', 12);
}

QString numbers(const QRectF &rect)
{
    return QStringList{number(rect.x()), number(rect.y()), number(rect.width()),
                       number(rect.height())}
        .join(' ');
}

QString roleName(Role role)
{
    switch (role) {
    case Role::Back:
        return QStringLiteral("back");
    case Role::Spine:
        return QStringLiteral("spine");
    case Role::Front:
        return QStringLiteral("front");
    case Role::Left:
        return QStringLiteral("left");
    case Role::Right:
        return QStringLiteral("right");
    case Role::Page:
        break;
    }
    return QStringLiteral("page");
}

PxDrawnShape shape(PxDrawnShape::Kind kind, std::string_view className)
{
    PxDrawnShape shape;
    shape.kind = kind;
    shape.className = className;
    return shape;
}

/** A rectangle, or the ellipse in it. Neither line nor fill makes it a shape for programs only. */
PxDrawnShape box(std::string_view className, const QRectF &rect, const PxDrawnLine &stroke = {},
                 const QColor &fill = {}, PxDrawnShape::Kind kind = PxDrawnShape::Rect)
{
    PxDrawnShape box = shape(kind, className);
    box.rect = rect;
    box.stroke = stroke;
    box.fill = fill;
    return box;
}

PxDrawnShape path(std::string_view className, const Steps &steps, const PxDrawnLine &stroke,
                  const QColor &fill = {})
{
    PxDrawnShape path = shape(PxDrawnShape::Path, className);
    path.steps = steps;
    path.stroke = stroke;
    path.fill = fill;
    return path;
}

PxDrawnShape line(std::string_view className, const QLineF &line, const PxDrawnLine &stroke)
{
    PxDrawnShape shape = ::shape(PxDrawnShape::Line, className);
    shape.line = line;
    shape.stroke = stroke;
    return shape;
}

QRectF pageRect(const PxDrawnPage &page)
{
    return QRectF(QPointF(), QSizeF(page.trim.size()));
}

/** With bleed. Of no size, in the middle, if negative bleed takes more than there is. */
QRectF totalRect(const PxDrawnPage &page)
{
    const QRectF total(page.total().translated(-page.trim.topLeft()));
    const QSizeF size = total.size().expandedTo(QSizeF(0, 0));
    return QRectF(total.center() - QPointF(size.width() / 2, size.height() / 2), size);
}

/** Of no size if there is no safety margin, or nothing within it. */
QRectF safeRect(const PxDrawnPage &page)
{
    const auto margin = [](int length) { return double(qMax(0, length)); };
    const QRectF rect = pageRect(page);
    const PxMargins &margins = page.safetyMargins;
    const QRectF safe = rect.adjusted(margin(margins.left()), margin(margins.top()),
                                      -margin(margins.right()), -margin(margins.bottom()));
    return page.role == Role::Spine || safe == rect ? QRectF() : safe;
}

/** The strip along the inner edge of the page; the whole page if the strip is wider. */
QRectF innerStrip(const PxDrawnPage &page, double width)
{
    const QRectF rect = pageRect(page);
    switch (PxSheetGeometry::innerEdge(page)) {
    case Edge::Left:
        return rect & QRectF(0, 0, width, rect.height());
    case Edge::Right:
        return rect & QRectF(rect.right() - width, 0, width, rect.height());
    case Edge::Top:
        return rect & QRectF(0, 0, rect.width(), width);
    case Edge::Bottom:
        break;
    }
    return rect & QRectF(0, rect.bottom() - width, rect.width(), width);
}

/** The strips of bleed, the upper and the lower one as wide as the page with its bleed. */
QVector<QRectF> bleedAreas(const PxDrawnPage &page)
{
    const QRectF rect = pageRect(page);
    const QRectF total = totalRect(page);
    const double top = qMax(rect.top(), total.top());
    const double height = qMin(rect.bottom(), total.bottom()) - top;
    QVector<QRectF> areas;
    for (const QRectF &area :
         {QRectF(total.left(), total.top(), total.width(), page.bleed.top()),
          QRectF(total.left(), rect.bottom(), total.width(), page.bleed.bottom()),
          QRectF(total.left(), top, page.bleed.left(), height),
          QRectF(rect.right(), top, page.bleed.right(), height)}) {
        if (!area.isEmpty())
            areas.append(area);
    }
    return areas;
}

/** Adds the layers of one sheet. */
class Builder
{
public:
    Builder(const PxDrawnSheet &sheet, double annotation, PxDrawingSheet &drawing)
        : m_sheet(sheet)
        , m_items(pxPlacedItems(sheet))
        , m_a(annotation)
        , m_drawing(drawing)
    {}

    void addAll();

private:
    using PageShapes = Shapes (Builder::*)(int page) const;

    Shapes areas(int page) const;
    Shapes surroundings(int page) const;
    Shapes fittings(int page) const;
    Shapes barcodes(int page) const;
    Shapes pageNumbers(int page) const;
    Shapes margins(int page) const;
    Shapes spine(int page) const;
    Shapes safe(int page) const;
    Shapes total(int page) const;
    Shapes trim(int page) const;

    PxDrawnShape spiral() const;
    PxDrawnShape hook(const QRectF &rect) const;
    PxDrawnShape hole(const QRectF &rect) const;

    Shapes folds() const;
    Shapes bleedEdge() const;
    Shapes cut() const;
    Shapes marks() const;
    Steps cropMarks() const;
    Steps foldMarks() const;
    void addVerticalMarks(Steps *steps, double x) const;

    PxDrawnLine stroke(PxDrawnItem item) const { return PxDrawnStyle::line(item, m_a); }
    PxDrawnShape placedBox(std::string_view className, const PxPlacedItem &item) const;
    QVector<PxPlacedItem> itemsOn(int page, PxDrawnItem item) const;
    void add(PxDrawnLayer layer, const Shapes &ofSheet, PageShapes ofPage);

    const PxDrawnSheet &m_sheet;
    const QVector<PxPlacedItem> m_items;
    const double m_a;
    PxDrawingSheet &m_drawing;
};

void Builder::addAll()
{
    add(PxDrawnLayer::Areas, {}, &Builder::areas);
    add(PxDrawnLayer::Surroundings, {}, &Builder::surroundings);
    add(PxDrawnLayer::Fittings, {}, &Builder::fittings);
    add(PxDrawnLayer::Barcodes, {}, &Builder::barcodes);
    add(PxDrawnLayer::PageNumbers, {}, &Builder::pageNumbers);
    add(PxDrawnLayer::Folds, folds(), &Builder::margins);
    add(PxDrawnLayer::Spine, {}, &Builder::spine);
    add(PxDrawnLayer::Safe, {}, &Builder::safe);
    add(PxDrawnLayer::Bleed, bleedEdge(), &Builder::total);
    add(PxDrawnLayer::Trim, cut(), &Builder::trim);
    add(PxDrawnLayer::Marks, marks(), nullptr);
}

/** Adds to a layer what belongs to the sheet, and then what belongs to each page. */
void Builder::add(PxDrawnLayer layer, const Shapes &ofSheet, PageShapes ofPage)
{
    Shapes &shapes = m_drawing.layers[std::size_t(qCountTrailingZeroBits(unsigned(layer)))];
    shapes += ofSheet;
    for (int i = 0; ofPage && i < m_sheet.pages.size(); ++i) {
        PxDrawnShape panel = shape(PxDrawnShape::Group, "panel");
        panel.children = (this->*ofPage)(i);
        if (panel.children.isEmpty())
            continue;
        const PxDrawnPage &page = m_sheet.pages[i];
        panel.attributes = {{"data-page", QString::number(page.number)},
                            {"data-role", roleName(page.role)},
                            {"data-type", keywordOf(page.context.pageType())}};
        panel.translation = page.trim.topLeft();
        shapes.append(panel);
    }
}

Shapes Builder::areas(int page) const
{
    const PxDrawnPage &p = m_sheet.pages[page];
    const auto filled = [](std::string_view className, const QRectF &rect, PxDrawnItem item) {
        return box(className, rect, {}, PxDrawnStyle::fill(item));
    };
    Shapes shapes{filled("paper", pageRect(p), PxDrawnItem::Trim)};
    Steps hatch;
    for (const QRectF &area : bleedAreas(p)) {
        shapes.append(filled("bleed-area", area, PxDrawnItem::BleedArea));
        PxDrawnPath::addHatch(&hatch, area, hatchDistance * m_a, p.trim.topLeft());
    }
    if (p.role == Role::Spine && p.trim.width() > 0)
        shapes.append(filled("spine-area", pageRect(p), PxDrawnItem::Spine));
    if (p.foldMargin > 0)
        shapes.append(filled("fold-area", innerStrip(p, p.foldMargin), PxDrawnItem::FoldMargin));
    if (p.clamp > 0)
        shapes.append(filled("clamp-area", innerStrip(p, p.clamp), PxDrawnItem::Clamp));
    if (!hatch.isEmpty())
        shapes.append(path("hatch", hatch, stroke(PxDrawnItem::BleedArea)));
    return shapes;
}

QVector<PxPlacedItem> Builder::itemsOn(int page, PxDrawnItem item) const
{
    QVector<PxPlacedItem> items;
    for (const PxPlacedItem &placed : m_items) {
        if (placed.page == page && placed.item == item && !placed.isEmpty)
            items.append(placed);
    }
    return items;
}

PxDrawnShape Builder::placedBox(std::string_view className, const PxPlacedItem &item) const
{
    PxDrawnShape shape = item.shown.isEmpty() ? box(className, item.shown, {}, {})
                                              : box(className, item.shown, stroke(item.item),
                                                    PxDrawnStyle::fill(item.item));
    if (!item.key.isEmpty())
        shape.attributes.append({"data-key", item.key});
    if (item.isCut)
        shape.attributes.append({"data-rect", numbers(item.rect)});
    return shape;
}

Shapes Builder::surroundings(int page) const
{
    const PxSurroundingDescription &surrounding = m_sheet.pages[page].surrounding;
    Shapes shapes;
    for (const PxDrawnItem kind : {PxDrawnItem::SurroundingBelow, PxDrawnItem::Surrounding}) {
        for (const PxPlacedItem &item : itemsOn(page, kind)) {
            PxDrawnShape box = placedBox("surrounding", item);
            box.attributes += {{"data-image", surrounding.image()},
                               {"data-types", keywordsOf(surrounding.surroundingType(),
                                                         EnumHelper::globalMapSurroundingTypeString)
                                                  .join(' ')},
                               {"data-paint", surrounding.paintOnTop() ? "above" : "below"}};
            shapes << box;
            if (!item.shown.isEmpty())
                shapes << path("picture-box", PxDrawnPath::diagonals(item.shown),
                               PxDrawnStyle::diagonals(m_a));
        }
    }
    return shapes;
}

Shapes Builder::barcodes(int page) const
{
    const PxBarcode &barcode = m_sheet.pages[page].barcode;
    Shapes shapes;
    for (const PxPlacedItem &item : itemsOn(page, PxDrawnItem::Barcode)) {
        PxDrawnShape box = placedBox("barcode", item);
        box.attributes += {{"data-image", barcode.imageName()},
                           {"data-counted", barcode.reverseOrder() ? "back" : "front"}};
        const QRectF inner =
            item.shown.adjusted(item.shown.width() * 0.06, item.shown.height() * 0.1,
                                -item.shown.width() * 0.06, -item.shown.height() * 0.1);
        shapes << box;
        if (!item.shown.isEmpty())
            shapes << path("bars", PxDrawnPath::bars(inner), {}, box.stroke.color);
    }
    return shapes;
}

Shapes Builder::pageNumbers(int page) const
{
    Shapes shapes;
    for (const PxPlacedItem &item : m_items) {
        if (item.page != page || item.item != PxDrawnItem::PageNumber)
            continue;
        const QPointF at = item.shown.topLeft();
        const QPointF place = item.rect.topLeft();
        const double arm = 1.5 * m_a;
        Steps cross;
        PxDrawnPath::addLine(&cross, at - QPointF(arm, 0), at + QPointF(arm, 0));
        PxDrawnPath::addLine(&cross, at - QPointF(0, arm), at + QPointF(0, arm));
        PxDrawnShape shape = path("page-number", cross, stroke(PxDrawnItem::PageNumber));
        shape.attributes = {{"data-position", number(place.x()) + ' ' + number(place.y())}};
        shapes.append(shape);
    }
    return shapes;
}

Shapes Builder::margins(int page) const
{
    const PxDrawnPage &p = m_sheet.pages[page];
    const auto strip = [&](std::string_view className, int width, PxDrawnItem item) {
        PxDrawnShape shape = box(className, innerStrip(p, width), stroke(item));
        shape.attributes = {{"data-width", QString::number(width)}};
        return shape;
    };
    Shapes shapes;
    if (p.foldMargin > 0)
        shapes.append(strip("fold-margin", p.foldMargin, PxDrawnItem::FoldMargin));
    if (p.clamp > 0)
        shapes.append(strip("clamp", p.clamp, PxDrawnItem::Clamp));
    return shapes;
}

Shapes Builder::spine(int page) const
{
    const PxDrawnPage &p = m_sheet.pages[page];
    if (p.role != Role::Spine)
        return {};
    const double top = -qMax(0, p.bleed.top());
    const double bottom = p.trim.height() + qMax(0, p.bleed.bottom());
    Shapes shapes;
    for (const double x : {0.0, double(p.trim.width())}) {
        if (x > 0 || shapes.isEmpty())
            shapes.append(
                line("spine-edge", QLineF(x, top, x, bottom), stroke(PxDrawnItem::Spine)));
    }
    for (const PxPlacedItem &item : itemsOn(page, PxDrawnItem::SpineText))
        shapes.append(placedBox("spine-text", item));
    return shapes;
}

Shapes Builder::safe(int page) const
{
    const QRectF safe = safeRect(m_sheet.pages[page]);
    if (safe.isEmpty())
        return {};
    Shapes shapes{box("safe", safe, stroke(PxDrawnItem::Safe))};
    if (m_sheet.isRound)
        shapes.append(
            box("round-safe", safe, stroke(PxDrawnItem::Safe), {}, PxDrawnShape::Ellipse));
    return shapes;
}

Shapes Builder::total(int page) const
{
    return {box("total", totalRect(m_sheet.pages[page]))};
}

Shapes Builder::trim(int page) const
{
    const PxDrawnPage &p = m_sheet.pages[page];
    Shapes shapes{box("trim", pageRect(p))};
    if (m_sheet.isRound && p.role != Role::Spine)
        shapes.append(
            box("round-cut", pageRect(p), stroke(PxDrawnItem::Round), {}, PxDrawnShape::Ellipse));
    return shapes;
}

Shapes Builder::fittings(int page) const
{
    Shapes shapes;
    if (page > 0)
        return shapes;
    const QRectF rect = pageRect(m_sheet.pages[page]);
    if (m_sheet.spiralLoops > 0)
        shapes.append(spiral());
    if (m_sheet.hasHook)
        shapes.append(hook(rect));
    if (m_sheet.hasHole)
        shapes.append(hole(rect));
    return shapes;
}

/** Rings around the inner edge of the first page, which is the joint of a spread. */
PxDrawnShape Builder::spiral() const
{
    const PxDrawnPage &page = m_sheet.pages.constFirst();
    const QRectF rect = pageRect(page);
    const Edge edge = PxSheetGeometry::innerEdge(page);
    const bool isVertical = edge == Edge::Left || edge == Edge::Right;
    const double length = isVertical ? rect.height() : rect.width();
    // From a hole in the page to behind the edge, or to the hole in the other page.
    const double inside = qMin(2 * m_a, (isVertical ? rect.width() : rect.height()) / 3);
    const double outside = m_sheet.pages.size() > 1 ? inside : 1.2 * m_a;
    const bool isAtEnd = edge == Edge::Right || edge == Edge::Bottom;
    const double at = edge == Edge::Right ? rect.right() : isAtEnd ? rect.bottom() : 0;
    const double from = isAtEnd ? at - inside : at - outside;
    const double to = isAtEnd ? at + outside : at + inside;
    Steps steps;
    for (int i = 0; i < m_sheet.spiralLoops; ++i) {
        const double along = (i + 0.5) * length / m_sheet.spiralLoops;
        PxDrawnPath::addArc(&steps, isVertical ? QPointF(from, along) : QPointF(along, to),
                            isVertical ? QPointF(to, along) : QPointF(along, from),
                            (to - from) * 0.6);
    }
    PxDrawnLine line = stroke(PxDrawnItem::Spiral);
    line.width = qMin(line.width, 0.45 * length / m_sheet.spiralLoops); // so that rings stay apart
    PxDrawnShape shape = path("spiral", steps, line);
    shape.attributes = {{"data-loops", QString::number(m_sheet.spiralLoops)}};
    return shape;
}

/** A wire that is bent over the middle of the upper edge. */
PxDrawnShape Builder::hook(const QRectF &rect) const
{
    const double middle = rect.width() / 2;
    const double radius = 1.5 * m_a;
    Steps steps;
    PxDrawnPath::addLine(&steps, {middle - radius, m_a}, {middle - radius, -m_a});
    PxDrawnPath::addArc(&steps, {middle - radius, -m_a}, {middle + radius, -m_a}, radius);
    PxDrawnPath::addLine(&steps, {middle + radius, -m_a}, {middle + radius, m_a});
    return path("hook", steps, stroke(PxDrawnItem::Hook));
}

/** Below the middle of the upper edge. */
PxDrawnShape Builder::hole(const QRectF &rect) const
{
    const double radius = qMin(1.5 * m_a, qMin(rect.width(), rect.height()) / 8);
    const QPointF center(rect.width() / 2, 3 * radius);
    return box("hole", QRectF(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius),
               stroke(PxDrawnItem::Hole), PxDrawnStyle::fill(PxDrawnItem::Hole),
               PxDrawnShape::Circle);
}

Shapes Builder::folds() const
{
    Shapes shapes;
    for (int i = 1; i < m_sheet.pages.size(); ++i) {
        const QRect left = m_sheet.pages[i - 1].trim;
        const QRect right = m_sheet.pages[i].trim;
        if (m_sheet.pages[i - 1].role == Role::Spine || m_sheet.pages[i].role == Role::Spine)
            continue;
        const int top = qMin(left.y(), right.y());
        const int bottom = qMax(left.y() + left.height(), right.y() + right.height());
        shapes.append(
            line("fold", QLineF(right.x(), top, right.x(), bottom), stroke(PxDrawnItem::Fold)));
    }
    return shapes;
}

Shapes Builder::bleedEdge() const
{
    QVector<QRectF> areas;
    bool hasBleed = false;
    for (const PxDrawnPage &page : m_sheet.pages) {
        hasBleed = hasBleed || !page.bleed.allNull();
        areas.append(totalRect(page).translated(page.trim.topLeft()));
    }
    const Steps outline = PxDrawnPath::outline(areas);
    if (!hasBleed || outline.isEmpty())
        return {};
    return {path("bleed-edge", outline, stroke(PxDrawnItem::Bleed))};
}

Shapes Builder::cut() const
{
    QVector<QRectF> areas;
    for (const PxDrawnPage &page : m_sheet.pages)
        areas.append(pageRect(page).translated(page.trim.topLeft()));
    return {path("cut", PxDrawnPath::outline(areas), stroke(PxDrawnItem::Trim))};
}

Shapes Builder::marks() const
{
    Shapes shapes{path("crop-marks", cropMarks(), stroke(PxDrawnItem::Marks))};
    const Steps folds = foldMarks();
    if (!folds.isEmpty()) {
        PxDrawnLine line = stroke(PxDrawnItem::Marks);
        line.dashes = {0.8 * m_a, 0.6 * m_a};
        shapes.append(path("fold-marks", folds, line));
    }
    return shapes;
}

void Builder::addVerticalMarks(Steps *steps, double x) const
{
    const QRectF total(m_sheet.total);
    const double from = cropMarkGap * m_a;
    const double to = PxSheetGeometry::reach * m_a;
    PxDrawnPath::addLine(steps, {x, total.top() - to}, {x, total.top() - from});
    PxDrawnPath::addLine(steps, {x, total.bottom() + from}, {x, total.bottom() + to});
}

Steps Builder::cropMarks() const
{
    const QRectF total(m_sheet.total);
    const double from = cropMarkGap * m_a;
    const double to = PxSheetGeometry::reach * m_a;
    Steps steps;
    addVerticalMarks(&steps, m_sheet.trim.x());
    addVerticalMarks(&steps, m_sheet.trim.x() + m_sheet.trim.width());
    const QRectF first(m_sheet.pages.constFirst().trim);
    const QRectF last(m_sheet.pages.constLast().trim);
    for (const double y : {first.top(), first.bottom()})
        PxDrawnPath::addLine(&steps, {total.left() - to, y}, {total.left() - from, y});
    for (const double y : {last.top(), last.bottom()})
        PxDrawnPath::addLine(&steps, {total.right() + from, y}, {total.right() + to, y});
    return steps;
}

Steps Builder::foldMarks() const
{
    Steps steps;
    for (int i = 1; i < m_sheet.pages.size(); ++i) {
        // A spine without width has one edge only.
        if (m_sheet.pages[i].trim.x() != m_sheet.pages[i - 1].trim.x() || i == 1)
            addVerticalMarks(&steps, m_sheet.pages[i].trim.x());
    }
    return steps;
}

} // namespace

Edge PxSheetGeometry::innerEdge(const PxDrawnPage &page)
{
    switch (page.context.alignment()) {
    case PxPageAlignmentLeft:
        return Edge::Right;
    case PxPageAlignmentTop:
        return Edge::Bottom;
    case PxPageAlignmentBottom:
        return Edge::Top;
    default:
        return Edge::Left;
    }
}

void PxSheetGeometry::addTo(const PxDrawnSheet &sheet, double annotation, PxDrawingSheet &drawing)
{
    Builder(sheet, annotation, drawing).addAll();
}
