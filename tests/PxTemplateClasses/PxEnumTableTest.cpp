#include <EnumHelper.h>
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

using namespace EnumHelper;

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
        table->setDefaultString("none");
    }

    static inline std::atomic<int> ourFills{0};
};

class PxEnumTableTest : public QObject
{
    Q_OBJECT

private slots:
    void isFilledOnceByManyThreads();
    void decodesLists();
    void encodesBits();
    void splitsAndChangesBits();
    void looksUpTexts();
    void emptySetMeansAll();
    void setsAreShown();
    void mapsDecodeKeywords();
    void mapsLeadEveryValueBack();
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
            decoded += PxColour(0).decodeCSV("violet");
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(decoded.load(), 8 * 5);
    QCOMPARE(PxColour::ourFills.load(), 1);
}

void PxEnumTableTest::decodesLists()
{
    PxEnumToStringTable<PxColourEnum> table = *PxColour(0).enumToStringTable();
    QCOMPARE(int(table.decodeCSV("")), 0);
    table.setDefaultValue(PxColourAny);
    // The value, and how many parts were reported.
    const auto decode = [&table](const char *text) {
        const PxLogRecorder log;
        const int value = table.decodeCSV(text);
        return QPair<int, int>(value, log.texts().size());
    };
    QCOMPARE(decode(""), qMakePair(128, 0));
    QCOMPARE(decode("\tgReeN \n,Red,ruby"), qMakePair(3, 0));
    QCOMPARE(decode("red,,blue"), qMakePair(133, 1));
    QCOMPARE(decode("red, "), qMakePair(129, 1));
    QCOMPARE(decode(" "), qMakePair(128, 1));
    QCOMPARE(decode("pink,green,brown"), qMakePair(130, 2));

    QCOMPARE(decode(qPrintable(QString("red") + QString(100, ','))), qMakePair(129, 100));
    QCOMPARE(decode(qPrintable(QString("red") + QString(9999, ','))), qMakePair(129, 101));

    const PxLogRecorder log;
    QCOMPARE(int(PxBinding("LEATHER,foo").value()), 4096 + 8);
    QCOMPARE(log.texts(), QStringList("undecodable: (using default in  13PxBindingEnum ) \"foo\""));
    const PxLogRecorder::Entry entry = log.entries().constFirst();
    QCOMPARE(QString("%1 %2:%3").arg(entry.level).arg(entry.file).arg(entry.line),
             QString("0 ../PxTemplateClasses/PxEnumToStringTable:161"));
    // Compilers write it with and without a space.
    QVERIFY2(QString(entry.function).remove(' ').contains("::decodeCSV(constQString&)const"),
             qPrintable(entry.function));
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
    table.insert(7, "same");
    table.insert(3, "same");
    table.setDefaults(9, "other");
    QCOMPARE(table.findByKey(4), QString("other"));
    QCOMPARE(table.findByValue("same"), 3);
    QCOMPARE(table.findByValue("Same"), 9);
}

void PxEnumTableTest::emptySetMeansAll()
{
    const PxEmptyMeansAllSet<int> all;
    const PxEmptyMeansAllSet<int> some{1, 2};
    QVERIFY(all.sharesKey(1) && some.sharesKey(1) && !some.sharesKey(3));
    QVERIFY(all.sharesKeysWith(all) && all.sharesKeysWith(some) && some.sharesKeysWith(all));
    QVERIFY(!all.sharesRealKeysWith(all) && !some.sharesRealKeysWith(all));
    QVERIFY(!some.sharesKeysWith({3}) && some.sharesKeysWith({2, 3}));
    const PxEmptyMeansAllSet<int> united = some | QSet<int>{3};
    QCOMPARE(united.sorted(), QList<int>({1, 2, 3}));
    PxEmptyMeansAllSet<int> common = united;
    common = united & QSet<int>{3, 4};
    QVERIFY(common.sharesKey(3) && !common.sharesKey(1));
}

/** Equal to others of its number, and nothing more. */
struct Unordered
{
    int number;
    friend bool operator==(Unordered a, Unordered b) { return a.number == b.number; }
    friend uint qHash(Unordered u, uint seed) { return ::qHash(u.number, seed); }
    friend QDebug operator<<(QDebug debug, Unordered u) { return debug << u.number; }
};

void PxEnumTableTest::setsAreShown()
{
    const auto shown = [](const auto &set) {
        QString text;
        QDebug(&text) << set;
        return text.trimmed();
    };
    QCOMPARE(shown(PxEmptyMeansAllSet<int>()), QString("all"));
    QCOMPARE(shown(PxEmptyMeansAllSet<int>{11, 2, 1}), QString("(1, 2, 11)"));
    QCOMPARE(shown(PxEmptyMeansAllSet<Unordered>{{7}}), QString("(7)"));
}

void PxEnumTableTest::mapsDecodeKeywords()
{
    const auto decode = [](const auto &map, auto fallback, const char *keywords) {
        return int(decodeKeywordList(keywords, map, fallback));
    };
    QCOMPARE(decode(globalMapPageAlignmentString, globalPageAlignmentDefaultValue, "\tTop, "), 17);
    QCOMPARE(decode(globalMapPageAlignmentString, globalPageAlignmentDefaultValue, "CoverPage"), 1);
    QCOMPARE(decode(globalMapProductGroupEnumString, globalProductGroupEnumDefaultValue,
                    "printfun,FUN,product_foto,toy"),
             16 + 32 + 2);
    QCOMPARE(decode(globalMapTemplateTargetString, globalTemplateTargetDefaultValue, "poster"), 0);
    QCOMPARE(decode(globalMapAssemblyWayString, globalAssemblyWayDefaultValue, "shop"), 2);

    QCOMPARE(decodePageAlignmentAsList("Top,right,,top"),
             QList<PxPageAlignment>({PxPageAlignmentTop, PxPageAlignmentRight, PxPageAlignmentLeft,
                                     PxPageAlignmentTop}));
    QCOMPARE(decodePageAlignmentAsList(""), QList<PxPageAlignment>{PxPageAlignmentLeft});
}

template <typename ENUM>
static int valuesThatLeadBack(const QHash<QString, ENUM> &map)
{
    int values = 0;
    for (ENUM value : map) {
        if (decodeKeyword(map.key(value).toLower(), map, static_cast<ENUM>(0)) == value)
            values |= value;
    }
    return values;
}

void PxEnumTableTest::mapsLeadEveryValueBack()
{
    QCOMPARE(valuesThatLeadBack(globalMapPageAlignmentString), 127);
    QCOMPARE(valuesThatLeadBack(globalMapSurroundingTypeString), 511);
    QCOMPARE(valuesThatLeadBack(globalMapPageNamingStyleString), 2047);
    QCOMPARE(valuesThatLeadBack(globalMapAssemblyWayString), 3);
    QCOMPARE(valuesThatLeadBack(globalMapTemplateTargetString), 4 + 8 + 32 + 256);
    QCOMPARE(valuesThatLeadBack(globalMapProductGroupEnumString), 511 - 64);
    QCOMPARE(valuesThatLeadBack(globalMapImageFXsString), 5);
}

QTEST_GUILESS_MAIN(PxEnumTableTest)
#include "PxEnumTableTest.moc"
