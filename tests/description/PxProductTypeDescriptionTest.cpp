#include "PxCatalogueDirectory.h"
#include "PxElement.h"
#include "PxLogRecorder.h"

#include <description/PxProductTypeDescription.h>

#include <PxXMLLoader.h>

#include <QElapsedTimer>
#include <QTest>

class PxProductTypeDescriptionTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void defaultBuiltRecordIsComplete();
    void emptyElementGetsTheKeywordTablesDefaults();
    void everyAttributeReachesItsOwnField();
    void firstTrueCardStyleWins_data();
    void firstTrueCardStyleWins();
    void specialBleedReplacesTheCommonOne();
    void foldMargin_data();
    void foldMargin();
    void bookSpinesGrowAtTheCostOfTheCover_data();
    void bookSpinesGrowAtTheCostOfTheCover();
    void backgroundDefaultsFollowTheProductClass_data();
    void backgroundDefaultsFollowTheProductClass();
    void orientationAndSpaceOfTheSizeComeFirst();
    void userDefaults_data();
    void userDefaults();
    void extremeNumbersAreClamped();
    void millionsOfCombinationsAnswerAtOnce();

private:
    PxCatalogueDirectory m_directory;
};

void PxProductTypeDescriptionTest::initTestCase()
{
    m_directory.writeProductTypes("1 book PROBEBOOK\n2 book OLDBOOK\n3 calendar CAL\n4 gift CUP\n"
                                  "5 card CARD\n6 deko CANVAS\n7 print PRINT");
}

void PxProductTypeDescriptionTest::defaultBuiltRecordIsComplete()
{
    const PxProductTypeDescription description;
    QVERIFY(!description.isValid());
    QCOMPARE(description.binding().value(), 0);
    QCOMPARE(description.paperType().value(), 0);
    QCOMPARE(description.spaceMagnitude().value(), 0);
    QCOMPARE(int(description.assemblyWay()), 0);
    QVERIFY(!description.supportsJigType(PxJigType(QStringLiteral("background,layout,content"))));
    QVERIFY(description.canHaveBorder() && description.canHaveShadow());
    QVERIFY(!description.fullBackgroundOnEachPage());
    QVERIFY(description.hasAssistant() && description.horizontalPages());
    QCOMPARE(description.coverSize(), QSize(-1, -1));
    QCOMPARE(description.defaultSellingPages(), -1);
    QVERIFY(!description.legacyProduct().isValid());
    QVERIFY(!description.hasPages() && !description.hasCover());
}

void PxProductTypeDescriptionTest::emptyElementGetsTheKeywordTablesDefaults()
{
    const PxLogRecorder log;
    const PxProductTypeDescription description(pxElement(QStringLiteral("<product/>")));
    QCOMPARE(description.binding().value(), PxBindingGift);
    QCOMPARE(description.paperType().value(), PxPaperTypeIndigo);
    QCOMPARE(description.spaceMagnitude().value(), PxSpaceMagnitudeAny);
    QCOMPARE(description.assemblyWay(), PxAssemblyWayFactory);
    QCOMPARE(int(description.pageNamingStyle()), 0);
    for (const char *jigType : {"background", "clipart", "content", "layout", "passepartout"})
        QVERIFY2(description.supportsJigType(PxJigType(QString::fromLatin1(jigType))), jigType);
    QVERIFY(!description.supportsJigType(PxJigType(QStringLiteral("style,frame"))));
    QVERIFY(description.canHaveBorder() && description.canHaveShadow());
    QCOMPARE(description.explicitNumberOfProducts(), 1);
    QCOMPARE(description.explicitNumberOfNormalPages(), 1);
    QCOMPARE(description.pageNumberHorizontalIndent(), 50.0);
    QCOMPARE(description.pageNumberVerticalIndent(), 50.0);
    QCOMPARE(description.pageNumberFontSize(), 24);
    QCOMPARE(description.foldMargin(), 0);
    QCOMPARE(description.countAbstractPages(), 0);
    QVERIFY(!description.limitBackgroundCategories());
    QCOMPARE(log.texts(), QStringList());
}

void PxProductTypeDescriptionTest::everyAttributeReachesItsOwnField()
{
    const QFileInfo file(QStringLiteral(PX_TEST_DATA_DIRECTORY "/distinct-values.xml"));
    const QDomElement product =
        PxXMLLoader::loadDocumentElement(file).firstChildElement(QStringLiteral("product"));
    const PxProductTypeDescription d(product);

    QVERIFY(d.isValid());
    QCOMPARE(d.safetyMargin(), 31);
    QCOMPARE(d.safetyMargins().totalMarginWH(), QSize(62, 62));
    QCOMPARE(d.defaultSellingPages(), 32);
    QCOMPARE(d.explicitNumberOfProducts(), 33);
    QCOMPARE(d.explicitNumberOfNormalPages(), 34);
    QCOMPARE(d.normalPageHorizontalClamp(), 35);
    QCOMPARE(int(d.imageFX()), 5);
    QVERIFY(!d.canHaveBorder() && !d.canHaveShadow());
    QCOMPARE(d.assemblyWay(), PxAssemblyWayClient);
    QCOMPARE(d.binding().value(), PxBindingClamp);
    QCOMPARE(d.paperType().value(), PxPaperTypeFotoPaperGlossy);
    QVERIFY(d.supportsJigType(PxJigTypeContent) && d.hasContentCategoryBox());
    QVERIFY(!d.supportsJigType(PxJigTypeLayout));
    QVERIFY(d.supportsJigType(PxJigTypePassepartout));
    QVERIFY(!d.supportsJigType(PxJigTypeClipart));
    QVERIFY(d.supportsJigType(PxJigTypeBackground));
    QVERIFY(!d.hasAssistant());
    QVERIFY(!d.horizontalPages());
    QVERIFY(!d.hasCardStyleAlignment());
    QCOMPARE(d.numberOfSpiralLoops(), 36);
    QVERIFY(d.hasHook() && d.hasHole());
    QCOMPARE(d.editorStartDoublePage(), 37);
    QVERIFY(d.mustPaintVemoLogoOnSpine());
    QCOMPARE(int(d.pageNamingStyle()), 32 + 16);
    QCOMPARE(d.foldMargin(), 38);
    QCOMPARE(d.legacyProduct(), PxProductType(2));
    QCOMPARE(d.bleedMarginNormal(), PxBleedMargin(40, 41));
    QCOMPARE(d.bleedMarginCover(), PxBleedMargin(43, 44));
    QCOMPARE(d.coverSize(), QSize(2050 + 56 - 10, 2700 + 45));
    QCOMPARE(d.orientation().value(), PxOrientationPortrait);
    QCOMPARE(d.spaceMagnitude().value(), PxSpaceMagnitude600);
    QVERIFY(d.fullBackgroundOnEachPage());
    QStringList categories = d.allowedBackgroundCategories().toDataStringList();
    categories.sort();
    QCOMPARE(categories, QStringList({QStringLiteral(" Stadt"), QStringLiteral("Einfarbig"),
                                      QStringLiteral("Natur")}));

    QCOMPARE(d.classification().sizeName(true), QStringLiteral("20x27"));
    QCOMPARE(d.classification().sizeName(false), QStringLiteral("8x11"));
    QCOMPARE(d.classification().material(), PxProductMaterial(QStringLiteral("Leinwand")));
    QCOMPARE(d.classification().areaSize(), 2050 * 2700);
    QCOMPARE(d.spineWidth(24), 47 + 20);
    QCOMPARE(d.spineMaxFontHeight(24), 48);
    QCOMPARE(d.spineWidth(28), 55 + 20);
    QCOMPARE(d.spineMaxFontHeight(28), 57);
    QCOMPARE(d.minPages(), 24);
    QCOMPARE(d.maxPages(), 40);
    QVERIFY(d.hasSpine() && d.hasCover());
    QCOMPARE(d.countAbstractPages(), 3);

    const PxSurroundingDescription surrounding =
        d.findSurrounding(PxSurroundingKey(PxPageContext(), 58));
    QCOMPARE(surrounding.surroundingType(), PxSurroundingTypePhotoPaperBook);
    QCOMPARE(surrounding.imageRect(), QRect(59, 60, 61, 62));
    QCOMPARE(d.rotationRedirectForSourcePage(63).value(0), PxPageRotationRedirect(63, 64, 65));
    QCOMPARE(d.rotationRedirectForTargetPage(64).value(0), PxPageRotationRedirect(63, 64, 65));
    QCOMPARE(d.contentDropRedirect(67), 68);
    QCOMPARE(d.findDefaultTemplate(
                 PxDefaultTemplateKey(QStringLiteral("normal"), {}, DefaultTemplateTypeLayout),
                 false, false),
             QStringLiteral("layoutÄss"));
    const PxBarcode barcode = d.barcodeOnPage(100 - 73, 100);
    QCOMPARE(barcode.rect(), QRect(69, 70, 71, 72));
    QCOMPARE(barcode.imageName(), QStringLiteral("bar.png"));
    QCOMPARE(d.variantDescription(), QStringLiteral("color"));
    QCOMPARE(d.variants(),
             QStringList({QStringLiteral("color:red"), QStringLiteral("color:blue")}));
    QCOMPARE(d.productionNumberingList(3), QList<int>({74, 76, 77}));
    QVERIFY(d.contentAllowedOnPage(77) && d.contentAllowedOnPage(78));
    QVERIFY(!d.contentAllowedOnPage(76));
    QCOMPARE(d.pageNumberVerticalIndent(), 79.0);
    QCOMPARE(d.pageNumberHorizontalIndent(), 80.0);
    QCOMPARE(d.pageNumberFontSize(), 81);
    const PxProductionExtraPageGroup extra = d.extraProductionContents().value(0);
    QCOMPARE(extra.targetPages(), QList<int>({82, 83}));
    QCOMPARE(extra.content(),
             PxProductionExtraPage(QStringLiteral("sheet.pdf"), QStringLiteral("back"), 84));
}

void PxProductTypeDescriptionTest::firstTrueCardStyleWins_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("alignmentOfPage2");
    // A one-sided product shows the style: none is right, card and college block change sides.
    QTest::newRow("none") << "" << 2;
    QTest::newRow("card before vario")
        << "cardStyleAlignment='true' varioSingleCardStyleAlignment='true'" << 1;
    QTest::newRow("vario before college block")
        << "varioSingleCardStyleAlignment='true' collegeBlockStyleAlignment='true'" << 4;
    QTest::newRow("college block alone")
        << "cardStyleAlignment='false' collegeBlockStyleAlignment='true'" << 1;
}

void PxProductTypeDescriptionTest::firstTrueCardStyleWins()
{
    QFETCH(QString, attributes);
    const PxProductTypeDescription description(
        pxElement(QStringLiteral("<product binding='CALENDAR_SIMPLEX' %1/>").arg(attributes)));
    QTEST(int(description.pageAlignment(2)), "alignmentOfPage2");
    QCOMPARE(description.hasCardStyleAlignment(),
             attributes.startsWith(QLatin1String("cardStyleAlignment='true'")));
}

void PxProductTypeDescriptionTest::specialBleedReplacesTheCommonOne()
{
    const PxProductTypeDescription description(pxElement(QStringLiteral(
        "<product bleedmargin='30' bleedmarginvertical='10' bleedmargincoverhorizontal='7'/>")));
    QCOMPARE(description.bleedMarginNormal(), PxBleedMargin(30, 10));
    QCOMPARE(description.bleedMarginCover(), PxBleedMargin(7, 0));
}

void PxProductTypeDescriptionTest::foldMargin_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("foldMargin");
    const QString shade = QStringLiteral(
        "<product %1><usablesize %2/><surroundings><surrounding hasbindingshade='true'/>"
        "</surroundings></product>");
    const QString none;
    QTest::newRow("portrait") << shade.arg(none, "width='2050' height='2700'") << 110;
    QTest::newRow("landscape") << shade.arg(none, "width='2700' height='2050'") << 110;
    QTest::newRow("quadratic") << shade.arg(none, "width='2050' height='2050'") << 91;
    QTest::newRow("round") << shade.arg(none, "width='2050' height='2050' orientation='round'")
                           << 0;
    QTest::newRow("stated") << shade.arg("foldmargin='7'", "width='2050' height='2050'") << 7;
    QTest::newRow("negative size")
        << shade.arg(none, "width='-5' height='9' orientation='portrait'") << 0;
    QTest::newRow("no shade") << QStringLiteral("<product><usablesize width='9' height='9'/>"
                                                "</product>")
                              << 0;
}

void PxProductTypeDescriptionTest::foldMargin()
{
    QFETCH(QString, product);
    QTEST(PxProductTypeDescription(pxElement(product)).foldMargin(), "foldMargin");
}

void PxProductTypeDescriptionTest::bookSpinesGrowAtTheCostOfTheCover_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("spines");
    QTest::addColumn<int>("spineWidth");
    QTest::addColumn<int>("coverWidth");
    QTest::newRow("book") << "PROBEBOOK"
                          << "<spine pages='24' width='40'/>" << 60 << 1090;
    QTest::newRow("book without spines") << "PROBEBOOK"
                                         << "" << 0 << 1100;
    QTest::newRow("smallest count without spine")
        << "PROBEBOOK"
        << "<spine pages='24' width='40'/><spine pages='22'/>" << 40 << 1100;
    QTest::newRow("no book") << "CARD"
                             << "<spine pages='24' width='40'/>" << 40 << 1100;
    QTest::newRow("widest spine") << "PROBEBOOK"
                                  << "<spine pages='24' width='2147483640'/>" << 2147483647 << 1090;
}

void PxProductTypeDescriptionTest::bookSpinesGrowAtTheCostOfTheCover()
{
    QFETCH(QString, name);
    QFETCH(QString, spines);
    const PxProductTypeDescription description(
        pxElement(QStringLiteral("<product name='%1' coverextrahorizontal='100'><spines>%2</spines>"
                                 "<usablesize width='1000' height='900'/></product>")
                      .arg(name, spines)));
    QTEST(description.spineWidth(24), "spineWidth");
    QTEST(description.coverSize().width(), "coverWidth");
}

void PxProductTypeDescriptionTest::backgroundDefaultsFollowTheProductClass_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFullBackground");
    QTest::addColumn<bool>("isLimited");
    QTest::newRow("book") << "PROBEBOOK" << false << false;
    QTest::newRow("calendar") << "CAL" << true << false;
    QTest::newRow("gift") << "CUP" << true << false;
    QTest::newRow("card") << "CARD" << true << false;
    QTest::newRow("decoration") << "CANVAS" << false << true;
}

void PxProductTypeDescriptionTest::backgroundDefaultsFollowTheProductClass()
{
    QFETCH(QString, name);
    QFETCH(bool, isLimited);
    const PxProductTypeDescription description(
        pxElement(QStringLiteral("<product name='%1'/>").arg(name)));
    QTEST(description.fullBackgroundOnEachPage(), "isFullBackground");
    QCOMPARE(description.limitBackgroundCategories(), isLimited);
    QCOMPARE(description.allowedBackgroundCategories().toDataStringList(),
             isLimited ? QStringList(QStringLiteral("Einfarbig")) : QStringList());
}

void PxProductTypeDescriptionTest::orientationAndSpaceOfTheSizeComeFirst()
{
    const PxProductTypeDescription fromProduct(pxElement(QStringLiteral(
        "<product orientation='panorama' space='xl'><usablesize width='1' height='2' space=''/>"
        "</product>")));
    QCOMPARE(fromProduct.orientation().value(), PxOrientationPanorama);
    QCOMPARE(fromProduct.spaceMagnitude().value(), PxSpaceMagnitude900);
    const PxProductTypeDescription fromSize(
        pxElement(QStringLiteral("<product><usablesize width='1' height='2'/></product>")));
    QCOMPARE(fromSize.orientation().value(), PxOrientationPortrait);
}

void PxProductTypeDescriptionTest::userDefaults_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("background");
    const QByteArray defaults = "<u><defaults><defaults pageType='normalpage' alignment='left' "
                                "background='mine'/></defaults></u>";
    QTest::newRow("read") << "user/A" << defaults << "mine";
    QTest::newRow("with declaration") << "user/B"
                                      << "<?xml version='1.0'?>" + defaults << "file";
    QTest::newRow("damaged") << "user/C" << defaults.left(60) << "file";
    QTest::newRow("missing") << "user/D" << QByteArray() << "file";
    QTest::newRow("outside of the directory") << "user/../E" << defaults << "file";
}

void PxProductTypeDescriptionTest::userDefaults()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, file);
    m_directory.write("user/keep", "");
    if (!file.isEmpty())
        m_directory.write(qPrintable(name + QStringLiteral(".xml")), file);
    const PxLogRecorder log;
    const PxProductTypeDescription description(
        pxElement(QStringLiteral("<product name='%1'><defaults><defaults pageType='normalpage' "
                                 "alignment='left' background='file'/></defaults></product>")
                      .arg(name.mid(5))));
    const PxDefaultTemplateKey key(QStringLiteral("normal"), {}, DefaultTemplateTypeBackground);
    QTEST(description.findDefaultTemplate(key, true, true), "background");
    QCOMPARE(description.findDefaultTemplate(key, true, false), QStringLiteral("file"));
    QCOMPARE(log.texts(), QStringList());
}

void PxProductTypeDescriptionTest::extremeNumbersAreClamped()
{
    const PxProductTypeDescription description(pxElement(QStringLiteral(
        "<product name='PROBEBOOK' coverextrahorizontal='2147483647' "
        "coverextravertical='-2147483648' bleedmargin='2147483647' safetymargin='2147483647'>"
        "<usablesize width='2147483647' height='2147483647'/>"
        "<spines><spine pages='-2147483648' width='2147483647'/><spine pages='2147483646'/>"
        "<spine pages='2147483647'/></spines>"
        "<productionnumbering>2147483647</productionnumbering></product>")));
    QCOMPARE(description.coverSize(), QSize(2147483647, -1));
    QCOMPARE(description.spineWidth(description.minPages()), 2147483647);
    QCOMPARE(description.pageIncrement(), 2147483647);
    QCOMPARE(description.productionNumberingList(2), QList<int>({2147483647, 2147483647}));
    QCOMPARE(description.sizeSpec(PxPageSizeKey()).totalSize(), QSize(2147483647, 2147483647));
    QCOMPARE(description.safetyMargins().totalMarginWH(), QSize(2147483647, 2147483647));
    QCOMPARE(description.classification().areaSize(), 2147483647);
}

void PxProductTypeDescriptionTest::millionsOfCombinationsAnswerAtOnce()
{
    QString themes;
    for (int i = 0; i < 100000; ++i)
        themes += QStringLiteral("t%1,").arg(i);
    const QString pages = QStringLiteral("normalpage,").repeated(20000) + QStringLiteral("spine");
    const QString sides = QStringLiteral("left,").repeated(20000) + QStringLiteral("top");
    const QDomElement product = pxElement(
        QStringLiteral("<product><contentredirects><contentredirect from='0-2147483647' to='3'/>"
                       "</contentredirects><defaults><defaults theme='%1' pageType='%2' "
                       "alignment='%3' layout='l'/></defaults></product>")
            .arg(themes, pages, sides));
    QElapsedTimer timer;
    timer.start();
    const PxProductTypeDescription description(product);
    QCOMPARE(description.contentDropRedirect(2147483647), 3);
    QCOMPARE(description.findDefaultTemplate(
                 PxDefaultTemplateKey(QStringLiteral("t99999"),
                                      PxPageContext(PxPageTypeSpine, PxPageAlignmentTop),
                                      DefaultTemplateTypeLayout),
                 false, false),
             QStringLiteral("l"));
    QVERIFY2(timer.elapsed() < 10000, "the lists must not be multiplied out");
}

QTEST_GUILESS_MAIN(PxProductTypeDescriptionTest)
#include "PxProductTypeDescriptionTest.moc"
