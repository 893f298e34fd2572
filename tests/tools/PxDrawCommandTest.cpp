#include "PxProgramRun.h"

#include <drawing/PxDrawing.h>
#include <drawing/PxDrawingSvg.h>
#include <drawing/PxDrawnProductReader.h>

#include <description/PxProductPropertiesInitializer.h>
#include <description/PxProductTypeConfigRegistry.h>

#include <PxDirectoryConfig.h>
#include <PxSampleCopy.h>

#include <QBuffer>
#include <QDir>
#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <memory>

/** What "draw" writes, and where; sessions.txt has its errors. */
class PxDrawCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }
    void writesTheSameBytes_data();
    void writesTheSameBytes();
    void writesOneDrawingForAllWays();
    void keepsAnOlderFile();
    void choosesSheets_data();
    void choosesSheets();
    void choosesLayers_data();
    void choosesLayers();
    void tellsTheResolution();
    void refusesWhatIsTooLarge_data();
    void refusesWhatIsTooLarge();
    void needsNoFontsForSvg();
    void drawsTheWholeSampleInTime();

private:
    QString filePath(const QString &name) const { return m_directory->filePath(name); }
    QByteArray contents(const QString &name) const;
    PxProgramRun draw(const QString &options, const QMap<QString, QString> &environment = {}) const;

    std::unique_ptr<QTemporaryDir> m_directory;
};

namespace {

#ifdef NDEBUG
constexpr int slowness = 1;
#else
constexpr int slowness = 20; // perhaps under sanitizers
#endif

QDomElement parsed(const QString &svg)
{
    QDomDocument document;
    document.setContent(svg);
    return document.documentElement();
}

/** The values of an attribute of all groups with this class, in their order. */
QStringList valuesOf(const QString &svg, const QString &className, const QString &attribute)
{
    QStringList values;
    const QDomNodeList groups = parsed(svg).elementsByTagName("g");
    for (int i = 0; i < groups.size(); ++i) {
        const QDomElement group = groups.at(i).toElement();
        if (group.attribute("class").section(' ', 0, 0) == className)
            values.append(group.attribute(attribute));
    }
    return values;
}

} // namespace

QByteArray PxDrawCommandTest::contents(const QString &name) const
{
    QFile file(filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** "OUT" stands for the directory of the test. */
PxProgramRun PxDrawCommandTest::draw(const QString &options,
                                     const QMap<QString, QString> &environment) const
{
    const QString words = QString("draw " + options).replace("OUT", m_directory->path());
    return PxProgramRun(PX_CATALOGUE_PROGRAM, words.split(' '), environment);
}

void PxDrawCommandTest::writesTheSameBytes_data()
{
    QTest::addColumn<QString>("file");
    for (const char *suffix : {"svg", PX_DRAW_PDF ? "pdf" : "svg", "png"})
        QTest::newRow(suffix) << QString("same.%1").arg(suffix);
}

void PxDrawCommandTest::writesTheSameBytes()
{
    QFETCH(QString, file);
    const QMap<QString, QString> surroundings[] = {
        {{"LC_ALL", "C.UTF-8"}, {"TZ", "UTC"}},
        {{"LC_ALL", "de_DE.UTF-8"}, {"TZ", "Asia/Tokyo"}},
        {{"LC_ALL", "C"}, {"QT_HASH_SEED", "1"}, {"PX_THREADS", "1"}},
        {{"LC_ALL", "C.UTF-8"}, {"QT_HASH_SEED", "77"}, {"COLUMNS", "20"}},
    };
    QByteArray first;
    for (const auto &surrounding : surroundings) {
        const PxProgramRun run =
            draw("BOOK_A4_PORTRAIT --theme hochzeit --lang en --sheet 0,4 --output OUT/" + file,
                 surrounding);
        // Qt itself warns of seeds.
        QVERIFY(run.errors().isEmpty() || surrounding.contains("QT_HASH_SEED"));
        QCOMPARE(run.status(), 0);
        QCOMPARE(run.printed(), QString());
        if (first.isEmpty())
            first = contents(file);
        QVERIFY(!first.isEmpty());
        QVERIFY(contents(file) == first);
    }
    QVERIFY(!first.contains(m_directory->path().toUtf8()));
    QVERIFY(!first.contains(PX_SOURCE_DIRECTORY));
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files | QDir::Hidden), QStringList(file));
}

void PxDrawCommandTest::writesOneDrawingForAllWays()
{
    const PxProgramRun printed = draw("card_folded_a6 --lang de");
    QCOMPARE(printed.status(), 0);
    QCOMPARE(draw("CARD_FOLDED_A6 --lang de --output OUT/Card.SVG").status(), 0);
    QCOMPARE(QString::fromUtf8(contents("Card.SVG")), printed.printed());
    QCOMPARE(parsed(printed.printed()).attribute("xml:lang"), "de");
    const PxProgramRun english = draw("CARD_FOLDED_A6 --lang en");
    QCOMPARE(parsed(english.printed()).attribute("xml:lang"), "en");
}

void PxDrawCommandTest::keepsAnOlderFile()
{
    QFile older(filePath("older.svg"));
    QVERIFY(older.open(QIODevice::WriteOnly) && older.write("older") == 5);
    older.close();
    QCOMPARE(draw("BOOK_A4_PORTRAIT --pages 27 --output OUT/older.svg").status(), 1);
    QCOMPARE(contents("older.svg"), QByteArray("older"));
    QCOMPARE(draw("BOOK_A4_PORTRAIT --output OUT/older.svg/x.svg").status(), 2);
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList("older.svg"));
    QCOMPARE(draw("BOOK_A4_PORTRAIT --output OUT/older.svg").status(), 0);
    QVERIFY(contents("older.svg").startsWith("<?xml"));
}

void PxDrawCommandTest::choosesSheets_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("sheets");
    QTest::newRow("all") << "BOOK_A4_PORTRAIT"
                         << "sheet-0 sheet-3 sheet-5 sheet-29";
    QTest::newRow("cover") << "BOOK_A4_PORTRAIT --sheet COVER"
                           << "sheet-0";
    QTest::newRow("inside") << "BOOK_A4_PORTRAIT --sheet inside"
                            << "sheet-3 sheet-5 sheet-29";
    QTest::newRow("a page") << "BOOK_A4_PORTRAIT --sheet 28"
                            << "sheet-5";
    QTest::newRow("the last page") << "BOOK_A4_PORTRAIT --sheet 30"
                                   << "sheet-29";
    QTest::newRow("the same twice") << "BOOK_A4_PORTRAIT --sheet 6,5,17"
                                    << "sheet-5";
    QTest::newRow("several") << "BOOK_A4_PORTRAIT --sheet 29,cover"
                             << "sheet-0 sheet-29";
    QTest::newRow("front and back of a calendar") << "CALENDAR_DESK_A5 --sheet cover"
                                                  << "sheet-0 sheet-25";
}

void PxDrawCommandTest::choosesSheets()
{
    QFETCH(QString, options);
    QFETCH(QString, sheets);
    const PxProgramRun run = draw(options);
    QCOMPARE(valuesOf(run.printed(), "sheet", "id").join(' '), sheets);
}

void PxDrawCommandTest::choosesLayers_data()
{
    QTest::addColumn<QString>("layers");
    QTest::addColumn<QString>("names");
    QTest::newRow("template") << "template"
                              << "barcodes spine safe bleed trim marks";
    QTest::newRow("some") << "Trim, areas"
                          << "areas trim";
    QTest::newRow("with others") << "template,areas,-barcodes"
                                 << "areas spine safe bleed trim marks";
    QTest::newRow("the others") << "-template,-dimensions,-labels,-legend,-title"
                                << "background areas surroundings";
    QTest::newRow("again") << "-all,trim"
                           << "trim";
}

void PxDrawCommandTest::choosesLayers()
{
    QFETCH(QString, layers);
    QFETCH(QString, names);
    const PxProgramRun run(PX_CATALOGUE_PROGRAM,
                           {"draw", "BOOK_A4_PORTRAIT", "--sheet", "cover", "--layers", layers});
    QCOMPARE(run.errors(), QStringList());
    QStringList found;
    for (const QString &id : valuesOf(run.printed(), "layer", "id"))
        found.append(id.section('-', 2));
    QCOMPARE(found.join(' '), names);
}

void PxDrawCommandTest::tellsTheResolution()
{
    QCOMPARE(draw("CUP2 --output OUT/true.png --dpi 127").status(), 0);
    QCOMPARE(draw("CUP2 --output OUT/legible.png").status(), 0);
    const QDomElement svg = parsed(draw("CUP2").printed());
    const QStringList box = svg.attribute("viewBox").split(' ');
    const QImage trueScale(filePath("true.png"));
    QCOMPARE(trueScale.size(), QSize((box[2].toInt() + 1) / 2, (box[3].toInt() + 1) / 2));
    QCOMPARE(trueScale.dotsPerMeterX(), 5000);
    QCOMPARE(trueScale.dotsPerMeterY(), 5000);
    QVERIFY(!trueScale.hasAlphaChannel());
    const double scale = 7 / svg.attribute("data-annotation").toDouble();
    const QImage legible(filePath("legible.png"));
    QCOMPARE(legible.width(), int(std::ceil(box[2].toInt() * scale)));
    QCOMPARE(legible.dotsPerMeterX(), qRound(scale * 10000));
}

void PxDrawCommandTest::refusesWhatIsTooLarge_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("words");
    QTest::newRow("pixels of a side") << "LONG --output OUT/x.png --dpi 400"
                                      << "--sheet";
    QTest::newRow("pixels of all") << "BOOK_A4_PORTRAIT --output OUT/x.png --dpi 600"
                                   << "--sheet";
    if (PX_DRAW_PDF)
        QTest::newRow("a page") << "LONG --output OUT/x.pdf"
                                << "5080 mm";
}

void PxDrawCommandTest::refusesWhatIsTooLarge()
{
    QFETCH(QString, options);
    QFETCH(QString, words);
    const PxSampleCopy sample;
    sample.replace("products/cup2.xml", "usablesize width=\"2000\"", "usablesize width=\"51000\"");
    const PxProgramRun run =
        draw(QString(options).replace("LONG", "CUP2"), {{"PX_RESOURCE_DIRS", sample.path()}});
    QCOMPARE(run.status(), 1);
    QCOMPARE(run.errors().size(), 1);
    QVERIFY2(run.errors().value(0).contains(words), qPrintable(run.errors().value(0)));
    QVERIFY(QDir(m_directory->path()).entryList(QDir::Files).isEmpty());
}

void PxDrawCommandTest::needsNoFontsForSvg()
{
    QFile configuration(filePath("fonts.conf"));
    QVERIFY(configuration.open(QIODevice::WriteOnly));
    configuration.write("<fontconfig><dir>/no/such/directory</dir></fontconfig>");
    configuration.close();
    const QMap<QString, QString> fonts{{"FONTCONFIG_FILE", filePath("fonts.conf")}};
    const PxProgramRun png = draw("CUP2 --output OUT/x.png", fonts);
    QCOMPARE(png.status(), 2);
    QVERIFY(png.errors().value(0).contains("font"));
    // A program that asked for this display would fail.
    const PxProgramRun svg =
        draw("CUP2", {{"QT_QPA_PLATFORM", "none"}, {"FONTCONFIG_FILE", "none"}});
    QCOMPARE(svg.status(), 0);
    QCOMPARE(svg.printed(), draw("CUP2").printed());
    QCOMPARE(draw("CUP2 --output OUT/y.png", {{"QT_QPA_PLATFORM", "none"}}).status(), 0);
}

void PxDrawCommandTest::drawsTheWholeSampleInTime()
{
    QElapsedTimer timer;
    timer.start();
    PxDirectoryConfig::instance()->setResourceDirectories({PX_SAMPLE_DIRECTORY});
    PxProductPropertiesInitializer::setupModule();
    const auto *registry = PxProductTypeConfigRegistry::instance();
    int count = 0;
    for (const PxProductType &type : registry->products()) {
        const PxDrawnProduct product = PxDrawnProductReader(registry).read(type, 0, QString());
        QVERIFY2(product.problem.isEmpty(), qPrintable(product.problem));
        QVector<int> sheets;
        for (const PxDrawnSheet &sheet : product.sheets)
            sheets.append(sheet.index);
        QBuffer buffer;
        QVERIFY(buffer.open(QIODevice::WriteOnly));
        PxDrawingSvg::write(pxDraw(product, sheets, PxDrawnLayers(0xFFFF)), &buffer);
        QVERIFY(!parsed(buffer.data()).isNull());
        ++count;
    }
    QVERIFY(count >= 44);
    QVERIFY2(timer.elapsed() < 2000 * slowness, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(PxDrawCommandTest)
#include "PxDrawCommandTest.moc"
