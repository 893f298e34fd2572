#include <PxProductProperties.h>

#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

/** First use of every singleton and keyword table, from many threads at once. */
class PxFirstUseTest : public QObject
{
    Q_OBJECT

private slots:
    void everyThreadSeesTheSameCompleteObjects();
};

namespace {

struct Answers
{
    QList<const void *> instances;
    QStringList texts;

    bool operator==(const Answers &other) const
    {
        return instances == other.instances && texts == other.texts;
    }
};

Answers ask()
{
    Answers answers;
    const PxBinding binding(QStringLiteral("softcover"));
    const PxPageType pageType(QStringLiteral("spine,normal"));
    const PxOrientation orientation(QStringLiteral("square"));
    const PxPaperType paper(QStringLiteral("glossy"));
    const PxSpaceMagnitude space(QStringLiteral("xl"));
    const PxJigType jigType(QStringLiteral("Rahmen"));
    const PxProductType book(QStringLiteral("book_a4_portrait"));
    auto *registry = PxProductTypeConfigRegistry::instance();
    answers.instances = {PxDirectoryConfig::instance(),
                         PxProductTypeCatalogue::instance(),
                         PxProductCheckerRegistry::instance(),
                         PxPageOrganizationManager::instance(),
                         registry,
                         PxProductTypeConfigRegistry::legacyInstance(),
                         PxLegacyProductTypeConfig::instance(),
                         PxHumanReadable::instance(),
                         binding.enumToStringTable(),
                         orientation.enumToStringTable(),
                         registry->description(book)};
    answers.texts =
        QStringList{binding.encodeCSV(),
                    binding.humanReadableName(),
                    binding.toolTip(),
                    pageType.encodeCSV(),
                    orientation.encodeCSV(),
                    paper.humanReadableName(),
                    space.humanReadableName(),
                    jigType.encodeCSV(),
                    book.productName(),
                    QString::number(registry->description(book)->spineWidth(26)),
                    PxHumanReadable::instance()->fotoPaperTypeName(PxFotoPaperTypeMatt),
                    PxThematicCategorySet::specialCategories().preferredCategory().name()};
    return answers;
}

} // namespace

void PxFirstUseTest::everyThreadSeesTheSameCompleteObjects()
{
    constexpr int threadCount = 16;
    std::vector<Answers> answers(threadCount);
    std::vector<std::thread> threads;
    std::atomic<int> waiting{threadCount};
    for (Answers &own : answers) {
        threads.emplace_back([&own, &waiting] {
            --waiting;
            while (waiting > 0) // so that all of them ask at the same moment
                std::this_thread::yield();
            own = ask();
        });
    }
    for (std::thread &thread : threads)
        thread.join();

    QCOMPARE(answers[0].texts.constFirst(), QStringLiteral("SOFTCOVER"));
    QVERIFY(!answers[0].instances.contains(nullptr));
    for (const Answers &other : answers)
        QVERIFY(other == answers[0]);
}

QTEST_GUILESS_MAIN(PxFirstUseTest)
#include "PxFirstUseTest.moc"
