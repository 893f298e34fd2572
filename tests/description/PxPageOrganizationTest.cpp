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
    void registryIsTheCheckerOfKind4();
    void legacyPagesAreLaidSideBySide();

private:
    PxCatalogueDirectory m_directory;
};

void PxPageOrganizationTest::initTestCase()
{
    m_directory.writeProductTypes("1 book BOOK\n2 calendar PLANNER\n3 book FLAT\n4 book THIN\n"
                                  "7 card CARD");
    const auto product = [this](const QByteArray &file, const QByteArray &content) {
        m_directory.write("products/" + file + ".xml", "<d><product " + content + "</product></d>");
    };
    product("1", "name='BOOK'><usablesize width='1' height='2'/>");
    const QByteArray legacy = " coverextrahorizontal='50' coverextravertical='-20'>"
                              "<usablesize width='100' height='200'/>";
    product("legacy/1", "name='BOOK'" + legacy);
    product("legacy/3", "name='FLAT'><usablesize width='100' height='0'/>");
    product("legacy/4", "name='THIN'><usablesize width='0' height='50'/>");
    product("legacy/7", "name='CARD' horizontalPages='false'" + legacy);
    QVERIFY(PxProductPropertiesInitializer::setupModule());
    QVERIFY(!PxProductPropertiesInitializer::setupModule());
    PxProductPropertiesInitializer::teardownModule();
}

void PxPageOrganizationTest::registryIsTheCheckerOfKind4()
{
    const auto *checkers = PxProductCheckerRegistry::instance();
    QVERIFY(checkers->isValid(1, 0));
    QVERIFY(checkers->isValid(1, 4));
    QVERIFY(!checkers->isValid(1, 5));
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
    QCOMPARE(config->usableSize(3, 1, pages), QSizeF(200, 0));
    QCOMPARE(config->usableSize(4, 1, pages), QSizeF(0, 50));
}

QTEST_GUILESS_MAIN(PxPageOrganizationTest)
#include "PxPageOrganizationTest.moc"
