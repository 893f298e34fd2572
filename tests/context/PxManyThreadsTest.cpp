#include "PxAskEverything.h"
#include "PxElement.h"

#include <PxProductProperties.h>

#include <QDir>
#include <QDomDocument>
#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

namespace {

/** Of them there is one, whoever asks first. */
QVector<quintptr> instances()
{
    QVector<quintptr> instances;
    for (const void *instance : std::initializer_list<const void *>{
             PxDirectoryConfig::instance(), PxProductCheckerRegistry::instance(),
             PxPageOrganizationManager::instance(), PxLegacyProductTypeConfig::instance(),
             PxProductTypeConfigRegistry::instance(), PxProductTypeConfigRegistry::legacyInstance(),
             PxHumanReadable::instance(), PxThemeFactory::instance(),
             PxProductGroupPropertyManager::instance(), PxProductVariantIdentifiers::instance(),
             PxBinding().enumToStringTable(), PxOrientation().enumToStringTable()})
        instances.append(quintptr(instance));
    return instances;
}

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
        answer += pxXml(root);
        QDebug(&answer) << copies << own << own.binding().humanReadableName()
                        << own.paperType().humanReadableName()
                        << PxProductVariantIdentifiers::instance()->variants(code);
        answer += pxAskEverything(own, arguments);
        answers.append(qHash(answer));
    }
    return answers;
}

} // namespace

/** On the sample catalogue and its themes, in a process that has used nothing of the library. */
class PxManyThreadsTest : public QObject
{
    Q_OBJECT

private slots:
    void manyThreadsAskAtOnce();
};

void PxManyThreadsTest::manyThreadsAskAtOnce()
{
    qputenv("PX_RESOURCE_DIRS", PX_SAMPLE_DIRECTORY);
    qputenv("PX_USER_DEFAULTS_DIR", PX_SAMPLE_DIRECTORY "/defaults");
    qputenv("PX_THEMES_DIR", PX_SAMPLE_DIRECTORY "/themes");
    // In a theme that needs no factory, so that the threads race to create it, and all the tables.
    const PxProductContext shared{PxProductType(), PxTheme()};
    // Without a lock, which would make the threads wait for each other.
    static std::atomic<int> ofThemes{0};
    static std::atomic<int> others{0};
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            if (text.contains("PxThemeFactory::"))
                ++ofThemes;
            else if (!text.contains("usablePrintSize")) // the question was wrong
                ++others;
        });
    QVector<QVector<quintptr>> singletons(8);
    std::vector<QVector<uint>> answers(8);
    std::atomic<int> missing{int(answers.size())};
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < answers.size(); ++i) {
        QVector<uint> &answer = answers[i];
        QVector<quintptr> &own = singletons[int(i)];
        threads.emplace_back([&answer, &own, &missing, &shared] {
            --missing;
            while (missing > 0)
                std::this_thread::yield();
            own = instances();
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
    QCOMPARE(singletons, QVector<QVector<quintptr>>(singletons.size(), instances()));
    QVERIFY(!instances().contains(0));
    QVERIFY(shared.theme() == PxTheme());
    QCOMPARE(shared.productType(), PxProductType());
    const int files = QDir(PX_SAMPLE_DIRECTORY "/themes").entryList({"*.xml"}, QDir::Files).size();
    QCOMPARE(ofThemes.load(), 1 + files); // the directory and its files, read once
    QCOMPARE(others.load(), 0);
    QVERIFY(PxProductPropertiesInitializer::setupModule());
}

QTEST_GUILESS_MAIN(PxManyThreadsTest)
#include "PxManyThreadsTest.moc"
