#include "PxHostileFiles.h"

#include <PxAskEverything.h>
#include <PxCatalogueDirectory.h>
#include <PxLogRecorder.h>

#include <context/PxProductContext.h>
#include <description/PxProductTypeConfigRegistry.h>
#include <description/PxProductTypeDescriptionReader.h>
#include <themes/PxThemeFactory.h>
#include <values/PxHumanReadable.h>

#include <PxDirectoryConfig.h>

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>
#include <QThread>

#include <malloc.h>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

/** Loads a catalogue of good products and themes among hostile files in a process of its own. */
class PxHostileCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void goodIsThereAndEachUnreadableFileIsToldOnce();
    void noFileCostsMuch();

private:
    void writeProducts();
    void writeNames(const QByteArray &productTypes);
    void writeWhatIsNoProduct();
    void writeThemes();

    PxCatalogueDirectory m_directory;
    QStringList m_expected; // in the report
    QStringList m_report;   // of the child: "kind rest" a line
};

namespace {

#ifdef PX_SANITIZED
constexpr int slowness = 20;
#else
constexpr int slowness = 6; // of the machine, its disk and a build for debugging
#endif
constexpr int maximumMilliseconds = 250 * slowness;
constexpr rlim_t maximumMemory = 150 << 20;
constexpr unsigned stackSize = 512 * 1024 * (slowness > 6 ? 4 : 1);

void setLimit(__rlimit_resource resource, rlim_t value)
{
    rlimit limit;
    getrlimit(resource, &limit);
    limit.rlim_cur = value;
    setrlimit(resource, &limit);
}

/** From now on the process may take this much more; an allocation that fails ends it. */
void allowMoreMemory(rlim_t bytes)
{
#ifndef PX_SANITIZED // which reserve terabytes
    QFile status(QStringLiteral("/proc/self/statm"));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("cannot tell the size of this process");
    setLimit(RLIMIT_AS, status.readAll().split(' ').first().toULongLong() * 4096 + bytes);
#else
    Q_UNUSED(bytes)
#endif
}

/** Of this thread, whatever else the machine does. */
double milliseconds()
{
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/** What reading a file costs goes to the report; its log goes nowhere. */
template <typename Function>
auto measured(QTextStream &report, const QString &file, Function read)
{
    const PxLogRecorder log;
    report << "reading " << file << Qt::endl;
    allowMoreMemory(maximumMemory);
    const double start = milliseconds();
    auto result = read();
    report << "cost " << milliseconds() - start << ' ' << file << Qt::endl;
    allowMoreMemory(RLIM_INFINITY / 2);
    return result;
}

void loadNames(QTextStream &report)
{
    measured(report, "producttypes.xml", [] { return PxProductType(1).isValid(); });
    measured(report, "frames.xml", [] { return PxHumanReadable::instance()->frameName("x"); });
}

void loadProducts(const QString &directory, QTextStream &report)
{
    PxProductTypeDescriptionReader reader{QDir(directory)};
    const QFileInfoList files = QDir(directory).entryInfoList(
        PxProductTypeDescriptionReader::fileFilter(), QDir::AllEntries | QDir::System);
    for (const QFileInfo &file : files)
        delete measured(report, file.fileName(), [&] { return reader.readFile(file).second; });
    const PxLogRecorder log;
    const PxProductTypeConfigRegistry *registry = PxProductTypeConfigRegistry::instance();
    for (const QString &text : log.texts().filter(QStringLiteral("could not open")))
        report << "warning " << QFileInfo(text.section('"', 1, 1)).completeBaseName() << '\n';
    for (int code = 0; code < 100; ++code) {
        if (registry->description(code) == registry->description(0))
            continue;
        report << "product " << PxProductType(code).productName() << '\n';
        pxAskEverything(*registry->description(code));
        pxAskEverything(*registry, code);
    }
}

/** Wild theme files have directories of their own: the factory reads whole directories. */
void loadThemes(const QString &directory, QTextStream &report)
{
    for (const QString &name : QDir(directory).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QDir wild(directory + '/' + name);
        const PxThemeList themes =
            measured(report, "theme " + name, [&] { return PxThemeFactory().loadThemeList(wild); });
        for (const PxTheme &theme : themes.mid(0, 10))
            pxAskEverything(theme);
        measured(report, "unique theme " + name, [&] {
            PxThemeList unique;
            unique.appendUnique(themes);
            return unique;
        });
    }
    const PxLogRecorder log;
    const QStringList ids = PxThemeFactory::instance()->themeNames();
    for (const QString &text : log.texts().filter(QStringLiteral("Could not open")))
        report << "warning " << QFileInfo(text).completeBaseName() << '\n';
    for (const QString &id : ids)
        report << "theme " << id << '\n';
    for (const PxProductType &type : PxProductTypeConfigRegistry::instance()->products())
        pxAskEverything(PxProductContext(type));
}

void load(const QString &directory)
{
    QTextStream report(stdout);
    loadNames(report);
    loadProducts(directory + QStringLiteral("/products"), report);
    loadThemes(directory + QStringLiteral("/themes"), report);
    report << "done all\n";
}

int loadAsChild(const QString &directory)
{
    mallopt(M_ARENA_MAX, 1); // one of its own would reserve more than a file may take
    setLimit(RLIMIT_CPU, 60 * slowness);
    PxDirectoryConfig::instance()->setResourceDirectories({directory});
    PxDirectoryConfig::instance()->setUserDefaultsPath(directory + QStringLiteral("/user"));
    PxDirectoryConfig::instance()->setThemesDirectory(directory + QStringLiteral("/themes"));
    const std::unique_ptr<QThread> thread(QThread::create([&directory] { load(directory); }));
    thread->setStackSize(stackSize);
    thread->start();
    thread->wait();
    return 0;
}

} // namespace

void PxHostileCatalogueTest::initTestCase()
{
    writeProducts();
    writeWhatIsNoProduct();
    writeThemes();

    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {"--load", m_directory.filePath("")});
    QVERIFY(child.waitForFinished(110000));
    m_report = QString::fromUtf8(child.readAllStandardOutput()).split('\n');
    QVERIFY2(m_report.contains("done all"),
             qPrintable("it crashed after " + m_report.value(m_report.size() - 2)));
}

void PxHostileCatalogueTest::writeProducts()
{
    QByteArray types;
    const auto addProduct = [&](const QByteArray &name) {
        m_expected.append("product " + QString::fromUtf8(name));
        types += QByteArray::number(m_expected.size()) + " book " + name + '\n';
    };
    for (const PxHostileFiles::File &file : PxHostileFiles::wild()) {
        addProduct(file.name);
        m_directory.write("products/wild-" + QByteArray(file.name).replace('/', '+') + ".xml",
                          file.content);
    }
    const QDir samples(PX_SAMPLE_DIRECTORY "/products");
    for (const QString &name : samples.entryList({"book*.xml"})) {
        addProduct(name.toUtf8().toUpper().chopped(4));
        QVERIFY(QFile::copy(samples.filePath(name), m_directory.filePath("products/" + name)));
    }
    writeNames(types);
    m_directory.write("user/BOOK_MINI.xml", PxHostileFiles::unreadable().constLast().content);
    m_directory.write("OUTSIDE.xml", "<d><defaults><defaults layout='stolen'/></defaults></d>");
}

/** Names that share one hash, in the files that are read to look names up. */
void PxHostileCatalogueTest::writeNames(const QByteArray &productTypes)
{
    QByteArray types = productTypes;
    QByteArray frames;
    int code = 1000;
    for (const QByteArray &name : PxHostileFiles::collidingNames(49000)) {
        types += QByteArray::number(++code) + " gift " + name + '\n';
        frames += "<frame id='" + name + "' name='x'/>";
    }
    m_directory.writeProductTypes(types);
    m_directory.write("frames.xml", "<frames>" + frames + "</frames>");
}

/** What has the name of a product file, but is none. */
void PxHostileCatalogueTest::writeWhatIsNoProduct()
{
    for (const PxHostileFiles::File &file : PxHostileFiles::unreadable()) {
        m_expected.append("warning " + QString::fromUtf8(file.name));
        m_directory.write("products/" + file.name + ".xml", file.content);
    }
    // A super-user can read the forbidden one.
    const auto path = [this](const char *name) {
        return QFile::encodeName(m_directory.filePath(QStringLiteral("products/") + name));
    };
    m_directory.write("products/forbidden.xml", "forbidden, and no XML");
    QCOMPARE(chmod(path("forbidden.xml"), 0), 0);
    m_directory.write("products/sparse.xml", "");
    QVERIFY(QFile::resize(path("sparse.xml"), qint64(1) << 40));
    // The directory lists a link to a pipe, too, and the loader refuses it.
    m_expected.append({"warning forbidden", "warning sparse", "warning link-to-pipe"});
    QVERIFY(QDir().mkpath(path("directory.xml")));
    QCOMPARE(mkfifo(path("pipe.xml"), 0600), 0);
    for (const auto &[from, to] : {std::pair("nowhere", "dangling.xml"),
                                   {"loop.xml", "loop.xml"},
                                   {"pipe.xml", "link-to-pipe.xml"},
                                   {".", "link-to-directory.xml"}})
        QCOMPARE(symlink(from, path(to)), 0);
}

void PxHostileCatalogueTest::writeThemes()
{
    for (const PxHostileFiles::File &file : PxHostileFiles::wildThemes())
        m_directory.write("themes/" + file.name + "/theme.xml", file.content);
    for (const PxHostileFiles::File &file : PxHostileFiles::unreadable().mid(0, 20)) {
        m_expected.append("warning theme-" + QString::fromUtf8(file.name));
        m_directory.write("themes/theme-" + file.name + ".XML", file.content);
    }
    for (const PxHostileFiles::File &file : PxHostileFiles::pictures()) {
        m_directory.write("pictures/" + file.name, file.content);
        m_directory.write("themes/" + file.name + "/theme.xml",
                          "<themes><theme><logos><logo filename='pictures/" + file.name +
                              "'/></logos></theme></themes>");
    }
    m_directory.write("themes/good.xml", "<themes><theme id='sea'/><theme id='snow'/></themes>");
    m_expected.append({"theme sea", "theme snow"});
}

void PxHostileCatalogueTest::goodIsThereAndEachUnreadableFileIsToldOnce()
{
    QStringList found = m_report.filter(QRegularExpression("^(product|theme|warning) "));
    found.sort();
    m_expected.sort();
    QCOMPARE(found, m_expected);
}

void PxHostileCatalogueTest::noFileCostsMuch()
{
    const QStringList costs = m_report.filter(QRegularExpression("^cost "));
    QVERIFY(costs.size() > 100);
    for (const QString &cost : costs)
        QVERIFY2(cost.section(' ', 1, 1).toDouble() <= maximumMilliseconds, qPrintable(cost));
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--load")
        return loadAsChild(QFile::decodeName(argv[2]));
    PxHostileCatalogueTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PxHostileCatalogueTest.moc"
