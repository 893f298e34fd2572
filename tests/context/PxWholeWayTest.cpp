#include <PxProductProperties.h>

#include <QDomDocument>
#include <QGuiApplication>
#include <QTest>

#include <thread>
#include <vector>

/** The way of an application, in one process, on the sample catalogue and its themes. */
class PxWholeWayTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fromProductToOrder();
    void manyThreadsAskAtOnce();
};

void PxWholeWayTest::initTestCase()
{
    auto *config = PxDirectoryConfig::instance();
    config->setResourceDirectories({PX_SAMPLE_DIRECTORY});
    config->setThemesDirectory(PX_SAMPLE_DIRECTORY "/themes");
    config->setUserDefaultsPath(PX_SAMPLE_DIRECTORY "/defaults");
    QVERIFY(PxProductPropertiesInitializer::setupModule());
}

void PxWholeWayTest::fromProductToOrder()
{
    PxProductContext context(PxProductType(QString("BOOK_A4_PORTRAIT")));
    QVERIFY(context.isValid() && context.isBook() && context.isDefaultTheme());
    QCOMPARE(context.minPages(), 26);
    const PxProductContext plain = context;
    context.setTheme(PxThemeFactory::instance()->findTheme("hochzeit"));
    QVERIFY(context.isValid() && context != plain);

    const PxPageTypeList pages = context.pageTypes(26);
    int different = 0;
    for (int page = 0; page < pages.size(); ++page) {
        const PxPageContext pageContext(pages[page], context.pageAlignment(page));
        QVERIFY(!context.defaultTemplateForPage(false, pageContext, false).isEmpty());
        different += context.defaultTemplateForPage(false, pageContext, false) !=
                     plain.defaultTemplateForPage(false, pageContext, false);
        context.findSurrounding(PxSurroundingKey(pageContext, page));
    }
    QVERIFY(different > 20); // nearly every page has a background of the theme

    const PxProductTypeList compatible = context.compatibleProducts();
    QVERIFY(compatible.contains(context.productType()) && compatible.size() > 1);
    const PxProductType cup(QString("CUP2"));
    QCOMPARE(PxProductVariantIdentifiers::instance()->variantName(cup, "color:black"),
             QString("Schwarz"));

    PxProductContextsGroup group(context);
    QVERIFY(group.containsContext(context) && !group.containsContext(plain));
    QDomDocument document;
    QDomElement root = document.createElement("offer");
    document.appendChild(root);
    group.toXml(root);
    QCOMPARE(root.firstChildElement("product").text(), QString("BOOK_A4_PORTRAIT"));
    QCOMPARE(root.firstChildElement("theme").text(), QString("hochzeit"));
    QCOMPARE(PxTemplateTargetFotoBook, EnumHelper::globalMapTemplateTargetString.value(
                                           root.firstChildElement("type").text()));
}

void PxWholeWayTest::manyThreadsAskAtOnce()
{
    const PxProductContext shared(PxProductType(QString("BOOK_A4_PORTRAIT")));
    std::vector<QString> answers(16);
    std::vector<std::thread> threads;
    for (QString &answer : answers) {
        threads.emplace_back([&answer, &shared] {
            for (int i = 0; i < 50; ++i) {
                PxProductContext own = shared;
                own.setTheme(PxThemeFactory::instance()->findTheme("design"));
                const PxPageSizeSpec size = PxProductTypeConfigRegistry::instance()->sizeSpec(
                    own.productType(), PxPageSizeKey(PxPageContext(), 26));
                const PxPageSizeSpec copy = size;
                answer = own.shortProductName() + own.themeId() +
                         own.binding().humanReadableName() +
                         QString::number(copy.totalSize().width()) +
                         QString::number(own.compatibleProducts().size()) +
                         own.defaultTemplateForPage(true, PxPageContext(), true);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QVERIFY(answers[0].contains("design"));
    for (const QString &answer : answers)
        QCOMPARE(answer, answers[0]);
}

QTEST_GUILESS_MAIN(PxWholeWayTest)
#include "PxWholeWayTest.moc"
