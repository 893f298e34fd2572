#include <PxLogRecorder.h>
#include <geometry/PxPageSizeKey.h>
#include <geometry/PxPageSizeSpec.h>
#include <geometry/PxSurroundingKey.h>

#include <QTest>

#include <limits>

class PxPageSizeTest : public QObject
{
    Q_OBJECT

private slots:
    void addsMargins();
    void logsEveryHundredthCopy();
    void contextsMatchByBits();
    void keysAreOrderedByContextUnlessTheirNumbersAgree();
};

static PxPageSizeSpec pageSize(const PxMargins &bleed)
{
    return PxPageSizeSpec(QSize(100, 200), bleed, PxMargins(5, 6, 7, 8), PxOrientationPortrait, 9);
}

void PxPageSizeTest::addsMargins()
{
    const PxMargins margins(1, 2, 3, 4);
    QCOMPARE(margins.topLeft(), QPoint(3, 1));
    QCOMPARE(margins.bottomRight(), QPoint(4, 2));
    QCOMPARE(pageSize(margins).totalSize(), QSize(107, 203)); // without the clamp
    QCOMPARE(pageSize(margins).topLeftOffsetOfUsablePrintArea(), QPoint(3, 1));

    constexpr int smallest = std::numeric_limits<int>::min();
    constexpr int largest = std::numeric_limits<int>::max();
    const PxMargins huge(largest, 1, smallest, -1);
    QCOMPARE(huge.totalMarginWH(), QSize(smallest, largest));
    QCOMPARE(pageSize(huge).totalSize(), QSize(smallest + 100, largest));
}

void PxPageSizeTest::logsEveryHundredthCopy()
{
    const PxPageSizeSpec original = pageSize(PxMargins());
    const auto copy = [&original](int times) {
        for (int i = 0; i < times; ++i)
            const PxPageSizeSpec copied(original);
    };
    const PxLogRecorder log;
    copy(99);
    QCOMPARE(log.texts(), QStringList());
    copy(100);
    QCOMPARE(log.texts(), QStringList("PxPageSizeSpec__CC  counts  100"));
    copy(1);
    const PxLogRecorder::Entry entry = log.entries().constLast();
    QCOMPARE(entry.text, QString("PxPageSizeSpec__CC  counts  200"));
    QCOMPARE(entry.level, QtDebugMsg);
    QCOMPARE(entry.file, QString("PxPageSizeSpec"));
    QCOMPARE(entry.line, 45);
    // Compilers differ in the blank before "&)".
    QVERIFY(entry.function.startsWith("PxPageSizeSpec::PxPageSizeSpec(const PxPageSizeSpec"));
    QCOMPARE(entry.category, QString("default"));
}

void PxPageSizeTest::contextsMatchByBits()
{
    const PxPageContext page;
    const auto leftAndRight = static_cast<PxPageAlignment>(3);
    QVERIFY(page.matchesWith(PxPageContext(PxPageTypeAll, leftAndRight)));
    QVERIFY(!page.matchesWith(PxPageContext(PxPageTypeAll, PxPageAlignmentRight)));
    QVERIFY(!page.matchesWith(PxPageContext(PxPageTypeCover, leftAndRight)));
    QVERIFY(page.isPageType(PxPageTypeNormalPage) && !page.isPageType(PxPageTypeAll));
}

template <typename KEY>
static bool isOrderedAsKept()
{
    const PxPageContext lesser(PxPageTypeSpine, PxPageAlignmentRight);
    const PxPageContext greater(PxPageTypeNormalPage, PxPageAlignmentLeft);
    return lesser < greater && KEY(lesser, 6) < KEY(greater, 4) &&
           !(KEY(lesser, 4) < KEY(greater, 4)) && !(KEY(lesser, 4) < KEY(lesser, 6)) &&
           !(KEY(greater, 4) < KEY(lesser, 6)) && KEY(lesser, 4) != KEY(greater, 4) &&
           KEY(lesser, 4) != KEY(lesser, 6) && KEY() == KEY(greater, -1);
}

void PxPageSizeTest::keysAreOrderedByContextUnlessTheirNumbersAgree()
{
    QVERIFY(isOrderedAsKept<PxPageSizeKey>());
    QVERIFY(isOrderedAsKept<PxSurroundingKey>());
}

QTEST_GUILESS_MAIN(PxPageSizeTest)
#include "PxPageSizeTest.moc"
