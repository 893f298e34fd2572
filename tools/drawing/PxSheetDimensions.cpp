#include "drawing/PxSheetDimensions.h"

#include "drawing/PxDrawnPath.h"
#include "drawing/PxDrawnWords.h"
#include "drawing/PxShapeMaker.h"
#include "drawing/PxTextWidth.h"

#include <algorithm>

namespace {

// In annotation millimetres.
constexpr double typeSize = 2.8;
constexpr double arrowLength = 2.2;
constexpr double arrowWidth = 0.7;
constexpr double textGap = 0.9;   // from the line to the text's base line
constexpr double levelStep = 3.6; // from a text to one that is raised above it
constexpr double rowGap = 2;
constexpr double overshoot = 1; // of extension lines beyond the dimension line

/** A length to be told: "to" minus "from", which is negative for a negative bleed. */
struct Segment
{
    double from;
    double to;

    double low() const { return std::min(from, to); }
    double high() const { return std::max(from, to); }
    double length() const { return high() - low(); }
    double middle() const { return (from + to) / 2; }
};

/** Segments on one line. Only those of one chain stand beside each other. */
using Chain = QVector<Segment>;

enum class Side { Above, Right, Below };

/** Draws the chains at one side of a sheet, from the inner one to the outer one. */
class SideWriter
{
public:
    /** `base` is where the room at this side begins; extension lines begin at `edge`. */
    SideWriter(PxSheetRoom &room, Side side, double edge, double base)
        : m_room(room)
        , m_side(side)
        , m_a(room.a())
        , m_edge(edge)
        , m_next(base)
    {}

    void add(const Chain &chain);

private:
    struct Place
    {
        QString text;
        double width;  ///< of the text
        double along;  ///< its middle
        int level;     ///< how often it is raised
        bool isInside; ///< between the arrows
    };

    bool isX() const { return m_side != Side::Right; }
    /** A point by its coordinate on the axis and its distance across. */
    QPointF point(double along, double across) const
    {
        return isX() ? QPointF(along, across) : QPointF(across, along);
    }
    QVector<Place> places(const Chain &chain) const;
    PxDrawnShape dimension(const Chain &chain, int index, const Place &place, double line) const;
    QVector<PxDrawnShape> lines(const Chain &chain, int index, const Place &place,
                                double line) const;
    QVector<PxDrawnShape> number(const Segment &segment, const Place &place, double line) const;
    void addArrow(PxDrawnPath::Steps *arrows, double tip, double direction, double line) const;

    PxSheetRoom &m_room;
    Side m_side;
    double m_a;
    double m_edge;
    double m_next;
};

QString valueOf(const Segment &segment)
{
    return PxDrawnWords::number(qint64(segment.to) - qint64(segment.from));
}

QVector<SideWriter::Place> SideWriter::places(const Chain &chain) const
{
    QVector<Place> places;
    QVector<QPair<int, QPair<double, double>>> taken; // by level: from, to
    const auto isTaken = [&](int level, double from, double to) {
        return std::any_of(taken.begin(), taken.end(), [&](const auto &other) {
            return other.first == level && from < other.second.second && other.second.first < to;
        });
    };
    for (int i = 0; i < chain.size(); ++i) {
        const Segment &segment = chain[i];
        const QString text = valueOf(segment);
        const double textWidth = PxTextWidth::of(text, PxShapeMaker::fontSize(typeSize, m_a));
        const double width = textWidth + m_a;
        Place place{text, textWidth, segment.middle(), 0,
                    segment.length() >= width + 2 * arrowLength * m_a};
        const double beyond = (arrowLength + 1) * m_a + width / 2;
        if (!place.isInside && i + 1 == chain.size())
            place.along = segment.high() + beyond;
        else if (!place.isInside && i == 0)
            place.along = segment.low() - beyond;
        else if (!place.isInside)
            place.level = 1;
        while (isTaken(place.level, place.along - width / 2, place.along + width / 2))
            ++place.level;
        taken.append({place.level, {place.along - width / 2, place.along + width / 2}});
        places.append(place);
    }
    return places;
}

void SideWriter::addArrow(PxDrawnPath::Steps *arrows, double tip, double direction,
                          double line) const
{
    const double tail = tip - direction * arrowLength * m_a;
    const double half = arrowWidth / 2 * m_a;
    PxDrawnPath::addContour(arrows,
                            {point(tip, line), point(tail, line - half), point(tail, line + half)});
}

QVector<PxDrawnShape> SideWriter::lines(const Chain &chain, int index, const Place &place,
                                        double line) const
{
    const Segment &segment = chain[index];
    const double out = m_side == Side::Above ? -overshoot * m_a : overshoot * m_a;
    PxDrawnShape lines = PxShapeMaker::path({}, PxShapeMaker::thinLine(m_a));
    PxDrawnShape arrows = PxShapeMaker::path({}, {}, QColor(PxShapeMaker::paleInk));
    for (const double along : {segment.low(), segment.high()})
        PxDrawnPath::addLine(&lines.steps, point(along, m_edge), point(along, line + out));
    double from = segment.low();
    double to = segment.high();
    const bool hasRoom = segment.length() >= 2 * arrowLength * m_a + m_a / 2;
    if (hasRoom) {
        addArrow(&arrows.steps, from, -1, line);
        addArrow(&arrows.steps, to, 1, line);
    } else {
        // Arrows from outside, where no wider neighbour has one at the same place.
        if (index == 0) {
            addArrow(&arrows.steps, from, 1, line);
            from -= arrowLength * m_a;
        }
        if (index + 1 == chain.size()) {
            addArrow(&arrows.steps, to, -1, line);
            to += arrowLength * m_a;
        }
    }
    if (!place.isInside && place.level == 0) {
        const double half = place.width / 2;
        from = std::min(from, place.along - half);
        to = std::max(to, place.along + half);
    }
    PxDrawnPath::addLine(&lines.steps, point(from, line), point(to, line));
    return arrows.steps.isEmpty() ? QVector<PxDrawnShape>{lines}
                                  : QVector<PxDrawnShape>{lines, arrows};
}

QVector<PxDrawnShape> SideWriter::number(const Segment &segment, const Place &place,
                                         double line) const
{
    const double base = line - (textGap + levelStep * place.level) * m_a;
    PxDrawnShape text =
        PxShapeMaker::text(point(place.along, base), place.text,
                           PxShapeMaker::fontSize(typeSize, m_a), PxDrawnShape::Anchor::Middle);
    text.readsUpward = !isX();
    if (place.level == 0)
        return {text};
    const PxDrawnShape leader =
        PxShapeMaker::line({}, point(segment.middle(), line),
                           point(segment.middle(), base + 0.4 * m_a), PxShapeMaker::thinLine(m_a));
    return {leader, PxShapeMaker::rect({}, PxShapeMaker::boundsOf(text), {}, Qt::white), text};
}

PxDrawnShape SideWriter::dimension(const Chain &chain, int index, const Place &place,
                                   double line) const
{
    const Segment &segment = chain[index];
    const auto whole = [](double value) { return QString::number(qint64(value)); };
    PxDrawnShape group =
        PxShapeMaker::group("dimension", {{"data-axis", isX() ? "x" : "y"},
                                          {"data-from", whole(segment.from)},
                                          {"data-to", whole(segment.to)},
                                          {"data-value", whole(segment.to - segment.from)}});
    group.children = lines(chain, index, place, line) + number(segment, place, line);
    return group;
}

void SideWriter::add(const Chain &chain)
{
    if (chain.isEmpty())
        return;
    const QVector<Place> places = this->places(chain);
    int highest = 0;
    for (const Place &place : places)
        highest = std::max(highest, place.level);
    // Texts stand above a line, or to the left of one that goes down.
    const double texts = (textGap + typeSize + highest * levelStep) * m_a;
    const double gap = rowGap * m_a;
    const double line = m_side == Side::Above ? m_next - gap : m_next + gap + texts;
    m_next = m_side == Side::Above ? line - texts : line;
    for (int i = 0; i < chain.size(); ++i)
        m_room.add(PxDrawnLayer::Dimensions, dimension(chain, i, places[i], line));
}

QRectF totalOf(const PxDrawnPage &page)
{
    return QRectF(page.trim).adjusted(-double(page.bleed.left()), -double(page.bleed.top()),
                                      page.bleed.right(), page.bleed.bottom());
}

void append(Chain *chain, double from, double to)
{
    if (from != to)
        chain->append({from, to});
}

/**
 * The chains of one axis: what is trimmed in its parts, with bleed at both ends; all that is
 * trimmed; all with bleed. Negative bleed lies within what is trimmed, so it stands in a chain with
 * what it leaves.
 */
QVector<Chain> chains(const Chain &parts, double totalFrom, double totalTo)
{
    const double from = parts.constFirst().from;
    const double to = parts.constLast().to;
    const bool isOutside = totalFrom <= from && totalTo >= to;
    Chain first;
    if (isOutside)
        append(&first, totalFrom, from);
    for (const Segment &part : parts)
        append(&first, part.from, part.to);
    if (isOutside)
        append(&first, to, totalTo);
    Chain trim;
    if (parts.size() > 1)
        append(&trim, from, to);
    Chain total;
    if (!isOutside)
        append(&total, totalFrom, from);
    if (totalFrom != from || totalTo != to)
        append(&total, totalFrom, totalTo);
    if (!isOutside)
        append(&total, to, totalTo);
    return {first, trim, total};
}

const PxDrawnPage &highestPage(const PxDrawnSheet &sheet)
{
    return *std::max_element(sheet.pages.begin(), sheet.pages.end(),
                             [](const PxDrawnPage &one, const PxDrawnPage &other) {
                                 return one.trim.height() < other.trim.height();
                             });
}

/** Strips along inner edges; those that leave nothing of their page are told in a note. */
Chain strips(const PxSheetRoom &room, std::string_view className, bool areVertical)
{
    Chain chain;
    for (const PxSheetRoom::Item &item : room.items(className)) {
        for (const PxDrawnPage &page : room.sheet().pages) {
            const QRectF trim(page.trim);
            const bool isVertical = item.rect.width() < trim.width();
            const bool isPart = isVertical || item.rect.height() < trim.height();
            if (!trim.contains(item.rect) || !isPart || isVertical != areVertical)
                continue;
            append(&chain, areVertical ? item.rect.left() : item.rect.top(),
                   areVertical ? item.rect.right() : item.rect.bottom());
        }
    }
    return chain;
}

} // namespace

void PxSheetDimensions::addTo(PxSheetRoom &room)
{
    const PxDrawnSheet &sheet = room.sheet();
    if (sheet.pages.isEmpty())
        return;
    const double a = room.a();
    const QRectF geometry = room.geometry();
    const QRectF total(sheet.total);

    Chain widths;
    for (const PxDrawnPage &page : sheet.pages)
        widths.append({QRectF(page.trim).left(), QRectF(page.trim).right()});
    SideWriter above(room, Side::Above, total.top() - a, geometry.top());
    for (const Chain &chain : chains(widths, totalOf(sheet.pages.constFirst()).left(),
                                     totalOf(sheet.pages.constLast()).right()))
        above.add(chain);

    const PxDrawnPage &highest = highestPage(sheet);
    const Chain heights{{QRectF(highest.trim).top(), QRectF(highest.trim).bottom()}};
    SideWriter right(room, Side::Right, total.right() + a, geometry.right());
    for (const Chain &chain : chains(heights, totalOf(highest).top(), totalOf(highest).bottom()))
        right.add(chain);

    SideWriter below(room, Side::Below, total.bottom() + a, geometry.bottom());
    for (const char *className : {"fold-margin", "clamp"}) {
        below.add(strips(room, className, true));
        right.add(strips(room, className, false));
    }
}
