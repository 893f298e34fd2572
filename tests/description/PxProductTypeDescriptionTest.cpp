#include "PxCatalogueDirectory.h"
#include "PxElement.h"
#include "PxLogRecorder.h"
#include "PxRows.h"

#include <description/PxProductTypeDescription.h>

#include <PxXMLLoader.h>

#include <QElapsedTimer>
#include <QRandomGenerator>

using Ints = QList<int>;

class PxProductTypeDescriptionTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void userDefaultsComeFirst();
    void extremeNumbersAreClamped();
    void millionsOfCombinationsAnswerAtOnce();
    void offeredPageCountsFollowTheProduct_data();
    void offeredPageCountsFollowTheProduct();
    void findsTheFirstOfManySurroundings();
    void hostilePageCountsAreBounded();
    void listsOfPagesAreBounded();
    void printSizeDependsOnTheKindOfPage();
    void wrongQuestionsAreReported();
    void bleedIsLeftOutAtTheBinding();
    void listsFollowThePageCount();
    void compatibilityAsksWhatTheCriterionNames();

private:
    PxCatalogueDirectory m_directory;
};

namespace {

const QString ourSize = "<usablesize width='1000' height='2000'/>";

PxProductTypeDescription describe(const QString &attributes, const QString &children = "")
{
    return PxProductTypeDescription(
        pxElement("<product " + attributes + ">" + children + "</product>"));
}

QString spines(const Ints &pageCounts)
{
    QString elements;
    for (int pages : pageCounts)
        elements += QString("<spine pages='%1' width='%2'/>").arg(pages).arg(qint64(pages) * 10);
    return "<spines>" + elements + "</spines>";
}

QString pages(const QString &list)
{
    return "<pages>" + list + "</pages>";
}

} // namespace

void PxProductTypeDescriptionTest::initTestCase()
{
    m_directory.writeProductTypes("1 book PROBEBOOK\n2 book OLDBOOK\n3 calendar CAL\n4 gift CUP\n"
                                  "5 card CARD\n6 deko CANVAS\n7 print PRINT");
}

void PxProductTypeDescriptionTest::userDefaultsComeFirst()
{
    const QByteArray defaults = "<u><defaults><defaults pageType='normalpage' alignment='left' "
                                "background='mine'/></defaults></u>";
    m_directory.write("user/READ.xml", defaults);
    m_directory.write("user/DECLARATION.xml", "<?xml version='1.0'?>" + defaults);
    m_directory.write("user/DAMAGED.xml", defaults.left(60));
    m_directory.write("OUTSIDE.xml", defaults);
    const PxLogRecorder log;
    m_directory.write("user/sub/BELOW.xml", defaults);
    m_directory.write("user-other/OUTSIDE.xml", defaults);
    const QStringList read{"READ", "sub/BELOW", "sub/../READ", "../user/READ", "/READ"};
    for (const QString &name :
         read + QStringList{"DECLARATION", "DAMAGED", "MISSING", "../OUTSIDE", "/../OUTSIDE",
                            "sub/../../OUTSIDE", "//../OUTSIDE", "/./../OUTSIDE",
                            "../user-other/OUTSIDE"}) {
        const PxProductTypeDescription d =
            describe("name='" + name + "'", "<defaults><defaults pageType='normalpage' "
                                            "alignment='left' background='file'/>"
                                            "<defaults theme='other' pageType='normalpage' "
                                            "alignment='left' background='other'/></defaults>");
        const PxDefaultTemplateKey key("normal", {}, DefaultTemplateTypeBackground);
        QCOMPARE(name + d.findDefaultTemplate(key, true, true),
                 name + (read.contains(name) ? "mine" : "file"));
        QCOMPARE(d.findDefaultTemplate(key, true, false), QString("file"));
        const PxDefaultTemplateKey themed("other", {}, DefaultTemplateTypeBackground);
        QCOMPARE(d.findDefaultTemplate(themed, true, true), QString("other"));
        QCOMPARE(d.themesWithDefaultTemplates(), QStringList({"normal", "other"}));
    }
    QCOMPARE(log.texts(), QStringList());
}

void PxProductTypeDescriptionTest::extremeNumbersAreClamped()
{
    const int max = 2147483647;
    const PxProductTypeDescription d = describe(
        "name='PROBEBOOK' coverextrahorizontal='2147483647' coverextravertical='-2147483648' "
        "bleedmargin='2147483647' safetymargin='2147483647'",
        "<usablesize width='2147483647' height='2147483647'/>"
        "<spines><spine pages='-2147483648' width='2147483640'/><spine pages='2147483646'/>"
        "<spine pages='2147483647'/></spines>"
        "<productionnumbering>2147483647</productionnumbering>");
    QCOMPARE(d.coverSize(), QSize(max, -1));
    PxProductTypeDescriptionSpineData spine(pxElement("<spine width='9'/>"));
    spine.considerExtraCoverWidth(-10);
    QCOMPARE(spine.width(), 0);
    QCOMPARE(d.sizeSpec(PxPageSizeKey()).totalSize(), QSize(max, max));
    QCOMPARE(d.safetyMargins().totalMarginWH(), QSize(max, max));
    QCOMPARE(d.productionNumberingList(2), Ints({max, max}));
    QCOMPARE(Ints({d.spineWidth(d.minPages()), d.pageIncrement(), d.classification().areaSize()}),
             Ints({max, max, max}));
}

void PxProductTypeDescriptionTest::millionsOfCombinationsAnswerAtOnce()
{
    QString themes;
    for (int i = 0; i < 100000; ++i)
        themes += QString("t%1,").arg(i);
    const QString pages = QString("normalpage,").repeated(20000) + "spine";
    const QString sides = QString("left,").repeated(20000) + "top";
    QElapsedTimer timer;
    timer.start();
    const PxLogRecorder log;
    const PxProductTypeDescription d = describe(
        "name='CUP2'",
        "<contentredirects><contentredirect from='0-2147483647' to='3'/></contentredirects>"
        "<pages>" +
            pages + "</pages><defaults><defaults theme='" + themes + "' pageType='" + pages +
            "' alignment='" + sides + "' layout='l'/></defaults>");
    QCOMPARE(d.contentDropRedirect(2147483647), 3);
    QCOMPARE(d.findDefaultTemplate(
                 {"t99999", {PxPageTypeSpine, PxPageAlignmentTop}, DefaultTemplateTypeLayout},
                 false, false),
             QString("l"));
    QCOMPARE(d.countAbstractPages(), 1000);
    QCOMPARE(log.texts(), QStringList("PxProductTypeDescription::readPages 20001 entries in "
                                      "\"pages\" of \"CUP2\" - used are the first 1000"));
    QVERIFY2(timer.elapsed() < 10000, "the lists must not be multiplied out");
}

void PxProductTypeDescriptionTest::offeredPageCountsFollowTheProduct_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("children");
    QTest::addColumn<Ints>("pageCounts");
    const QString book = "name='PROBEBOOK'";
    const QString spine = ourSize + pages("fullcover,spine,normalpages");
    // clang-format off
    QTest::newRow("spine for each step") << book << spine + spines({26, 28, 30}) << Ints{26, 28, 30};
    QTest::newRow("step without a spine") << book << spine + spines({20, 26, 28, 29, 30}) << Ints{20, 26, 28, 29, 30};
    QTest::newRow("spine beside the steps") << book << spine + spines({20, 23, 24, 26, 30}) << Ints{20, 24, 26, 30};
    QTest::newRow("steps without printed spine") << book << ourSize + spines({20, 26, 28, 31}) << Ints{20, 22, 24, 26, 28, 30, 31};
    QTest::newRow("steps of an odd count") << book << ourSize + spines({5, 11, 14, 18}) << Ints{5, 8, 11, 14, 17, 18};
    QTest::newRow("two page counts") << book << spine + spines({26, 30}) << Ints{26, 30};
    QTest::newRow("one page count") << book << spine + spines({26}) << Ints{26};
    QTest::newRow("counts below 1") << book << ourSize + spines({-3, -1, 1, 3, 5}) << Ints{1, 3, 5};
    QTest::newRow("book without spine table") << book << spine << Ints{};
    QTest::newRow("book without a size") << book << spines({26, 28, 30}) << Ints{};
    QTest::newRow("calendar") << "name='CAL' binding='CALENDAR_DUPLEX' numOfNormalPages='7'" << ourSize + spines({26}) << Ints{24};
    QTest::newRow("calendar without binding") << "name='CAL' numOfNormalPages='7'" << ourSize << Ints{1};
    for (const char *name : {"CUP", "CARD", "CANVAS"})
        QTest::newRow(name) << QString("name='%1' numOfNormalPages='7'").arg(name) << ourSize << Ints{7};
    QTest::newRow("gift without pages") << "name='CUP' numOfNormalPages='0'" << ourSize << Ints{};
    QTest::newRow("print") << "name='PRINT' numOfNormalPages='7'" << ourSize << Ints{1};
    // clang-format on
}

void PxProductTypeDescriptionTest::offeredPageCountsFollowTheProduct()
{
    QFETCH(QString, attributes);
    QFETCH(QString, children);
    QFETCH(Ints, pageCounts);
    const PxProductTypeDescription d = describe(attributes, children);
    QCOMPARE(d.offeredPageCounts(), pageCounts);
    for (int pageCount = -5; pageCount < 50; ++pageCount)
        QCOMPARE(d.isPageCountOffered(pageCount), pageCounts.contains(pageCount));
}

/** What is found by an index is what a walk through the list finds. */
void PxProductTypeDescriptionTest::findsTheFirstOfManySurroundings()
{
    const PxLogRecorder log; // a type that is none is part of it
    constexpr const char *types[] = {"spine", "fullcover", "leather,spine", "normal", "fog", "all"};
    constexpr const char *sides[] = {"left", "right,top", "all", "middle", "fullpage"};
    QRandomGenerator random(5); // the same numbers each time
    for (int turn = 0; turn < 200; ++turn) {
        QString surroundings;
        for (int entry = 0; entry < turn % 12; ++entry)
            surroundings +=
                QString("<surrounding image='%1' pageNr='%2' pageType='%3' alignment='%4'/>")
                    .arg(entry)
                    .arg(qMax(-1, random.bounded(-2, 4) * random.bounded(2)) - random.bounded(2))
                    .arg(types[random.bounded(6)], sides[random.bounded(5)]);
        const QDomElement product =
            pxElement("<product><surroundings>" + surroundings + "</surroundings></product>");
        const PxProductTypeDescription d(product);
        const PxSurroundingDescriptionList all(product);
        for (int page = -3; page < 6; ++page) {
            const PxPageContext context(
                PxPageTypeEnum(1 << random.bounded(12) | 1 << random.bounded(12)),
                PxPageAlignment(random.bounded(128)));
            const PxSurroundingKey key(context, page);
            QVERIFY(d.findSurrounding(key) == all.findDescription(key));
        }
    }
}

void PxProductTypeDescriptionTest::hostilePageCountsAreBounded()
{
    const int most = PxProductTypeDescription::maximumListedPages;
    const int max = 2147483647;
    const PxProductTypeDescription book =
        describe("name='PROBEBOOK'", ourSize + spines({-max - 1, -max, max}));
    QCOMPARE(book.offeredPageCounts().size(), most);
    pxCheckAnswers("is offered",
                   "1=true 100000=true 0=false 100001=false 2147483647=false -2147483648=false",
                   [&book](const Ints &count) { return book.isPageCountOffered(count[0]); });
    QCOMPARE(describe("name='CUP' numOfNormalPages='2147483647'", ourSize).offeredPageCounts(),
             Ints());
}

void PxProductTypeDescriptionTest::listsOfPagesAreBounded()
{
    const int most = PxProductTypeDescription::maximumListedPages;
    const int max = 2147483647;
    const PxProductTypeDescription book = describe(
        "name='PROBEBOOK'", pages("fullcover," + QString("normalpages,").repeated(998) + "spine") +
                                "<productionnumbering>7,8</productionnumbering>");
    const QString warning = "PxProductTypeDescription::%1 too many pages of \"PROBEBOOK\" with the "
                            "page count %2: the list ends after 100000";
    const PxLogRecorder log;
    QCOMPARE(book.pageTypes(100).size(), 1 + 99800 + 1);
    QCOMPARE(book.productionNumberingList(most).size(), most);
    QCOMPARE(log.texts(), QStringList());
    QCOMPARE(book.pageTypes(101).size(), most);
    QCOMPARE(book.pageTypes(max).constLast().value(), PxPageTypeNormalPage);
    QCOMPARE(book.productionNumberingList(max).constLast(), 8 + most - 2);
    const PxProductTypeDescription twice =
        describe("name='PROBEBOOK'", pages("normalpages,normalpages"));
    QCOMPARE(twice.pageTypes(most / 2).size(), most);
    QCOMPARE(twice.pageTypes(most / 2 + 1).size(), most);
    QCOMPARE(log.texts(),
             QStringList({warning.arg("pageTypes").arg(101), warning.arg("pageTypes").arg(max),
                          warning.arg("productionNumberingList").arg(max),
                          warning.arg("pageTypes").arg(most / 2 + 1)}));
}

void PxProductTypeDescriptionTest::printSizeDependsOnTheKindOfPage()
{
    const PxProductTypeDescription d =
        describe("coverextrahorizontal='7' coverextravertical='8'", ourSize + spines({24, 26}));
    const auto size = [&d](const char *type) { return d.usablePrintSize(PxPageType(type), 26); };
    for (const char *type : {"fullcover", "clampcoverfront", "clampcoverback", "cromolinen",
                             "leather", "artificialleather"})
        QVERIFY2(size(type) == QSize(1007, 2008), type);
    for (const char *type : {"normalpage", "foilcover", "calendarfront", "cover", "?"})
        QVERIFY2(size(type) == QSize(1000, 2000), type);
    QCOMPARE(size("spine"), QSize(260, 2008));
}

void PxProductTypeDescriptionTest::wrongQuestionsAreReported()
{
    const PxProductTypeDescription d = describe("", ourSize);
    const PxLogRecorder log;
    QCOMPARE(d.usablePrintSize(PxPageTypeSpine, 27), QSize(0, 2000));
    QCOMPARE(pxShown(describe("", pages("")).pageTypes(4)), QString("(normalpage(16))"));
    QCOMPARE(d.usablePrintSize(PxPageTypeSpine, -1), QSize(0, 2000));
    QStringList messages;
    for (const PxLogRecorder::Entry &e : log.entries())
        messages += QString("%1 %2 %3:%4 ").arg(e.level).arg(e.category, e.file).arg(e.line) +
                    e.function + ": " + e.text;
    QCOMPARE(
        messages,
        QStringList({"1 default PxProductTypeDescription:459 PxPageTypeList "
                     "PxProductTypeDescription::pageTypes(int) const: "
                     "Illegaler Seitentyp in fotobook.xml",
                     "1 default PxProductTypeDescription:264 QSize "
                     "PxProductTypeDescription::usablePrintSize(const PxPageType&, int) const: "
                     "Fehler PxProductTypeDescription::usablePrintSize wurde mit dem Buchrücken "
                     "aufgerufen ohne das eine Seitenanzahl angegeben wurde!"}));
}

void PxProductTypeDescriptionTest::bleedIsLeftOutAtTheBinding()
{
    const auto check = [](const QString &style, const QString &rows) {
        const PxProductTypeDescription d =
            describe(style + " bleedmarginhorizontal='30' bleedmarginvertical='20' "
                             "bleedmargincoverhorizontal='6' bleedmargincoververtical='5'");
        pxCheckAnswers("page type,side,page count", rows, [&d](const Ints &page) {
            const PxPageContext context{PxPageTypeEnum(page[0]), PxPageAlignment(page[1])};
            const PxMargins m = d.bleedMargins(context, page[2]);
            return pxShown(Ints{m.top(), m.bottom(), m.left(), m.right()}).remove(' ');
        });
    };
    // A page of several types is a spine (1) or a cover (64) if one of them is.
    check("",
          "16,1,20=(20,20,30,0) 16,2,20=(20,20,0,30) 16,4,20=(20,20,30,30) 16,3,20=(20,20,30,30) "
          "16,1,1=(20,20,30,30) 16,1,-1=(20,20,30,30) 64,2,20=(5,5,0,6) 1,2,20=(5,5,0,0) "
          "16,0,20=(20,20,30,30) 80,2,20=(5,5,0,6) 81,2,20=(5,5,0,0) 0,2,20=(20,20,0,30)");
    check("cardStyleAlignment='true'", "16,1,20=(20,20,30,30)");
    const PxProductTypeDescription clamp = describe("normalpagehorizontalclamp='9'");
    QCOMPARE(clamp.clampExtra(PxPageTypeEnum(64 | 16)), 9);
    QCOMPARE(clamp.clampExtra(PxPageTypeFullCover), 0);
    const PxProductTypeDescription plain = describe("canHaveClipart='0'");
    QVERIFY(plain.supportsJigType(PxJigType("style,clipart,layout")));
    QVERIFY(!plain.supportsJigType(PxJigType("style,clipart")));
}

void PxProductTypeDescriptionTest::listsFollowThePageCount()
{
    const auto types = [](const QStringList &words) {
        return pxShown(describe("", pages(words[0])).pageTypes(words[1].toInt()));
    };
    pxCheckAnswers(
        "page types",
        "fullcover,normalpages;0=(fullcover(64)) simplexmonthcalendar;-1=(normalpage(16)) "
        ";5=(normalpage(16))",
        types);
    pxCheckAnswers("numbers", "5,9;4=(5,9,10,11) 5,9;1=(5) ;3=(1,2,3) ;1=(1) 5,9;0=() ;-1=()",
                   [](const QStringList &words) {
                       return pxShown(describe("", "<productionnumbering>" + words[0] +
                                                       "</productionnumbering>")
                                          .productionNumberingList(words[1].toInt()))
                           .remove(' ');
                   });
}

void PxProductTypeDescriptionTest::compatibilityAsksWhatTheCriterionNames()
{
    const QString list = pages("fullcover,spine");
    const QString counts = spines({2, 4, 6});
    const PxProductTypeDescription reference = describe("", ourSize + list + counts);
    // "deciding" are the criteria under which the two are not compatible.
    const auto check = [&](const char *name, int deciding, const QString &children,
                           const QString &attributes = "") {
        const PxProductTypeDescription other = describe(attributes, children);
        for (int criterion = 1; criterion < 16; ++criterion)
            QVERIFY2(other.isCompatible(reference, PxProductComparationCriterion(criterion)) ==
                         ((criterion & deciding) == 0),
                     name);
        QVERIFY2(other.isCompatible(reference, PxProductComparationNone) == (deciding != 15), name);
    };
    check("same", 0, ourSize + list + counts);
    check("orientation", 15, "<usablesize width='2' height='1'/>" + list + counts);
    check("spine", 15, ourSize + pages("fullcover,leather") + counts);
    check("pages", 15, ourSize + pages("fullcover,spine,empty") + counts);
    check("binding", 1, ourSize + list + counts, "binding='SOFTCOVER'");
    check("paper", 2, ourSize + list + counts, "paper='glossy'");
    check("space", 4, ourSize + list + counts, "space='xl'");
    check("increment", 8, ourSize + list + spines({2, 6, 10}));
}

QTEST_GUILESS_MAIN(PxProductTypeDescriptionTest)
#include "PxProductTypeDescriptionTest.moc"
