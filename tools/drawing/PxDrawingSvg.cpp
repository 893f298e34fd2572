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
#include <type_traits>

namespace {

constexpr const char *nameOfSvg = "http://www.w3.org/2000/svg";
constexpr const char *nameOfLayers = "http://www.inkscape.org/namespaces/inkscape";

qint64 hundredths(double value)
{
    constexpr double largest = 1e15; // larger than all coordinates
    return std::llround(qBound(-largest, value * 100, largest));
}

/** With a point, at most two decimals and no exponent. */
void append(QString *text, double value)
{
    const qint64 rounded = hundredths(value);
    const qint64 absolute = std::abs(rounded);
    std::array<char, 24> digits;
    char *end = std::to_chars(digits.data(), digits.data() + 20, absolute / 100).ptr;
    if (const int decimals = int(absolute % 100)) {
        *end++ = '.';
        *end++ = char('0' + decimals / 10);
        if (decimals % 10 != 0)
            *end++ = char('0' + decimals % 10);
    }
    if (rounded < 0)
        *text += '-';
    *text += QLatin1String(digits.data(), int(end - digits.data()));
}

QString number(double value)
{
    QString text;
    append(&text, value);
    return text;
}

/** Space-separated. */
template <typename VALUES>
QString numbers(const VALUES &values)
{
    QString text;
    for (const double value : values) {
        if (!text.isEmpty())
            text += ' ';
        append(&text, value);
    }
    return text;
}

QString box(const QRect &rect)
{
    return numbers(std::array{rect.x(), rect.y(), rect.width(), rect.height()});
}

QString translation(double x, double y)
{
    return "translate(" + numbers(std::array{x, y}) + ')';
}

void append(QString *data, char command, const QPointF &point)
{
    *data += command;
    append(data, point.x());
    *data += ' ';
    append(data, point.y());
}

/** As H or V if it can be. */
void appendLine(QString *data, const QPointF &from, const QPointF &to)
{
    if (hundredths(from.y()) == hundredths(to.y())) {
        *data += 'H';
        append(data, to.x());
    } else if (hundredths(from.x()) == hundredths(to.x())) {
        *data += 'V';
        append(data, to.y());
    } else {
        append(data, 'L', to);
    }
}

/** The commands of a path: M, L or H or V, A, and Z. */
QString pathData(const QVector<PxDrawnStep> &steps)
{
    QString data;
    QPointF at;
    for (const PxDrawnStep &step : steps) {
        switch (step.kind) {
        case PxDrawnStep::Move:
            append(&data, 'M', step.to);
            break;
        case PxDrawnStep::Line:
            appendLine(&data, at, step.to);
            break;
        case PxDrawnStep::Arc:
            append(&data, 'A', {step.radius, step.radius});
            data += step.isClockwise ? " 0 0 1" : " 0 0 0";
            append(&data, ' ', step.to);
            break;
        case PxDrawnStep::Close:
            data += 'Z';
            continue;
        }
        at = step.to;
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
    void attribute(const char *name, const QString &value)
    {
        m_xml.writeAttribute(QLatin1String(name), holdable(value));
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
    void writeShape(const PxDrawnShape &shape);
    void writeGeometry(const PxDrawnShape &shape);
    void writePaint(const PxDrawnShape &shape);
    void writeLetters(const PxDrawnShape &shape);
    void writeTitles(const QString &title, const QString &description, bool haveIds);
    void attribute(const char *name, const QString &value) { m_xml.attribute(name, value); }

    static constexpr bool isFile = std::is_same_v<Xml, XmlFile>;

    Xml &m_xml;
    const QString m_prefix;
};

template <typename Xml>
void Writer<Xml>::write(const PxDrawing &drawing)
{
    m_xml.open("svg");
    attribute("xmlns", nameOfSvg);
    if (isFile)
        attribute("xmlns:inkscape", nameOfLayers);
    const QSize size = drawing.size();
    const PxDrawnProduct &product = drawing.product;
    attribute("width", number(size.width() / 10.0) + "mm");
    attribute("height", number(size.height() / 10.0) + "mm");
    attribute("viewBox", box(QRect(QPoint(), size)));
    attribute("xml:lang", QCoreApplication::translate("PxDrawing", "de", "code of the language"));
    attribute("role", "img");
    attribute("aria-labelledby", m_prefix + "title " + m_prefix + "desc");
    attribute("font-family", pxDrawnFontFamilies().join(", "));
    attribute("data-format", "1");
    attribute("data-product", product.type.productName());
    attribute("data-class", product.className);
    attribute("data-page-count", QString::number(product.pageCount));
    if (!product.themeId.isEmpty())
        attribute("data-theme", product.themeId);
    attribute("data-units-per-mm", "10");
    attribute("data-annotation", QString::number(drawing.annotation));
    writeTitles(drawing.title, drawing.description, true);
    for (int i = 0; i < drawing.sheets.size(); ++i)
        writeSheet(drawing.sheets[i], drawing.positionOf(i));
    m_xml.close();
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
    static constexpr const char *ourKinds[] = {"cover", "spread", "page"};
    QVector<int> pages;
    for (const PxDrawnPage &page : sheet.sheet.pages)
        pages.append(page.number);
    const QString id = m_prefix + "sheet-" + QString::number(pages.value(0));
    m_xml.open("g");
    attribute("id", id);
    attribute("class", "sheet");
    attribute("data-kind", ourKinds[int(sheet.sheet.kind)]);
    attribute("data-pages", numbers(pages));
    attribute("data-stands-for", numbers(sheet.sheet.standsFor));
    attribute("data-trim", box(sheet.sheet.trim));
    attribute("data-total", box(totalOf(sheet.sheet)));
    attribute("data-canvas", box(sheet.canvas));
    const QPoint origin = position - sheet.canvas.topLeft();
    attribute("transform", translation(origin.x(), origin.y()));
    writeTitles(sheet.title, sheet.description, false);
    for (int layer = 0; layer < pxDrawnLayerCount; ++layer) {
        const QVector<PxDrawnShape> &shapes = sheet.layers[std::size_t(layer)];
        if (shapes.isEmpty())
            continue;
        const QString name = pxDrawnLayerName(layer);
        m_xml.open("g");
        attribute("id", id + '-' + name);
        attribute("class", "layer " + name);
        if (isFile) {
            attribute("inkscape:groupmode", "layer");
            attribute("inkscape:label", pxDrawnLayerLabel(layer));
        }
        for (const PxDrawnShape &shape : shapes)
            writeShape(shape);
        m_xml.close();
    }
    m_xml.close();
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

template <typename Xml>
void Writer<Xml>::writeShape(const PxDrawnShape &shape)
{
    static constexpr const char *ourTags[] = {"g",      "rect",    "line", "path",
                                              "circle", "ellipse", "text"};
    m_xml.open(ourTags[shape.kind]);
    if (!shape.className.isEmpty())
        attribute("class", QString::fromUtf8(shape.className));
    writeGeometry(shape);
    for (const auto &[name, value] : shape.attributes)
        attribute(name.constData(), value);
    if (shape.kind == PxDrawnShape::Group) {
        if (!shape.translation.isNull() || shape.className == "panel")
            attribute("transform", translation(shape.translation.x(), shape.translation.y()));
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
        attribute("x", number(rect.x()));
        attribute("y", number(rect.y()));
        attribute("width", number(rect.width()));
        attribute("height", number(rect.height()));
        break;
    case PxDrawnShape::Line:
        attribute("x1", number(shape.line.x1()));
        attribute("y1", number(shape.line.y1()));
        attribute("x2", number(shape.line.x2()));
        attribute("y2", number(shape.line.y2()));
        break;
    case PxDrawnShape::Path:
        attribute("d", pathData(shape.steps));
        break;
    case PxDrawnShape::Circle:
        attribute("cx", number(center.x()));
        attribute("cy", number(center.y()));
        attribute("r", number(rect.width() / 2));
        break;
    case PxDrawnShape::Ellipse:
        attribute("cx", number(center.x()));
        attribute("cy", number(center.y()));
        attribute("rx", number(rect.width() / 2));
        attribute("ry", number(rect.height() / 2));
        break;
    case PxDrawnShape::Text:
        if (shape.readsUpward) {
            attribute("transform",
                      translation(shape.position.x(), shape.position.y()) + " rotate(-90)");
        } else {
            attribute("x", number(shape.position.x()));
            attribute("y", number(shape.position.y()));
        }
        break;
    }
}

template <typename Xml>
void Writer<Xml>::writePaint(const PxDrawnShape &shape)
{
    attribute("fill", shape.fill.isValid() ? shape.fill.name() : QString("none"));
    const PxDrawnLine &line = shape.stroke;
    if (line.width <= 0)
        return;
    attribute("stroke", line.color.name());
    attribute("stroke-width", number(line.width));
    if (!line.dashes.isEmpty())
        attribute("stroke-dasharray", numbers(line.dashes));
    if (line.opacity < 1)
        attribute("stroke-opacity", number(line.opacity));
}

template <typename Xml>
void Writer<Xml>::writeLetters(const PxDrawnShape &shape)
{
    attribute("font-size", number(shape.fontSize));
    if (shape.isBold)
        attribute("font-weight", "bold");
    if (shape.anchor != PxDrawnShape::Anchor::Start)
        attribute("text-anchor", shape.anchor == PxDrawnShape::Anchor::End ? "end" : "middle");
    if (shape.fill.isValid())
        attribute("fill", shape.fill.name());
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
