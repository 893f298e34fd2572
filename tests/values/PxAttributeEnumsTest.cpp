#include <PxElement.h>
#include <PxLogRecorder.h>
#include <PxOrientation.h>
#include <description/PxProductTypeDescription.h>
#include <values/PxBinding.h>
#include <values/PxJigType.h>
#include <values/PxPageTypeList.h>
#include <values/PxPaperType.h>
#include <values/PxSpaceMagnitude.h>

#include <QTest>
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
    void readsKeywordsAndWritesUnions();
    void asksBindingsAndSizes();
    void showsTranslatedTexts();
    void everyValueLeadsBack();
    void listsPageTypes();
    void librariesDecodeWhatTheProgramInserted();

private:
    PxContextTranslator m_translator; // installed first: the texts are translated on first use
};

void PxAttributeEnumsTest::readsKeywordsAndWritesUnions()
{
    QCOMPARE(int(PxBinding(" clampCover").value()), 32); // a synonym
    QCOMPARE(int(PxJigType("HINTERGRUND,masks,Rahmen").value()), 145);
    QCOMPARE(int(PxPageType("content,empty,calendarfront").value()), 0x130);
    QCOMPARE(int(PxPageType("all").value()), 69503);
    QCOMPARE(int(PxPaperType("Unbekanntes Papier").value()), 0);
    QCOMPARE(int(PxSpaceMagnitude("XL").value()), 64);
    QCOMPARE(int(PxSpaceMagnitude("normal").value()), 190);

    QCOMPARE(PxPageType("cover").encodeCSV(),
             QString("spine, clampcoverfront, clampcoverback, foilcoverfront, fullcover, "
                     "calendercoverfront, calendercoverback, cromolinen, leather, "
                     "artificialleather"));
    QCOMPARE(PxSpaceMagnitude("").encodeCSV(),
             QString("150cm2, 200cm2, 280cm2, 310cm2, 400cm2, 600cm2, 900cm2, 1200cm2"));
    QCOMPARE(PxSpaceMagnitude().encodeCSV(), QString("any"));
}

void PxAttributeEnumsTest::asksBindingsAndSizes()
{
    QVERIFY(PxBinding("CALENDAR_ANNUAL_DUPLEX").isSimplex());
    QVERIFY(!PxBinding("CALENDAR_DUPLEX").isSimplex());
    QVERIFY(PxBinding("BOOKLET").isFullCover() && !PxBinding("CROMOLINEN").isFullCover());
    QVERIFY(PxBinding("CLAMP,LEATHER").isClampCover() && !PxBinding("").isClampCover());
    QCOMPARE(PxSpaceMagnitude("1200cm2").maxReasonableImagesPerPage(), 14);
    QCOMPARE(PxSpaceMagnitude("normal").maxReasonableImagesPerPage(), 1); // no single size
}

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

/** The bits that `roundTrip` turns into a text and back. */
template <typename T, typename Function>
static int bitsThatLeadBack(Function roundTrip)
{
    int bits = 0;
    for (int bit = 1; bit <= 1 << 29; bit <<= 1) {
        const T value(static_cast<decltype(T().value())>(bit));
        if (roundTrip(value) == value)
            bits |= bit;
    }
    return bits;
}

void PxAttributeEnumsTest::everyValueLeadsBack()
{
    const PxLogRecorder log; // "any" is written, but it is no keyword
    const auto keyword = [](const auto &value) {
        return std::decay_t<decltype(value)>(value.encodeCSV());
    };
    QCOMPARE(bitsThatLeadBack<PxBinding>(keyword), 0x1fff);
    QCOMPARE(bitsThatLeadBack<PxJigType>(keyword), 0xbf);
    QCOMPARE(bitsThatLeadBack<PxPageType>(keyword), 0x1f0f7f);
    QCOMPARE(bitsThatLeadBack<PxPaperType>(keyword), 0x1f);
    QCOMPARE(bitsThatLeadBack<PxSpaceMagnitude>(keyword), 0xff);

    const auto name = [](const auto &value) {
        const QString translated = value.humanReadableName();
        const auto back = value.createFromHumanReadable(translated);
        return back == value ? value.createFromHumanReadable(translated.section("] ", 1)) : back;
    };
    QCOMPARE(bitsThatLeadBack<PxBinding>(name), 0xfff);
    QCOMPARE(bitsThatLeadBack<PxPaperType>(name), 0x1f);
    QCOMPARE(bitsThatLeadBack<PxSpaceMagnitude>(name), 0xff);
}

void PxAttributeEnumsTest::listsPageTypes()
{
    PxPageType both(PxPageTypeEmptyPage);
    both.expandTo(PxPageTypeSpine);
    both.expandTo("leather");
    QCOMPARE(int(both.value()), 0x821);

    QTest::ignoreMessage(QtDebugMsg,
                         "undecodable: (using default in  14PxPageTypeEnum ) \"attic\"");
    const QList<PxPageTypeEnum> expected{PxPageTypeSpine, PxPageTypeNone, PxPageTypeNone};
    QCOMPARE(PxPageTypeList(" spine, ,attic"), PxPageTypeList(expected));
    QCOMPARE(PxPageTypeList("").size(), 1);
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
