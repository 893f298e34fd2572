#include "drawing/PxDrawingSvg.h"

#include "drawing/PxDrawing.h"
#include "drawing/PxDrawnFont.h"
#include "writing/PxHtml.h"
#include "writing/PxVisibleText.h"

#include <QCoreApplication>
#include <QXmlStreamWriter>

#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>
#include <type_traits>

namespace {

constexpr const char *nameOfSvg = "http://www.w3.org/2000/svg";
constexpr const char *nameOfLayers = "http://www.inkscape.org/namespaces/inkscape";

qint64 hundredths(double value)
{
    constexpr double largest = 1e15; // larger than all coordinates
    return std::llround(qBound(-largest, value * 100, largest));
}

/** Hundredths with a point, at most two decimals and no exponent. */
void append(std::string *text, qint64 value)
{
    const qint64 absolute = std::abs(value);
    std::array<char, 24> digits;
    char *end = std::to_chars(digits.data(), digits.data() + 20, absolute / 100).ptr;
    if (const int decimals = int(absolute % 100)) {
        *end++ = '.';
        *end++ = char('0' + decimals / 10);
        if (decimals % 10 != 0)
            *end++ = char('0' + decimals % 10);
    }
    if (value < 0)
        *text += '-';
    text->append(digits.data(), std::size_t(end - digits.data()));
}

std::string number(double value)
{
    std::string text;
    append(&text, hundredths(value));
    return text;
}

/** Space-separated. */
template <typename VALUES>
std::string numbers(const VALUES &values)
{
    std::string text;
    for (const double value : values) {
        if (!text.empty())
            text += ' ';
        append(&text, hundredths(value));
    }
    return text;
}

/** "#rrggbb". */
std::string colour(const QColor &color)
{
    const QRgb rgb = color.rgb();
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4)
        text += "0123456789abcdef"[(rgb >> shift) & 0xF];
    return text;
}

std::string box(const QRect &rect)
{
    return numbers(std::array{rect.x(), rect.y(), rect.width(), rect.height()});
}

std::string translation(double x, double y)
{
    return "translate(" + numbers(std::array{x, y}) + ')';
}

/** A point in hundredths. */
struct Point
{
    explicit Point(const QPointF &point) : x(hundredths(point.x())), y(hundredths(point.y())) {}

    qint64 x;
    qint64 y;
};

void append(std::string *data, char command, const Point &point)
{
    *data += command;
    append(data, point.x);
    *data += ' ';
    append(data, point.y);
}

/** As H or V if it can be. */
void appendLine(std::string *data, const Point &from, const Point &to)
{
    if (from.y == to.y) {
        *data += 'H';
        append(data, to.x);
    } else if (from.x == to.x) {
        *data += 'V';
        append(data, to.y);
    } else {
        append(data, 'L', to);
    }
}

/** The commands of a path: M, L or H or V, A, and Z. */
std::string pathData(const QVector<PxDrawnStep> &steps)
{
    std::string data;
    Point at({0, 0});
    for (const PxDrawnStep &step : steps) {
        const Point to(step.to);
        switch (step.kind) {
        case PxDrawnStep::Move:
            append(&data, 'M', to);
            break;
        case PxDrawnStep::Line:
            appendLine(&data, at, to);
            break;
        case PxDrawnStep::Arc:
            append(&data, 'A', Point({step.radius, step.radius}));
            data += step.isClockwise ? " 0 0 1" : " 0 0 0";
            append(&data, ' ', to);
            break;
        case PxDrawnStep::Close:
            data += 'Z';
            continue;
        }
        at = to;
    }
    return data;
}

/** The text with U+FFFD for what no XML file can hold, escaped or not. */
QString holdable(const QString &text)
{
    QString held = text;
    for (int i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            ++i;
            continue;
        }
        const bool isControl = unit < ' ' && unit != '\t' && unit != '\n' && unit != '\r';
        if (isControl || unit.isSurrogate() || unit.unicode() >= 0xFFFE)
            held[i] = QChar::ReplacementCharacter;
    }
    return held;
}

QLatin1String latin1(std::string_view text)
{
    return QLatin1String(text.data(), int(text.size()));
}

/** Writes elements of a file of its own, in the words of PxHtml. */
class XmlFile
{
public:
    XmlFile() : m_xml(&m_text)
    {
        m_xml.setAutoFormatting(true);
        m_xml.setAutoFormattingIndent(1);
    }

    void open(const char *name) { m_xml.writeStartElement(QLatin1String(name)); }
    void attribute(std::string_view name, const QString &value)
    {
        m_xml.writeAttribute(latin1(name), holdable(value));
    }
    void plainAttribute(std::string_view name, std::string_view value)
    {
        m_xml.writeAttribute(latin1(name), latin1(value));
    }
    void text(const QString &text) { m_xml.writeCharacters(holdable(text)); }
    void close() { m_xml.writeEndElement(); }
    QString finished()
    {
        m_xml.writeEndDocument();
        return m_text;
    }

private:
    // The writer itself names no encoding for a text, and takes twice as long for a device.
    QString m_text = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    QXmlStreamWriter m_xml;
};

/** Writes a drawing with XmlFile or PxHtml, which write what is in it as such files may hold it. */
template <typename Xml>
class Writer
{
public:
    /** All ids begin with the prefix. */
    Writer(Xml *xml, const QString &prefix) : m_xml(*xml), m_prefix(prefix) {}

    void write(const PxDrawing &drawing);

private:
    void writeSheet(const PxDrawingSheet &sheet, const QPoint &position);
    void writeData(const PxDrawing &drawing);
    void writeData(const PxDrawingSheet &sheet);
    void writeShape(const PxDrawnShape &shape);
    void writeGeometry(const PxDrawnShape &shape);
    void writePaint(const PxDrawnShape &shape);
    void writeLetters(const PxDrawnShape &shape);
    void writeTitles(const QString &title, const QString &description, bool haveIds);
    void attribute(std::string_view name, const QString &value) { m_xml.attribute(name, value); }
    /** With numbers or words of the program. */
    void plain(std::string_view name, std::string_view value) { m_xml.plainAttribute(name, value); }

    static constexpr bool isFile = std::is_same_v<Xml, XmlFile>;

    Xml &m_xml;
    const QString m_prefix;
};

template <typename Xml>
void Writer<Xml>::write(const PxDrawing &drawing)
{
    m_xml.open("svg");
    plain("xmlns", nameOfSvg);
    if (isFile)
        plain("xmlns:inkscape", nameOfLayers);
    const QSize size = drawing.size();
    plain("width", number(size.width() / 10.0) + "mm");
    plain("height", number(size.height() / 10.0) + "mm");
    plain("viewBox", box(QRect(QPoint(), size)));
    attribute("xml:lang", QCoreApplication::translate("PxDrawing", "de", "code of the language"));
    plain("role", "img");
    attribute("aria-labelledby", m_prefix + "title " + m_prefix + "desc");
    attribute("font-family", pxDrawnFontFamilies().join(", "));
    if (isFile)
        writeData(drawing);
    writeTitles(drawing.title, drawing.description, true);
    for (int i = 0; i < drawing.sheets.size(); ++i)
        writeSheet(drawing.sheets[i], drawing.positionOf(i));
    m_xml.close();
}

template <typename Xml>
void Writer<Xml>::writeData(const PxDrawing &drawing)
{
    const PxDrawnProduct &product = drawing.product;
    plain("data-format", "1");
    attribute("data-product", product.type.productName());
    attribute("data-class", product.className);
    plain("data-page-count", number(product.pageCount));
    if (!product.themeId.isEmpty())
        attribute("data-theme", product.themeId);
    plain("data-units-per-mm", "10");
    plain("data-annotation", number(drawing.annotation));
}

/** The union of the pages with their bleed. With a negative bleed it lies within the trim. */
QRect totalOf(const PxDrawnSheet &sheet)
{
    QRect total;
    for (const PxDrawnPage &page : sheet.pages)
        total |= page.total();
    return total;
}

template <typename Xml>
void Writer<Xml>::writeSheet(const PxDrawingSheet &sheet, const QPoint &position)
{
    const QVector<PxDrawnPage> &pages = sheet.sheet.pages;
    const int first = pages.isEmpty() ? 0 : pages.constFirst().number;
    const QString id = m_prefix + "sheet-" + QString::number(first);
    m_xml.open("g");
    attribute("id", id);
    plain("class", "sheet");
    writeData(sheet);
    const QPoint origin = position - sheet.canvas.topLeft();
    plain("transform", translation(origin.x(), origin.y()));
    writeTitles(sheet.title, sheet.description, false);
    for (int layer = 0; layer < pxDrawnLayerCount; ++layer) {
        const QVector<PxDrawnShape> &shapes = sheet.layers[std::size_t(layer)];
        if (shapes.isEmpty())
            continue;
        const std::string name = pxDrawnLayerName(layer);
        m_xml.open("g");
        attribute("id", id + '-' + latin1(name));
        plain("class", "layer " + name);
        if (isFile) {
            plain("inkscape:groupmode", "layer");
            attribute("inkscape:label", pxDrawnLayerLabel(layer));
        }
        for (const PxDrawnShape &shape : shapes)
            writeShape(shape);
        m_xml.close();
    }
    m_xml.close();
}

template <typename Xml>
void Writer<Xml>::writeData(const PxDrawingSheet &sheet)
{
    static constexpr const char *ourKinds[] = {"cover", "spread", "page"};
    QVector<int> pages;
    for (const PxDrawnPage &page : sheet.sheet.pages)
        pages.append(page.number);
    plain("data-kind", ourKinds[int(sheet.sheet.kind)]);
    plain("data-pages", numbers(pages));
    plain("data-stands-for", numbers(sheet.sheet.standsFor));
    plain("data-trim", box(sheet.sheet.trim));
    plain("data-total", box(totalOf(sheet.sheet)));
    plain("data-canvas", box(sheet.canvas));
}

template <typename Xml>
void Writer<Xml>::writeTitles(const QString &title, const QString &description, bool haveIds)
{
    for (const auto &[tag, text] : {std::pair("title", title), std::pair("desc", description)}) {
        m_xml.open(tag);
        if (haveIds)
            attribute("id", m_prefix + tag);
        m_xml.text(text);
        m_xml.close();
    }
}

bool isForProgramsOnly(const PxDrawnShape &shape)
{
    return shape.kind != PxDrawnShape::Group && shape.kind != PxDrawnShape::Text &&
           !shape.fill.isValid() && shape.stroke.width <= 0;
}

template <typename Xml>
void Writer<Xml>::writeShape(const PxDrawnShape &shape)
{
    static constexpr const char *ourTags[] = {"g",      "rect",    "line", "path",
                                              "circle", "ellipse", "text"};
    if (!isFile && isForProgramsOnly(shape))
        return;
    m_xml.open(ourTags[shape.kind]);
    if (!shape.className.empty())
        plain("class", shape.className);
    writeGeometry(shape);
    if (isFile) {
        for (const auto &[name, value] : shape.attributes)
            attribute(name, value);
    }
    if (shape.kind == PxDrawnShape::Group) {
        if (!shape.translation.isNull() || shape.className == "panel")
            plain("transform", translation(shape.translation.x(), shape.translation.y()));
        for (const PxDrawnShape &child : shape.children)
            writeShape(child);
    } else if (shape.kind == PxDrawnShape::Text) {
        writeLetters(shape);
    } else {
        writePaint(shape);
    }
    m_xml.close();
}

template <typename Xml>
void Writer<Xml>::writeGeometry(const PxDrawnShape &shape)
{
    const QRectF &rect = shape.rect;
    const QPointF center = rect.center();
    switch (shape.kind) {
    case PxDrawnShape::Group:
        break;
    case PxDrawnShape::Rect:
        plain("x", number(rect.x()));
        plain("y", number(rect.y()));
        plain("width", number(rect.width()));
        plain("height", number(rect.height()));
        break;
    case PxDrawnShape::Line:
        plain("x1", number(shape.line.x1()));
        plain("y1", number(shape.line.y1()));
        plain("x2", number(shape.line.x2()));
        plain("y2", number(shape.line.y2()));
        break;
    case PxDrawnShape::Path:
        plain("d", pathData(shape.steps));
        break;
    case PxDrawnShape::Circle:
        plain("cx", number(center.x()));
        plain("cy", number(center.y()));
        plain("r", number(rect.width() / 2));
        break;
    case PxDrawnShape::Ellipse:
        plain("cx", number(center.x()));
        plain("cy", number(center.y()));
        plain("rx", number(rect.width() / 2));
        plain("ry", number(rect.height() / 2));
        break;
    case PxDrawnShape::Text:
        if (shape.readsUpward) {
            plain("transform",
                  translation(shape.position.x(), shape.position.y()) + " rotate(-90)");
        } else {
            plain("x", number(shape.position.x()));
            plain("y", number(shape.position.y()));
        }
        break;
    }
}

template <typename Xml>
void Writer<Xml>::writePaint(const PxDrawnShape &shape)
{
    plain("fill", shape.fill.isValid() ? colour(shape.fill) : "none");
    const PxDrawnLine &line = shape.stroke;
    if (line.width <= 0)
        return;
    plain("stroke", colour(line.color));
    plain("stroke-width", number(line.width));
    if (!line.dashes.isEmpty())
        plain("stroke-dasharray", numbers(line.dashes));
    if (line.opacity < 1)
        plain("stroke-opacity", number(line.opacity));
}

template <typename Xml>
void Writer<Xml>::writeLetters(const PxDrawnShape &shape)
{
    plain("font-size", number(shape.fontSize));
    if (shape.isBold)
        plain("font-weight", "bold");
    if (shape.anchor != PxDrawnShape::Anchor::Start)
        plain("text-anchor", shape.anchor == PxDrawnShape::Anchor::End ? "end" : "middle");
    if (shape.fill.isValid())
        plain("fill", colour(shape.fill));
    m_xml.text(shape.text);
}

} // namespace

void PxDrawingSvg::write(const PxDrawing &drawing, QIODevice *device)
{
    XmlFile xml;
    Writer(&xml, {}).write(drawing);
    // No program needs to see them as they are, and terminals must not.
    device->write(PxVisibleText::xml(xml.finished()).toUtf8());
}

void PxDrawingSvg::write(const PxDrawing &drawing, const QString &prefix, PxHtml *page)
{
    Writer(page, prefix).write(drawing);
}
