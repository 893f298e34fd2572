#include <PxDirectoryConfig.h>
#include <PxElement.h>
#include <PxRows.h>
#include <classification/PxProductClassificationManager.h>

class PxProductClassificationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void readsTheProduct();
    void measuresTheArea();
    void answersInListOrder();
    void findsTheClosestProduct();
};

/** From "name group cm inch width height". */
static PxProductClassification product(const QString &words)
{
    const QStringList w = words.split(' ');
    const QString xml("<product name='%1'><classification group='%2' cm='%3' inch='%4'/>"
                      "<usablesize width='%5' height='%6'/></product>");
    return PxProductClassification(pxElement(xml.arg(w[0], w[1], w[2], w[3], w[4], w[5])));
}

// BOOK_MINI is classified twice: mostly its first entry counts, but for its area the last.
static PxProductClassificationManager manager()
{
    return PxProductClassificationManager(
        {product("BOOK_MINI Poster 20x30 8x12 2 900"),
         product("BOOK_XXL_PORTRAIT Leinwand 20x30 8x12 2 500"),
         product("BOOK_XL_SQUARE Poster 30x20 8x12 2 200"),
         product("BOOK_FOIL_SMALL Poster 20x30 12x8 2 400"),
         product("BOOK_MINI Leinwand 40x40 16x16 2 300"),
         product("BOOK_COMPACT Riese 9x9 4x4 40000 25000"),
         product("BOOK_A4_LANDSCAPE Zwerg 1x1 2x2 -2147483648 1")});
}

void PxProductClassificationTest::initTestCase()
{
    PxDirectoryConfig::instance()->setResourceDirectories({PX_SAMPLE_DIRECTORY});
}

void PxProductClassificationTest::readsTheProduct()
{
    const PxProductClassification read = product("book_xl_square Leinwand 20x30 8x12 20 30");
    QCOMPARE(int(read.productType().type()), 107);
    QCOMPARE(read.sizeNameWithUnit(true), QString("20x30 cm"));
    QCOMPARE(read.sizeNameWithUnit(false), QString("8x12 in"));
    QCOMPARE(pxShown(read).section(", ", -1), QString("\"20x30\" cm)"));
    QVERIFY(!product("BOOK_OF_NOBODY Leinwand 20x30 8x12 20 30").isValid());
}

void PxProductClassificationTest::measuresTheArea()
{
    pxCheckAnswers(
        "width,height",
        "20,30=600 200,=0 ,300=0 20.5,300=0 2147483647,2147483647=2147483647 "
        "-2147483648,2147483647=-2147483648",
        [](QString size) { return product("n g c i " + size.replace(',', ' ')).areaSize(); });
    QCOMPARE(PxProductClassification().areaSize(), 0);
}

void PxProductClassificationTest::answersInListOrder()
{
    const PxProductClassificationManager all = manager();
    const PxProductMaterial poster("Poster");
    QCOMPARE(all.materials(),
             QList<PxProductMaterial>({poster, PxProductMaterial("Leinwand"),
                                       PxProductMaterial("Riese"), PxProductMaterial("Zwerg")}));
    QCOMPARE(all.sizes(poster, true), QStringList({"20x30", "30x20"}));
    QCOMPARE(all.type(poster, "20x30", true).productName(), QString("BOOK_MINI"));
    QCOMPARE(all.type(poster, "12x8", false).productName(), QString("BOOK_FOIL_SMALL"));
    QCOMPARE(int(all.type(poster, "40x40", true).type()), 0);
    QCOMPARE(all.size(PxProductType("BOOK_MINI"), true), QString("20x30"));
    QVERIFY(all.material(PxProductType("CARD_POSTCARD")) == PxProductMaterial());
}

void PxProductClassificationTest::findsTheClosestProduct()
{
    // The first of two; a product can be the closest to itself; one without an entry has no area.
    // What is a thousand million or more away is not close.
    pxCheckAnswers("product;material",
                   "BOOK_MINI;Poster=107 BOOK_XL_SQUARE;Poster=107 BOOK_FOIL_SMALL;Leinwand=108 "
                   "CARD_POSTCARD;Poster=107 BOOK_MINI;poster=0 BOOK_MINI;Riese=111 "
                   "CARD_POSTCARD;Riese=0 BOOK_COMPACT;Zwerg=0",
                   [](const QStringList &asked) {
                       return int(manager().closestProduct(asked[0], asked[1]).type());
                   });
}

QTEST_GUILESS_MAIN(PxProductClassificationTest)
#include "PxProductClassificationTest.moc"
