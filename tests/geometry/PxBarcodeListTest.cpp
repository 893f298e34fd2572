#include <PxElement.h>
#include <geometry/PxBarcodeList.h>
#include <geometry/PxProductionExtraPageGroupList.h>

#include <QTest>

class PxBarcodeListTest : public QObject
{
    Q_OBJECT

private slots:
    void findsTheFirstOnThePage();
    void readsExtraPages();
};

void PxBarcodeListTest::findsTheFirstOnThePage()
{
    const PxBarcodeList list(pxElement(
        "<barcodes><barcode image='front' pageNr='3' x='1' y='2' width='3' height='4'/>"
        "<barcode image='back' pageNr='1' reverseOrder='true'/><barcode reverseOrder='true'/>"
        "<barcode image='far' pageNr='-2147483648' reverseOrder='true'/></barcodes>"));
    QCOMPARE(list.barcodeOnPage(3, 26).rect(), QRect(1, 2, 3, 4));
    QVERIFY(list.barcodeOnPage(3, 26).isValid() && !list.barcodeOnPage(25, 26).isValid());
    QCOMPARE(list.barcodeOnPage(25, 26).imageName(), QString("back"));
    QCOMPARE(list.barcodeOnPage(3, 4).imageName(), QString("front"));
    QCOMPARE(list.barcodeOnPage(0, 1).imageName(), QString("back"));
    QCOMPARE(list.barcodeOnPage(26, 26).imageName(), QString("dummy-barcode.png"));
    QCOMPARE(list.barcodeOnPage(4, 26).imageName(), QString());
    // In 32 bits the page count minus the smallest int would be -1.
    QCOMPARE(list.barcodeOnPage(-1, 2147483647).imageName(), QString());
}

void PxBarcodeListTest::readsExtraPages()
{
    const PxProductionExtraPageGroupList list(pxElement(
        "<extra_production_pages><item><target_pages>1,,3,x,3, -4 ,2147483648</target_pages>"
        "<pdf filename='a.pdf' type='insert' layer='2'/></item>"
        "<item><pdf filename='b.pdf' layer='top'/></item></extra_production_pages>"));
    QCOMPARE(list.size(), 2);
    QCOMPARE(list[0].targetPages(), QList<int>({1, 3, 3, -4}));
    QVERIFY(list[0].content() == PxProductionExtraPage("a.pdf", "insert", 2));
    QCOMPARE(list[1].targetPages(), QList<int>());
    QVERIFY(list[1].content() == PxProductionExtraPage("b.pdf", "", 0));
}

QTEST_GUILESS_MAIN(PxBarcodeListTest)
#include "PxBarcodeListTest.moc"
