#include <PxElement.h>
#include <PxLogRecorder.h>
#include <PxOrientation.h>
#include <PxRows.h>
#include <description/PxProductTypeDescription.h>
#include <values/PxBinding.h>
#include <values/PxJigType.h>
#include <values/PxPageTypeList.h>
#include <values/PxPaperType.h>
#include <values/PxSpaceMagnitude.h>

#include <QTranslator>

// An application may instantiate the templates itself; the tables must be those of the libraries.
template class PxEnumWrapper<PxBindingEnum>;
template class PxEnumWrapper<PxOrientationEnum>;

/** Puts the context in front of each text, and knows nothing of its own translations. */
class PxContextTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return *text == '[' ? QString() : QString("[%1] %2").arg(context, text);
    }
};

class PxAttributeEnumsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::installTranslator(&m_translator); }
    void keywordsHaveTheirNumbers();
    void asksBindingsAndSizes();
    void showsTranslatedTexts();
    void everyNameLeadsBack();
    void listsPageTypes();
    void librariesDecodeWhatTheProgramInserted();

private:
    PxContextTranslator m_translator; // installed first: the texts are translated on first use
};

/** Rows of "keyword=number", or of "keyword=number>keyword" if it is written with another one. */
template <typename T>
static void checkKeywords(const char *name, const char *rows)
{
    pxCheckAnswers(name, rows, [](const QString &keyword) {
        const T value(keyword);
        const QString written = value.enumToStringTable()->encode(value.value());
        const QString number = QString::number(value.value());
        return written == keyword ? number : number + '>' + written;
    });
}

// clang-format off
void PxAttributeEnumsTest::keywordsHaveTheirNumbers()
{
    const PxLogRecorder log; // "attic" is no keyword
    // Applications store the numbers.
    checkKeywords<PxBinding>("PxBinding",
        "HARDCOVER=1 SOFTCOVER=2 CROMOLINEN=4 LEATHER=8 ARTIFICIALLEATHER=16 CLAMP=32 clampCover=32>CLAMP BOOKLET=64 FOIL=128 "
        "CALENDAR_SIMPLEX=256 CALENDAR_DUPLEX=512 CALENDAR_ONE_PAGE=1024 CALENDAR_ANNUAL_SIMPLEX=1024>CALENDAR_ONE_PAGE "
        "CALENDAR_ANNUAL_DUPLEX=2048 GIFT=4096 =4096>GIFT attic,LEATHER=4104>GIFT");
    checkKeywords<PxJigType>("PxJigType",
        "background=1 backgrounds=1>background HINTERGRUND=1>background clipart=2 cliparts=2>clipart content=4 contents=4>content "
        "layout=8 Layouts=8>layout passepartout=16 fading=16>passepartout masks=16>passepartout style=32 styles=32>style "
        "frame=128 Rahmen=128>frame Rahmen,content=132> attic=0>");
    checkKeywords<PxPageType>("PxPageType",
        "spine=1 clampcoverfront=2 clampcoverback=4 foilcoverfront=8 foilcoverback=8>foilcoverfront foilcover=8>foilcoverfront "
        "normalpage=16 normal=16>normalpage content=16>normalpage emptypage=32 empty=32>emptypage fullcover=64 "
        "calendercoverfront=256 calendarfront=256>calendercoverfront calendercoverback=512 calendarback=512>calendercoverback "
        "cromolinen=1024 leather=2048 artificialleather=65536 duplexmonthcalendar=131072 simplexyearcalendar=262144 "
        "normalpages=524288 simplexmonthcalendar=1048576 cover=69455 all=69503 attic=0>");
    checkKeywords<PxPaperType>("PxPaperType",
        "indigo=1 glossy=2 indigo-matt=4 fotopaper=8 fotopaper-glossy=16 attic=1>indigo");
    QCOMPARE(int(PxPaperType("Unbekanntes Papier").value()), 0);
    checkKeywords<PxSpaceMagnitude>("PxSpaceMagnitude",
        "150cm2=1 200cm2=2 280cm2=4 310cm2=8 400cm2=16 600cm2=32 900cm2=64 XL=64>900cm2 1200cm2=128 normal=190 =255>any attic=255>any");
    pxCheckComparison("PxBinding", "1 2 32", [](const QList<int> &number) { return PxBinding(static_cast<PxBindingEnum>(number[0])); });
    QCOMPARE(int(PxBinding().value()), 0);
}

void PxAttributeEnumsTest::asksBindingsAndSizes()
{
    pxCheckAnswers("isSimplex", "CALENDAR_SIMPLEX=true CALENDAR_ONE_PAGE=true CALENDAR_ANNUAL_DUPLEX,GIFT=true CALENDAR_DUPLEX=false",
                   [](const QString &binding) { return PxBinding(binding).isSimplex(); });
    pxCheckAnswers("isFullCover", "HARDCOVER=true SOFTCOVER=true BOOKLET,LEATHER=true CROMOLINEN=false",
                   [](const QString &binding) { return PxBinding(binding).isFullCover(); });
    pxCheckAnswers("isClampCover", "CLAMP,LEATHER=true GIFT=false",
                   [](const QString &binding) { return PxBinding(binding).isClampCover(); });
    pxCheckAnswers("calendarPageCount", "CALENDAR_SIMPLEX=12 CALENDAR_DUPLEX=24 CALENDAR_ANNUAL_DUPLEX=2 CALENDAR_ONE_PAGE=1",
                   [](const QString &binding) { return PxBinding(binding).calendarPageCount(); });
    pxCheckAnswers("maxReasonableImagesPerPage", "150cm2=1 200cm2=4 280cm2=5 310cm2=5 400cm2=6 600cm2=8 900cm2=12 1200cm2=14 normal=1",
                   [](const QString &size) { return PxSpaceMagnitude(size).maxReasonableImagesPerPage(); });
}
// clang-format on

void PxAttributeEnumsTest::showsTranslatedTexts()
{
    const QString noBinding("[PxBinding] unbekannter Bindungstyp");
    QCOMPARE(PxBinding("GIFT").humanReadableName(), noBinding);
    QCOMPARE(PxBinding("BOOKLET,CLAMP").toolTip(), noBinding);
    QVERIFY(PxBinding("BOOKLET").toolTip().startsWith("[PxBinding] Individuell gestaltbarer fl"));
    QCOMPARE(PxPaperType("fotopaper-glossy").humanReadableName(),
             QString("[PxPaperType] Fotopapier glänzend"));
    QCOMPARE(PxPaperType().humanReadableName(), QString("[PxPaperType] unbekannter Papiertyp"));
    QCOMPARE(PxSpaceMagnitude("").humanReadableName(), QString("[PxSpaceMagnitude] Undefiniert"));

    QCOMPARE(int(PxBinding::createFromHumanReadable("unbekannter Bindungstyp").value()), 0);
    QCOMPARE(int(PxPaperType::createFromHumanReadable("glossy").value()), 1);
    QCOMPARE(int(PxSpaceMagnitude::createFromHumanReadable("").value()), 0);
}

/** The bits with a name that leads back to them, in German and translated. */
template <typename T>
static int bitsWithNames()
{
    int bits = 0;
    for (const auto bit : splitEnumType(static_cast<decltype(T().value())>(0x7fffffff))) {
        const QString name = T(bit).humanReadableName();
        if (T::createFromHumanReadable(name) == T(bit) &&
            T::createFromHumanReadable(name.section("] ", 1)) == T(bit))
            bits |= bit;
    }
    return bits;
}

void PxAttributeEnumsTest::everyNameLeadsBack()
{
    QCOMPARE(bitsWithNames<PxBinding>(), 0xfff);
    QCOMPARE(bitsWithNames<PxPaperType>(), 0x1f);
    QCOMPARE(bitsWithNames<PxSpaceMagnitude>(), 0xff);
}

void PxAttributeEnumsTest::listsPageTypes()
{
    PxPageType both(PxPageTypeEmptyPage);
    both.expandTo(PxPageTypeSpine);
    both.expandTo("leather");
    QCOMPARE(int(both.value()), 0x821);

    const PxLogRecorder log;
    const QList<PxPageTypeEnum> expected{PxPageTypeSpine, PxPageTypeNone, PxPageTypeNone};
    QCOMPARE(PxPageTypeList(" spine, ,attic"), PxPageTypeList(expected));
    QCOMPARE(log.texts(),
             QStringList("undecodable: (using default in  14PxPageTypeEnum ) \"attic\""));
    QCOMPARE(PxPageTypeList("").size(), 1);
    PxPageTypeList("x" + QString(",x").repeated(101));
    QCOMPARE(log.texts().mid(101),
             QStringList("undecodable: (using default in  14PxPageTypeEnum ) 2 more"));
}

void PxAttributeEnumsTest::librariesDecodeWhatTheProgramInserted()
{
    PxBinding().enumToStringTable()->insert("ring", PxBindingFoil);
    PxOrientation().enumToStringTable()->insert("oblique", PxOrientationPanorama);
    const PxProductTypeDescription product(pxElement("<p binding='ring' orientation='oblique'/>"));
    QCOMPARE(product.binding().value(), PxBindingFoil);
    QCOMPARE(product.orientation().value(), PxOrientationPanorama);
}

QTEST_GUILESS_MAIN(PxAttributeEnumsTest)
#include "PxAttributeEnumsTest.moc"
