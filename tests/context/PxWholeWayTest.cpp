#include "PxAskEverything.h"

#include <PxProductProperties.h>

#include <QDomDocument>
#include <QTest>
#include <QTextStream>

#include <atomic>
#include <thread>
#include <vector>

namespace {

/** Hashes of what all themes and products answer; asks through copies of the context. */
QVector<uint> askTheCatalogue(const PxProductContext &shared)
{
    PxArguments arguments;
    arguments.pages = {1, 26};
    arguments.pageCounts = {26};
    QVector<uint> answers;
    const PxThemeList themes = PxThemeFactory::instance()->themeList();
    for (const PxTheme &theme : themes)
        answers.append(qHash(pxAskEverything(theme, arguments)));
    const auto *registry = PxProductTypeConfigRegistry::instance();
    for (int code = 0; code < 1000; ++code) {
        if (code > 0 && registry->description(code) == registry->description(0))
            continue;
        QString answer = pxAskEverything(*registry->description(code), arguments) +
                         pxAskEverything(*registry, code, arguments);
        PxProductContext own = shared;
        own.setProductType(code);
        const QVector<PxProductContext> copies(10, own);
        own.setTheme(themes[code % themes.size()]);
        QDomDocument document;
        QDomElement root = document.createElement("group");
        PxProductContextsGroup(own).toXml(root);
        QTextStream stream(&answer);
        root.save(stream, 0);
        QDebug(&answer) << copies << own << own.binding().humanReadableName()
                        << own.paperType().humanReadableName()
                        << PxProductVariantIdentifiers::instance()->variants(code);
        answer += pxAskEverything(own, arguments);
        answers.append(qHash(answer));
    }
    return answers;
}

} // namespace

/** The way of an application, in one process, on the sample catalogue and its themes. */
class PxWholeWayTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void manyThreadsAskAtOnce(); // first, while nothing but the registry is created
    void fromProductToOrder();
    void productsOfEarlierCataloguesAreElsewhere();
};

void PxWholeWayTest::initTestCase()
{
    auto *config = PxDirectoryConfig::instance();
    config->setResourceDirectories({PX_SAMPLE_DIRECTORY});
    config->setThemesDirectory(PX_SAMPLE_DIRECTORY "/themes");
    config->setUserDefaultsPath(PX_SAMPLE_DIRECTORY "/defaults");
    QVERIFY(PxProductPropertiesInitializer::setupModule());
}

void PxWholeWayTest::productsOfEarlierCataloguesAreElsewhere()
{
    const PxProductType earlier(QString("BOOK_CLASSIC_A4"));
    const PxProductContext context(earlier);
    QVERIFY(context.isValid() && context.binding().isNull() &&
            context.offeredPageCounts().isEmpty());
    QVERIFY(context.minPages() > context.maxPages());
    const auto *registry = PxProductTypeConfigRegistry::legacyInstance();
    QVERIFY(registry->products().contains(earlier));
    QCOMPARE(registry->binding(earlier).value(), PxBindingHardcover);
    QCOMPARE(registry->offeredPageCounts(earlier).constLast(), 98);
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
    int shaded = 0;
    for (int page = 0; page < pages.size(); ++page) {
        const PxPageContext pageContext(pages[page], context.pageAlignment(page));
        QVERIFY(!context.defaultTemplateForPage(false, pageContext, false).isEmpty());
        different += context.defaultTemplateForPage(false, pageContext, false) !=
                     plain.defaultTemplateForPage(false, pageContext, false);
        shaded += context.findSurrounding(PxSurroundingKey(pageContext, page)).hasBindingShade();
    }
    QCOMPARE(shaded, 28);    // the binding hides a part of each but the cover and the spine
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
    // In a theme that needs no factory, so that the threads race to create it, and all the tables.
    const PxProductContext shared{PxProductType(), PxTheme()};
    // Silent, and without a lock, which would make the threads wait for each other.
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    std::vector<QVector<uint>> answers(8);
    std::atomic<int> missing{int(answers.size())};
    std::vector<std::thread> threads;
    for (QVector<uint> &answer : answers) {
        threads.emplace_back([&answer, &missing, &shared] {
            --missing;
            while (missing > 0)
                std::this_thread::yield();
            for (int round = 0; round < 2; ++round)
                answer += askTheCatalogue(shared);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    qInstallMessageHandler(previous);
    QVERIFY(answers[0].size() > 2 * 50);
    for (const QVector<uint> &answer : answers)
        QCOMPARE(answer, answers[0]);
    QVERIFY(shared.theme() == PxTheme() && shared.productType() == PxProductType());
}

QTEST_GUILESS_MAIN(PxWholeWayTest)
#include "PxWholeWayTest.moc"
