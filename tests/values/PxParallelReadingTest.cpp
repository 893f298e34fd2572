#include <PxAskEverything.h>
#include <PxCatalogueDirectory.h>
#include <PxLogRecorder.h>
#include <PxMessage.h>
#include <PxProductProperties.h>
#include <values/PxParallelReading.h>

#include <QDir>
#include <QFile>
#include <QTest>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

#include <dlfcn.h>
#include <pthread.h>
#include <sys/wait.h>
#include <unistd.h>

static std::atomic_int threadsLeft{1000000};

/** Of the system; refuses threads when none are left. */
extern "C" int pthread_create(pthread_t *thread, const pthread_attr_t *attributes,
                              void *(*function)(void *), void *argument)
{
    static const auto create = decltype(&pthread_create)(dlsym(RTLD_NEXT, "pthread_create"));
    return threadsLeft-- > 0 ? create(thread, attributes, function, argument) : EAGAIN;
}

class PxParallelReadingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void firstReadingInAProcessLogsTheSame();
    void manyThreadsLogAndAnswerAsOne();
    void handlerIsCalledInTheThreadOfTheCaller();
    void startsNoMoreThreadsThanItShould_data();
    void startsNoMoreThreadsThanItShould();
    void doesWithoutThreadsThatTheSystemRefuses();
    void throwsInTheCallerWhatReadingThrows();
    void keepsFewMessages();

private:
    QStringList readWith(const char *threads) const;
    QByteArray readInChild(const char *threads) const;

    PxCatalogueDirectory m_directory;
};

void PxParallelReadingTest::initTestCase()
{
    // What is wrong with a file depends on its number. All but the last kind log something.
    const QByteArray faults[] = {
        "<d><product name='P%1'", // unreadable
        "<d><product name='P%1' binding='nonsense' paper='none'/></d>",
        "<d><product name='P%1'><usablesize width='1' height='1' orientation='up'/></product></d>",
        "<d><product name='P%1'><pages>" + QByteArray("cover,what,").repeated(600) +
            "</pages></product></d>",
        "<d><product name='P%1'><contentredirects><contentredirect from='1-' to='x'/>"
        "</contentredirects></product></d>",
        "<d><product name='NOBODY' assemblyWay='x'/></d>",
        "<d><product name='SAME' safetymargin='%1'/></d>",
    };
    QByteArray types = "1 book SAME";
    for (int i = 0; i < 100; ++i) {
        const QByteArray number = QByteArray::number(100 + i);
        types += "\n" + number + " calendar P" + number;
        m_directory.write("products/" + number + ".xml",
                          QByteArray(faults[i % int(std::size(faults))]).replace("%1", number));
        if (i % 10 == 1)
            m_directory.write(
                "defaults/P" + number + ".xml",
                "<u><defaults><defaults pageType='what' layout='own'/></defaults></u>");
    }
    types += "\n1 book TWICE";
    m_directory.writeProductTypes(types);
    PxDirectoryConfig::instance()->setUserDefaultsPath(m_directory.filePath("defaults"));
}

/** All messages with all that they have, and then all answers. */
QStringList PxParallelReadingTest::readWith(const char *threads) const
{
    qputenv("PX_THREADS", threads);
    QStringList result;
    const PxLogRecorder log;
    const auto descriptions =
        PxProductTypeDescriptionReader(QDir(m_directory.filePath("products"))).readDir();
    for (const PxLogRecorder::Entry &entry : log.entries())
        result.append(QString("%1 %2:%3 %4 %5 [%6]")
                          .arg(QString::number(entry.level), entry.file,
                               QString::number(entry.line), entry.function, entry.category,
                               entry.text));
    PxArguments arguments;
    arguments.pages = {0, 1};
    arguments.pageCounts = {26};
    for (int code = 1; code < 200; ++code) {
        if (const auto *description = descriptions.value(PxProductType(code)))
            result.append(pxAskEverything(*description, arguments));
    }
    qDeleteAll(descriptions);
    return result;
}

/** In a process that has asked the library nothing yet. */
QByteArray PxParallelReadingTest::readInChild(const char *threads) const
{
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0)
        return "no pipe";
    const pid_t child = fork();
    if (child == 0) {
        QFile out;
        out.open(ends[1], QIODevice::WriteOnly);
        out.write(readWith(threads).join('\n').toUtf8());
        out.close();
        _exit(0);
    }
    close(ends[1]);
    QFile in;
    in.open(ends[0], QIODevice::ReadOnly);
    const QByteArray result = in.readAll();
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return result;
}

void PxParallelReadingTest::firstReadingInAProcessLogsTheSame()
{
#ifdef __SANITIZE_THREAD__
    QSKIP("The sanitizer starts no threads in a forked child.");
#endif
    const QByteArray one = readInChild("1");
    QVERIFY2(one.contains("leaves out row"), one); // of the product types, when they are read
    QCOMPARE(readInChild("8"), one);
}

void PxParallelReadingTest::manyThreadsLogAndAnswerAsOne()
{
    readWith("1"); // logs what is logged once in a process
    const QStringList one = readWith("1");
    QVERIFY2(one.size() > 200, qPrintable(QString::number(one.size())));
    for (const char *library :
         {"PxOrientation", "PxContentDropRedirectList", "readFile", "readPages"})
        QVERIFY2(!one.filter(library).isEmpty(), library);
    for (int round = 0; round < 20; ++round)
        QCOMPARE(readWith("8"), one);
}

static std::recursive_mutex lockOfTheApplication;
static std::set<std::thread::id> handlerThreads;

void PxParallelReadingTest::handlerIsCalledInTheThreadOfTheCaller()
{
    qputenv("PX_THREADS", "8");
    const auto previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {
            const std::lock_guard lock(lockOfTheApplication);
            handlerThreads.insert(std::this_thread::get_id());
        });
    {
        const std::lock_guard lock(lockOfTheApplication);
        const QDir products(m_directory.filePath("products"));
        qDeleteAll(PxProductTypeDescriptionReader(products).readDir());
    }
    qInstallMessageHandler(previous);
    QCOMPARE(handlerThreads, std::set<std::thread::id>{std::this_thread::get_id()});
}

void PxParallelReadingTest::startsNoMoreThreadsThanItShould_data()
{
    QTest::addColumn<QByteArray>("wanted");
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("threads");
    QTest::newRow("one") << QByteArray("1") << 1000 << 1;
    QTest::newRow("no file") << QByteArray("8") << 0 << 0;
    QTest::newRow("few files") << QByteArray("8") << 31 << 1;
    QTest::newRow("one for sixteen files") << QByteArray("8") << 32 << 2;
    QTest::newRow("as many as asked for") << QByteArray("3") << 1000 << 3;
    QTest::newRow("no more than eight") << QByteArray("100") << 1000 << 8;
}

void PxParallelReadingTest::startsNoMoreThreadsThanItShould()
{
    QFETCH(QByteArray, wanted);
    QFETCH(int, files);
    QFETCH(int, threads);
    qputenv("PX_THREADS", wanted);
    std::mutex mutex;
    std::condition_variable areThere;
    std::set<std::thread::id> ids;
    QVector<int> calls(files);
    calls.detach();
    PxParallelReading::forEach(files, [&](int i) {
        ++calls[i];
        std::unique_lock lock(mutex);
        ids.insert(std::this_thread::get_id());
        areThere.notify_all();
        areThere.wait_for(lock, std::chrono::seconds(30),
                          [&] { return int(ids.size()) >= threads; });
    });
    QCOMPARE(calls, QVector<int>(files, 1));
    QCOMPARE(int(ids.size()), threads);
}

void PxParallelReadingTest::doesWithoutThreadsThatTheSystemRefuses()
{
    qputenv("PX_THREADS", "8");
    const PxLogRecorder log; // of Qt, too
    for (const int left : {0, 3}) {
        threadsLeft = left;
        std::mutex mutex;
        std::set<std::thread::id> ids;
        int calls = 0;
        PxParallelReading::forEach(100, [&](int) {
            const std::lock_guard lock(mutex);
            ids.insert(std::this_thread::get_id());
            ++calls;
        });
        QCOMPARE(calls, 100);
        QVERIFY(int(ids.size()) <= left + 1);
    }
    threadsLeft = 1000000;
}

void PxParallelReadingTest::throwsInTheCallerWhatReadingThrows()
{
    qputenv("PX_THREADS", "8");
    for (int bad = 0; bad < 100; bad += 9)
        QVERIFY_EXCEPTION_THROWN(PxParallelReading::forEach(100,
                                                            [bad](int i) {
                                                                if (i == bad)
                                                                    throw std::bad_alloc();
                                                            }),
                                 std::bad_alloc);
}

void PxParallelReadingTest::keepsFewMessages()
{
    qputenv("PX_THREADS", "8");
    const QString text(100000, 'x');
    static std::atomic_int logged{0};
    logged = 0;
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) { ++logged; });
    std::atomic_int read{0};
    int mostKept = 0;
    std::mutex mutex;
    PxParallelReading::forEach(1000, [&](int) {
        pxWarning() << text;
        const std::lock_guard lock(mutex);
        mostKept = std::max(mostKept, ++read - logged);
    });
    qInstallMessageHandler(previous);
    QCOMPARE(logged.load(), 1000);
    QVERIFY2(mostKept <= 30, qPrintable(QString::number(mostKept)));
}

QTEST_APPLESS_MAIN(PxParallelReadingTest) // the library starts threads without an application, too
#include "PxParallelReadingTest.moc"
