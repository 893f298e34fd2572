#include "drawing/PxLegendRows.h"

#include "drawing/PxDrawnWords.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(PxLegendRows)
};

constexpr struct
{
    const char *className;
    PxDrawnItem item;
} classes[] = {
    {"bleed-edge", PxDrawnItem::Bleed},
    {"bleed-area", PxDrawnItem::BleedArea},
    {"cut", PxDrawnItem::Trim},
    {"safe", PxDrawnItem::Safe},
    {"round-cut", PxDrawnItem::Round},
    {"spine-edge", PxDrawnItem::Spine},
    {"spine-area", PxDrawnItem::Spine},
    {"spine-text", PxDrawnItem::SpineText},
    {"fold", PxDrawnItem::Fold},
    {"fold-margin", PxDrawnItem::FoldMargin},
    {"fold-area", PxDrawnItem::FoldMargin},
    {"clamp", PxDrawnItem::Clamp},
    {"clamp-area", PxDrawnItem::Clamp},
    {"surrounding", PxDrawnItem::Surrounding},
    {"barcode", PxDrawnItem::Barcode},
    {"page-number", PxDrawnItem::PageNumber},
    {"spiral", PxDrawnItem::Spiral},
    {"hook", PxDrawnItem::Hook},
    {"hole", PxDrawnItem::Hole},
    {"crop-marks", PxDrawnItem::Marks},
};

QString attribute(const PxDrawnShape &shape, const char *name)
{
    for (const auto &attribute : shape.attributes) {
        if (attribute.first == name)
            return attribute.second;
    }
    return {};
}

PxDrawnItem itemOf(const PxDrawnShape &shape, PxDrawnItem item)
{
    return item == PxDrawnItem::Surrounding && attribute(shape, "data-paint") == "below"
               ? PxDrawnItem::SurroundingBelow
               : item;
}

/** The edges in words; the last two are "left" and "right", or "outer" and "inner". */
using Edges = std::array<int, 4>;

QString words(const Edges &edges, bool areMirrored)
{
    if (std::all_of(edges.begin(), edges.end(), [&](int edge) { return edge == edges[0]; }))
        return PxDrawnWords::length(edges[0]);
    const QString text = areMirrored ? Words::tr("oben %1, unten %2, außen %3, innen %4 mm")
                                     : Words::tr("oben %1, unten %2, links %3, rechts %4 mm");
    return text.arg(PxDrawnWords::number(edges[0]), PxDrawnWords::number(edges[1]),
                    PxDrawnWords::number(edges[2]), PxDrawnWords::number(edges[3]));
}

Edges edgesOf(const PxMargins &margins, bool isInnerAtLeft)
{
    const int left = margins.left();
    const int right = margins.right();
    return {margins.top(), margins.bottom(), isInnerAtLeft ? right : left,
            isInnerAtLeft ? left : right};
}

bool isAtRightOfJoint(const PxDrawnPage &page)
{
    return page.role == PxDrawnPage::Role::Front || page.role == PxDrawnPage::Role::Right;
}

/** The margins of all pages but spines, if they are equal or mirrored; else those of each page. */
QString words(const PxDrawnSheet &sheet, PxMargins PxDrawnPage::*margins)
{
    QStringList all;
    const bool isJoined = sheet.pages.size() > 1;
    for (const PxDrawnPage &page : sheet.pages) {
        if (page.role == PxDrawnPage::Role::Spine)
            continue;
        const QString text = words(edgesOf(page.*margins, isAtRightOfJoint(page)), isJoined);
        if (!all.contains(text))
            all.append(text);
    }
    return all.join(QStringLiteral("; "));
}

QString wordsOfBleed(const PxDrawnSheet &sheet)
{
    const PxDrawnPage &first = sheet.pages.constFirst();
    const Edges edges{first.bleed.top(), first.bleed.bottom(), first.bleed.left(),
                      sheet.pages.constLast().bleed.right()};
    const QString outside = words(edges, false);
    if (sheet.pages.size() < 2)
        return outside;
    return Words::tr("%1, an der Innenkante keine").arg(outside);
}

QString wordsOfTrim(const PxDrawnSheet &sheet)
{
    const QString whole = PxDrawnWords::size(sheet.trim.size());
    if (sheet.pages.size() < 2)
        return whole;
    const PxDrawnPage &page = sheet.pages.constFirst();
    return Words::tr("%1, je Seite %2").arg(whole, PxDrawnWords::size(page.trim.size()));
}

QString widthOfFirst(const PxSheetRoom &room, std::string_view className)
{
    const QVector<PxSheetRoom::Item> items = room.items(className);
    return items.isEmpty() ? QString()
                           : PxDrawnWords::length(
                                 attribute(*items.constFirst().shape, "data-width").toLongLong());
}

/** What is told of an item beside its name; empty for nothing. */
QString details(const PxSheetRoom &room, PxDrawnItem item)
{
    const PxDrawnSheet &sheet = room.sheet();
    switch (item) {
    case PxDrawnItem::Bleed:
        return PxDrawnWords::size(pxTotalSize(sheet));
    case PxDrawnItem::BleedArea:
        return wordsOfBleed(sheet);
    case PxDrawnItem::Trim:
        return wordsOfTrim(sheet);
    case PxDrawnItem::Safe: {
        const QString margins = pxSafetyMargins(sheet);
        return Words::tr("%1 innerhalb des Endformats").arg(margins);
    }
    case PxDrawnItem::FoldMargin:
        return widthOfFirst(room, "fold-margin");
    case PxDrawnItem::Clamp:
        return widthOfFirst(room, "clamp");
    case PxDrawnItem::Spiral:
        return Words::tr("%1 Schlaufen, schematisch").arg(sheet.spiralLoops);
    case PxDrawnItem::Round:
    case PxDrawnItem::PageNumber:
    case PxDrawnItem::Hook:
    case PxDrawnItem::Hole:
        return Words::tr("schematisch");
    case PxDrawnItem::SpineText:
        for (const PxDrawnPage &page : sheet.pages) {
            if (page.role == PxDrawnPage::Role::Spine)
                return Words::tr("höchstens %1 hoch")
                    .arg(PxDrawnWords::length(page.spineTextHeight));
        }
        return {};
    default:
        return {};
    }
}

QString nameOf(const PxSheetRoom &room, PxDrawnItem item)
{
    if (item == PxDrawnItem::Fold && room.sheet().kind == PxDrawnSheet::Kind::Cover)
        return Words::tr("Stoß der Deckel");
    if (item == PxDrawnItem::Marks && room.items("fold-marks").isEmpty())
        return Words::tr("Schneidmarken");
    return PxDrawnWords::item(item);
}

/** Where an item with a letter lies on its page, how large it is, and its image file. */
QString place(const PxDrawnShape &shape)
{
    QRectF rect = shape.rect;
    const QStringList numbers = attribute(shape, "data-rect").split(' ');
    if (numbers.size() == 4)
        rect = {numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(),
                numbers[3].toDouble()};
    const auto number = [](double value) { return PxDrawnWords::number(qRound64(value)); };
    QString text =
        Words::tr("x %1, y %2, %3 × %4 mm")
            .arg(number(rect.x()), number(rect.y()), number(rect.width()), number(rect.height()));
    if (attribute(shape, "data-counted") == "back")
        text += Words::tr(", Seite von hinten gezählt");
    const QString image = PxDrawnWords::visible(attribute(shape, "data-image"));
    return image.isEmpty() ? text : text + ", " + image;
}

PxLegendRow rowOf(const PxSheetRoom &room, PxDrawnItem item, const PxDrawnShape &shape)
{
    const QString key = attribute(shape, "data-key");
    const QString name = nameOf(room, item);
    const QString rest = key.isEmpty() ? details(room, item) : place(shape);
    return {item, key, rest.isEmpty() ? name : name + ": " + rest};
}

} // namespace

QVector<PxLegendRow> pxLegendRows(const PxSheetRoom &room)
{
    QVector<PxLegendRow> rows;
    for (const auto &row : classes) {
        for (const PxSheetRoom::Item &found : room.items(row.className)) {
            const PxDrawnItem item = itemOf(*found.shape, row.item);
            const QString key = attribute(*found.shape, "data-key");
            const bool isThere =
                std::any_of(rows.begin(), rows.end(), [&](const PxLegendRow &other) {
                    return other.item == item && other.key == key;
                });
            if (!isThere)
                rows.append(rowOf(room, item, *found.shape));
        }
    }
    std::stable_sort(
        rows.begin(), rows.end(),
        [](const PxLegendRow &one, const PxLegendRow &other) { return one.item < other.item; });
    return rows;
}

QString pxSafetyMargins(const PxDrawnSheet &sheet)
{
    return words(sheet, &PxDrawnPage::safetyMargins);
}

QSize pxTotalSize(const PxDrawnSheet &sheet)
{
    if (sheet.pages.isEmpty())
        return {};
    int top = sheet.pages.constFirst().total().top();
    int bottom = sheet.pages.constFirst().total().bottom();
    for (const PxDrawnPage &page : sheet.pages) {
        top = std::min(top, page.total().top());
        bottom = std::max(bottom, page.total().bottom());
    }
    return {sheet.pages.constLast().total().right() - sheet.pages.constFirst().total().left() + 1,
            bottom - top + 1};
}
