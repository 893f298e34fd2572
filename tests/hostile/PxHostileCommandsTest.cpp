#include "PxHostileFiles.h"

#include <PxCatalogueDirectory.h>
#include <PxProgramRun.h>
#include <PxSampleCopy.h>

#include <QRegularExpression>
#include <QTest>

#include <sys/resource.h>

/** Runs the commands of pxcatalogue over hostile files, each in a child that may not take much. */
class PxHostileCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    // First: only the memory of the largest child so far is known.
    void checkOfOneFileIsBounded_data();
    void checkOfOneFileIsBounded();
    void commandIsBounded_data();
    void commandIsBounded();
    void diffOfExportsIsBounded();
    void placesOfTemplatesAreBounded();
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
[[maybe_unused]] constexpr long maximumKilobytes =
    150 * 1024; // more than the sample catalogue takes
[[maybe_unused]] constexpr rlim_t addressSpace = 1 << 30;

/** A share of the limits of the loader, nearly: what stands around needs something, too. */
constexpr int readableNodes = 199900 / share;
constexpr int readableSize = (8 * 1024 * 1024 - 2000) / share;

struct Usage
{
    double seconds;
    long kilobytes; // of the largest
};

Usage usageOfChildren()
{
    rusage usage;
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto &[user, system] = std::pair(usage.ru_utime, usage.ru_stime);
    return {double(user.tv_sec + system.tv_sec) + double(user.tv_usec + system.tv_usec) / 1e6,
            usage.ru_maxrss};
}

PxProgramRun run(const QString &directory, const QString &command)
{
    return PxProgramRun(PX_CATALOGUE_PROGRAM, command.split(' '),
                        {{"PX_RESOURCE_DIRS", directory},
                         {"PX_USER_DEFAULTS_DIR", directory + "/defaults"},
                         {"MALLOC_ARENA_MAX", "1"}}); // one of its own reserves much per thread
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

/** No command may take more; nor this test, which hands it on. */
void PxHostileCommandsTest::initTestCase()
{
#ifndef PX_SANITIZED // which reserve terabytes
    const rlimit bytes = {addressSpace, addressSpace};
    QCOMPARE(setrlimit(RLIMIT_AS, &bytes), 0);
#endif
}

void PxHostileCommandsTest::checkOfOneFileIsBounded_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("themes"); // of another file
    QByteArray nearNames;
    for (int i = 0; i < 250; ++i)
        nearNames += " widt" + QByteArray::number(i) + "=''";
    constexpr const char *cup2 = "products/cup2.xml";
    // clang-format off
    const struct { const char *name; const char *file; QByteArray content; QByteArray themes = {}; } rows[] = {
        {"nothing else", cup2, cup("", "")},
        {"words like paths", cup2, cup("legacy='" + asMany("a.xml ", 0) + "'", "")},
        {"empty parts", cup2, cup("", "<productionnumbering>" + asMany(",", 0) + "</productionnumbering>")},
        {"wrong parts", cup2, cup("", "<pages a='b'>" + asMany("x,", 0) + "</pages>")},
        {"wrong numbers", cup2, cup("bleedmarginhorizontal='x' bleedmarginvertical='x' bleedmargincoverhorizontal='x' bleedmargincoververtical='x' foldmargin='x' space='x'", "<surroundings>" + asMany("<surrounding pageNr='1'/>", 2) + "</surroundings>")},
        {"items without anything", cup2, cup("", "<extra_production_pages>" + asMany("<item/>", 1) + "</extra_production_pages>")},
        {"nearly attributes", cup2, cup("", "<barcodes>" + asMany("<barcode " + nearNames + "/>", 251) + "</barcodes>")},
        {"nearly tags", cup2, cup("", numbered("<!--check: allow spine-pages-twic%-->", 1))},
        {"misplaced", cup2, cup("", asMany("<spine/><frame/><pdf/>", 3))},
        {"themes that nobody has", cup2, cup("", "<defaults>" + numbered("<defaults theme='hochzeot%' pageType='normalpage' background='b'/>", 4) + "</defaults>"),
         numbered("<theme id='hochzeit%' producttype='book' expiry='205012312359'/>", 4)},
        {"all allowed", cup2, "<!-- check: allow element-unknown -->" + cup("", numbered("<barcod%/>", 1))},
        {"themes without anything", "themes/t.xml", "<themes>" + asMany("<t/>", 1) + "</themes>"},
        {"wrong days", "themes/t.xml", "<themes>" + asMany("<theme id='a' expiry='31.12.2050' producttype='buch'/>", 4) + "</themes>"},
        {"nearly product types", "producttypes.xml", "<producttypes>" + numbered("<producttype code='%' name='n%' class='crad'/>", 4) + "</producttypes>"},
    };
    // clang-format on
    for (const auto &row : rows)
        QTest::newRow(row.name) << QString(row.file) << row.content << row.themes;
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
    const double start = usageOfChildren().seconds;
    const int status = run(sample.path(), "check --format sarif").status();
    const auto [seconds, kilobytes] = usageOfChildren();
    QVERIFY(status == 0 || status == 1);
    QVERIFY2(seconds - start <= maximumSeconds, qPrintable(QString::number(seconds - start)));
#ifndef PX_SANITIZED
    static const long ourGood = kilobytes; // of the first row
    QVERIFY2(kilobytes - ourGood <= maximumKilobytes, qPrintable(QString::number(kilobytes)));
#endif
}

void PxHostileCommandsTest::commandIsBounded_data()
{
    QTest::addColumn<QString>("command");
    const QString commands =
        "list,list --json,list --format tsv --sort -size --theme wild,themes,themes --json,"
        "show KEYWORDS --pages 26,show DEFAULTS --theme wild --json,draw KEYWORDS,"
        "show ITEMS --pages 9999 --origin,show DEFAULTS --theme wild --origin --json,"
        "why DEFAULTS --page 1 --theme wild --json,why PAGES --pages 100000 --page 99999,"
        "compatible PAGES --json,variants VARIANTS --json,"
        "check,check --format json,check --format sarif,export,"
        "diff SAMPLE HOSTILE --json,proof --output PROOF --previous SAMPLE,"
        "--complete show ,--complete show --theme ";
    QStringList run;
    for (const QString &command : commands.split(',')) {
        QTest::newRow(qPrintable(command)) << command;
        run.append(command.section(' ', 0, 0));
    }

    // Without a command, the program says which ones there are.
    const QString names =
        PxProgramRun(PX_CATALOGUE_PROGRAM, {}).errors().value(0).section(": use ", 1);
    for (const QString &name : names.section(" (", 0, 0).split(", "))
        QVERIFY2(run.contains(name), qPrintable("no row runs " + name));
}

void PxHostileCommandsTest::commandIsBounded()
{
    static const HostileCatalogue ourCatalogue;
    static const QTemporaryDir ourFolder;
    QFETCH(QString, command);
    const QString words = QString(command)
                              .replace("SAMPLE", PX_SAMPLE_DIRECTORY)
                              .replace("HOSTILE", ourCatalogue.filePath(""))
                              .replace("PROOF", ourFolder.filePath("proof"));
    const double start = usageOfChildren().seconds;
    const PxProgramRun found = run(ourCatalogue.filePath(""), words);
    const double seconds = usageOfChildren().seconds - start;
    QCOMPARE(found.status(),
             command.contains(QRegularExpression("check|diff|variants|why")) ? 1 : 0);
    // One of the themes files has many thousand themes, and each has a page of its own.
    const double slower = command.startsWith("proof") ? 3 : 1;
    QVERIFY2(seconds <= maximumSecondsOfAll * slower, qPrintable(QString::number(seconds)));
    QCOMPARE(found.output().isEmpty(), command.startsWith("proof"));
    QCOMPARE(!found.json().isEmpty(), command.contains(QRegularExpression("json|sarif")));
}

/** Exports may have more rows than any catalogue, each of them changed. */
void PxHostileCommandsTest::diffOfExportsIsBounded()
{
    const PxSampleCopy sample;
    const QString header =
        R"({"type":"catalogue","format":1,"lengthUnit":"tenths of a millimetre","products":1})"
        "\n";
    for (const char *layout : {"old", "new"}) {
        QString rows;
        for (int i = 0; i < 40000 / share; ++i)
            rows += QString(R"({"pageType":"%1","alignment":"left","layout":"%2%1"},)")
                        .arg(QString::number(i), layout);
        sample.write(layout,
                     header +
                         R"({"type":"product","product":{"name":"A"},"pages":{"offered":"1"},)" +
                         QString(R"("templates":[%1{}]})").arg(rows));
    }
    const double start = usageOfChildren().seconds;
    const PxProgramRun found =
        run(sample.path(), "diff " + sample.filePath("old") + ' ' + sample.filePath("new"));
    const double seconds = usageOfChildren().seconds - start;
    QCOMPARE(found.status(), 1);
    QVERIFY(found.output().size() > 40000 / share);
    QVERIFY2(seconds <= maximumSeconds, qPrintable(QString::number(seconds)));
}

/** Each theme has a template of its own, and all of them change. */
void PxHostileCommandsTest::placesOfTemplatesAreBounded()
{
    const QString theme = "<theme id='t%1' producttype='book'/>";
    const QString entry = "<defaults theme='t%1' pageType='normalpage' alignment='left' "
                          "layout='%2%1'/>";
    const PxSampleCopy samples[2];
    for (const QString layout : {"old", "new"}) {
        const PxSampleCopy &sample = samples[layout == "old" ? 0 : 1];
        QString themes;
        QString entries;
        for (int i = 0; i < 10000 / share; ++i) {
            themes += theme.arg(i);
            entries += entry.arg(QString::number(i), layout);
        }
        sample.write("themes/many.xml", "<themes>" + themes + "</themes>");
        sample.replace("products/book_mini.xml", "<defaults>", "<defaults>" + entries);
    }
    const double start = usageOfChildren().seconds;
    const PxProgramRun found =
        run(samples[0].path(), "diff " + samples[0].path() + ' ' + samples[1].path());
    const double seconds = usageOfChildren().seconds - start;
    QCOMPARE(found.status(), 1);
    QCOMPARE(found.output().filter("layout: old").filter("(products/book_mini.xml:").size(),
             10000 / share);
    QVERIFY2(seconds <= maximumSecondsOfAll, qPrintable(QString::number(seconds)));
}

QTEST_GUILESS_MAIN(PxHostileCommandsTest)
#include "PxHostileCommandsTest.moc"
