#include "drawing/PxSheetTitle.h"

#include "drawing/PxDrawnWords.h"
#include "drawing/PxShapeMaker.h"
#include "drawing/PxTextWidth.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(PxSheetTitle)
};

// In annotation millimetres.
constexpr double headingSize = 4.2;
constexpr double nameSize = 3.2;
constexpr double typeSize = 2.8;
constexpr double captionSize = 2.4;
constexpr double padding = 1.8;
constexpr double cellWidth = 44;
constexpr double scaleWidth = 52;
constexpr double barHeight = 1.4;
constexpr double longestBar = 34;
constexpr double leading = 1.3; // of the font size

struct Field
{
    QByteArray key;
    QString caption; ///< empty for none
    QString value;
    double size = typeSize;
    bool isBold = false;
};

/** Writes the block from top to bottom. */
class Writer
{
public:
    Writer(PxSheetRoom &room, double left, double width, double top)
        : m_room(room)
        , m_a(room.a())
        , m_left(left)
        , m_width(width)
        , m_top(top)
    {}

    void addHead(const Field &heading, const Field &name, const Field &scale);
    double bottom() const { return m_top; }
    void addCells(const QVector<Field> &fields);

private:
    /** The lower edge of the field, which begins at `top`. */
    double addField(const Field &field, double left, double width, double top);
    void addScaleBar(double left, double top);
    void addText(const QByteArray &key, const QString &text, const QPointF &position, double size,
                 bool isBold, const char *color);
    void addLine(const QPointF &from, const QPointF &to);
    void addShape(const PxDrawnShape &shape) { m_room.add(PxDrawnLayer::Title, shape); }

    PxSheetRoom &m_room;
    double m_a;
    double m_left;
    double m_width;
    double m_top; ///< of what comes next
};

void Writer::addText(const QByteArray &key, const QString &text, const QPointF &position,
                     double size, bool isBold, const char *color)
{
    PxDrawnShape shape =
        PxShapeMaker::text(position, text, size, PxDrawnShape::Anchor::Start, isBold);
    shape.fill = QColor(color);
    if (!key.isEmpty())
        shape.attributes = {{"data-field", QString::fromLatin1(key)}};
    addShape(shape);
}

double Writer::addField(const Field &field, double left, double width, double top)
{
    const double inset = padding * m_a;
    double y = top + 0.6 * m_a;
    if (!field.caption.isEmpty()) {
        const double size = PxShapeMaker::fontSize(captionSize, m_a);
        y += leading * size;
        addText({}, field.caption, {left + inset, y - 0.3 * size}, size, false,
                PxShapeMaker::paleInk);
    }
    const double size = PxShapeMaker::fontSize(field.size, m_a);
    for (const QString &line : PxTextWidth::wrapped(PxDrawnWords::visible(field.value),
                                                    width - 2 * inset, size, field.isBold)) {
        y += leading * size;
        addText(field.key, line, {left + inset, y - 0.3 * size}, size, field.isBold,
                PxShapeMaker::ink);
    }
    return y + 0.6 * m_a;
}

/** 1, 2 or 5 with noughts, in user units: the longest one that fits. */
double barLength(double longest)
{
    double length = 20; // of 2, 20, 200 …
    while (length * 10 <= longest)
        length *= 10;
    for (const double factor : {5.0, 2.5}) {
        if (length * factor <= longest)
            return length * factor;
    }
    return length;
}

void Writer::addScaleBar(double left, double top)
{
    const double size = PxShapeMaker::fontSize(captionSize, m_a);
    const double length = barLength(longestBar * m_a);
    const double part = length / 4;
    const PxDrawnLine thin{0.15 * m_a, QColor(PxShapeMaker::ink), {}, 1};
    for (int i = 0; i < 4; ++i) {
        PxDrawnShape bar =
            PxShapeMaker::rect("scale-bar", {left + i * part, top, part, barHeight * m_a}, thin,
                               i % 2 == 0 ? QColor(PxShapeMaker::ink) : QColor(Qt::white));
        bar.attributes = {{"data-length", QString::number(qint64(length))}};
        addShape(bar);
    }
    const QString text = PxDrawnWords::length(qint64(length));
    addText({}, text, {left + length + 1.2 * m_a, top + barHeight * m_a}, size, false,
            PxShapeMaker::paleInk);
}

void Writer::addLine(const QPointF &from, const QPointF &to)
{
    const PxDrawnLine thin{0.2 * m_a, QColor(PxShapeMaker::ink), {}, 1};
    addShape(PxShapeMaker::line({}, from, to, thin));
}

/** What it is at the left, the scale at the right. */
void Writer::addHead(const Field &heading, const Field &name, const Field &scale)
{
    const double scaleLeft = m_left + m_width - scaleWidth * m_a;
    addLine({m_left, m_top}, {m_left + m_width, m_top});
    double left = addField(heading, m_left, m_width - scaleWidth * m_a, m_top);
    left = addField(name, m_left, m_width - scaleWidth * m_a, left - m_a);
    double right = addField(scale, scaleLeft, scaleWidth * m_a, m_top);
    addScaleBar(scaleLeft + padding * m_a, right + 0.6 * m_a);
    right += (barHeight + 2) * m_a;
    const double bottom = std::max(left, right);
    addLine({scaleLeft, m_top}, {scaleLeft, bottom});
    m_top = bottom;
}

/** Cells in rows, all about equally wide. */
void Writer::addCells(const QVector<Field> &fields)
{
    const int most = std::max(1, int(m_width / (cellWidth * m_a)));
    const int rows = (fields.size() + most - 1) / most;
    const int columns = (fields.size() + rows - 1) / rows;
    const double width = m_width / columns;
    for (int first = 0; first < fields.size(); first += columns) {
        addLine({m_left, m_top}, {m_left + m_width, m_top});
        double bottom = m_top;
        const int count = std::min(columns, fields.size() - first);
        for (int i = 0; i < count; ++i) {
            const bool isLast = i + 1 == count;
            const double left = m_left + i * width;
            const double room = isLast ? m_left + m_width - left : width;
            bottom = std::max(bottom, addField(fields[first + i], left, room, m_top));
        }
        for (int i = 1; i < count; ++i)
            addLine({m_left + i * width, m_top}, {m_left + i * width, bottom});
        m_top = bottom;
    }
}

QString made(const PxDrawnProduct &product)
{
    QStringList parts;
    for (const QString &part : {product.binding, product.paper}) {
        if (!part.isEmpty())
            parts.append(part);
    }
    return parts.join(QStringLiteral(", "));
}

QVector<Field> cells(const PxDrawnProduct &product, const PxDrawnSheet &sheet)
{
    const QString sheetText =
        Words::tr("Blatt %1 von %2")
            .arg(QString::number(sheet.index + 1), QString::number(product.sheets.size()));
    const QString pages =
        Words::tr("%1 von %2")
            .arg(PxDrawnWords::pageNumbers(sheet.standsFor), QString::number(product.listedPages));
    const QVector<Field> all = {
        {"product", Words::tr("Produkt"), product.type.productName()},
        {"sheet", Words::tr("Zeichnung"), sheetText},
        {"pages", Words::tr("Seiten, ab 0 gezählt"), pages},
        {"page-count", Words::tr("Umfang"),
         product.pageCount > 0 ? PxDrawnWords::pageCount(product.pageCount) : QString()},
        {"made", Words::tr("Bindung und Papier"), made(product)},
        {"theme", Words::tr("Thema"),
         product.themeId.isEmpty() || !product.theme.isEmpty() ? product.theme : product.themeId},
        {"file", Words::tr("Datei"), product.file},
    };
    QVector<Field> cells;
    std::copy_if(all.begin(), all.end(), std::back_inserter(cells),
                 [](const Field &field) { return !field.value.isEmpty(); });
    return cells;
}

} // namespace

double PxSheetTitle::addTo(PxSheetRoom &room, const PxDrawnProduct &product, double left,
                           double width, double top)
{
    Writer writer(room, left, width, top);
    writer.addHead({"heading", {}, PxDrawnWords::heading(room.sheet()), headingSize, true},
                   {"short-name", {}, product.type.shortProductName(), nameSize},
                   {"scale", Words::tr("Maßstab, Längen in mm"), "1:1"});
    writer.addCells(cells(product, room.sheet()));
    return writer.bottom();
}
