#include "PxCatalogueDirectory.h"

#include <description/PxLegacyProductTypeConfig.h>
#include <description/PxProductPropertiesInitializer.h>

#include <PxPageOrganizationManager.h>
#include <PxProductCheckerRegistry.h>
#include <PxProductType.h>
#include <values/PxPageType.h>

#include <QTest>

class PxPageOrganizationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pageCountsFollowTheProductClass();
    void registryIsTheCheckerOfKind4();
    void legacyPagesAreLaidSideBySide();

private:
    PxCatalogueDirectory m_directory;
};

void PxPageOrganizationTest::initTestCase()
{
    m_directory.writeProductTypes(
        "1 book BOOK\n2 calendar SIMPLEX\n3 calendar DUPLEX\n"
        "4 calendar PLANNER\n5 calendar ONEPAGE\n6 gift CUP\n7 card CARD\n"
        "8 deko CANVAS\n9 print PRINT\n10 calendar BOTH");
    const auto product = [this](const QByteArray &file, const QByteArray &content) {
        m_directory.write(("products/" + file + ".xml").constData(),
                          "<d><product " + content + "</product></d>");
    };
    product("1", "name='BOOK'><usablesize width='1' height='2'/><spines>"
                 "<spine pages='24'/><spine pages='28'/><spine pages='32'/></spines>");
    product("2", "name='SIMPLEX' binding='CALENDAR_SIMPLEX'>");
    product("3", "name='DUPLEX' binding='CALENDAR_DUPLEX'>");
    product("4", "name='PLANNER' binding='CALENDAR_ANNUAL_DUPLEX'>");
    product("5", "name='ONEPAGE' binding='CALENDAR_ONE_PAGE'>");
    for (const char *name : {"CUP", "CARD", "CANVAS", "PRINT"})
        product(name, QByteArray("name='") + name + "' numOfNormalPages='7'>");
    product("10", "name='BOTH' binding='CALENDAR_SIMPLEX,CALENDAR_DUPLEX'>");
    const QByteArray legacy = " coverextrahorizontal='50' coverextravertical='-20'>"
                              "<usablesize width='100' height='200'/>";
    product("legacy/1", "name='BOOK'" + legacy);
    product("legacy/7", "name='CARD' horizontalPages='false'" + legacy);
    QVERIFY(PxProductPropertiesInitializer::setupModule());
    QVERIFY(!PxProductPropertiesInitializer::setupModule());
    PxProductPropertiesInitializer::teardownModule();
}

void PxPageOrganizationTest::pageCountsFollowTheProductClass()
{
    const auto counts = [](int type) {
        const auto *manager = PxPageOrganizationManager::instance();
        return QList<int>{manager->minPages(type), manager->maxPages(type),
                          manager->pageIncrement(type)};
    };
    QCOMPARE(counts(1), QList<int>({24, 32, 4}));
    QCOMPARE(counts(2), QList<int>({12, 12, 0})); // a sheet a month, printed on one side
    QCOMPARE(counts(3), QList<int>({24, 24, 0}));
    QCOMPARE(counts(4), QList<int>({2, 2, 0}));
    QCOMPARE(counts(5), QList<int>({1, 1, 0}));
    for (int type : {6, 7, 8}) // gift, card and decoration have as many as they state
        QCOMPARE(counts(type), QList<int>({7, 7, 0}));
    QCOMPARE(counts(9), QList<int>({1, 1, 0}));
    QCOMPARE(counts(10), QList<int>({1, 1, 0})); // two bindings are none of them
    QCOMPARE(counts(99), QList<int>({1, 1, 0}));
}

void PxPageOrganizationTest::registryIsTheCheckerOfKind4()
{
    const auto *checkers = PxProductCheckerRegistry::instance();
    QVERIFY(checkers->isValid(1, 0) && checkers->isValid(1, 4) && !checkers->isValid(1, 5));
    QVERIFY(!checkers->isValid(2, 0)); // has no size
}

void PxPageOrganizationTest::legacyPagesAreLaidSideBySide()
{
    const auto *config = PxLegacyProductTypeConfig::instance();
    QVERIFY(config->isHorizontal(1));
    QVERIFY(!config->isHorizontal(7));
    const QList<PxPageType> pages{PxPageTypeNormalPage, PxPageTypeFullCover};
    QCOMPARE(config->usablePrintSize(1, PxPageTypeFullCover, 1), QSizeF(150, 180));
    QCOMPARE(config->usableSize(1, 1, pages), QSizeF(250, 200));
    QCOMPARE(config->usableSize(7, 1, pages), QSizeF(150, 380));
    QCOMPARE(config->usableSize(1, 1, {}), QSizeF(0, 0));
    QCOMPARE(config->usableSize(2, 1, pages), QSizeF(0, 0)); // negative sizes count for nothing
}

QTEST_GUILESS_MAIN(PxPageOrganizationTest)
#include "PxPageOrganizationTest.moc"
