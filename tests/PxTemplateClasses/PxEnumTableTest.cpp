#include <PxEmptyMeansAllSet.h>
#include <PxEnumWrapper.h>
#include <PxLogRecorder.h>
#include <PxLookUpTable.h>
#include <values/PxBinding.h>

#include <QTest>
#include <QThread>

#include <atomic>
#include <thread>
#include <vector>

enum PxColourEnum : int {
    PxColourRed = 1,
    PxColourGreen = 2,
    PxColourBlue = 4,
    PxColourViolet = PxColourRed | PxColourBlue,
    PxColourAny = 128,
};

class PxColour : public PxEnumWrapper<PxColourEnum>
{
public:
    explicit PxColour(int value) : PxEnumWrapper(static_cast<PxColourEnum>(value)) {}
    void fillTable(PxEnumToStringTable<PxColourEnum> *table) const override
    {
        ++ourFills;
        QThread::msleep(50); // long enough for the other threads to arrive meanwhile
        table->insert({{"Red", PxColourRed},
                       {"RUBY", PxColourRed},
                       {"green", PxColourGreen},
                       {"Blue", PxColourBlue},
                       {"violet", PxColourViolet}});
        table->setDefaultString(QStringLiteral("none"));
    }

    static inline std::atomic<int> ourFills{0};
};

class PxEnumTableTest : public QObject
{
    Q_OBJECT

private slots:
    void isFilledOnceByManyThreads();
    void decodesLists_data();
    void decodesLists();
    void logsWhatItCannotDecode();
    void encodesBits();
    void splitsAndChangesBits();
    void looksUpTexts();
    void emptySetMeansAll();
};

void PxEnumTableTest::isFilledOnceByManyThreads()
{
    std::atomic<int> waiting{8};
    std::atomic<int> decoded{0};
    std::vector<std::thread> threads;
    for (int i = waiting; i > 0; --i) {
        threads.emplace_back([&] {
            --waiting;
            while (waiting > 0)
                std::this_thread::yield();
            decoded += PxColour(0).decodeCSV(QStringLiteral("violet"));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(decoded.load(), 8 * 5);
    QCOMPARE(PxColour::ourFills.load(), 1);
}

void PxEnumTableTest::decodesLists_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("undecodable");
    QTest::newRow("empty") << "" << 128 << 0;
    QTest::newRow("blanks, case, synonyms") << "\tgReeN \n,Red,ruby" << 3 << 0;
    QTest::newRow("empty part") << "red,,blue" << 133 << 1;
    QTest::newRow("blank part at the end") << "red, " << 129 << 1;
    QTest::newRow("only a blank") << " " << 128 << 1;
    QTest::newRow("unknown words") << "pink,green,brown" << 130 << 2;
}

void PxEnumTableTest::decodesLists()
{
    QFETCH(QString, text);
    QFETCH(int, value);
    PxEnumToStringTable<PxColourEnum> table = *PxColour(0).enumToStringTable();
    const PxLogRecorder log;
    QCOMPARE(int(table.decodeCSV(text)), value & ~PxColourAny);
    table.setDefaultValue(PxColourAny);
    QCOMPARE(int(table.decodeCSV(text)), value);
    QTEST(log.texts().size() / 2, "undecodable");
}

void PxEnumTableTest::logsWhatItCannotDecode()
{
    const PxLogRecorder log;
    QCOMPARE(int(PxBinding("LEATHER,foo").value()), 4096 + 8);
    QCOMPARE(log.texts(), QStringList("undecodable: (using default in  13PxBindingEnum ) \"foo\""));
    const PxLogRecorder::Entry entry = log.entries().constFirst();
    QCOMPARE(entry.level, QtDebugMsg);
    QCOMPARE(entry.file, QString("../PxTemplateClasses/PxEnumToStringTable"));
    QCOMPARE(entry.line, 161);
}

void PxEnumTableTest::encodesBits()
{
    QCOMPARE(PxColour(1).encodeCSV(), QString("Red")); // the first keyword, as it was inserted
    QCOMPARE(PxColour(5).encodeCSV(), QString("Red, Blue"));
    QCOMPARE(PxColour(5).enumToStringTable()->encode(PxColourViolet), QString("violet"));
    QCOMPARE(PxColour(10).encodeCSV(), QString("green, none"));
    QCOMPARE(PxColour(0).encodeCSV(), QString("none"));
    QCOMPARE(PxColour(-1).encodeCSV(), QString("none"));
}

void PxEnumTableTest::splitsAndChangesBits()
{
    QList<int> bits;
    for (PxColourEnum bit : splitEnumType(static_cast<PxColourEnum>(69503)))
        bits.append(bit);
    QCOMPARE(bits, QList<int>({1, 2, 4, 8, 16, 32, 64, 256, 512, 1024, 2048, 65536}));
    QCOMPARE(splitEnumType(static_cast<PxColourEnum>(1 << 30)).size(), 1);
    QCOMPARE(splitEnumType(static_cast<PxColourEnum>(-5)).size(), 0);

    PxColour colour(5);
    (colour |= PxColour(10)).exclude(PxColour(5)).expandedTo(PxColourAny);
    QCOMPARE(int(colour.value()), 138);
    QVERIFY(PxColour(-1) < colour); // signed
}

void PxEnumTableTest::looksUpTexts()
{
    PxLookUpTable<int, QString> table;
    table.insert(7, QStringLiteral("same"));
    table.insert(3, QStringLiteral("same"));
    table.setDefaults(9, QStringLiteral("other"));
    QCOMPARE(table.findByKey(4), QString("other"));
    QCOMPARE(table.findByValue(QStringLiteral("same")), 3);
    QCOMPARE(table.findByValue(QStringLiteral("Same")), 9);
}

void PxEnumTableTest::emptySetMeansAll()
{
    const PxEmptyMeansAllSet<int> all;
    const PxEmptyMeansAllSet<int> some{1, 2};
    QVERIFY(all.sharesKey(1) && some.sharesKey(1) && !some.sharesKey(3));
    QVERIFY(all.sharesKeysWith(all) && all.sharesKeysWith(some) && some.sharesKeysWith(all));
    QVERIFY(!all.sharesRealKeysWith(all) && !some.sharesRealKeysWith(all));
    QVERIFY(!some.sharesKeysWith({3}) && some.sharesKeysWith({2, 3}));
}

QTEST_GUILESS_MAIN(PxEnumTableTest)
#include "PxEnumTableTest.moc"
