#include <PxElement.h>
#include <PxRows.h>
#include <geometry/PxBarcodeList.h>
#include <geometry/PxProductionExtraPageGroupList.h>

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
    // In 32 bits the page count minus the smallest int would be -1.
    pxCheckAnswers(
        "page,count",
        "3,26=front 25,26=back 3,4=front 0,1=back 26,26=dummy-barcode.png 4,26= -1,2147483647=",
        [&list](const QList<int> &n) { return list.barcodeOnPage(n[0], n[1]).imageName(); });
    pxCheckAnswers("width,height", "1,1=true 0,1=false 1,0=false", [](const QList<int> &size) {
        return PxBarcode(QRect(5, 5, size[0], size[1]), 0, false, "").isValid();
    });
    QCOMPARE(pxShown(PxBarcode()), QString("PxBarcode(QRect(0,0 0x0), page 0, \"\")"));
}

void PxBarcodeListTest::readsExtraPages()
{
    const PxProductionExtraPageGroupList list(pxElement(
        "<extra_production_pages><item><target_pages>1,,3,x,3, -4 ,2147483648</target_pages>"
        "<pdf filename='a.pdf' type='insert' layer='2'/></item>"
        "<item><target_pages>1,3,3,-4</target_pages><pdf filename='b.pdf' layer='top'/></item>"
        "<item><pdf filename='a.pdf' type='insert' layer='2'/></item></extra_production_pages>"));
    QCOMPARE(list.size(), 3);
    QCOMPARE(list[0].targetPages(), QList<int>({1, 3, 3, -4}));
    QCOMPARE(list[2].targetPages(), QList<int>());
    QVERIFY(list[0].content() == PxProductionExtraPage("a.pdf", "insert", 2));
    QVERIFY(list[1].content() == PxProductionExtraPage("b.pdf", "", 0));
    QVERIFY(PxProductionExtraPage() == PxProductionExtraPage("", "", 0));

    pxCheckComparison("PxProductionExtraPage", "a;b;1 c;b;1 a;c;1 a;b;2", [](const QStringList &w) {
        return PxProductionExtraPage(w[0], w[1], w[2].toInt());
    });
    pxCheckComparison("PxProductionExtraPageGroup", "0 1 2",
                      [&list](const QList<int> &number) { return list[number[0]]; });
}

QTEST_GUILESS_MAIN(PxBarcodeListTest)
#include "PxBarcodeListTest.moc"
