#include "PxHostileFiles.h"

#include <PxCatalogueDirectory.h>
#include <PxProgramRun.h>
#include <PxSampleCopy.h>

#include <QJsonDocument>
#include <QProcess>
#include <QTest>

#include <algorithm>

#include <sys/resource.h>

/** Runs the commands of pxcatalogue over hostile files, each in a child that may not take much. */
class PxHostileCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    // First: only the memory of the largest child so far is known.
    void checkOfOneFileIsBounded_data();
    void checkOfOneFileIsBounded();
    void commandIsBounded_data();
    void commandIsBounded();
};

namespace {

#ifdef PX_SANITIZED
constexpr int slowness = 20;
constexpr int share = 8;
#elif defined(NDEBUG)
constexpr int slowness = 3; // others use the machine, too
constexpr int share = 2;
#else
constexpr int slowness = 12; // and not optimised
constexpr int share = 4;
#endif
constexpr double maximumSeconds = 1.0 * slowness;
constexpr double maximumSecondsOfAll = 3.0 * slowness;
constexpr long maximumKilobytes = 150 * 1024; // more than the sample catalogue takes
constexpr rlim_t addressSpace = 1 << 30;

/** A share of the limits of the loader, nearly: what stands around needs something, too. */
constexpr int readableNodes = 199900 / share;
constexpr int readableSize = (8 * 1024 * 1024 - 2000) / share;

class BoundedProcess : public QProcess
{
protected:
    void setupChildProcess() override
    {
        const rlimit seconds = {rlim_t(maximumSecondsOfAll) + 1, rlim_t(maximumSecondsOfAll) + 1};
        setrlimit(RLIMIT_CPU, &seconds);
#ifndef PX_SANITIZED // which reserve terabytes
        const rlimit bytes = {addressSpace, addressSpace};
        setrlimit(RLIMIT_AS, &bytes);
#endif
    }
};

struct Run
{
    int status = -1; // also of one that was ended
    QByteArray output;
    double seconds = 0;
    long kilobytes = 0; // of the largest child so far
};

double secondsOf(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

rusage usageOfChildren()
{
    rusage usage;
    getrusage(RUSAGE_CHILDREN, &usage);
    return usage;
}

Run run(const QString &directory, const QStringList &arguments)
{
    const rusage before = usageOfChildren();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"PX_THEMES_DIR", "PX_RESOURCE_DIRS"})
        environment.remove(name);
    environment.insert("PX_USER_DEFAULTS_DIR", directory + "/defaults");
    environment.insert("MALLOC_ARENA_MAX", "1"); // one of its own reserves much for each thread
    BoundedProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(PX_CATALOGUE_PROGRAM, arguments + QStringList{"--resources", directory});
    Run run;
    if (process.waitForFinished(110000) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = process.readAllStandardOutput();
    const rusage after = usageOfChildren();
    run.seconds = secondsOf(after.ru_utime) - secondsOf(before.ru_utime) +
                  secondsOf(after.ru_stime) - secondsOf(before.ru_stime);
    run.kilobytes = after.ru_maxrss;
    return run;
}

QByteArray asMany(const QByteArray &text, int nodes)
{
    const int bySize = readableSize / text.size();
    return text.repeated(nodes > 0 ? qMin(bySize, readableNodes / nodes) : bySize);
}

/** With the number of each instead of "%". */
QByteArray numbered(const QByteArray &text, int nodes)
{
    QByteArray all;
    for (int i = 0; i < readableNodes / nodes && all.size() < readableSize - 100; ++i)
        all += QByteArray(text).replace('%', QByteArray::number(i));
    return all;
}

QByteArray cup(const QByteArray &attributes, const QByteArray &children)
{
    return "<d><product name='CUP2' " + attributes + "><usablesize width='2000' height='950'/>" +
           children + "</product></d>";
}

/** All hostile files in one catalogue. */
class HostileCatalogue : public PxCatalogueDirectory
{
public:
    HostileCatalogue()
    {
        QByteArray types;
        int code = 0;
        for (const PxHostileFiles::File &file : PxHostileFiles::wild()) {
            types += QByteArray::number(++code) + " book " + file.name + '\n';
            write("products/wild-" + QByteArray(file.name).replace('/', '+') + ".xml",
                  file.content);
        }
        for (const PxHostileFiles::File &file : PxHostileFiles::unreadable())
            write("products/" + file.name + ".xml", file.content);
        for (const PxHostileFiles::File &file : PxHostileFiles::wildThemes())
            write("themes/" + file.name + ".xml", file.content);
        writeProductTypes(types);
    }
};

} // namespace

void PxHostileCommandsTest::checkOfOneFileIsBounded_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("themes"); // of another file
    QByteArray nearNames;
    for (int i = 0; i < 250; ++i)
        nearNames += " widt" + QByteArray::number(i) + "=''";
    const auto row = [](const char *name, const char *file, const QByteArray &content,
                        const QByteArray &themes = {}) {
        QTest::newRow(name) << QString(file) << content << themes;
    };
    const auto product = [&](const char *name, const QByteArray &attributes,
                             const QByteArray &children, const QByteArray &themes = {}) {
        row(name, "products/cup2.xml", cup(attributes, children), themes);
    };
    // clang-format off
    product("nothing else", "", "");
    product("words like paths", "legacy='" + asMany("a.xml ", 0) + "'", "");
    product("empty parts", "", "<productionnumbering>" + asMany(",", 0) + "</productionnumbering>");
    product("wrong parts", "", "<pages a='b'>" + asMany("x,", 0) + "</pages>");
    product("wrong numbers", "bleedmarginhorizontal='x' bleedmarginvertical='x' bleedmargincoverhorizontal='x' bleedmargincoververtical='x' foldmargin='x' space='x'", "<surroundings>" + asMany("<surrounding pageNr='1'/>", 2) + "</surroundings>");
    product("items without anything", "", "<extra_production_pages>" + asMany("<item/>", 1) + "</extra_production_pages>");
    product("nearly attributes", "", "<barcodes>" + asMany("<barcode " + nearNames + "/>", 251) + "</barcodes>");
    product("nearly tags", "", numbered("<!--check: allow spine-pages-twic%-->", 1));
    product("misplaced", "", asMany("<spine/><frame/><pdf/>", 3));
    product("themes that nobody has", "", "<defaults>" + numbered("<defaults theme='hochzeot%' pageType='normalpage' background='b'/>", 4) + "</defaults>",
            numbered("<theme id='hochzeit%' producttype='book' expiry='205012312359'/>", 4));
    row("all allowed", "products/cup2.xml", "<!-- check: allow element-unknown -->" + cup("", numbered("<barcod%/>", 1)));
    row("themes without anything", "themes/t.xml", "<themes>" + asMany("<t/>", 1) + "</themes>");
    row("wrong days", "themes/t.xml", "<themes>" + asMany("<theme id='a' expiry='31.12.2050' producttype='buch'/>", 4) + "</themes>");
    row("nearly product types", "producttypes.xml", "<producttypes>" + numbered("<producttype code='%' name='n%' class='crad'/>", 4) + "</producttypes>");
    // clang-format on
}

void PxHostileCommandsTest::checkOfOneFileIsBounded()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, themes);
    const PxSampleCopy sample;
    sample.write(file, QString::fromUtf8(content));
    if (!themes.isEmpty())
        sample.write("themes/many.xml", "<themes>" + QString::fromUtf8(themes) + "</themes>");
    // Its fingerprints are made from all that is told.
    const Run found = run(sample.path(), {"check", "--format", "sarif"});
    QVERIFY(found.status == 0 || found.status == 1);
    QVERIFY2(found.seconds <= maximumSeconds, qPrintable(QString::number(found.seconds)));
#ifndef PX_SANITIZED
    static const long ourGood = found.kilobytes; // of the first row
    QVERIFY2(found.kilobytes - ourGood <= maximumKilobytes,
             qPrintable(QString::number(found.kilobytes)));
#endif
}

void PxHostileCommandsTest::commandIsBounded_data()
{
    QTest::addColumn<int>("status");
    const struct
    {
        const char *command;
        int status;
    } rows[] = {
        {"list", 0},
        {"list --json", 0},
        {"themes", 0},
        {"themes --json", 0},
        {"show KEYWORDS --pages 26", 0},
        {"show DEFAULTS --theme wild --json", 0},
        {"compatible PAGES --json", 0},
        {"variants VARIANTS --json", 1},
        {"check", 1},
        {"check --format json", 1},
        {"check --format sarif", 1},
    };
    for (const auto &row : rows)
        QTest::newRow(row.command) << row.status;

    // Without a command, the program says which ones there are.
    const QString names =
        PxProgramRun(PX_CATALOGUE_PROGRAM, {}).errors().value(0).section(": use ", 1);
    for (const QString &name : names.section(" (", 0, 0).split(", ")) {
        QVERIFY2(std::any_of(std::begin(rows), std::end(rows),
                             [&name](const auto &row) {
                                 return QString(row.command).section(' ', 0, 0) == name;
                             }),
                 qPrintable("no row runs " + name));
    }
}

void PxHostileCommandsTest::commandIsBounded()
{
    static const HostileCatalogue ourCatalogue;
    const QString command = QTest::currentDataTag();
    const Run found = run(ourCatalogue.filePath(""), command.split(' '));
    QTEST(found.status, "status");
    QVERIFY2(found.seconds <= maximumSecondsOfAll, qPrintable(QString::number(found.seconds)));
    QVERIFY(!found.output.isEmpty());
    if (command.contains("json") || command.contains("sarif"))
        QVERIFY(QJsonDocument::fromJson(found.output).isObject());
}

QTEST_GUILESS_MAIN(PxHostileCommandsTest)
#include "PxHostileCommandsTest.moc"
