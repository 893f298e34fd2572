#include "PxElement.h"
#include "PxLogRecorder.h"

#include <description/PxProductTypeDescription.h>

#include <QTest>

namespace {

PxProductTypeDescription describe(const QString &attributes, const QString &children = QString())
{
    return PxProductTypeDescription(
        pxElement(QStringLiteral("<product %1>%2</product>").arg(attributes, children)));
}

QString spines(const QList<int> &pageCounts)
{
    QString elements;
    for (int pages : pageCounts)
        elements += QStringLiteral("<spine pages='%1' width='%2'/>").arg(pages).arg(pages * 10);
    return QStringLiteral("<spines>%1</spines>").arg(elements);
}

QString pages(const QString &list)
{
    return QStringLiteral("<pages>%1</pages>").arg(list);
}

QList<int> values(const PxPageTypeList &pageTypes)
{
    QList<int> values;
    for (const PxPageType &pageType : pageTypes)
        values.append(pageType.value());
    return values;
}

} // namespace

class PxProductTypeDescriptionQueriesTest : public QObject
{
    Q_OBJECT

private slots:
    void pageCountsComeFromTheSpines_data();
    void pageCountsComeFromTheSpines();
    void pageRangesExpandToThePageCount_data();
    void pageRangesExpandToThePageCount();
    void illegalPageTypeIsReported();
    void printSizeDependsOnTheKindOfPage_data();
    void printSizeDependsOnTheKindOfPage();
    void spineWithoutPageCountIsReported();
    void bleedIsLeftOutAtTheBinding_data();
    void bleedIsLeftOutAtTheBinding();
    void sizeSpecTakesTheClampOfNormalPagesOnly();
    void pageAlignment_data();
    void pageAlignment();
    void productionNumberingIsCutAndContinued_data();
    void productionNumberingIsCutAndContinued();
    void compatibilityAsksWhatTheCriterionNames_data();
    void compatibilityAsksWhatTheCriterionNames();
    void validityNeedsBindingOrientationAndSize();
    void coverIsTheFirstPage();
};

void PxProductTypeDescriptionQueriesTest::pageCountsComeFromTheSpines_data()
{
    QTest::addColumn<QList<int>>("pageCounts");
    QTest::addColumn<int>("minPages");
    QTest::addColumn<int>("maxPages");
    QTest::addColumn<int>("pageIncrement");
    QTest::newRow("irregular last step") << QList<int>{40, 24, 30, 28, 26} << 24 << 40 << 2;
    QTest::newRow("two") << QList<int>{24, 26} << 24 << 26 << -2147483647 - 1;
    QTest::newRow("none") << QList<int>() << 2147483647 << -2147483647 - 1 << -2147483647 - 1;
}

void PxProductTypeDescriptionQueriesTest::pageCountsComeFromTheSpines()
{
    QFETCH(QList<int>, pageCounts);
    const PxProductTypeDescription description = describe(QString(), spines(pageCounts));
    QTEST(description.minPages(), "minPages");
    QTEST(description.maxPages(), "maxPages");
    QTEST(description.pageIncrement(), "pageIncrement");
}

void PxProductTypeDescriptionQueriesTest::pageRangesExpandToThePageCount_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<QList<int>>("expected");
    QTest::newRow("range") << "fullcover,normalpages" << 3 << QList<int>{64, 16, 16, 16};
    QTest::newRow("empty range") << "fullcover,normalpages" << 0 << QList<int>{64};
    QTest::newRow("negative count") << "simplexmonthcalendar" << -1 << QList<int>{16};
    QTest::newRow("two ranges") << "duplexmonthcalendar,empty,simplexyearcalendar" << 2
                                << QList<int>{16, 16, 32, 16, 16};
    QTest::newRow("nothing") << "" << 5 << QList<int>{16};
}

void PxProductTypeDescriptionQueriesTest::pageRangesExpandToThePageCount()
{
    QFETCH(QString, list);
    QFETCH(int, pageCount);
    const PxProductTypeDescription description =
        describe(QString(), list.isEmpty() ? QString() : pages(list));
    QTEST(values(description.pageTypes(pageCount)), "expected");
}

void PxProductTypeDescriptionQueriesTest::illegalPageTypeIsReported()
{
    const PxProductTypeDescription description = describe(QString(), pages(QString()));
    QCOMPARE(description.countAbstractPages(), 1);
    const PxLogRecorder log;
    QCOMPARE(values(description.pageTypes(4)), QList<int>{16});
    QCOMPARE(log.texts(), QStringList(QStringLiteral("Illegaler Seitentyp in fotobook.xml")));
    const PxLogRecorder::Entry entry = log.entries().constFirst();
    QCOMPARE(entry.level, QtWarningMsg);
    QCOMPARE(entry.category, QStringLiteral("default"));
    QCOMPARE(entry.file, QStringLiteral("PxProductTypeDescription"));
    QCOMPARE(entry.line, 459);
    QCOMPARE(entry.function,
             QStringLiteral("PxPageTypeList PxProductTypeDescription::pageTypes(int) const"));
}

void PxProductTypeDescriptionQueriesTest::printSizeDependsOnTheKindOfPage_data()
{
    QTest::addColumn<QString>("pageType");
    QTest::addColumn<QSize>("expected");
    const QSize cover(1007, 908);
    for (const char *type : {"fullcover", "clampcoverfront", "clampcoverback", "cromolinen",
                             "leather", "artificialleather"})
        QTest::newRow(type) << QString::fromLatin1(type) << cover;
    QTest::newRow("spine") << "spine" << QSize(260, 908);
    for (const char *type : {"normalpage", "foilcover", "calendarfront", "cover", "?"})
        QTest::newRow(type) << QString::fromLatin1(type) << QSize(1000, 900);
}

void PxProductTypeDescriptionQueriesTest::printSizeDependsOnTheKindOfPage()
{
    QFETCH(QString, pageType);
    const PxProductTypeDescription description =
        describe(QStringLiteral("coverextrahorizontal='7' coverextravertical='8'"),
                 QStringLiteral("<usablesize width='1000' height='900'/>") + spines({24, 26}));
    QTEST(description.usablePrintSize(PxPageType(pageType), 26), "expected");
}

void PxProductTypeDescriptionQueriesTest::spineWithoutPageCountIsReported()
{
    const PxProductTypeDescription description =
        describe(QString(), QStringLiteral("<usablesize width='1000' height='900'/>"));
    const PxLogRecorder log;
    QCOMPARE(description.usablePrintSize(PxPageTypeSpine, 27), QSize(0, 900));
    QCOMPARE(log.entries().size(), 0);
    QCOMPARE(description.usablePrintSize(PxPageTypeSpine, -1), QSize(0, 900));
    QCOMPARE(log.entries().size(), 1);
    const PxLogRecorder::Entry entry = log.entries().constFirst();
    QCOMPARE(entry.level, QtWarningMsg);
    QCOMPARE(entry.text,
             QStringLiteral("Fehler PxProductTypeDescription::usablePrintSize wurde mit dem "
                            "Buchrücken aufgerufen ohne das eine Seitenanzahl angegeben wurde!"));
    QCOMPARE(entry.file, QStringLiteral("PxProductTypeDescription"));
    QCOMPARE(entry.line, 264);
    QCOMPARE(entry.function,
             QStringLiteral("QSize PxProductTypeDescription::usablePrintSize(const PxPageType&, "
                            "int) const"));
}

void PxProductTypeDescriptionQueriesTest::bleedIsLeftOutAtTheBinding_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("pageType");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<QList<int>>("expected"); // top, bottom, left, right
    const QString card = QStringLiteral("cardStyleAlignment='true'");
    QTest::newRow("left page") << "" << 16 << 1 << 20 << QList<int>{20, 20, 30, 0};
    QTest::newRow("right page") << "" << 16 << 2 << 20 << QList<int>{20, 20, 0, 30};
    QTest::newRow("other side") << "" << 16 << 4 << 20 << QList<int>{20, 20, 30, 30};
    QTest::newRow("both sides") << "" << 16 << 3 << 20 << QList<int>{20, 20, 30, 30};
    QTest::newRow("single page") << "" << 16 << 1 << 1 << QList<int>{20, 20, 30, 30};
    QTest::newRow("any page count") << "" << 16 << 1 << -1 << QList<int>{20, 20, 30, 30};
    QTest::newRow("card") << card << 16 << 1 << 20 << QList<int>{20, 20, 30, 30};
    QTest::newRow("cover") << "" << 64 << 2 << 20 << QList<int>{5, 5, 0, 6};
    QTest::newRow("spine") << "" << 1 << 2 << 20 << QList<int>{5, 5, 0, 0};
}

void PxProductTypeDescriptionQueriesTest::bleedIsLeftOutAtTheBinding()
{
    QFETCH(QString, attributes);
    QFETCH(int, pageType);
    QFETCH(int, alignment);
    QFETCH(int, pageCount);
    const PxMargins margins =
        describe(attributes + QStringLiteral(" bleedmarginhorizontal='30' bleedmarginvertical='20' "
                                             "bleedmargincoverhorizontal='6' "
                                             "bleedmargincoververtical='5'"))
            .bleedMargins(PxPageContext(static_cast<PxPageTypeEnum>(pageType),
                                        static_cast<PxPageAlignment>(alignment)),
                          pageCount);
    QTEST(QList<int>({margins.top(), margins.bottom(), margins.left(), margins.right()}),
          "expected");
}

void PxProductTypeDescriptionQueriesTest::sizeSpecTakesTheClampOfNormalPagesOnly()
{
    const PxProductTypeDescription description =
        describe(QStringLiteral("normalpagehorizontalclamp='9' safetymargin='4' bleedmargin='3'"),
                 QStringLiteral("<usablesize width='100' height='200'/>"));
    const PxPageSizeSpec normal = description.sizeSpec(PxPageSizeKey({}, 20));
    QCOMPARE(normal.totalSize(), QSize(103, 206));
    QCOMPARE(normal.horizontalClampExtra(), 9);
    QCOMPARE(normal.safetyMargins().left(), 4);
    QCOMPARE(normal.orientation().value(), PxOrientationPortrait);
    const PxPageContext cover(PxPageTypeFullCover, PxPageAlignmentLeft);
    QCOMPARE(description.sizeSpec(PxPageSizeKey(cover, 20)).horizontalClampExtra(), 0);
}

void PxProductTypeDescriptionQueriesTest::pageAlignment_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("pageList");
    QTest::addColumn<QList<int>>("expected"); // of the pages -2 to 4
    const QString vertical = QStringLiteral(" horizontalPages='false'");
    const QString simplex = QStringLiteral("binding='CALENDAR_SIMPLEX' ");
    QTest::newRow("book") << ""
                          << "fullcover,spine" << QList<int>{2, 1, 1, 4, 2, 1, 2};
    QTest::newRow("vertical book") << vertical << "spine" << QList<int>{32, 16, 16, 64, 32, 16, 32};
    QTest::newRow("no spine") << ""
                              << "normalpages" << QList<int>{1, 2, 1, 2, 1, 2, 1};
    QTest::newRow("no spine, vertical") << vertical << "" << QList<int>{16, 32, 16, 32, 16, 32, 16};
    QTest::newRow("simplex") << simplex << "spine" << QList<int>{2, 2, 2, 2, 2, 2, 2};
    QTest::newRow("simplex, vertical")
        << simplex + vertical << "" << QList<int>{32, 32, 32, 32, 32, 32, 32};
    QTest::newRow("single card") << simplex + "varioSingleCardStyleAlignment='1'" + vertical << ""
                                 << QList<int>{4, 4, 4, 4, 4, 4, 4};
    QTest::newRow("college block") << simplex + "collegeBlockStyleAlignment='1'"
                                   << "" << QList<int>{1, 2, 1, 2, 1, 2, 1};
    QTest::newRow("card, vertical") << simplex + "cardStyleAlignment='1'" + vertical << ""
                                    << QList<int>{16, 32, 16, 32, 16, 32, 16};
}

void PxProductTypeDescriptionQueriesTest::pageAlignment()
{
    QFETCH(QString, attributes);
    QFETCH(QString, pageList);
    const PxProductTypeDescription description = describe(attributes, pages(pageList));
    QList<int> alignments;
    for (int page = -2; page <= 4; ++page)
        alignments.append(description.pageAlignment(page));
    QTEST(alignments, "expected");
}

void PxProductTypeDescriptionQueriesTest::productionNumberingIsCutAndContinued_data()
{
    QTest::addColumn<QString>("numbering");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<QList<int>>("expected");
    QTest::newRow("continued") << "5, 9" << 4 << QList<int>{5, 9, 10, 11};
    QTest::newRow("cut") << "5,9" << 1 << QList<int>{5};
    QTest::newRow("from 1") << "" << 3 << QList<int>{1, 2, 3};
    QTest::newRow("no page") << "5,9" << 0 << QList<int>();
    QTest::newRow("negative") << "" << -1 << QList<int>();
}

void PxProductTypeDescriptionQueriesTest::productionNumberingIsCutAndContinued()
{
    QFETCH(QString, numbering);
    QFETCH(int, pageCount);
    const PxProductTypeDescription description = describe(
        QString(), QStringLiteral("<productionnumbering>%1</productionnumbering>").arg(numbering));
    QTEST(description.productionNumberingList(pageCount), "expected");
}

void PxProductTypeDescriptionQueriesTest::compatibilityAsksWhatTheCriterionNames_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("children");
    QTest::addColumn<int>("deciding"); // the flags under which the two are not compatible
    const QString size = QStringLiteral("<usablesize width='1' height='2'/>");
    const QString list = pages(QStringLiteral("fullcover,spine"));
    const QString counts = spines({2, 4, 6});
    QTest::newRow("same") << "" << size + list + counts << 0;
    QTest::newRow("orientation") << ""
                                 << "<usablesize width='2' height='1'/>" + list + counts << 15;
    QTest::newRow("spine") << "" << size + pages("fullcover,leather") + counts << 15;
    QTest::newRow("pages") << "" << size + pages("fullcover,spine,empty") + counts << 15;
    QTest::newRow("binding") << "binding='SOFTCOVER'" << size + list + counts << 1;
    QTest::newRow("paper") << "paper='glossy'" << size + list + counts << 2;
    QTest::newRow("space") << "space='xl'" << size + list + counts << 4;
    QTest::newRow("increment") << "" << size + list + spines({2, 6, 10}) << 8;
}

void PxProductTypeDescriptionQueriesTest::compatibilityAsksWhatTheCriterionNames()
{
    QFETCH(QString, attributes);
    QFETCH(QString, children);
    QFETCH(int, deciding);
    const PxProductTypeDescription reference =
        describe(QString(), QStringLiteral("<usablesize width='1' height='2'/>") +
                                pages(QStringLiteral("fullcover,spine")) + spines({2, 4, 6}));
    const PxProductTypeDescription other = describe(attributes, children);
    for (int criterion = 1; criterion < 16; ++criterion)
        QCOMPARE(
            other.isCompatible(reference, static_cast<PxProductComparationCriterion>(criterion)),
            (criterion & deciding) == 0);
    QCOMPARE(other.isCompatible(reference, PxProductComparationNone), deciding != 15);
}

void PxProductTypeDescriptionQueriesTest::validityNeedsBindingOrientationAndSize()
{
    QVERIFY(describe(QStringLiteral("orientation='round'"),
                     QStringLiteral("<usablesize width='0' height='0'/>"))
                .isValid());
    QVERIFY(!describe(QString(), QStringLiteral("<usablesize width='0' height='0'/>")).isValid());
    QVERIFY(
        !describe(QStringLiteral("orientation='round'"), QStringLiteral("<usablesize width='5'/>"))
             .isValid());
}

void PxProductTypeDescriptionQueriesTest::coverIsTheFirstPage()
{
    QVERIFY(describe(QString(), pages(QStringLiteral("foilcover,normalpages"))).hasCover());
    QVERIFY(!describe(QString(), pages(QStringLiteral("normalpages,fullcover"))).hasCover());
}

QTEST_GUILESS_MAIN(PxProductTypeDescriptionQueriesTest)
#include "PxProductTypeDescriptionQueriesTest.moc"
