#include <EnumHelper.h>
#include <PxEmptyMeansAllSet.h>
#include <PxEnumWrapper.h>
#include <PxLogRecorder.h>
#include <PxLookUpTable.h>
#include <PxRows.h>
#include <themes/PxTheme.h>
#include <values/PxBinding.h>

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
    void operationsKeepTheirPlaces();
    void looksUpTexts();
    void emptySetMeansAll();
    void setsAreShown();
    void mapsDecodeKeywords();
    void mapsEncodeTheShortestKeyword();
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
    // The value, how many messages there are, and the one after as many as are logged one by one.
    const auto decode = [&table](const QString &text) {
        const PxLogRecorder log;
        const QString value = QString::number(table.decodeCSV(text));
        const QStringList texts = log.texts();
        return QString("%1 %2 %3").arg(value).arg(texts.size()).arg(texts.value(100)).trimmed();
    };
    QCOMPARE(decode(""), QString("128 0"));
    QCOMPARE(decode("\tgReeN \n,Red,ruby"), QString("3 0"));
    QCOMPARE(decode(",red,,blue"), QString("133 2"));
    QCOMPARE(decode("red, "), QString("129 1"));
    QCOMPARE(decode(" "), QString("128 1"));
    QCOMPARE(decode("pink,green,brown"), QString("130 2"));
    QCOMPARE(decode("red" + QString(100, ',')), QString("129 100"));
    QCOMPARE(decode("red" + QString(9999, ',')),
             QString("129 101 undecodable: (using default in  12PxColourEnum ) 9899 more"));

    const PxLogRecorder log;
    QCOMPARE(int(PxBinding("LEATHER,foo").value()), 4096 + 8);
    QCOMPARE(log.texts(), QStringList("undecodable: (using default in  13PxBindingEnum ) \"foo\""));
    const PxLogRecorder::Entry entry = log.entries().constFirst();
    QCOMPARE(
        QString("%1 %2 %3:%4").arg(entry.level).arg(entry.category, entry.file).arg(entry.line),
        QString("0 default ../PxTemplateClasses/PxEnumToStringTable:161"));
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
    QVERIFY(colour > PxColour(-1));
    QVERIFY(colour.hasValue(static_cast<PxColourEnum>(138)));
    QVERIFY(!colour.hasValue(PxColourAny));
    QCOMPARE(qHash(colour), 138U);
}

void PxEnumTableTest::operationsKeepTheirPlaces()
{
    using Colour = PxEnumWrapper<PxColourEnum>;
    const QList<int> places = pxVirtualSlots(
        &Colour::operator<, &Colour::operator>, &Colour::operator==, &Colour::operator!=,
        &Colour::operator|=, &Colour::operator&=, &Colour::operator&, &Colour::operator|,
        static_cast<Colour &(Colour::*)(const Colour &)>(&Colour::exclude),
        static_cast<Colour &(Colour::*)(PxColourEnum)>(&Colour::exclude), &Colour::expandedTo,
        &Colour::isValid, &Colour::fillTable);
    // The destructor comes first and has two.
    QCOMPARE(places, QList<int>({2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}));
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
    using Set = PxEmptyMeansAllSet<int>;
    const Set all;
    const Set some{1, 2};
    QVERIFY(all.sharesKey(1));
    QVERIFY(some.sharesKey(1));
    QVERIFY(!some.sharesKey(3));
    QVERIFY(all.sharesKeysWith(some));
    QVERIFY(some.sharesKeysWith(all));
    QVERIFY(some.sharesKeysWith({2, 3}));
    QVERIFY(!some.sharesKeysWith({3}));
    QVERIFY(!all.sharesRealKeysWith(all));
    QVERIFY(!some.sharesRealKeysWith(all));
    QCOMPARE(Set(some | QSet<int>{3}).sorted(), QList<int>({1, 2, 3}));
    Set common;
    common = some & QSet<int>{2, 3};
    QCOMPARE(common, Set{2});
}

void PxEnumTableTest::setsAreShown()
{
    QCOMPARE(pxShown(PxEmptyMeansAllSet<int>()), QString("all"));
    QCOMPARE(pxShown(PxEmptyMeansAllSet<PxBinding>{PxBindingFoil, PxBindingGift, PxBindingLeather,
                                                   PxBindingClamp, PxBindingHardcover}),
             QString("(HARDCOVER(1), LEATHER(8), CLAMP(32), FOIL(128), GIFT(4096))"));
    QCOMPARE(pxShown(PxEmptyMeansAllSet<PxTheme>{PxTheme()}), QString("(PxTheme(\"unbekannt\"))"));
}

template <typename ENUM>
static void checkMap(const QHash<QString, ENUM> &map, ENUM fallback, const char *rows)
{
    pxCheckAnswers(typeid(ENUM).name(), rows, [&](const QString &keywords) {
        return int(decodeKeywordList(keywords, map, fallback));
    });
}

void PxEnumTableTest::mapsDecodeKeywords()
{
    // Applications store the numbers.
    // clang-format off
    checkMap(globalMapPageAlignmentString, globalPageAlignmentDefaultValue, "left=1 leftpage=1 cover=1 CoverPage=1 right=2 rightpage=2 middle=4 fullpage=8 top=16 bottom=32 center=64 \tTop,\n=17 spine=1 =1");
    checkMap(globalMapSurroundingTypeString, globalSurroundingTypeDefaultValue, "book=1 gift=2 border=4 calendar=8 frame=16 collegeblock=32 photopaperbook=64 copybook=128 notebook=256 fog=0");
    checkMap(globalMapPageNamingStyleString, globalPageNamingStyleDefaultValue, "book=1 calendar=2 single_sided_card=4 both_sided_card=8 memory=16 college_block=32 premium-pillow=64 copybook=128 sticker=256 addressbook=512 calendar_annual_duplex=1024 gift=0");
    checkMap(globalMapAssemblyWayString, globalAssemblyWayDefaultValue, "client=1 factory=2 shop=2");
    checkMap(globalMapTemplateTargetString, globalTemplateTargetDefaultValue, "fotobook=4 gift=8 frame=8 invisible=32 calendar=256 poster=0");
    checkMap(globalMapProductGroupEnumString, globalProductGroupEnumDefaultValue, "foto=1 premiumfoto=2 product_foto=2 poster=4 product_poster=4 book=8 product_fotobook=8 calendar=16 printfun=16 product_calendar=16 gift=32 fun=32 product_gift=32 dfmfoto=128 professionalfoto=256 printfun,FUN,toy=48");
    checkMap(globalMapImageFXsString, globalImageFXsDefaultValue, "grayscale=1 preserve_alpha_channel=4 none=0 sepia=0");
    // clang-format on
    QCOMPARE(int(PxAssemblyWayNone), 0); // without a keyword

    QCOMPARE(decodePageAlignmentAsList("Top,right,,top"),
             QList<PxPageAlignment>({PxPageAlignmentTop, PxPageAlignmentRight, PxPageAlignmentLeft,
                                     PxPageAlignmentTop}));
    QCOMPARE(decodePageAlignmentAsList(""), QList<PxPageAlignment>{PxPageAlignmentLeft});
}

void PxEnumTableTest::mapsEncodeTheShortestKeyword()
{
    QHash<QString, int> map{{"?", 2}};
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        map.insert(QString(letter), 1);
        map.insert(QString("-%1").arg(letter), 1);
    }
    QCOMPARE(encodeKeyword(1, map, "none"), QString("A"));
    QCOMPARE(encodeKeyword(2, map, "none"), QString("?"));
    QCOMPARE(encodeKeyword(3, map, "none"), QString("none"));
}

QTEST_GUILESS_MAIN(PxEnumTableTest)
#include "PxEnumTableTest.moc"
