#include <PxLogRecorder.h>
#include <PxRows.h>
#include <geometry/PxBleedMargin.h>
#include <geometry/PxPageSizeKey.h>
#include <geometry/PxPageSizeSpec.h>
#include <geometry/PxSurroundingKey.h>

#include <limits>

class PxPageSizeTest : public QObject
{
    Q_OBJECT

private slots:
    void addsMargins();
    void logsEveryHundredthCopy();
    void contextsMatchByBits();
    void comparesFields();
};

static PxPageSizeSpec pageSize(const PxMargins &bleed)
{
    return PxPageSizeSpec(QSize(100, 200), bleed, PxMargins(5, 6, 7, 8), PxOrientationPortrait, 9);
}

void PxPageSizeTest::addsMargins()
{
    const PxMargins margins(1, 2, 3, 4);
    QCOMPARE(pxShown(margins), QString("PxMargins(top 1, bottom 2, left 3, right 4)"));
    QCOMPARE(pxShown(PxMargins()), QString("PxMargins(top 0, bottom 0, left 0, right 0)"));
    pxCheckAnswers("allNull",
                   "0,0,0,0=true 1,0,0,0=false 0,1,0,0=false 0,0,1,0=false 0,0,0,1=false",
                   [](const QList<int> &m) { return PxMargins(m[0], m[1], m[2], m[3]).allNull(); });
    QCOMPARE(margins.topLeft(), QPoint(3, 1));
    QCOMPARE(margins.bottomRight(), QPoint(4, 2));
    QCOMPARE(
        pxShown(pageSize(margins)),
        QString(
            "PxPageSizeSpec(QSize(100, 200), bleed PxMargins(top 1, bottom 2, left 3, right 4), "
            "safety PxMargins(top 5, bottom 6, left 7, right 8), portrait(1), clamp 9)"));
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
    copy(101);
    const QString text("PxPageSizeSpec__CC  counts  %1");
    QCOMPARE(log.texts(), QStringList({text.arg(100), text.arg(200)}));
    const PxLogRecorder::Entry entry = log.entries().constLast();
    QCOMPARE(entry.level, QtDebugMsg);
    QCOMPARE(entry.file, QString("PxPageSizeSpec"));
    QCOMPARE(entry.line, 45);
    // Compilers differ in the blank before "&)".
    QVERIFY(entry.function.startsWith("PxPageSizeSpec::PxPageSizeSpec(const PxPageSizeSpec"));
    QCOMPARE(entry.category, QString("default"));
}

static PxPageContext page(const QList<int> &numbers)
{
    return PxPageContext(static_cast<PxPageTypeEnum>(numbers[0]),
                         static_cast<PxPageAlignment>(numbers[1]));
}

void PxPageSizeTest::contextsMatchByBits()
{
    const PxPageContext normal; // on the left
    pxCheckAnswers("matchesWith", "69503,3=true 69503,2=false 1,3=false",
                   [&](const QList<int> &other) { return normal.matchesWith(page(other)); });
    pxCheckAnswers("isPageType", "normal=true normal,spine=false all=false",
                   [&](const QString &type) { return normal.isPageType(type); });
}

void PxPageSizeTest::comparesFields()
{
    pxCheckComparison("PxBleedMargin", "1,2 2,2 1,1",
                      [](const QList<int> &m) { return PxBleedMargin(m[0], m[1]); });
    pxCheckComparison("PxPageContext", "8,2 8,16 16,2 16,1", page);
    // The context decides, but not if the numbers are equal.
    const char *keys = "16,1,4 16,2,6 16,2,2 ~16,1,6 ~16,2,4";
    pxCheckComparison("PxPageSizeKey", keys,
                      [](const QList<int> &key) { return PxPageSizeKey(page(key), key[2]); });
    pxCheckComparison("PxSurroundingKey", keys,
                      [](const QList<int> &key) { return PxSurroundingKey(page(key), key[2]); });
    QVERIFY(PxPageSizeKey() == PxPageSizeKey(page({16, 1}), -1));
    QVERIFY(PxSurroundingKey() == PxSurroundingKey(page({16, 1})));
    QCOMPARE(PxSurroundingKey().pageIndex(), -1);
}

QTEST_GUILESS_MAIN(PxPageSizeTest)
#include "PxPageSizeTest.moc"
