#include <PxElement.h>
#include <geometry/PxSurroundingDescriptionList.h>

#include <QTest>

class PxSurroundingsTest : public QObject
{
    Q_OBJECT

private slots:
    void readsAttributes();
    void frameIsForEveryPage();
    void findsTheFirstSuitable();
    void isLessByAnyField();
};

static PxSurroundingDescription surrounding(const QString &attributes)
{
    return PxSurroundingDescription(pxElement("<surrounding " + attributes + "/>"));
}

void PxSurroundingsTest::readsAttributes()
{
    const PxSurroundingDescription read = surrounding(
        "type=' calendar ' pageType='spine,fullcover' alignment='Top, right' pageNr='3' "
        "paintOnTop='no' hasbindingshade='yes' image='rim.png' x='4' y='5' width='6' height='7'");
    QCOMPARE(read.surroundingType(), PxSurroundingTypeCalendar);
    QCOMPARE(int(read.pageTypes().value()), 0x41);
    QCOMPARE(int(read.alignments()), 18);
    QCOMPARE(read.pageNr(), 3);
    QVERIFY(!read.paintOnTop() && read.hasBindingShade());
    QCOMPARE(read.image(), QString("rim.png"));
    QCOMPARE(read.imageRect(), QRect(4, 5, 6, 7));
    QVERIFY(surrounding("") ==
            surrounding("type='book' pageType='all' pageNr='-1' alignment='top,"
                        "bottom,left,right,center,middle' hasbindingshade='no'"));
    QVERIFY(surrounding("").paintOnTop());
    QVERIFY(!surrounding("type='fog'").isValid());
    QCOMPARE(int(surrounding("alignment='bottom,askew'").alignments()), 33);
}

void PxSurroundingsTest::frameIsForEveryPage()
{
    const auto frame = surrounding("type='frame' pageNr='3' alignment='left' pageType='spine'");
    QCOMPARE(frame.pageNr(), -1);
    QCOMPARE(int(frame.alignments()), 127);
    QCOMPARE(int(frame.pageTypes().value()), 69503);
}

void PxSurroundingsTest::findsTheFirstSuitable()
{
    const PxSurroundingDescriptionList list(
        pxElement("<product><surroundings>"
                  "<surrounding image='pinned' pageNr='7' pageType='normal' alignment='top'/>"
                  "<surrounding image='first' pageType='normal'/>"
                  "<surrounding image='next' pageType='normal'/></surroundings><surroundings>"
                  "<surrounding image='cover' pageType='fullcover'/></surroundings></product>"));
    const auto find = [&list](PxPageTypeEnum pageType, int page) {
        const PxPageContext context(pageType, PxPageAlignmentRight);
        return list.findDescription(PxSurroundingKey(context, page)).image();
    };
    QCOMPARE(find(PxPageTypeEmptyPage, 7), QString("pinned")); // whatever its type
    QCOMPARE(find(PxPageTypeNormalPage, 8), QString("first"));
    QCOMPARE(find(PxPageTypeEmptyPage, -1), QString("first")); // -1 is equal to -1
    QCOMPARE(find(PxPageTypeFullCover, 8), QString("cover"));
    QCOMPARE(find(PxPageTypeEmptyPage, 8), QString());
    QVERIFY(!PxSurroundingDescriptionList().findDescription(PxSurroundingKey()).isValid());
}

void PxSurroundingsTest::isLessByAnyField()
{
    // clang-format off
    const QStringList fields{
        "type='book'|type='gift'", "pageType='spine'|pageType='leather'",
        "alignment='left'|alignment='top'", "pageNr='1'|pageNr='2'", "paintOnTop='0'|paintOnTop='1'",
        "width='5' height='6' y='1'|width='5' height='5' y='2'",
        "width='6' height='5' x='1'|width='5' height='5' x='2'",
        "width='5' height='5'|width='5' height='6'", "width='5' height='5'|width='6' height='5'",
        "hasbindingshade='0'|hasbindingshade='1'", "image='a'|image='b'"};
    // clang-format on
    for (const QString &field : fields) {
        const PxSurroundingDescription lesser = surrounding(field.section('|', 0, 0));
        const PxSurroundingDescription greater = surrounding(field.section('|', 1));
        QVERIFY2(lesser < greater && !(greater < lesser) && lesser != greater, qPrintable(field));
    }
    QVERIFY(surrounding("type='book' image='b'") < surrounding("type='gift' image='a'"));
    QVERIFY(surrounding("type='gift' image='a'") < surrounding("type='book' image='b'"));
}

QTEST_GUILESS_MAIN(PxSurroundingsTest)
#include "PxSurroundingsTest.moc"
