#include "drawing/PxDrawing.h"
#include "drawing/PxDrawnWords.h"
#include "drawing/PxShapeMaker.h"
#include "drawing/PxTextWidth.h"

#include <PxCatalogueDirectory.h>
#include <PxElement.h>

#include <QTest>
#include <QTranslator>

Q_DECLARE_METATYPE(PxDrawnSheet)

namespace {

using Role = PxDrawnPage::Role;
using Kind = PxDrawnSheet::Kind;

constexpr PxDrawnLayers allLayers((1 << pxDrawnLayerCount) - 1);
constexpr PxDrawnLayers templateLayers(0xFD0);

int indexOf(PxDrawnLayer layer)
{
    return int(qCountTrailingZeroBits(unsigned(layer)));
}

PxDrawnPage page(Role role, const QRect &trim, const PxMargins &bleed = {})
{
    PxDrawnPage page;
    page.role = role;
    page.trim = trim;
    page.bleed = bleed;
    const bool isRight = role == Role::Front || role == Role::Right;
    const bool isCover = role == Role::Back || role == Role::Front;
    page.context = {role == Role::Spine ? PxPageTypeSpine
                    : isCover           ? PxPageTypeFullCover
                                        : PxPageTypeNormalPage,
                    isRight ? PxPageAlignmentRight : PxPageAlignmentLeft};
    return page;
}

PxDrawnSheet sheet(const QVector<PxDrawnPage> &pages)
{
    PxDrawnSheet sheet;
    sheet.pages = pages;
    sheet.kind = pages.size() == 1                       ? Kind::Page
                 : pages.constFirst().role == Role::Back ? Kind::Cover
                                                         : Kind::Spread;
    for (int i = 0; i < pages.size(); ++i) {
        sheet.pages[i].number = i;
        sheet.standsFor.append(i);
        sheet.trim |= pages[i].trim;
        sheet.total |= pages[i].trim | pages[i].total();
    }
    return sheet;
}

PxDrawnSheet single(const QSize &size, int bleed = 0)
{
    PxDrawnPage one = page(Role::Page, {QPoint(), size}, PxMargins(bleed, bleed, bleed, bleed));
    const int safe = qMin(size.width(), size.height()) / 10;
    one.safetyMargins = PxMargins(safe, safe, safe, safe);
    return sheet({one});
}

PxDrawnSheet cover(int spineWidth)
{
    QVector<PxDrawnPage> pages{
        page(Role::Back, QRect(0, 0, 2160, 2970), PxMargins(150, 150, 150, 0)),
        page(Role::Spine, QRect(2160, 0, spineWidth, 2970), PxMargins(150, 150, 0, 0)),
        page(Role::Front, QRect(2160 + spineWidth, 0, 2160, 2970), PxMargins(150, 150, 0, 150))};
    pages[0].safetyMargins = pages[2].safetyMargins = PxMargins(50, 50, 50, 50);
    pages[1].spineTextHeight = 48;
    pages[1].hasSpineLogo = true;
    pages[0].barcode = PxBarcode(QRect(900, 2830, 320, 110), 0, false, "images/barcode.png");
    return sheet(pages);
}

PxDrawnSheet spread(int margin)
{
    QVector<PxDrawnPage> pages{
        page(Role::Left, QRect(0, 0, 2100, 2970), PxMargins(30, 30, 30, 0)),
        page(Role::Right, QRect(2100, 0, 2100, 2970), PxMargins(30, 30, 0, 30))};
    pages[0].safetyMargins = PxMargins(50, 50, 50, 120);
    pages[1].safetyMargins = PxMargins(50, 50, 120, 50);
    pages[0].foldMargin = pages[1].foldMargin = margin;
    return sheet(pages);
}

/** Every page with a surrounding of its own and a barcode in its middle. */
PxDrawnSheet crowded(PxDrawnSheet sheet)
{
    for (PxDrawnPage &page : sheet.pages) {
        const QString place = QString("<surrounding type='BOOK' image='%1.png' paintOnTop='%2' "
                                      "x='%3' y='-40' width='%4' height='%5'/>")
                                  .arg(QString(page.number % 2 ? 300 : 9, 'i'))
                                  .arg(page.number)
                                  .arg(page.number - 20)
                                  .arg(page.trim.width() * 3 / 2)
                                  .arg(page.trim.height());
        page.surrounding = PxSurroundingDescription(pxElement(place.toUtf8()));
        page.barcode = PxBarcode({page.trim.width() / 3, page.trim.height() / 3,
                                  page.trim.width() / 3 + 1, page.trim.height() / 3 + 1},
                                 page.number, true, QString("%1 %2\n").repeated(90));
        page.isPrinted = false;
        page.takesContent = false;
        page.layoutTemplate = QString("Rahmen und Bild ").repeated(20);
        page.backgroundTemplate = QString(300, 'b');
    }
    for (int note = 0; note <= int(PxDrawnNote::ThemeLogo); ++note)
        sheet.notes.append(PxDrawnNote(note));
    return sheet;
}

PxDrawnProduct product(const QVector<PxDrawnSheet> &sheets)
{
    PxDrawnProduct product;
    product.type = PxProductType(101);
    product.pageCount = 26;
    product.listedPages = 31;
    product.binding = "Hardcover";
    product.file = "products/book.xml";
    product.sheets = sheets;
    for (int i = 0; i < sheets.size(); ++i)
        product.sheets[i].index = i;
    return product;
}

PxDrawingSheet drawn(const PxDrawnSheet &sheet, PxDrawnLayers layers = allLayers)
{
    return pxDraw(product({sheet}), {0}, layers).sheets.constFirst();
}

/** What must not overlap: texts; a letter with its circle is one. */
void collectLabels(const PxDrawnShape &shape, QVector<QPair<QRectF, QString>> *labels)
{
    if (shape.kind == PxDrawnShape::Text || shape.className == "key") {
        const QString name = shape.kind == PxDrawnShape::Text ? shape.text : "key";
        labels->append({PxShapeMaker::boundsOf(shape).adjusted(0.01, 0.01, -0.01, -0.01), name});
        return;
    }
    for (const PxDrawnShape &child : shape.children)
        collectLabels(child, labels);
}

/** What is painted outside this rectangle, or too small to be read; empty for nothing. */
QString faultOf(const PxDrawnShape &shape, const QRectF &canvas, double smallestType)
{
    const QRectF rect = PxShapeMaker::boundsOf(shape);
    const bool isPainted = shape.stroke.width > 0 || shape.fill.isValid();
    const bool isOutside = rect.left() < canvas.left() || rect.top() < canvas.top() ||
                           rect.right() > canvas.right() || rect.bottom() > canvas.bottom();
    if (shape.kind != PxDrawnShape::Group && isPainted && isOutside)
        return QString("outside: %1 %2")
            .arg(QLatin1String(shape.className.data(), int(shape.className.size())), shape.text);
    if (shape.kind == PxDrawnShape::Text &&
        (shape.fontSize < smallestType || shape.fontSize != qRound(shape.fontSize)))
        return QString("size %1: %2").arg(QString::number(shape.fontSize), shape.text);
    for (const PxDrawnShape &child : shape.children) {
        const QString found = faultOf(child, canvas.translated(-shape.translation), smallestType);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

/** Empty if no label lies on another, all can be read and nothing lies outside. */
QString faultOf(const PxDrawingSheet &drawing, int annotation)
{
    QVector<QPair<QRectF, QString>> labels;
    QRectF frame(drawing.canvas);
    for (const auto &layer : drawing.layers) {
        for (const PxDrawnShape &shape : layer) {
            const QString fault = faultOf(shape, frame, 2.4 * annotation);
            if (!fault.isEmpty())
                return fault;
            if (shape.className == "border") // all that lies above it
                frame = PxShapeMaker::boundsOf(shape);
            collectLabels(shape, &labels);
        }
    }
    for (int i = 0; i < labels.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            if (labels[i].first.intersects(labels[j].first))
                return "overlap: " + labels[i].second + " | " + labels[j].second;
        }
    }
    return {};
}

QString attribute(const PxDrawnShape &shape, const char *name)
{
    for (const auto &attribute : shape.attributes) {
        if (attribute.first == name)
            return attribute.second;
    }
    return {};
}

QString textIn(const PxDrawnShape &shape)
{
    QStringList texts;
    if (!shape.text.isEmpty())
        texts.append(shape.text);
    for (const PxDrawnShape &child : shape.children)
        texts.append(textIn(child));
    texts.removeAll(QString());
    return texts.join(' ');
}

QStringList attributesIn(const PxDrawingSheet &drawing, PxDrawnLayer layer, const char *name)
{
    QStringList values;
    for (const PxDrawnShape &shape : drawing.layers[std::size_t(indexOf(layer))]) {
        const QString value = attribute(shape, name);
        if (!value.isEmpty())
            values.append(value);
    }
    return values;
}

QStringList dimensions(const PxDrawingSheet &drawing)
{
    QStringList dimensions;
    for (const PxDrawnShape &shape : drawing.layers[std::size_t(indexOf(PxDrawnLayer::Dimensions))])
        dimensions.append(attribute(shape, "data-axis") + ' ' + attribute(shape, "data-from") +
                          ".." + attribute(shape, "data-to") + ' ' +
                          attribute(shape, "data-value") + ' ' + textIn(shape));
    return dimensions;
}

} // namespace

class PxSheetAnnotationsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void hasRoomForEverything_data();
    void hasRoomForEverything();
    void isOnePaperForAllSheets();
    void dimensionsAreTheFacts_data();
    void dimensionsAreTheFacts();
    void legendTellsWhatIsShown();
    void labelsPointAtWhatIsShown();
    void titleBlockTellsWhatItIs();
    void canvasEndsCloseToTheMarks();
    void textsOfFilesAreHarmless();
    void numbersAreNotBroken_data();
    void numbersAreNotBroken();
    void pagesAreCountedInRuns();
    void speaksEnglish();

private:
    PxCatalogueDirectory m_catalogue;
};

void PxSheetAnnotationsTest::initTestCase()
{
    m_catalogue.writeProductTypes("101 book " + QByteArray(300, 'N'));
}

void PxSheetAnnotationsTest::hasRoomForEverything_data()
{
    QTest::addColumn<PxDrawnSheet>("sheet");
    const QSize sizes[] = {{1, 1},       {100, 100},    {200, 200},        {500, 500},
                           {300, 2000},  {2000, 130},   {12000, 4000},     {4000, 12000},
                           {10, 100000}, {1000000, 50}, {1000000, 1000000}};
    for (const QSize &size : sizes) {
        const auto row = [&](const char *name) {
            return QByteArray::number(size.width()) + 'x' + QByteArray::number(size.height()) +
                   name;
        };
        QTest::newRow(row("")) << single(size);
        QTest::newRow(row(" with bleed")) << single(size, 30);
        QTest::newRow(row(" with more bleed")) << crowded(single(size, 400));
        QTest::newRow(row(" with negative bleed")) << single(size, -30);
    }
    for (const int width : {0, 1, 10, 94, 2000}) {
        QTest::newRow("spine " + QByteArray::number(width)) << cover(width);
        QTest::newRow("crowded, spine " + QByteArray::number(width)) << crowded(cover(width));
    }
    for (const int margin : {0, 1, 112, 1800, 2100})
        QTest::newRow("fold margin " + QByteArray::number(margin)) << crowded(spread(margin));

    PxDrawnSheet stickers =
        sheet({page(Role::Left, QRect(0, 0, 90, 150), PxMargins(5, 9, 7, 0)),
               page(Role::Right, QRect(90, 20, 40, 110), PxMargins(9, 5, 0, 3))});
    QTest::newRow("narrow pages of different height") << crowded(stickers);
    const PxMargins bleed(10, 10, 10, 10);
    QTest::newRow("a cover for dolls")
        << crowded(sheet({page(Role::Back, QRect(0, 0, 12, 60), bleed),
                          page(Role::Spine, QRect(12, 0, 10, 60), bleed),
                          page(Role::Front, QRect(22, 0, 12, 60), bleed)}));
    PxDrawnSheet atTop = single({800, 900}, 0);
    atTop.pages[0].bleed = PxMargins(30, 0, 0, 0);
    atTop.total = atTop.pages[0].total();
    QTest::newRow("bleed at the top only") << atTop;
    atTop.pages[0].bleed = PxMargins(0, 30, 0, 0);
    atTop.total = atTop.pages[0].total();
    QTest::newRow("bleed at the bottom only") << atTop;
    PxDrawnSheet many = single({900, 900}, 30);
    for (int i = 1; i < 9999; i += 1 + i % 3)
        many.standsFor.append(i);
    QTest::newRow("a long list of pages") << many;
}

void PxSheetAnnotationsTest::hasRoomForEverything()
{
    QFETCH(PxDrawnSheet, sheet);
    const PxDrawnLayers choices[] = {allLayers,
                                     templateLayers,
                                     templateLayers | PxDrawnLayer::Dimensions,
                                     PxDrawnLayer::Labels,
                                     PxDrawnLayer::Legend,
                                     PxDrawnLayer::Title | PxDrawnLayer::Background};
    for (const PxDrawnLayers layers : choices) {
        const PxDrawing drawing = pxDraw(product({sheet}), {0}, layers);
        const PxDrawingSheet &drawn = drawing.sheets.constFirst();
        QCOMPARE(faultOf(drawn, drawing.annotation), QString());
        for (int i = 0; i < pxDrawnLayerCount; ++i)
            QVERIFY(layers.testFlag(PxDrawnLayer(1 << i)) ||
                    drawn.layers[std::size_t(i)].isEmpty());
        const QSize size = drawn.canvas.size();
        const int a = drawing.annotation;
        if (layers == templateLayers)
            QCOMPARE(a, 10);
        else
            QVERIFY(qMax(size.width(), size.height()) <= 277 * a &&
                    qMin(size.width(), size.height()) <= 190 * a);
        QVERIFY(drawn.canvas.contains(sheet.total));
    }
}

void PxSheetAnnotationsTest::isOnePaperForAllSheets()
{
    const PxDrawnProduct both = product({single({100, 100}), single({12000, 4000})});
    const PxDrawing small = pxDraw(both, {0}, allLayers);
    const PxDrawing large = pxDraw(both, {1}, allLayers);
    QCOMPARE(small.annotation, large.annotation);
    QCOMPARE(large.annotation, 63); // with 50 it would be 304 a wide
    QCOMPARE(pxDraw(product({cover(94), spread(0)}), {0}, allLayers).annotation, 40);
    QCOMPARE(pxDraw(product({single({100, 100})}), {0}, allLayers).annotation, 10);
    QCOMPARE(pxDraw(product({single({9000, 3000})}), {0}, allLayers).annotation, 50);

    const PxDrawing drawing = pxDraw(both, {0, 1}, allLayers);
    QCOMPARE(drawing.positionOf(1), QPoint(0, drawing.sheets[0].canvas.height()));
    QCOMPARE(drawing.size(),
             QSize(drawing.sheets[1].canvas.width(),
                   drawing.sheets[0].canvas.height() + drawing.sheets[1].canvas.height()));
}

void PxSheetAnnotationsTest::dimensionsAreTheFacts_data()
{
    QTest::addColumn<PxDrawnSheet>("sheet");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("cover") << cover(94)
                           << QStringList{"x -150..0 150 15",        "x 0..2160 2160 216",
                                          "x 2160..2254 94 9,4",     "x 2254..4414 2160 216",
                                          "x 4414..4564 150 15",     "x 0..4414 4414 441,4",
                                          "x -150..4564 4714 471,4", "y -150..0 150 15",
                                          "y 0..2970 2970 297",      "y 2970..3120 150 15",
                                          "y -150..3120 3270 327"};
    QTest::newRow("fold margins") << spread(112)
                                  << QStringList{"x -30..0 30 3",         "x 0..2100 2100 210",
                                                 "x 2100..4200 2100 210", "x 4200..4230 30 3",
                                                 "x 0..4200 4200 420",    "x -30..4230 4260 426",
                                                 "y -30..0 30 3",         "y 0..2970 2970 297",
                                                 "y 2970..3000 30 3",     "y -30..3000 3030 303",
                                                 "x 1988..2100 112 11,2", "x 2100..2212 112 11,2"};
    QTest::newRow("negative bleed")
        << single({500, 400}, -30)
        << QStringList{"x 0..500 500 50",        "x 30..0 -30 \u22123",   "x 30..470 440 44",
                       "x 500..470 -30 \u22123", "y 0..400 400 40",       "y 30..0 -30 \u22123",
                       "y 30..370 340 34",       "y 400..370 -30 \u22123"};
    QTest::newRow("no bleed") << single({501, 400})
                              << QStringList{"x 0..501 501 50,1", "y 0..400 400 40"};
    PxDrawnSheet wide = spread(2100);
    wide.pages[0].foldMargin = 0;
    QTest::newRow("fold margin as wide as the page") << wide << dimensions(drawn(spread(0)));
}

void PxSheetAnnotationsTest::dimensionsAreTheFacts()
{
    QFETCH(PxDrawnSheet, sheet);
    QFETCH(QStringList, expected);
    QCOMPARE(dimensions(drawn(sheet)), expected);
}

void PxSheetAnnotationsTest::legendTellsWhatIsShown()
{
    const auto items = [](const PxDrawnSheet &sheet, PxDrawnLayers layers) {
        return attributesIn(drawn(sheet, layers), PxDrawnLayer::Legend, "data-item").join(' ');
    };
    QCOMPARE(items(cover(94), allLayers),
             "bleed bleed-area trim safe spine spine-text barcode marks");
    QCOMPARE(items(cover(94), allLayers & ~(PxDrawnLayer::Spine | PxDrawnLayer::Areas)),
             "bleed trim safe barcode marks");
    QCOMPARE(items(cover(94), PxDrawnLayer::Legend | PxDrawnLayer::Barcodes), "barcode");
    QCOMPARE(items(spread(112), allLayers), "bleed bleed-area trim safe fold fold-margin marks");
    QCOMPARE(items(single({500, 500}), allLayers), "trim safe marks");

    // Letters are those of the sheet, and what is the same on two pages has one row.
    PxDrawnSheet twice = spread(0);
    for (PxDrawnPage &page : twice.pages)
        page.barcode = PxBarcode(QRect(15, 20, 320, 110), 0, true, "a.png");
    PxDrawingSheet drawing = drawn(twice);
    QCOMPARE(attributesIn(drawing, PxDrawnLayer::Labels, "data-key"), QStringList({"A", "A"}));
    QCOMPARE(attributesIn(drawing, PxDrawnLayer::Legend, "data-key"), QStringList("A"));
    QString words;
    for (const PxDrawnShape &row : drawing.layers[std::size_t(indexOf(PxDrawnLayer::Legend))])
        words += textIn(row) + '|';
    QVERIFY2(words.contains("A Barcode: x 1,5, y 2, 32 × 11 mm, Seite von hinten gezählt, a.png"),
             qPrintable(words));
    QVERIFY2(words.contains("oben 5, unten 5, außen 5, innen 12 mm"), qPrintable(words));
    QVERIFY2(words.contains("3 mm, an der Innenkante keine"), qPrintable(words));

    twice.pages[1].barcode = PxBarcode(QRect(15, 20, 320, 110), 0, true, "b.png");
    QCOMPARE(attributesIn(drawn(twice), PxDrawnLayer::Legend, "data-key"), QStringList({"A", "B"}));

    twice.notes = {PxDrawnNote::SafeEmpty, PxDrawnNote::ItemOutside};
    drawing = drawn(twice);
    QCOMPARE(attributesIn(drawing, PxDrawnLayer::Legend, "data-note"),
             QStringList({"safe-empty", "item-outside"}));
}

void PxSheetAnnotationsTest::labelsPointAtWhatIsShown()
{
    const auto callouts = [](const PxDrawnSheet &sheet, PxDrawnLayers layers) {
        return attributesIn(drawn(sheet, layers), PxDrawnLayer::Labels, "data-item").join(' ');
    };
    QCOMPARE(callouts(cover(94), allLayers), "bleed bleed-area trim safe spine");
    QCOMPARE(callouts(spread(0), allLayers & ~PxDrawnLayers(PxDrawnLayer::Bleed)),
             "bleed-area trim safe");
    QCOMPARE(callouts(single({500, 500}), allLayers), "trim safe");
    PxDrawnSheet below = single({500, 500});
    below.pages[0].bleed = PxMargins(0, 30, 0, 0);
    QCOMPARE(callouts(below, allLayers), "trim safe bleed-area bleed");

    // A spine, and pages of up to 12 a, are too small to be written on.
    QCOMPARE(attributesIn(drawn(cover(94)), PxDrawnLayer::Labels, "data-page"),
             QStringList({"0", "2"}));
    QCOMPARE(attributesIn(drawn(single({120, 500})), PxDrawnLayer::Labels, "data-page").size(), 0);
    QCOMPARE(attributesIn(drawn(single({121, 500})), PxDrawnLayer::Labels, "data-page").size(), 1);
}

void PxSheetAnnotationsTest::titleBlockTellsWhatItIs()
{
    PxDrawnProduct book = product({cover(94), spread(0)});
    book.sheets[1].standsFor = {5, 6, 7, 8, 9, 10};
    book.paper = "Papier";
    const PxDrawing drawing = pxDraw(book, {1}, allLayers);
    QMap<QString, QString> fields;
    const auto &shapes = drawing.sheets[0].layers[std::size_t(indexOf(PxDrawnLayer::Title))];
    double barLength = 0;
    for (const PxDrawnShape &shape : shapes) {
        fields[attribute(shape, "data-field")] += shape.text;
        if (shape.className == "scale-bar")
            barLength = attribute(shape, "data-length").toDouble() / shape.rect.width();
    }
    QCOMPARE(fields["heading"], "Doppelseite, Seiten 5-10");
    QCOMPARE(fields["sheet"], "Blatt 2 von 2");
    QCOMPARE(fields["pages"], "5-10 von 31");
    QCOMPARE(fields["page-count"], "26 Seiten");
    QCOMPARE(fields["made"], "Hardcover, Papier");
    QCOMPARE(fields["file"], "products/book.xml");
    QCOMPARE(fields["scale"], "1:1");
    QVERIFY(!fields.contains("theme"));
    QVERIFY(fields["product"].endsWith("N…"));
    QCOMPARE(barLength, 4.0);
    QCOMPARE(drawing.sheets[0].title, "Doppelseite, Seiten 5-10");
    QCOMPARE(drawing.sheets[0].description,
             "Linke Seite (Seiten 5, 7, 9, 210 × 297 mm), Rechte Seite (Seiten 6, 8, 10, "
             "210 × 297 mm). Endformat 420 × 297 mm, Datenformat 426 × 303 mm. "
             "Sicherheitsabstand: oben 5, unten 5, außen 5, innen 12 mm.");
}

void PxSheetAnnotationsTest::canvasEndsCloseToTheMarks()
{
    const PxDrawingSheet plain = drawn(cover(94), templateLayers);
    const QRectF marks =
        PxShapeMaker::boundsOf(plain.layers[std::size_t(indexOf(PxDrawnLayer::Marks))]);
    QVERIFY(QRectF(plain.canvas).contains(marks));
    QVERIFY(marks.adjusted(-20, -20, 20, 20).contains(plain.canvas));
}

void PxSheetAnnotationsTest::textsOfFilesAreHarmless()
{
    QCOMPARE(PxDrawnWords::visible("a\r\nb\nc\u2028d\te\u202Ef\u0085g\uFEFFh\u200Bi"),
             "a b c d\uFFFDe\uFFFDf\uFFFDg\uFFFDh\uFFFDi");
    QString halves = "x";
    halves += QChar(0xDC00);
    halves += QChar(0xD83D);
    halves += QChar(0xDE00);
    halves += QChar(0xD83D);
    halves += QChar(0xFFFF); // no XML file may contain it
    QCOMPARE(PxDrawnWords::visible(halves), QString("x\uFFFD") + "😀" + "\uFFFD\uFFFD");

    PxDrawnProduct hostile = product({crowded(cover(94))});
    hostile.file = QString("%1\u202E%n").repeated(60);
    hostile.binding = "%2%1";
    const PxDrawing drawing = pxDraw(hostile, {0}, allLayers);
    QCOMPARE(faultOf(drawing.sheets[0], drawing.annotation), QString());
    for (const auto &layer : drawing.sheets[0].layers) {
        for (const PxDrawnShape &shape : layer)
            QVERIFY(!textIn(shape).contains(QChar(0x202E)));
    }
}

void PxSheetAnnotationsTest::numbersAreNotBroken_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("width");
    QTest::addColumn<QString>("lines");
    // A digit is 6.4 wide, "m" 9.8, a blank 3.2 and "…" 10.
    QTest::newRow("fits") << "210 mm" << 50.0 << "210 mm";
    QTest::newRow("unit stays") << "aaa 210 mm" << 50.0 << "aaa|210 mm";
    QTest::newRow("sign stays") << "12 aa × 97" << 48.0 << "12|aa × 97";
    QTest::newRow("path") << "images/barcode.png" << 50.0 << "images/|barcode.|png";
    QTest::newRow("no blank") << "aaaaaaaaaa" << 32.0 << "aaaaa|aaaaa";
    QTest::newRow("too long") << "aa aa aa aa aa" << 20.0 << "aa|aa|a…";
    QTest::newRow("number at the end") << "aa aa a12345 aa" << 40.0 << "aa aa|a12345|aa";
    QTest::newRow("shortened before a number") << "aaa aaa a12345 aa" << 26.0 << "aaa|aaa|a…";
    QTest::newRow("nothing fits") << "1234" << 1.0 << "1|2|…";
    QTest::newRow("pair") << "😀😀😀" << 21.0 << "😀|😀|😀";
}

void PxSheetAnnotationsTest::numbersAreNotBroken()
{
    QFETCH(QString, text);
    QFETCH(double, width);
    QFETCH(QString, lines);
    QCOMPARE(PxTextWidth::wrapped(text, width, 10).join('|'), lines);
}

void PxSheetAnnotationsTest::pagesAreCountedInRuns()
{
    QCOMPARE(PxDrawnWords::pageNumbers({5}), "5");
    QCOMPARE(PxDrawnWords::pageNumbers({0, 1, 2}), "0-2");
    QCOMPARE(PxDrawnWords::pageNumbers({1, 3}), "1, 3");
    QCOMPARE(PxDrawnWords::pageNumbers({5, 7, 9, 11, 27}), "5, 7 … 11, 27");
    QCOMPARE(PxDrawnWords::pageNumbers({0, 4, 5, 6, 9}), "0, 4-6, 9");
}

void PxSheetAnnotationsTest::speaksEnglish()
{
    QTranslator translator;
    Q_INIT_RESOURCE(pxtools);
    QVERIFY(translator.load(":/pxtools/pxtools_en.qm"));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const PxDrawingSheet drawing = drawn(cover(94));
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(drawing.title, "Cover, pages 0-2");
    QVERIFY(dimensions(drawing).contains("x 2160..2254 94 9.4"));
}

QTEST_GUILESS_MAIN(PxSheetAnnotationsTest)
#include "PxSheetAnnotationsTest.moc"
