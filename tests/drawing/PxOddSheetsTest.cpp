#include "PxFoundShapes.h"

#include "drawing/PxDrawnProductReader.h"
#include "drawing/PxPlacedItem.h"
#include "drawing/PxProductFile.h"

#include <PxCatalogueDirectory.h>
#include <PxProductProperties.h>

#include <QElapsedTimer>
#include <QTest>

namespace {

/** The notes in the order of the enumeration, with the names by which they are written. */
const char *const noteNames[] = {
    "count-unknown",    "bleed-negative",  "bleed-one-sided", "safe-empty", "spine-zero",
    "heights-differ",   "margin-too-wide", "item-outside",    "item-cut",   "item-empty",
    "spiral-shortened", "vertical-spine",  "theme-invalid",   "theme-logo",
};

/** The product element and what is expected: notes of the sheets, separated by "|", or a problem.
 */
struct Odd
{
    const char *name;
    const char *attributes;
    const char *content;
    const char *expected;
};

#define SIZE "<usablesize width='1000' height='800'/>"
#define SPREADS "<pages>fullcover,spine,fullcover,normalpages</pages>"
#define SPINE(more) "<spines><spine pages='2' " more "/></spines>"
#define BARCODE(place) "<barcodes><barcode pageNr='0' " place "/></barcodes>"

// A name begins with the class of the product. Spines, and covers with them, are 20 wider and 10
// narrower than in the file.
const Odd oddProducts[] = {
    {"gift_plain", "", SIZE, ""},
    {"gift_no_width", "", "<usablesize height='800'/>", "has no size: page 0 is -1 x 800"},
    {"gift_no_height", "", "<usablesize width='800' height='0'/>",
     "has no size: page 0 is 800 x 0"},
    {"book_no_cover", "coverextrahorizontal='-990'", SIZE SPREADS SPINE("width='1'"),
     "has no size: page 0 is 0 x 800"},
    {"gift_largest", "bleedmargin='1000000'", "<usablesize width='1000000' height='1000000'/>", ""},
    {"gift_too_wide", "", "<usablesize width='1000001' height='9'/>",
     "is too large to draw: page 0 has a length of 100000.1 mm"},
    {"gift_int_range", "bleedmargin='2147483647'",
     "<usablesize width='2147483647' height='2147483647'/>",
     "is too large to draw: page 0 has a length of 214748364.7 mm"},
    {"gift_bleed_too_wide", "bleedmarginvertical='-1000001'", SIZE,
     "is too large to draw: page 0 has a length of -100000.1 mm"},
    {"book_spine_too_wide", "", SIZE SPREADS SPINE("width='2147483647'"),
     "is too large to draw: page 1 has a length of 214748364.7 mm"},
    {"book_text_too_high", "", SIZE SPREADS SPINE("width='9' maxfontheight='1000001'"),
     "is too large to draw: page 1 has a length of 100000.1 mm"},
    {"book_sold_with_3", "defaultSellingPages='3'", SIZE SPREADS SPINE("width='9'"),
     "is not offered with 3 pages, the nearest is 2"},
    {"book_without_counts", "", SIZE "<pages>fullcover,fullcover,normalpages</pages>",
     "count-unknown|"},
    {"gift_negative_bleed", "bleedmargin='-30'", SIZE, "bleed-negative"},
    {"gift_inverted_bleed", "bleedmargin='-600'", SIZE, "bleed-negative"},
    {"gift_one_sided", "bleedmargin='30' numOfNormalPages='2'", SIZE "<pages>normalpages</pages>",
     "bleed-one-sided|bleed-one-sided"},
    {"gift_of_spiral", "bleedmargin='30' numOfNormalPages='2' numOfSpirals='3'",
     SIZE "<pages>normalpages</pages>", "|"},
    {"card_cut_singly", "bleedmargin='30' numOfNormalPages='2' cardStyleAlignment='1'",
     SIZE "<pages>normalpages</pages>", "|"},
    {"gift_safe", "safetymargin='399'", SIZE, ""},
    {"gift_unsafe", "safetymargin='400'", SIZE, "safe-empty"},
    {"gift_far_from_safe", "safetymargin='2147483647'", SIZE, "safe-empty"},
    {"gift_negative_safety", "safetymargin='-50'", SIZE, ""},
    {"book_of_no_spine", "bleedmargincover='30'", SIZE SPREADS SPINE("width='0'"), "spine-zero|"},
    {"book_of_negative_spine", "", SIZE SPREADS SPINE("width='-50' maxfontheight='8'"),
     "spine-zero item-outside|"},
    {"book_of_high_text", "", SIZE SPREADS SPINE("width='10' maxfontheight='31'"), "item-outside|"},
    {"book_of_fitting_text", "", SIZE SPREADS SPINE("width='10' maxfontheight='30'"), "|"},
    {"book_of_low_covers", "coverextravertical='61' bleedmargincover='10'",
     SIZE "<pages>foilcover,spine,foilcover,normalpages</pages>" SPINE("width='9'"),
     "heights-differ|"},
    {"gift_fold", "foldmargin='999'", SIZE, ""},
    {"gift_wide_fold", "foldmargin='1000'", SIZE, "margin-too-wide"},
    {"gift_endless_clamp", "normalpagehorizontalclamp='2147483647'", SIZE, "margin-too-wide"},
    {"gift_negative_margins", "foldmargin='-5' normalpagehorizontalclamp='-2147483648'", SIZE, ""},
    {"gift_of_low_page", "horizontalPages='0' foldmargin='900'", SIZE, "margin-too-wide"},
    {"gift_barcode_at_edge", "bleedmargin='30'",
     SIZE BARCODE("x='-30' y='-30' width='1060' height='860'"), ""},
    {"gift_barcode_outside", "bleedmargin='30'",
     SIZE BARCODE("x='-31' y='0' width='100' height='50'"), "item-outside"},
    {"gift_barcode_farther", "bleedmargin='30'",
     SIZE BARCODE("x='1900' y='0' width='500' height='50'"), "item-outside item-cut"},
    {"gift_barcode_elsewhere", "", SIZE BARCODE("x='-2147483648' y='0' width='9' height='50'"),
     "item-outside item-cut"},
    {"gift_barcode_nowhere", "", SIZE BARCODE("x='9' y='9' width='0' height='50'"), "item-empty"},
    {"gift_surroundings", "",
     SIZE
     "<surroundings><surrounding type='GIFT' pageType='normalpage' image='a.png'/></surroundings>",
     "item-empty"},
    {"book_of_far_numbers", "",
     SIZE "<pages>normalpages</pages><pageNumberConfig><margin verticalMargin='9' "
          "horizontalMargin='-2147483648'/></pageNumberConfig>" SPINE("width='9'"),
     "item-outside item-cut"},
    {"gift_spiral", "numOfSpirals='101'", SIZE, "spiral-shortened"},
    {"gift_negative_spiral", "numOfSpirals='-3'", SIZE, ""},
    {"book_of_vertical_pages", "horizontalPages='0' bleedmargin='30' bleedmargincover='30'",
     SIZE SPREADS SPINE("width='9'"), "vertical-spine||||"},
    {"book_of_one_page", "bleedmargin='30'",
     SIZE "<pages>normalpages</pages><spines><spine pages='1'/></spines>", ""},
    // Pages that cannot make a sheet together: one by one.
    {"book_of_one_cover", "", SIZE "<pages>fullcover,normalpages</pages>" SPINE("width='9'"), "||"},
    {"book_of_half_cover", "", SIZE "<pages>fullcover,spine,normalpages</pages>" SPINE("width='9'"),
     "|||"},
    {"book_with_bleed_at_joints", "bleedmargincover='30'",
     SIZE SPREADS "<spines><spine pages='1' width='9'/></spines>", "|||"},
    {"book_with_barcodes", "",
     SIZE "<pages>normalpages</pages>"
          "<spines><spine pages='8'/></spines>"
          "<barcodes><barcode pageNr='0' x='1' y='1' width='9' height='9'/>"
          "<barcode pageNr='2' x='1' y='1' width='9' height='9'/>"
          "<barcode pageNr='4' reverseOrder='1' x='1' y='1' width='9' height='9'/></barcodes>",
     "||"},
    {"gift_long_name", "", SIZE BARCODE("x='9' y='9' width='9' height='9' image='%LONG%'"),
     "is too large to draw: it has a name of 4097 characters"},
};

PxDrawnProduct read(
    const QString &name, int pageCount = 0,
    const PxProductTypeConfigRegistry *registry = PxProductTypeConfigRegistry::instance())
{
    return PxDrawnProductReader(registry).read(PxProductType(name), pageCount, QString());
}

PxDrawnSheet firstSheet(const char *name)
{
    return read(name).sheets.value(0);
}

QByteArray productFile(const QByteArray &name, const QByteArray &attributes,
                       const QByteArray &content)
{
    return "<p><product binding='HARDCOVER' name='" + name + "' " + attributes + ">" + content +
           "</product></p>";
}

} // namespace

/** Products that a drawing has to say something about, or cannot show at all. */
class PxOddSheetsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void saysWhatIsOdd_data();
    void saysWhatIsOdd();
    void negativeBleedLiesInside();
    void spineWithoutWidthHasOneEdge();
    void centresPagesOfDifferentHeight();
    void marginsStayOnThePage();
    void cutsWhatIsFarAway();
    void drawsSpiralsOfAnyLength();
    void usesOneLetterForTheSame();
    void readsTheLaterOfTwoFiles();
    void endsQuickly();

private:
    PxCatalogueDirectory m_catalogue;
};

void PxOddSheetsTest::initTestCase()
{
    QByteArray types;
    int code = 0;
    const auto add = [&](const QByteArray &name, const QByteArray &xml, const char *folder = "") {
        types +=
            QByteArray::number(++code) + ' ' + name.left(name.indexOf('_')) + ' ' + name + '\n';
        m_catalogue.write("products/" + QByteArray(folder) + name + ".xml", xml);
    };
    for (const Odd &odd : oddProducts)
        add(odd.name,
            productFile(odd.name, odd.attributes,
                        QByteArray(odd.content).replace("%LONG%", QByteArray(4097, 'x'))));

    add("book_letters",
        productFile(
            "book_letters", "",
            SIZE SPREADS SPINE("width='9'") BARCODE(
                "x='9' y='9' width='9' height='9'") "<surroundings>"
                                                    "<surrounding type='BOOK' pageType='fullcover' "
                                                    "alignment='left,right' "
                                                    "paintOnTop='0' x='0' y='0' width='50' "
                                                    "height='50' image='a.png'/>"
                                                    "<surrounding type='BOOK' pageType='spine' "
                                                    "alignment='middle' x='0' y='0' "
                                                    "width='9' height='9' "
                                                    "image='a.png'/></surroundings>"));
    // Apart from the others, as they take their time.
    const QByteArray pages = SIZE "<pages>normalpages</pages>";
    const auto addHostile = [&](const QByteArray &name, const QByteArray &attributes,
                                const QByteArray &content) {
        add(name, productFile(name, attributes, content), "legacy/");
    };
    for (const QByteArray &image : {QByteArray("equal"), QByteArray("different")}) {
        QByteArray many;
        for (int page = 0; page < 45000; ++page) {
            const QByteArray number = QByteArray::number(page);
            many += "<surrounding type='GIFT' pageNr='" + number + "' image='" +
                    (image == "equal" ? image : number) + "'/>";
        }
        addHostile("gift_of_" + image, "numOfNormalPages='99999'",
                   pages + "<surroundings>" + many + "</surroundings>");
    }
    addHostile("gift_of_endless_pages", "numOfNormalPages='2147483647'", pages);
    addHostile("book_of_many_lists", "defaultSellingPages='2147483647'",
               SIZE "<pages>" + QByteArray("normalpages,").repeated(1000) + "</pages>");
    m_catalogue.writeProductTypes(types);
}

void PxOddSheetsTest::saysWhatIsOdd_data()
{
    QTest::addColumn<QString>("expected");
    for (const Odd &odd : oddProducts)
        QTest::newRow(odd.name) << QString(odd.expected);
}

void PxOddSheetsTest::saysWhatIsOdd()
{
    QFETCH(const QString, expected);
    const QString name = QTest::currentDataTag();
    const PxDrawnProduct drawn = read(name);
    QStringList notesOfSheets;
    for (const PxDrawnSheet &sheet : drawn.sheets) {
        QStringList notes;
        for (const PxDrawnNote note : sheet.notes)
            notes.append(noteNames[int(note)]);
        notesOfSheets.append(notes.join(' '));
    }
    if (drawn.problem.isEmpty())
        QCOMPARE(notesOfSheets.join('|'), expected);
    else
        QCOMPARE(drawn.problem, name + ' ' + expected);
    QCOMPARE(drawn.problem.isEmpty(), !drawn.sheets.isEmpty());
    for (const PxDrawnSheet &sheet : drawn.sheets) {
        // Whatever is drawn lies near the sheet, even if it is far away in the file.
        const double width = sheet.total.width() + 100;
        const double height = sheet.total.height() + 100;
        const QRectF near = QRectF(sheet.total).adjusted(-width, -height, width, height);
        for (const char *shape : {"paper", "barcode", "surrounding", "spine-text", "page-number",
                                  "safe", "fold-margin", "clamp", "spiral", "total"}) {
            for (const PxFoundShape &found : pxFindShapes(sheet, shape)) {
                const QRectF rect = found.rect;
                QVERIFY2(near.left() <= rect.left() && rect.left() <= rect.right() &&
                             rect.right() <= near.right() && near.top() <= rect.top() &&
                             rect.top() <= rect.bottom() && rect.bottom() <= near.bottom(),
                         shape);
            }
        }
        QVERIFY(pxCountPoints(sheet) < 20000);
    }
}

void PxOddSheetsTest::negativeBleedLiesInside()
{
    const PxDrawnSheet sheet = firstSheet("gift_negative_bleed");
    QCOMPARE(sheet.total, sheet.trim);
    QCOMPARE(pxFindShapes(sheet, "total")[0].rect, QRectF(30, 30, 940, 740));
    QCOMPARE(pxFindShapes(sheet, "bleed-edge")[0].rect, QRectF(30, 30, 940, 740));
    QCOMPARE(pxFindShapes(sheet, "bleed-area").size(), 0);
    QCOMPARE(pxFindShapes(sheet, "hatch").size(), 0);
    const PxDrawnSheet inverted = firstSheet("gift_inverted_bleed");
    QCOMPARE(inverted.total, inverted.trim);
    QCOMPARE(pxFindShapes(inverted, "bleed-edge").size(), 0);
    QCOMPARE(pxFindShapes(firstSheet("gift_plain"), "bleed-edge").size(), 0);
}

void PxOddSheetsTest::spineWithoutWidthHasOneEdge()
{
    const PxDrawnSheet sheet = firstSheet("book_of_no_spine");
    QCOMPARE(sheet.pages.size(), 3);
    QCOMPARE(sheet.trim, QRect(0, 0, 2000, 800));
    const auto edges = pxFindShapes(sheet, "spine-edge");
    QCOMPARE(edges.size(), 1);
    QCOMPARE(edges[0].rect, QRectF(1000, -30, 0, 860));
    QCOMPARE(pxFindShapes(sheet, "spine-area").size(), 0);
    QCOMPARE(pxFindShapes(sheet, "fold").size(), 0);
    const auto marks = pxFindShapes(sheet, "fold-marks");
    QCOMPARE(marks[0].shape.steps.size(), 4);
    QCOMPARE(marks[0].rect.x(), 1000.0);
    const PxDrawnSheet negative = firstSheet("book_of_negative_spine");
    QCOMPARE(negative.trim, QRect(0, 0, 2000, 800));
    QCOMPARE(pxFindShapes(negative, "spine-text")[0].rect, QRectF(996, 0, 8, 800));
}

void PxOddSheetsTest::centresPagesOfDifferentHeight()
{
    const PxDrawnSheet sheet = firstSheet("book_of_low_covers");
    QCOMPARE(sheet.pages[0].trim, QRect(0, 30, 1000, 800));
    QCOMPARE(sheet.pages[1].trim, QRect(1000, 0, 29, 861));
    QCOMPARE(sheet.pages[2].trim, QRect(1029, 30, 1000, 800));
    QCOMPARE(sheet.total, QRect(-10, -10, 2049, 881));
    // The cut goes round all three in one line.
    QString points;
    const auto cut = pxFindShapes(sheet, "cut");
    for (const PxDrawnStep &step : cut[0].shape.steps) {
        if (step.kind == PxDrawnStep::Line)
            points += QString("%1,%2 ").arg(step.to.x()).arg(step.to.y());
    }
    QCOMPARE(points, QString("1000,30 1000,0 1029,0 1029,30 2029,30 2029,830 1029,830 1029,861 "
                             "1000,861 1000,830 0,830 "));
}

void PxOddSheetsTest::marginsStayOnThePage()
{
    const QRectF page(0, 0, 1000, 800);
    const auto fold = pxFindShapes(firstSheet("gift_wide_fold"), "fold-margin");
    QCOMPARE(fold[0].rect, page);
    const auto clamp = pxFindShapes(firstSheet("gift_endless_clamp"), "clamp");
    QCOMPARE(clamp[0].rect, page);
    QCOMPARE(clamp[0].attribute("data-width"), QString("2147483647"));
    QCOMPARE(pxFindShapes(firstSheet("gift_fold"), "fold-margin")[0].rect,
             page.adjusted(1, 0, 0, 0));
    const PxDrawnSheet none = firstSheet("gift_negative_margins");
    QCOMPARE(pxFindShapes(none, "fold-margin").size() + pxFindShapes(none, "clamp").size(), 0);
    for (const char *name :
         {"gift_unsafe", "gift_far_from_safe", "gift_negative_safety", "gift_plain"})
        QCOMPARE(pxFindShapes(firstSheet(name), "safe").size(), 0);
    QCOMPARE(pxFindShapes(firstSheet("gift_safe"), "safe")[0].rect, QRectF(399, 399, 202, 2));
}

void PxOddSheetsTest::cutsWhatIsFarAway()
{
    const auto barcode = [](const char *name) { return pxFindShapes(firstSheet(name), "barcode"); };
    const auto outside = barcode("gift_barcode_outside");
    QCOMPARE(outside[0].rect, QRectF(-31, 0, 100, 50));
    QCOMPARE(outside[0].attribute("data-rect"), QString());
    // The sheet is 1060 wide with its bleed, and ends at 1030.
    const auto cut = barcode("gift_barcode_farther");
    QCOMPARE(cut[0].rect, QRectF(1900, 0, 190, 50));
    QCOMPARE(cut[0].attribute("data-rect"), QString("1900 0 500 50"));
    // Of what lies elsewhere only the place is told.
    const auto elsewhere = barcode("gift_barcode_elsewhere");
    QCOMPARE(elsewhere.size(), 1);
    QVERIFY(elsewhere[0].rect.isEmpty() && !elsewhere[0].attribute("data-rect").isEmpty());
    QCOMPARE(barcode("gift_barcode_nowhere").size(), 0);
    const auto numbers = pxFindShapes(firstSheet("book_of_far_numbers"), "page-number");
    QVERIFY(!numbers.isEmpty() && numbers[0].attribute("data-position").size() > 10);
}

void PxOddSheetsTest::drawsSpiralsOfAnyLength()
{
    QCOMPARE(firstSheet("gift_negative_spiral").spiralLoops, 0);
    const auto spiral = pxFindShapes(firstSheet("gift_spiral"), "spiral");
    QCOMPARE(spiral[0].attribute("data-loops"), QString("100"));
    QCOMPARE(spiral[0].shape.steps.size(), 200);
}

void PxOddSheetsTest::usesOneLetterForTheSame()
{
    // The surrounding of the covers lies below the content, and so comes behind that of the spine.
    QStringList letters;
    for (const PxPlacedItem &item : pxPlacedItems(firstSheet("book_letters")))
        letters.append(QString("%1%2").arg(item.page).arg(item.key));
    QCOMPARE(letters.join(' '), QString("1A 0B 2B 0C"));
}

void PxOddSheetsTest::readsTheLaterOfTwoFiles()
{
    const PxProductType type("gift_plain");
    // The files of a directory are those that it has when the first of them is asked for.
    m_catalogue.write("products/legacy/older.xml", productFile(" GIFT_plain ", "", SIZE));
    m_catalogue.write("products/legacy/broken.xml", "<p><product name='gift_plain'>");
    QCOMPARE(PxProductFile::pathOf(type, false), QString("products/gift_plain.xml"));
    QCOMPARE(PxProductFile::pathOf(type, true), QString("products/legacy/older.xml"));
    QCOMPARE(PxProductFile::pathOf(PxProductType("book_letters"), true), QString());
    QCOMPARE(PxProductFile::pathOf(PxProductType(), true), QString());
}

void PxOddSheetsTest::endsQuickly()
{
    const auto *legacy = PxProductTypeConfigRegistry::legacyInstance();
    QElapsedTimer timer;
    timer.start();
    const PxDrawnProduct equal = read("gift_of_equal", 0, legacy);
    QCOMPARE(equal.problem, QString());
    QCOMPARE(equal.listedPages, 99999);
    QCOMPARE(equal.sheets.size(), 4); // left and right, with and without a surrounding
    QCOMPARE(read("gift_of_different", 0, legacy).problem,
             QString("gift_of_different is too large to draw: it has more than 1000 different "
                     "sheets"));
    // The library ends a list of pages there, and so a drawing would be of another product.
    const QString tooManyPages = " is too large to draw: it has 100000 pages or more";
    for (const char *name : {"gift_of_endless_pages", "book_of_many_lists"})
        QCOMPARE(read(name, name[0] == 'g' ? 2147483647 : 0, legacy).problem, name + tooManyPages);
    QVERIFY2(timer.elapsed() < 20000, "a second, without sanitizers");
}

QTEST_GUILESS_MAIN(PxOddSheetsTest)
#include "PxOddSheetsTest.moc"
