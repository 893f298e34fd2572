#include "drawing/PxDrawingSvg.h"

#include "drawing/PxDrawing.h"
#include "drawing/PxDrawnFont.h"
#include "writing/PxVisibleText.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QXmlStreamWriter>

#include <cmath>
#include <initializer_list>

namespace {

constexpr const char *nameOfSvg = "http://www.w3.org/2000/svg";
constexpr const char *nameOfLayers = "http://www.inkscape.org/namespaces/inkscape";

/** With a point, at most two decimals and no exponent. */
QString number(double value)
{
    if (value == std::trunc(value) && std::abs(value) < 1e9) // as most are
        return QString::number(int(value));
    QString text = QString::number(value, 'f', 2);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text == QLatin1String("-0") ? QString("0") : text;
}

QString numbers(std::initializer_list<double> values)
{
    QString text;
    for (const double value : values)
        text += (text.isEmpty() ? QString() : QString(' ')) + number(value);
    return text;
}

/** Space-separated, like numbers(). */
QString list(const QVector<int> &values)
{
    QString text;
    for (const int value : values)
        text += (text.isEmpty() ? QString() : QString(' ')) + QString::number(value);
    return text;
}

QString box(const QRect &rect)
{
    return numbers(
        {double(rect.x()), double(rect.y()), double(rect.width()), double(rect.height())});
}

QString translation(double x, double y)
{
    return "translate(" + numbers({x, y}) + ')';
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

/** The commands of a path: M, L or H or V, A, and Z. */
QString pathData(const QVector<PxDrawnStep> &steps)
{
    QString data;
    QPointF at;
    for (const PxDrawnStep &step : steps) {
        const QString x = number(step.to.x());
        const QString y = number(step.to.y());
        switch (step.kind) {
        case PxDrawnStep::Move:
            data += 'M' + x + ' ' + y;
            break;
        case PxDrawnStep::Line:
            data += y == number(at.y())   ? 'H' + x
                    : x == number(at.x()) ? 'V' + y
                                          : 'L' + x + ' ' + y;
            break;
        case PxDrawnStep::Arc:
            data += 'A' + numbers({step.radius, step.radius, 0, 0, double(step.isClockwise)}) +
                    ' ' + x + ' ' + y;
            break;
        case PxDrawnStep::Close:
            data += 'Z';
            continue;
        }
        at = step.to;
    }
    return data;
}

class Writer
{
public:
    /** Without a prefix of ids for a file of its own. */
    explicit Writer(QXmlStreamWriter *xml, const QString &prefix = QString())
        : m_xml(*xml)
        , m_prefix(prefix)
    {}

    void writeFile(const PxDrawing &drawing);
    void write(const PxDrawing &drawing);

private:
    void writeSheet(const PxDrawingSheet &sheet, const QPoint &position);
    void writeShape(const PxDrawnShape &shape);
    void writeGeometry(const PxDrawnShape &shape);
    void writePaint(const PxDrawnShape &shape);
    void writeLetters(const PxDrawnShape &shape);
    void writeTitles(const QString &title, const QString &description, bool haveIds);
    void attribute(const char *name, const QString &value)
    {
        m_xml.writeAttribute(QLatin1String(name), held(value));
    }
    /** In a page, characters that cannot be seen are escapes: a reference would be one of them. */
    QString held(const QString &text) const
    {
        return m_prefix.isEmpty() ? holdable(text) : PxVisibleText::line(text);
    }

    QXmlStreamWriter &m_xml;
    const QString m_prefix; ///< of ids
};

void Writer::writeFile(const PxDrawing &drawing)
{
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(1);
    m_xml.writeStartDocument();
    m_xml.writeStartElement("svg");
    m_xml.writeDefaultNamespace(nameOfSvg);
    m_xml.writeNamespace(nameOfLayers, "inkscape");
    write(drawing);
    m_xml.writeEndDocument();
}

/** The element, which is open. */
void Writer::write(const PxDrawing &drawing)
{
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
    m_xml.writeEndElement();
}

/** The union of the pages with their bleed. With a negative bleed it lies within the trim. */
QRect totalOf(const PxDrawnSheet &sheet)
{
    QRect total;
    for (const PxDrawnPage &page : sheet.pages)
        total |= page.total();
    return total;
}

void Writer::writeSheet(const PxDrawingSheet &sheet, const QPoint &position)
{
    static constexpr const char *ourKinds[] = {"cover", "spread", "page"};
    QVector<int> pages;
    for (const PxDrawnPage &page : sheet.sheet.pages)
        pages.append(page.number);
    const QString id = m_prefix + "sheet-" + QString::number(pages.value(0));
    m_xml.writeStartElement("g");
    attribute("id", id);
    attribute("class", "sheet");
    attribute("data-kind", ourKinds[int(sheet.sheet.kind)]);
    attribute("data-pages", list(pages));
    attribute("data-stands-for", list(sheet.sheet.standsFor));
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
        m_xml.writeStartElement("g");
        attribute("id", id + '-' + name);
        attribute("class", "layer " + name);
        if (m_prefix.isEmpty()) {
            m_xml.writeAttribute(nameOfLayers, "groupmode", "layer");
            m_xml.writeAttribute(nameOfLayers, "label", pxDrawnLayerLabel(layer));
        }
        for (const PxDrawnShape &shape : shapes)
            writeShape(shape);
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

void Writer::writeTitles(const QString &title, const QString &description, bool haveIds)
{
    for (const auto &[tag, text] : {std::pair("title", title), std::pair("desc", description)}) {
        m_xml.writeStartElement(tag);
        if (haveIds)
            attribute("id", m_prefix + tag);
        m_xml.writeCharacters(held(text));
        m_xml.writeEndElement();
    }
}

void Writer::writeShape(const PxDrawnShape &shape)
{
    static constexpr const char *ourTags[] = {"g",      "rect",    "line", "path",
                                              "circle", "ellipse", "text"};
    m_xml.writeStartElement(ourTags[shape.kind]);
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
    m_xml.writeEndElement();
}

void Writer::writeGeometry(const PxDrawnShape &shape)
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

void Writer::writePaint(const PxDrawnShape &shape)
{
    attribute("fill", shape.fill.isValid() ? shape.fill.name() : QString("none"));
    const PxDrawnLine &line = shape.stroke;
    if (line.width <= 0)
        return;
    attribute("stroke", line.color.name());
    attribute("stroke-width", number(line.width));
    QString dashes;
    for (const double dash : line.dashes)
        dashes += (dashes.isEmpty() ? QString() : QString(' ')) + number(dash);
    if (!dashes.isEmpty())
        attribute("stroke-dasharray", dashes);
    if (line.opacity < 1)
        attribute("stroke-opacity", number(line.opacity));
}

void Writer::writeLetters(const PxDrawnShape &shape)
{
    attribute("font-size", number(shape.fontSize));
    if (shape.isBold)
        attribute("font-weight", "bold");
    if (shape.anchor != PxDrawnShape::Anchor::Start)
        attribute("text-anchor", shape.anchor == PxDrawnShape::Anchor::End ? "end" : "middle");
    if (shape.fill.isValid())
        attribute("fill", shape.fill.name());
    m_xml.writeCharacters(held(shape.text));
}

} // namespace

void PxDrawingSvg::write(const PxDrawing &drawing, QIODevice *device)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QXmlStreamWriter xml(&buffer);
    Writer(&xml).writeFile(drawing);
    // No program needs to see them as they are, and terminals must not.
    device->write(PxVisibleText::xml(buffer.data()).toUtf8());
}

void PxDrawingSvg::write(const PxDrawing &drawing, const QString &prefix, QXmlStreamWriter *page)
{
    page->writeStartElement("svg");
    page->writeAttribute("xmlns", nameOfSvg);
    Writer(page, prefix).write(drawing);
}
