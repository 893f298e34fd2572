#include <drawing/PxDrawing.h>
#include <drawing/PxDrawingSvg.h>

#include <QBuffer>
#include <QDomDocument>
#include <QTest>
#include <QXmlStreamReader>

/** Writes drawings made by hand. */
class PxDrawingSvgTest : public QObject
{
    Q_OBJECT

private slots:
    void writesEachShape();
    void writesEachSheetInItsPlace();
    void writesNamesThatHoldAnything_data();
    void writesNamesThatHoldAnything();
};

namespace {

PxDrawnShape shape(PxDrawnShape::Kind kind)
{
    PxDrawnShape shape;
    shape.kind = kind;
    return shape;
}

PxDrawing drawingOf(const QVector<PxDrawnShape> &trimLayer)
{
    PxDrawnPage page;
    page.number = 5;
    page.trim = QRect(0, 0, 100, 50);
    page.bleed = PxMargins(2, 2, 3, 3);
    PxDrawingSheet sheet;
    sheet.sheet.kind = PxDrawnSheet::Kind::Spread;
    sheet.sheet.pages = {page};
    sheet.sheet.standsFor = {5, 7};
    sheet.sheet.trim = QRect(0, 0, 100, 50);
    sheet.sheet.total = QRect(-3, -2, 106, 54);
    sheet.canvas = QRect(-10, -20, 121, 95);
    sheet.layers[10] = trimLayer;
    PxDrawing drawing;
    drawing.annotation = 16;
    drawing.sheets = {sheet};
    return drawing;
}

QString written(const PxDrawing &drawing)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    PxDrawingSvg::write(drawing, &buffer);
    return QString::fromUtf8(buffer.data());
}

QDomElement parsed(const QString &svg)
{
    QDomDocument document;
    QString error;
    // The other reader of QDom cuts references beyond 16 bits off.
    QXmlStreamReader reader(svg);
    if (!document.setContent(&reader, false, &error))
        qWarning() << error << svg;
    return document.documentElement();
}

/** What stands in the layer, a line for each element. */
QStringList linesOf(const PxDrawnShape &shape)
{
    const QString svg = written(drawingOf({shape}));
    const int begin = svg.indexOf('\n', svg.indexOf("inkscape:label")) + 1;
    QStringList lines = svg.mid(begin, svg.indexOf("\n  </g>", begin) - begin).split('\n');
    for (QString &line : lines)
        line = line.trimmed();
    return lines;
}

} // namespace

void PxDrawingSvgTest::writesEachShape()
{
    PxDrawnShape rect = shape(PxDrawnShape::Rect);
    rect.className = "barcode";
    rect.attributes = {{"data-key", "B"}, {"data-image", "a.png"}};
    rect.rect = QRectF(900, -28.301, 32.5, 1e6);
    QCOMPARE(linesOf(rect),
             QStringList{"<rect class=\"barcode\" x=\"900\" y=\"-28.3\" width=\"32.5\" "
                         "height=\"1000000\" data-key=\"B\" data-image=\"a.png\" "
                         "fill=\"none\"/>"});

    PxDrawnShape line = shape(PxDrawnShape::Line);
    line.line = QLineF(-0.001, 1, 2, 3);
    line.stroke = {0.125, QColor("#c62828"), {3, 1.25, 0.05}, 0.5};
    QCOMPARE(
        linesOf(line),
        QStringList{"<line x1=\"0\" y1=\"1\" x2=\"2\" y2=\"3\" fill=\"none\" stroke=\"#c62828\" "
                    "stroke-width=\"0.13\" stroke-dasharray=\"3 1.25 0.05\" "
                    "stroke-opacity=\"0.5\"/>"});

    PxDrawnShape path = shape(PxDrawnShape::Path);
    path.steps = {{PxDrawnStep::Move, {1, 2}},     {PxDrawnStep::Line, {5, 2}},
                  {PxDrawnStep::Line, {5, 7}},     {PxDrawnStep::Line, {6, 8}},
                  {PxDrawnStep::Arc, {0, 0}, 9.5}, {PxDrawnStep::Arc, {1, 2}, 3, false},
                  {PxDrawnStep::Close, {}}};
    path.fill = Qt::white;
    QCOMPARE(linesOf(path), QStringList{"<path d=\"M1 2H5V7L6 8A9.5 9.5 0 0 1 0 0A3 3 0 0 0 1 2Z\" "
                                        "fill=\"#ffffff\"/>"});

    PxDrawnShape circle = shape(PxDrawnShape::Circle);
    circle.rect = QRectF(10, 20, 30, 30);
    QCOMPARE(linesOf(circle), QStringList{"<circle cx=\"25\" cy=\"35\" r=\"15\" fill=\"none\"/>"});
    PxDrawnShape ellipse = shape(PxDrawnShape::Ellipse);
    ellipse.rect = QRectF(10, 20, 30, 40);
    QCOMPARE(linesOf(ellipse),
             QStringList{"<ellipse cx=\"25\" cy=\"40\" rx=\"15\" ry=\"20\" fill=\"none\"/>"});

    PxDrawnShape text = shape(PxDrawnShape::Text);
    text.text = "9,4 < \"x\"";
    text.position = QPointF(2207, -722);
    text.fontSize = 112;
    text.anchor = PxDrawnShape::Anchor::Middle;
    PxDrawnShape upward = text;
    upward.readsUpward = true;
    upward.isBold = true;
    upward.anchor = PxDrawnShape::Anchor::End;
    upward.fill = QColor("#123456");
    PxDrawnShape group = shape(PxDrawnShape::Group);
    group.className = "dimension";
    group.attributes = {{"data-axis", "x"}};
    group.translation = QPoint(-7, 8);
    group.children = {text, upward};
    const QStringList lines = {
        "<g class=\"dimension\" data-axis=\"x\" transform=\"translate(-7 8)\">",
        "<text x=\"2207\" y=\"-722\" font-size=\"112\" text-anchor=\"middle\">9,4 &lt; "
        "&quot;x&quot;</text>",
        "<text transform=\"translate(2207 -722) rotate(-90)\" font-size=\"112\" "
        "font-weight=\"bold\" "
        "text-anchor=\"end\" fill=\"#123456\">9,4 &lt; &quot;x&quot;</text>",
        "</g>"};
    QCOMPARE(linesOf(group), lines);
}

void PxDrawingSvgTest::writesEachSheetInItsPlace()
{
    PxDrawing drawing = drawingOf({shape(PxDrawnShape::Rect)});
    PxDrawingSheet wide = drawing.sheets[0];
    wide.sheet.kind = PxDrawnSheet::Kind::Page;
    wide.sheet.pages[0].number = 12;
    wide.canvas = QRect(5, 6, 200, 30);
    wide.layers[10].clear();
    wide.title = "a title";
    wide.description = "a description";
    drawing.sheets.append(wide);
    drawing.product.className = "book";
    drawing.product.pageCount = 26;

    const QDomElement svg = parsed(written(drawing));
    QCOMPARE(svg.attribute("width"), "20mm");
    QCOMPARE(svg.attribute("height"), "12.5mm");
    QCOMPARE(svg.attribute("viewBox"), "0 0 200 125");
    QCOMPARE(svg.attribute("xml:lang"), "de");
    QCOMPARE(svg.attribute("data-class"), "book");
    QCOMPARE(svg.attribute("data-page-count"), "26");
    QCOMPARE(svg.attribute("data-annotation"), "16");
    QVERIFY(!svg.hasAttribute("data-theme"));
    drawing.product.themeId = "hochzeit";
    QCOMPARE(parsed(written(drawing)).attribute("data-theme"), "hochzeit");

    const QDomElement first = svg.firstChildElement("g");
    QCOMPARE(first.attribute("id"), "sheet-5");
    QCOMPARE(first.attribute("data-kind"), "spread");
    QCOMPARE(first.attribute("data-pages"), "5");
    QCOMPARE(first.attribute("data-stands-for"), "5 7");
    QCOMPARE(first.attribute("data-trim"), "0 0 100 50");
    QCOMPARE(first.attribute("data-total"), "-3 -2 106 54");
    QCOMPARE(first.attribute("data-canvas"), "-10 -20 121 95");
    QCOMPARE(first.attribute("transform"), "translate(10 20)");
    const QDomElement layer = first.firstChildElement("g");
    QCOMPARE(layer.attribute("id"), "sheet-5-trim");
    QCOMPARE(layer.attribute("class"), "layer trim");
    QCOMPARE(layer.attribute("inkscape:groupmode"), "layer");
    QCOMPARE(layer.attribute("inkscape:label"), "Endformat");

    const QDomElement second = first.nextSiblingElement("g");
    QCOMPARE(second.attribute("id"), "sheet-12");
    QCOMPARE(second.attribute("data-kind"), "page");
    QCOMPARE(second.attribute("transform"), "translate(-5 89)");
    QCOMPARE(second.firstChildElement("title").text(), "a title");
    QCOMPARE(second.firstChildElement("desc").text(), "a description");
    QVERIFY(second.firstChildElement("g").isNull()); // none of its layers has content
}

void PxDrawingSvgTest::writesNamesThatHoldAnything_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("held");
    const QString replaced = QChar(QChar::ReplacementCharacter);
    QTest::newRow("markup") << "<a href='x'>&amp;\"]]>"
                            << "<a href='x'>&amp;\"]]>";
    QTest::newRow("line breaks") << " a\r\n\tb "
                                 << " a\r\n\tb ";
    QTest::newRow("controls") << QString("a") + QChar(0) + QChar(0x1B) + "b"
                              << "a" + replaced + replaced + "b";
    QTest::newRow("no characters") << QString(QChar(0xFFFE)) + QChar(0xFFFF) << replaced + replaced;
    QTest::newRow("half a character")
        << QString(QChar(0xD83D)) + "x" + QChar(0xDE00) << replaced + "x" + replaced;
    QTest::newRow("beyond 16 bits") << QString::fromUcs4(U"\U0001F600\U000E0041", 2)
                                    << QString::fromUcs4(U"\U0001F600\U000E0041", 2);
    const QString turned = QString("a") + QChar(0x202E) + QChar(0x85) + QChar(0xFEFF) + "b";
    QTest::newRow("turned round") << turned << turned;
    QTest::newRow("places") << "%1 %s %n"
                            << "%1 %s %n";
    QTest::newRow("long") << QString(300, 'x') << QString(300, 'x');
}

void PxDrawingSvgTest::writesNamesThatHoldAnything()
{
    QFETCH(QString, name);
    QFETCH(QString, held);
    PxDrawnShape text = shape(PxDrawnShape::Text);
    text.attributes = {{"data-image", name}};
    text.text = name;
    PxDrawing drawing = drawingOf({text});
    drawing.title = name;
    const QString svg = written(drawing);
    for (const QChar unit : svg)
        QVERIFY(unit == '\n' || !(unit.category() == QChar::Other_Control ||
                                  unit.category() == QChar::Other_Format));
    const QDomElement root = parsed(svg);
    const QDomElement found = root.elementsByTagName("text").item(0).toElement();
    QCOMPARE(found.attribute("data-image"), held);
    if (!name.contains('\r')) { // in texts, it is read as a line break
        QCOMPARE(found.text(), held);
        QCOMPARE(root.firstChildElement("title").text(), held);
    }
}

QTEST_GUILESS_MAIN(PxDrawingSvgTest)
#include "PxDrawingSvgTest.moc"
