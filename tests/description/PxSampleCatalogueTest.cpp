#include "PxLogRecorder.h"

#include <PxProductProperties.h>

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

/** Reads the sample catalogue as an application would. */
class PxSampleCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void firstUseByThreadsGivesAllTheSameCompleteObjects(); // the first to use anything
    void everyProductIsOfferedAndEveryLegacyProductReplaced();
    void registryAnswersForAPhotoBook();
};

void PxSampleCatalogueTest::initTestCase()
{
    qputenv("PX_RESOURCE_DIRS", PX_SAMPLE_DIRECTORY);
    qputenv("PX_USER_DEFAULTS_DIR", PX_SAMPLE_DIRECTORY "/defaults");
    qputenv("PX_THEMES_DIR", PX_SAMPLE_DIRECTORY "/themes");
}

/** Every singleton and what the keyword tables and lists behind them say. */
static QVariantList ask()
{
    const PxBinding binding("softcover");
    const PxOrientation orientation("square");
    const PxProductType book("book_a4_portrait");
    auto *registry = PxProductTypeConfigRegistry::instance();
    const std::initializer_list<const void *> instances = {
        PxDirectoryConfig::instance(),
        PxProductCheckerRegistry::instance(),
        PxPageOrganizationManager::instance(),
        PxLegacyProductTypeConfig::instance(),
        PxProductTypeConfigRegistry::legacyInstance(),
        PxHumanReadable::instance(),
        registry->description(book),
        PxThemeFactory::instance(),
        PxProductGroupPropertyManager::instance(),
        binding.enumToStringTable(),
        orientation.enumToStringTable()};
    QVariantList answers;
    answers << binding.encodeCSV() << binding.humanReadableName() << binding.toolTip()
            << orientation.encodeCSV() << PxPageType("spine,normal").encodeCSV()
            << PxPaperType("glossy").humanReadableName()
            << PxSpaceMagnitude("xl").humanReadableName() << PxJigType("Rahmen").encodeCSV()
            << book.productName() << registry->description(book)->spineWidth(26)
            << PxHumanReadable::instance()->fotoPaperTypeName(PxFotoPaperTypeMatt)
            << PxThematicCategorySet::specialCategories().preferredCategory().name()
            << PxThemeFactory::instance()->themeNames();
    for (const void *instance : instances)
        answers.append(quintptr(instance));
    return answers;
}

void PxSampleCatalogueTest::firstUseByThreadsGivesAllTheSameCompleteObjects()
{
    const PxLogRecorder log;
    std::vector<QVariantList> answers(16);
    std::vector<std::thread> threads;
    std::atomic<int> waiting{int(answers.size())};
    for (QVariantList &own : answers) {
        threads.emplace_back([&own, &waiting] {
            --waiting;
            while (waiting > 0) // so that all of them ask at the same moment
                std::this_thread::yield();
            own = ask();
        });
    }
    for (std::thread &thread : threads)
        thread.join();

    QVERIFY(answers[0].contains("SOFTCOVER") && answers[0].contains("BOOK_A4_PORTRAIT"));
    QVERIFY(!answers[0].contains(quintptr(0)));
    for (const QVariantList &other : answers)
        QCOMPARE(other, answers[0]);
    QVERIFY(PxProductPropertiesInitializer::setupModule());
    const QStringList others = log.texts();
    const QStringList ofThemes = others.filter(QRegularExpression("^\"?PxThemeFactory::"));
    QCOMPARE(ofThemes.size(), 3); // the directory and its two files, read once
    QCOMPARE(others, ofThemes);
}

/** The products of a directory; files bear their product's name. */
static QStringList productsOf(const char *directory)
{
    return QDir(directory).entryList({"*.xml"}, QDir::Files).replaceInStrings(".xml", "");
}

void PxSampleCatalogueTest::everyProductIsOfferedAndEveryLegacyProductReplaced()
{
    const auto *registry = PxProductTypeConfigRegistry::instance();
    const QStringList products = productsOf(PX_SAMPLE_DIRECTORY "/products");
    QVERIFY(products.size() >= 36);
    QCOMPARE(registry->products().size(), products.size());
    for (const QString &name : products) {
        const PxProductContext product{PxProductType(name)};
        QVERIFY2(registry->exists(product.productType()), qPrintable(name));
        const QList<int> pageCounts = product.offeredPageCounts();
        QCOMPARE(pageCounts.value(0), product.minPages());
        QCOMPARE(pageCounts.constLast(), product.maxPages());
        QCOMPARE(registry->offeredPageCounts(product.productType()), pageCounts);
    }

    const QStringList legacyProducts = productsOf(PX_SAMPLE_DIRECTORY "/products/legacy");
    QVERIFY(legacyProducts.size() >= 6);
    QCOMPARE(PxProductTypeConfigRegistry::legacyInstance()->products().size(),
             legacyProducts.size());
    for (const QString &name : legacyProducts) {
        const PxProductType legacy(name);
        QVERIFY(PxLegacyProductTypeConfig::instance()->description(legacy)->isValid());
        QVERIFY(registry->findProductForLegacy(legacy).isValid());
    }
}

void PxSampleCatalogueTest::registryAnswersForAPhotoBook()
{
    const PxProductType book("BOOK_A4_PORTRAIT");
    const auto *registry = PxProductTypeConfigRegistry::instance();
    QCOMPARE(registry->binding(book).humanReadableName(), QString("Hardcover"));
    QCOMPARE(registry->minPages(book), 26);
    QCOMPARE(registry->maxPages(book), 154);
    QCOMPARE(registry->pageIncrement(book), 2);
    QCOMPARE(registry->offeredPageCounts(book).size(), 65);
    for (int pageCount : {26, 27})
        QCOMPARE(PxProductContext(book).isPageCountOffered(pageCount),
                 registry->isPageCountOffered(book, pageCount));
    QVERIFY(registry->isPageCountOffered(book, 28) && !registry->isPageCountOffered(book, 27));
    const PxPageTypeList pageTypes = registry->pageTypes(book, 26);
    QCOMPARE(pageTypes.first().value(), PxPageTypeFullCover);
    QCOMPARE(pageTypes.count(PxPageType(PxPageTypeNormalPage)), 26);
    const int spine = pageTypes.indexOf(PxPageType(PxPageTypeSpine));
    QCOMPARE(registry->pageAlignment(book, spine), PxPageAlignmentMiddle);
    const PxPageSizeSpec right =
        registry->sizeSpec(book, PxPageSizeKey({PxPageTypeNormalPage, PxPageAlignmentRight}, 26));
    QCOMPARE(QSizeF(right.usableSize()), registry->usablePrintSize(book, PxPageTypeNormalPage, 26));
    QVERIFY(right.bleedMargins().left() == 0 && right.bleedMargins().right() > 0);
}

QTEST_GUILESS_MAIN(PxSampleCatalogueTest)
#include "PxSampleCatalogueTest.moc"
