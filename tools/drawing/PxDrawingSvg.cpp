#include "drawing/PxDrawingSvg.h"

#include "drawing/PxDrawing.h"
#include "drawing/PxDrawnFont.h"
#include "writing/PxMarkup.h"

#include <QCoreApplication>
#include <QIODevice>

#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <iterator>
#include <string>

namespace {

constexpr const char *nameOfSvg = "http://www.w3.org/2000/svg";
constexpr const char *nameOfLayers = "http://www.inkscape.org/namespaces/inkscape";

/** The value as it is written, with two decimals. */
qint64 hundredths(double value)
{
    constexpr double surelyExact = 1e9;
    const double product = value * 100;
    const double below = std::floor(product);
    // In the middle between two numbers the exact value decides, and the product is not exact.
    const bool isInMiddle = std::abs(product - below - 0.5) < 1e-3;
    if (isInMiddle || std::abs(product) > surelyExact)
        return QByteArray::number(value, 'f', 2).replace(".", "").toLongLong();
    return qint64(std::floor(product + 0.5));
}

/** With a point, at most two decimals and no exponent. */
void appendNumber(std::string *text, qint64 hundredths)
{
    quint64 rest = quint64(std::llabs(hundredths));
    int decimals = 2;
    for (; decimals > 0 && rest % 10 == 0; --decimals)
        rest /= 10;
    char digits[32];
    char *first = std::end(digits);
    for (int written = 0; rest > 0 || written <= decimals; ++written, rest /= 10) {
        if (decimals > 0 && written == decimals)
            *--first = '.';
        *--first = char('0' + rest % 10);
    }
    if (hundredths < 0)
        *--first = '-';
    text->append(first, std::end(digits));
}

void appendNumber(std::string *text, double value)
{
    appendNumber(text, hundredths(value));
}

/** With a blank between two. */
template <typename Numbers>
void appendNumbers(std::string *text, const Numbers &numbers)
{
    bool isFirst = true;
    for (const auto number : numbers) {
        if (!isFirst)
            *text += ' ';
        appendNumber(text, double(number));
        isFirst = false;
    }
}

void appendTranslation(std::string *text, double x, double y)
{
    *text += "translate(";
    appendNumbers(text, std::initializer_list<double>{x, y});
    *text += ')';
}

void appendColor(std::string *text, const QColor &color)
{
    static constexpr char ourDigits[] = "0123456789abcdef";
    *text += '#';
    for (int shift = 20; shift >= 0; shift -= 4)
        *text += ourDigits[(color.rgb() >> shift) & 0xF];
}

/** The commands of a path: M, L or H or V, A, and Z. */
void appendPath(std::string *data, const QVector<PxDrawnStep> &steps)
{
    qint64 atX = 0;
    qint64 atY = 0;
    for (const PxDrawnStep &step : steps) {
        if (step.kind == PxDrawnStep::Close) {
            *data += 'Z';
            continue;
        }
        const qint64 x = hundredths(step.to.x());
        const qint64 y = hundredths(step.to.y());
        const bool isLine = step.kind == PxDrawnStep::Line;
        const bool isLevel = isLine && y == atY;
        const bool isUpright = isLine && !isLevel && x == atX;
        if (step.kind == PxDrawnStep::Arc) {
            *data += 'A';
            appendNumbers(data, std::initializer_list<double>{step.radius, step.radius, 0, 0,
                                                              double(step.isClockwise)});
            *data += ' ';
        } else {
            *data += !isLine ? 'M' : isLevel ? 'H' : isUpright ? 'V' : 'L';
        }
        if (!isUpright)
            appendNumber(data, x);
        if (!isUpright && !isLevel)
            *data += ' ';
        if (!isLevel)
            appendNumber(data, y);
        atX = x;
        atY = y;
    }
}

class Writer
{
public:
    /** All ids begin with the prefix. */
    explicit Writer(PxMarkup *xml, const QString &prefix = QString())
        : m_xml(*xml)
        , m_prefix(prefix)
    {}

    void write(const PxDrawing &drawing);

private:
    void writeSheet(const PxDrawingSheet &sheet, const QPoint &position);
    void writeShape(const PxDrawnShape &shape);
    void writeGeometry(const PxDrawnShape &shape);
    void writePaint(const PxDrawnShape &shape);
    void writeLetters(const PxDrawnShape &shape);
    void writeTitles(const QString &title, const QString &description, bool haveIds);

    void attribute(const char *name, const QString &value) { m_xml.attribute(name, value); }
    void word(const char *name, const char *value)
    {
        m_xml.plainAttribute(name, QLatin1String(value));
    }
    /** An attribute whose value `append` writes. */
    template <typename Append>
    void value(const char *name, Append append)
    {
        m_value.clear(); // keeps its memory
        append(&m_value);
        m_xml.plainAttribute(name, QLatin1String(m_value.data(), int(m_value.size())));
    }
    template <typename Numbers>
    void numbers(const char *name, const Numbers &values)
    {
        value(name, [&values](std::string *text) { appendNumbers(text, values); });
    }
    void number(const char *name, double number)
    {
        value(name, [number](std::string *text) { appendNumber(text, number); });
    }
    void color(const char *name, const QColor &color)
    {
        value(name, [&color](std::string *text) { appendColor(text, color); });
    }
    void box(const char *name, const QRect &rect)
    {
        numbers(name, std::initializer_list<int>{rect.x(), rect.y(), rect.width(), rect.height()});
    }
    void millimetres(const char *name, int length)
    {
        value(name, [length](std::string *text) {
            appendNumber(text, length / 10.0);
            *text += "mm";
        });
    }
    void translation(const QPoint &by)
    {
        value("transform", [&by](std::string *text) { appendTranslation(text, by.x(), by.y()); });
    }

    PxMarkup &m_xml;
    const QString m_prefix;
    std::string m_value;
};

/** The element, which is open. */
void Writer::write(const PxDrawing &drawing)
{
    const QSize size = drawing.size();
    const PxDrawnProduct &product = drawing.product;
    millimetres("width", size.width());
    millimetres("height", size.height());
    box("viewBox", QRect(QPoint(), size));
    attribute("xml:lang", QCoreApplication::translate("PxDrawing", "de", "code of the language"));
    word("role", "img");
    attribute("aria-labelledby", m_prefix + "title " + m_prefix + "desc");
    attribute("font-family", pxDrawnFontFamilies().join(", "));
    word("data-format", "1");
    attribute("data-product", product.type.productName());
    attribute("data-class", product.className);
    number("data-page-count", product.pageCount);
    if (!product.themeId.isEmpty())
        attribute("data-theme", product.themeId);
    word("data-units-per-mm", "10");
    number("data-annotation", drawing.annotation);
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

void Writer::writeSheet(const PxDrawingSheet &sheet, const QPoint &position)
{
    static constexpr const char *ourKinds[] = {"cover", "spread", "page"};
    QVector<int> pages;
    for (const PxDrawnPage &page : sheet.sheet.pages)
        pages.append(page.number);
    const QString id = m_prefix + "sheet-" + QString::number(pages.value(0));
    m_xml.open("g");
    attribute("id", id);
    word("class", "sheet");
    word("data-kind", ourKinds[int(sheet.sheet.kind)]);
    numbers("data-pages", pages);
    numbers("data-stands-for", sheet.sheet.standsFor);
    box("data-trim", sheet.sheet.trim);
    box("data-total", totalOf(sheet.sheet));
    box("data-canvas", sheet.canvas);
    translation(position - sheet.canvas.topLeft());
    writeTitles(sheet.title, sheet.description, false);
    for (int layer = 0; layer < pxDrawnLayerCount; ++layer) {
        const QVector<PxDrawnShape> &shapes = sheet.layers[std::size_t(layer)];
        if (shapes.isEmpty())
            continue;
        const QString name = pxDrawnLayerName(layer);
        m_xml.open("g");
        attribute("id", id + '-' + name);
        attribute("class", "layer " + name);
        if (m_xml.kind() == PxMarkup::Kind::File) {
            word("inkscape:groupmode", "layer");
            attribute("inkscape:label", pxDrawnLayerLabel(layer));
        }
        for (const PxDrawnShape &shape : shapes)
            writeShape(shape);
        m_xml.close();
    }
    m_xml.close();
}

void Writer::writeTitles(const QString &title, const QString &description, bool haveIds)
{
    for (const auto &[tag, text] : {std::pair("title", title), std::pair("desc", description)}) {
        m_xml.open(tag);
        if (haveIds)
            attribute("id", m_prefix + tag);
        m_xml.text(text);
        m_xml.close();
    }
}

void Writer::writeShape(const PxDrawnShape &shape)
{
    static constexpr const char *ourTags[] = {"g",      "rect",    "line", "path",
                                              "circle", "ellipse", "text"};
    m_xml.open(ourTags[shape.kind]);
    if (!shape.className.isEmpty())
        word("class", shape.className.constData());
    writeGeometry(shape);
    for (const auto &[name, value] : shape.attributes)
        attribute(name.constData(), value);
    if (shape.kind == PxDrawnShape::Group) {
        if (!shape.translation.isNull() || shape.className == "panel")
            translation(shape.translation);
        for (const PxDrawnShape &child : shape.children)
            writeShape(child);
    } else if (shape.kind == PxDrawnShape::Text) {
        writeLetters(shape);
    } else {
        writePaint(shape);
    }
    m_xml.close();
}

void Writer::writeGeometry(const PxDrawnShape &shape)
{
    const QRectF &rect = shape.rect;
    const QPointF center = rect.center();
    switch (shape.kind) {
    case PxDrawnShape::Group:
        break;
    case PxDrawnShape::Rect:
        number("x", rect.x());
        number("y", rect.y());
        number("width", rect.width());
        number("height", rect.height());
        break;
    case PxDrawnShape::Line:
        number("x1", shape.line.x1());
        number("y1", shape.line.y1());
        number("x2", shape.line.x2());
        number("y2", shape.line.y2());
        break;
    case PxDrawnShape::Path:
        value("d", [&shape](std::string *data) { appendPath(data, shape.steps); });
        break;
    case PxDrawnShape::Circle:
        number("cx", center.x());
        number("cy", center.y());
        number("r", rect.width() / 2);
        break;
    case PxDrawnShape::Ellipse:
        number("cx", center.x());
        number("cy", center.y());
        number("rx", rect.width() / 2);
        number("ry", rect.height() / 2);
        break;
    case PxDrawnShape::Text:
        if (shape.readsUpward) {
            value("transform", [&shape](std::string *text) {
                appendTranslation(text, shape.position.x(), shape.position.y());
                *text += " rotate(-90)";
            });
        } else {
            number("x", shape.position.x());
            number("y", shape.position.y());
        }
        break;
    }
}

void Writer::writePaint(const PxDrawnShape &shape)
{
    if (shape.fill.isValid())
        color("fill", shape.fill);
    else
        word("fill", "none");
    const PxDrawnLine &line = shape.stroke;
    if (line.width <= 0)
        return;
    color("stroke", line.color);
    number("stroke-width", line.width);
    if (!line.dashes.isEmpty())
        numbers("stroke-dasharray", line.dashes);
    if (line.opacity < 1)
        number("stroke-opacity", line.opacity);
}

void Writer::writeLetters(const PxDrawnShape &shape)
{
    number("font-size", shape.fontSize);
    if (shape.isBold)
        word("font-weight", "bold");
    if (shape.anchor != PxDrawnShape::Anchor::Start)
        word("text-anchor", shape.anchor == PxDrawnShape::Anchor::End ? "end" : "middle");
    if (shape.fill.isValid())
        color("fill", shape.fill);
    m_xml.text(shape.text);
}

} // namespace

void PxDrawingSvg::write(const PxDrawing &drawing, QIODevice *device)
{
    PxMarkup xml(PxMarkup::Kind::File);
    xml.open("svg");
    xml.plainAttribute("xmlns", QLatin1String(nameOfSvg));
    xml.plainAttribute("xmlns:inkscape", QLatin1String(nameOfLayers));
    Writer(&xml).write(drawing);
    device->write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + xml.bytes() + '\n');
}

void PxDrawingSvg::write(const PxDrawing &drawing, const QString &prefix, PxMarkup *page)
{
    page->open("svg");
    Writer(page, prefix).write(drawing);
}
