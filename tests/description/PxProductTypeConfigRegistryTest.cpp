#include "PxCatalogueDirectory.h"
#include "PxLogRecorder.h"

#include <description/PxProductTypeConfigRegistry.h>
#include <description/PxProductTypeDescriptionReader.h>

#include <PxProductCheckerRegistry.h>

#include <QDir>
#include <QTest>

#include <algorithm>

namespace {

QByteArray productFile(const QByteArray &attributes, const QByteArray &children = QByteArray())
{
    return "<d><product " + attributes + ">" + children + "</product></d>";
}

QByteArray size(const QByteArray &width, const QByteArray &height)
{
    return "<usablesize width='" + width + "' height='" + height + "'/>";
}

} // namespace

class PxProductTypeConfigRegistryTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void damagedFileIsReportedAndSkipped();
    void fileWithoutKnownProductIsSkippedSilently();
    void ofTwoFilesOfOneProductOneIsKept();
    void missingDirectoryKnowsNoProduct();
    void unknownTypeIsAnsweredFromDefaults();
    void legacyProductIsFoundByItsSuccessor();
    void compatibleProductsAreOnOfferAndOfTheSameClass();
    void classificationsAreThoseOfTheClass();
    void pageFilesAreSortedByTheirNumbers();
    void pointSizeFollowsSpaceOrArea_data();
    void pointSizeFollowsSpaceOrArea();
    void backgroundOfABookIsADoublePage_data();
    void backgroundOfABookIsADoublePage();

private:
    QDir directory() const { return QDir(m_directory.filePath(QStringLiteral("products"))); }

    PxCatalogueDirectory m_directory;
    PxProductTypeConfigRegistry *m_registry =
        nullptr; // kept, as every registry: see its destructor
};

void PxProductTypeConfigRegistryTest::initTestCase()
{
    m_directory.writeProductTypes("1 book BOOK\n2 book LEGACY\n3 calendar CAL\n4 book SMALL\n"
                                  "5 book INVALID\n6 gift GIFT\n7 book OTHER");
    const QByteArray portrait = size("2000", "3000");
    m_directory.write("products/book.xml",
                      productFile("name='BOOK' legacy='LEGACY' space='xl'",
                                  portrait + "<classification cm='20x30' group='Leinwand'/>"
                                             "<productionnumbering>3,1,2</productionnumbering>"));
    m_directory.write("products/small.xml", productFile("name=' small '", size("1000", "2000")));
    m_directory.write("products/other.xml", productFile("name='OTHER'", size("9", "8")));
    m_directory.write("products/gift.xml", productFile("name='GIFT'", portrait));
    m_directory.write("products/invalid.xml", productFile("name='INVALID' orientation='portrait'"));
    m_registry = new PxProductTypeConfigRegistry(directory());
}

void PxProductTypeConfigRegistryTest::damagedFileIsReportedAndSkipped()
{
    m_directory.write("damaged/a.xml", "<d>\n<product name='BOOK'></d>");
    m_directory.write("damaged/b.XML", productFile("name='BOOK'"));
    m_directory.write("damaged/c.txt", "no product file");
    QDir damaged(m_directory.filePath(QStringLiteral("damaged")));
    const PxLogRecorder log;
    auto descriptions = PxProductTypeDescriptionReader(damaged).readDir();
    QCOMPARE(descriptions.keys(), QList<PxProductType>{1});
    qDeleteAll(descriptions);

    const QString path = damaged.absoluteFilePath(QStringLiteral("a.xml"));
    QCOMPARE(log.entries().size(), 2);
    const PxLogRecorder::Entry warning = log.entries().at(0);
    QCOMPARE(warning.level, QtWarningMsg);
    QCOMPARE(warning.text, QStringLiteral("PxProductTypeDescriptionReader::readFile could not open "
                                          "\"%1\"")
                               .arg(path));
    QCOMPARE(warning.file, QStringLiteral("PxProductTypeDescriptionReader"));
    QCOMPARE(warning.line, 78);
    QCOMPARE(warning.function,
             QStringLiteral("QPair<PxProductType, PxProductTypeDescription*> "
                            "PxProductTypeDescriptionReader::readFile(const QFileInfo&)"));
    const PxLogRecorder::Entry reason = log.entries().at(1);
    QCOMPARE(reason.level, QtDebugMsg);
    QVERIFY2(reason.text.startsWith(path + QStringLiteral(":2:")), qPrintable(reason.text));
}

void PxProductTypeConfigRegistryTest::fileWithoutKnownProductIsSkippedSilently()
{
    m_directory.write("unknown/a.xml", productFile("name='NEVERHEARDOF'"));
    m_directory.write("unknown/b.xml", "<d/>");
    const PxLogRecorder log;
    PxProductTypeDescriptionReader reader(QDir(m_directory.filePath(QStringLiteral("unknown"))));
    QVERIFY(reader.readDir().isEmpty());
    QCOMPARE(log.texts(), QStringList());
}

void PxProductTypeConfigRegistryTest::ofTwoFilesOfOneProductOneIsKept()
{
    m_directory.write("twice/a.xml", productFile("name='BOOK' foldmargin='1'"));
    m_directory.write("twice/b.xml", productFile("name='BOOK' foldmargin='2'"));
    QDir twice(m_directory.filePath(QStringLiteral("twice")));
    // The directory's own order decides.
    const QString last = twice.entryList(QDir::Files, QDir::Unsorted).constLast();
    auto descriptions = PxProductTypeDescriptionReader(twice).readDir();
    QCOMPARE(descriptions.size(), 1);
    QCOMPARE(descriptions.value(1)->foldMargin(), last == QLatin1String("a.xml") ? 1 : 2);
    qDeleteAll(descriptions);
}

void PxProductTypeConfigRegistryTest::missingDirectoryKnowsNoProduct()
{
    const PxLogRecorder log;
    PxProductTypeDescriptionReader reader(QDir(m_directory.filePath(QStringLiteral("nowhere"))));
    QVERIFY(reader.readDir().isEmpty());
    QCOMPARE(log.texts(), QStringList());
}

void PxProductTypeConfigRegistryTest::unknownTypeIsAnsweredFromDefaults()
{
    QVERIFY(m_registry->exists(1) && m_registry->isValid(1));
    QVERIFY(!m_registry->exists(5)); // has a file without a size
    QVERIFY(!m_registry->exists(3)); // has no file
    QVERIFY(!m_registry->exists(99));
    QCOMPARE(m_registry->description(99), m_registry->description(PxProductType()));
    QVERIFY(m_registry->description(5) != m_registry->description(99));
    QCOMPARE(m_registry->minPages(99), 2147483647);
    QCOMPARE(m_registry->pageTypes(99, 4).size(), 1);
    QCOMPARE(m_registry->type(), 4);
}

void PxProductTypeConfigRegistryTest::legacyProductIsFoundByItsSuccessor()
{
    QCOMPARE(m_registry->findProductForLegacy(2), PxProductType(1));
    QCOMPARE(m_registry->findProductForLegacy(1), PxProductType(0));
    // Most products replace none, which is type 0 as well.
    QCOMPARE(m_registry->findProductForLegacy(0), PxProductType(0));
}

void PxProductTypeConfigRegistryTest::compatibleProductsAreOnOfferAndOfTheSameClass()
{
    QVERIFY(m_registry->findCompatibleProducts(1, PxProductComparationNone).isEmpty());
    QVERIFY(PxProductCheckerRegistry::instance()->registerChecker(m_registry));
    PxProductTypeList compatible =
        m_registry->findCompatibleProducts(1, PxProductComparationBinding);
    std::sort(compatible.begin(), compatible.end());
    QCOMPARE(compatible, (PxProductTypeList{1, 4}));
    QCOMPARE(m_registry->findCompatibleProducts(1, PxProductComparationSpaceMagnitude),
             PxProductTypeList{1});
}

void PxProductTypeConfigRegistryTest::classificationsAreThoseOfTheClass()
{
    const PxProductClassificationManager gifts =
        m_registry->createProductClassifationManager(PxProductClassGift);
    QCOMPARE(gifts.materials().size(), 1);
    const PxProductClassificationManager books =
        m_registry->createProductClassifationManager(PxProductClassBook);
    QCOMPARE(books.size(1, true), QStringLiteral("20x30"));
    QCOMPARE(
        books.type(PxProductMaterial(QStringLiteral("Leinwand")), QStringLiteral("20x30"), true),
        PxProductType(1));
}

void PxProductTypeConfigRegistryTest::pageFilesAreSortedByTheirNumbers()
{
    const auto sorted = [this](const QString &letters) {
        return m_registry
            ->sortPageFileNameListInInternOrder(1, letters.split(QString(), Qt::SkipEmptyParts))
            .join(QString());
    };
    QCOMPARE(sorted(QStringLiteral("abc")), QStringLiteral("bca"));
    // Continued as 3,1,2,3,4: of equal numbers the earlier position comes first.
    QCOMPARE(sorted(QStringLiteral("abcde")), QStringLiteral("bcade"));
    QCOMPARE(sorted(QString()), QString());
}

void PxProductTypeConfigRegistryTest::pointSizeFollowsSpaceOrArea_data()
{
    QTest::addColumn<QByteArray>("space");
    QTest::addColumn<QByteArray>("width");
    QTest::addColumn<QByteArray>("height");
    QTest::addColumn<int>("pointSize");
    const QByteArray any;
    QTest::newRow("small") << QByteArray("310cm2") << QByteArray("9") << QByteArray("9") << 12;
    QTest::newRow("medium") << QByteArray("400cm2") << QByteArray("9") << QByteArray("9") << 16;
    QTest::newRow("large") << QByteArray("1200cm2") << QByteArray("9") << QByteArray("9") << 24;
    QTest::newRow("below 30000") << any << QByteArray("2999") << QByteArray("1000") << 10;
    QTest::newRow("30000") << QByteArray("150cm2") << QByteArray("2000") << QByteArray("1500")
                           << 16;
    QTest::newRow("60000") << any << QByteArray("6000") << QByteArray("1000") << 24;
    QTest::newRow("119999") << any << QByteArray("11999") << QByteArray("1000") << 24;
    QTest::newRow("120000") << any << QByteArray("12000") << QByteArray("1000") << 36;
    QTest::newRow("240000") << any << QByteArray("24000") << QByteArray("1000") << 72;
    QTest::newRow("largest") << any << QByteArray("2147483647") << QByteArray("2147483647") << 72;
}

void PxProductTypeConfigRegistryTest::pointSizeFollowsSpaceOrArea()
{
    QFETCH(QByteArray, space);
    QFETCH(QByteArray, width);
    QFETCH(QByteArray, height);
    m_directory.write("point/a.xml",
                      productFile("name='BOOK' space='" + space + "'", size(width, height)));
    static QList<PxProductTypeConfigRegistry *> ourRegistries;
    ourRegistries.append(
        new PxProductTypeConfigRegistry(QDir(m_directory.filePath(QStringLiteral("point")))));
    QTEST(ourRegistries.constLast()->suitablePointSize(1), "pointSize");
}

void PxProductTypeConfigRegistryTest::backgroundOfABookIsADoublePage_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("singlePage");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<double>("ratio");
    QTest::newRow("double page") << 4 << false << QSizeF(2000, 2000) << 1.0;
    QTest::newRow("single page") << 4 << true << QSizeF(1000, 2000) << 0.5;
    QTest::newRow("gift") << 6 << false << QSizeF(2000, 3000) << 2.0 / 3.0;
    QTest::newRow("no size") << 99 << false << QSizeF(-1, -1) << 0.0;
}

void PxProductTypeConfigRegistryTest::backgroundOfABookIsADoublePage()
{
    QFETCH(int, type);
    QFETCH(bool, singlePage);
    QTEST(m_registry->usablePrintSizeForBackgroundTemplate(type, singlePage), "size");
    QTEST(m_registry->backgroundRatio(type, singlePage), "ratio");
}

QTEST_GUILESS_MAIN(PxProductTypeConfigRegistryTest)
#include "PxProductTypeConfigRegistryTest.moc"
