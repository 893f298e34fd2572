#include "PxCatalogueDirectory.h"

#include <description/PxLegacyProductTypeConfig.h>
#include <description/PxProductPropertiesInitializer.h>
#include <description/PxProductTypeConfigRegistry.h>

#include <PxPageOrganizationManager.h>
#include <PxProductCheckerRegistry.h>

#include <QTest>

class PxPageOrganizationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pageCountsFollowTheProductClass_data();
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
    const auto product = [this](const char *file, const QByteArray &content) {
        m_directory.write(file, "<d><product " + content + "</product></d>");
    };
    product("products/1.xml", "name='BOOK'><usablesize width='1' height='2'/><spines>"
                              "<spine pages='24'/><spine pages='28'/><spine pages='32'/></spines>");
    product("products/2.xml", "name='SIMPLEX' binding='CALENDAR_SIMPLEX'>");
    product("products/3.xml", "name='DUPLEX' binding='CALENDAR_DUPLEX'>");
    product("products/4.xml", "name='PLANNER' binding='CALENDAR_ANNUAL_DUPLEX'>");
    product("products/5.xml", "name='ONEPAGE' binding='CALENDAR_ONE_PAGE'>");
    product("products/10.xml", "name='BOTH' binding='CALENDAR_SIMPLEX,CALENDAR_DUPLEX'>");
    for (const char *name : {"6", "7", "8", "9"}) {
        const PxProductType type(QByteArray(name).toInt());
        const QByteArray file = QByteArray("products/") + name + ".xml";
        product(file.constData(),
                "name='" + type.productName().toUtf8() + "' numOfNormalPages='" + name + "'>");
    }
    product("products/legacy/1.xml", "name='BOOK' coverextrahorizontal='50' "
                                     "coverextravertical='-20'><usablesize width='100' "
                                     "height='200'/>");
    product("products/legacy/7.xml", "name='CARD' horizontalPages='false' "
                                     "coverextrahorizontal='50' coverextravertical='-20'>"
                                     "<usablesize width='100' height='200'/>");
    QVERIFY(PxProductPropertiesInitializer::setupModule());
    QVERIFY(!PxProductPropertiesInitializer::setupModule());
    PxProductPropertiesInitializer::teardownModule();
}

void PxPageOrganizationTest::pageCountsFollowTheProductClass_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("increment");
    QTest::newRow("book") << 1 << 24 << 32 << 4;
    QTest::newRow("one-sided calendar") << 2 << 12 << 12 << 0;
    QTest::newRow("two-sided calendar") << 3 << 24 << 24 << 0;
    QTest::newRow("planner") << 4 << 2 << 2 << 0;
    QTest::newRow("one page") << 5 << 1 << 1 << 0;
    QTest::newRow("two bindings are none of them") << 10 << 1 << 1 << 0;
    QTest::newRow("gift") << 6 << 6 << 6 << 0;
    QTest::newRow("card") << 7 << 7 << 7 << 0;
    QTest::newRow("decoration") << 8 << 8 << 8 << 0;
    QTest::newRow("print") << 9 << 1 << 1 << 0;
    QTest::newRow("unknown") << 99 << 1 << 1 << 0;
}

void PxPageOrganizationTest::pageCountsFollowTheProductClass()
{
    QFETCH(int, type);
    const auto *manager = PxPageOrganizationManager::instance();
    QTEST(manager->minPages(type), "minimum");
    QTEST(manager->maxPages(type), "maximum");
    QTEST(manager->pageIncrement(type), "increment");
}

void PxPageOrganizationTest::registryIsTheCheckerOfKind4()
{
    const auto *checkers = PxProductCheckerRegistry::instance();
    QVERIFY(checkers->isValid(1, 0) && checkers->isValid(1, 4));
    QVERIFY(!checkers->isValid(1, 5));
    QVERIFY(!checkers->isValid(2, 0)); // has no size
}

void PxPageOrganizationTest::legacyPagesAreLaidSideBySide()
{
    const auto *config = PxLegacyProductTypeConfig::instance();
    QVERIFY(config->isHorizontal(1) && !config->isHorizontal(7));
    const QList<PxPageType> pages{PxPageTypeNormalPage, PxPageTypeFullCover};
    QCOMPARE(config->usablePrintSize(1, PxPageTypeFullCover, 1), QSizeF(150, 180));
    QCOMPARE(config->usableSize(1, 1, pages), QSizeF(250, 200));
    QCOMPARE(config->usableSize(7, 1, pages), QSizeF(150, 380));
    QCOMPARE(config->usableSize(1, 1, {}), QSizeF(0, 0));
    QCOMPARE(config->usableSize(2, 1, pages), QSizeF(0, 0)); // negative sizes count for nothing
}

QTEST_GUILESS_MAIN(PxPageOrganizationTest)
#include "PxPageOrganizationTest.moc"
