#include <PxElement.h>
#include <PxLogRecorder.h>
#include <PxRows.h>
#include <geometry/PxDefaultTemplateMap.h>
#include <geometry/PxSurroundingDescriptionList.h>

class PxSurroundingsTest : public QObject
{
    Q_OBJECT

private slots:
    void readsAttributes();
    void frameIsForEveryPage();
    void findsTheFirstSuitable();
    void comparesEveryField();
    void limitsMessagesOfAllElements();
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
    QCOMPARE(pxShown(read), QString("PxSurroundingDescription(type 8, spine, fullcover(65), "
                                    "alignments 18, page 3, \"rim.png\", QRect(4,5 6x7))"));
    QVERIFY(!read.paintOnTop());
    QVERIFY(read.hasBindingShade());
    QVERIFY(surrounding("") ==
            surrounding("type='book' pageType='all' pageNr='-1' alignment='top,"
                        "bottom,left,right,center,middle' hasbindingshade='no'"));
    QVERIFY(surrounding("").paintOnTop());
    QVERIFY(surrounding("").isValid());
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
    // A pinned one is for its page, whatever its type; -1 is equal to -1.
    pxCheckAnswers("page type;page",
                   "emptypage;7=pinned normal;8=first emptypage;-1=first normal,spine;8=first "
                   "fullcover;8=cover emptypage;8=",
                   [&list](const QStringList &page) {
                       const PxPageContext context(page[0], PxPageAlignmentRight);
                       const PxSurroundingKey key(context, page[1].toInt());
                       return list.findDescription(key).image();
                   });
    QVERIFY(!PxSurroundingDescriptionList().findDescription(PxSurroundingKey()).isValid());
}

void PxSurroundingsTest::comparesEveryField()
{
    const auto with = [](const QString &changes) {
        QDomElement e = pxElement("<s type='book' pageType='spine' alignment='left' pageNr='1' "
                                  "paintOnTop='0' x='1' y='1' width='5' height='5' image='a'/>");
        for (const QString &change : changes.split(','))
            e.setAttribute(change.section(':', 0, 0), change.section(':', 1));
        return PxSurroundingDescription(e);
    };
    pxCheckComparison("PxSurroundingDescription",
                      "image:a image:b type:gift pageType:leather alignment:top pageNr:2 "
                      "paintOnTop:1 y:2,height:4 x:2,width:4 height:6 width:6 hasbindingshade:1",
                      with);
    // Not a strict order: each of them is less than the other.
    QVERIFY(with("image:b") < with("type:gift"));
    QVERIFY(with("type:gift") < with("image:b"));
    const PxSurroundingDescription none;
    QCOMPARE(none.pageNr(), -1);
    QVERIFY(none.paintOnTop());
    QVERIFY(!none.hasBindingShade());
}

void PxSurroundingsTest::limitsMessagesOfAllElements()
{
    const QString xml("<p><surroundings><surrounding %1/><surrounding %1/></surroundings>"
                      "<defaults %1/><defaults %1/></p>"); // of each two with 51 words
    const QDomElement product =
        pxElement(xml.arg("pageType='x" + QString(",x").repeated(50) + "'"));
    const QStringList last("undecodable: (using default in  14PxPageTypeEnum ) 2 more");
    const PxLogRecorder log;
    const PxSurroundingDescriptionList surroundings(product);
    QCOMPARE(log.texts().mid(100), last);
    const PxDefaultTemplateMap defaults(product);
    QCOMPARE(log.texts().mid(201), last);
}

QTEST_GUILESS_MAIN(PxSurroundingsTest)
#include "PxSurroundingsTest.moc"
