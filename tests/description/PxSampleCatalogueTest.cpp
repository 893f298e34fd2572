#include "PxLogRecorder.h"

#include <PxProductProperties.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTest>

/** Reads the sample catalogue as an application would. */
class PxSampleCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyProductIsOfferedAndEveryFileRead();
    void everyLegacyProductHasASuccessor();
    void photoBookOf26Pages();
    void calendarsAndGiftsHaveTheirPages();
};

void PxSampleCatalogueTest::initTestCase()
{
    const PxLogRecorder log;
    PxDirectoryConfig::instance()->setResourceDirectories({QStringLiteral(PX_SAMPLE_DIRECTORY)});
    PxDirectoryConfig::instance()->setUserDefaultsPath(
        QStringLiteral(PX_SAMPLE_DIRECTORY "/defaults"));
    QVERIFY(PxProductPropertiesInitializer::setupModule());
    PxProductTypeConfigRegistry::legacyInstance();
    PxHumanReadable::instance();
    QCOMPARE(log.texts(), QStringList());
}

void PxSampleCatalogueTest::everyProductIsOfferedAndEveryFileRead()
{
    const QDir directory(QStringLiteral(PX_SAMPLE_DIRECTORY "/products"));
    const QFileInfoList files = directory.entryInfoList({QStringLiteral("*.xml")}, QDir::Files);
    QVERIFY(files.size() >= 36);
    for (const QFileInfo &file : files) {
        const PxProductType type(file.completeBaseName()); // files bear their product's name
        QVERIFY2(PxProductTypeConfigRegistry::instance()->exists(type),
                 qPrintable(file.fileName()));
    }
}

void PxSampleCatalogueTest::everyLegacyProductHasASuccessor()
{
    const QDir directory(QStringLiteral(PX_SAMPLE_DIRECTORY "/products/legacy"));
    const QFileInfoList files = directory.entryInfoList({QStringLiteral("*.xml")}, QDir::Files);
    QVERIFY(files.size() >= 6);
    for (const QFileInfo &file : files) {
        const PxProductType legacy(file.completeBaseName());
        QVERIFY(PxLegacyProductTypeConfig::instance()->description(legacy)->isValid());
        QVERIFY(PxProductTypeConfigRegistry::instance()->findProductForLegacy(legacy).isValid());
    }
}

void PxSampleCatalogueTest::photoBookOf26Pages()
{
    const PxProductType book(QStringLiteral("BOOK_A4_PORTRAIT"));
    const auto *registry = PxProductTypeConfigRegistry::instance();
    QVERIFY(book.isBook());
    QCOMPARE(registry->binding(book).humanReadableName(), QStringLiteral("Hardcover"));
    QCOMPARE(registry->minPages(book), 26);
    QCOMPARE(registry->pageIncrement(book), 2);

    const PxPageTypeList pageTypes = registry->pageTypes(book, 26);
    QCOMPARE(pageTypes.first().value(), PxPageTypeFullCover);
    QCOMPARE(pageTypes.count(PxPageType(PxPageTypeNormalPage)), 26);
    const int spine = pageTypes.indexOf(PxPageType(PxPageTypeSpine));
    QCOMPARE(registry->pageAlignment(book, spine), PxPageAlignmentMiddle);

    const PxPageSizeSpec right = registry->sizeSpec(
        book, PxPageSizeKey(PxPageContext(PxPageTypeNormalPage, PxPageAlignmentRight), 26));
    QCOMPARE(right.usableSize(),
             registry->usablePrintSize(book, PxPageTypeNormalPage, 26).toSize());
    QCOMPARE(right.bleedMargins().left(), 0);
    QVERIFY(right.bleedMargins().right() > 0);
    QVERIFY(registry->description(book)->spineWidth(26) > 0);
    QCOMPARE(registry->description(book)->spineWidth(27), 0);

    const PxDefaultTemplateKey key(QStringLiteral("no such theme"),
                                   PxPageContext(PxPageTypeNormalPage, PxPageAlignmentLeft),
                                   DefaultTemplateTypeBackground);
    QVERIFY(!registry->description(book)->findDefaultTemplate(key, true, false).isEmpty());
    QVERIFY(registry->description(book)->findDefaultTemplate(key, false, false).isEmpty());
    QVERIFY(registry->findCompatibleProducts(book, PxProductComparationNone).contains(book));
}

void PxSampleCatalogueTest::calendarsAndGiftsHaveTheirPages()
{
    const auto *pages = PxPageOrganizationManager::instance();
    QCOMPARE(pages->minPages(PxProductType(QStringLiteral("CALENDAR_WALL_A4"))), 12);
    const PxProductType card(QStringLiteral("CARD_FOLDED_A6"));
    QCOMPARE(pages->maxPages(card),
             PxProductTypeConfigRegistry::instance()->explicitNumberOfNormalPages(card));
}

QTEST_GUILESS_MAIN(PxSampleCatalogueTest)
#include "PxSampleCatalogueTest.moc"
