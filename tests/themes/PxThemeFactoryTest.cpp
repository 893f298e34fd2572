#include "PxCatalogueDirectory.h"
#include "PxLogRecorder.h"

#include <PxDirectoryConfig.h>
#include <themes/PxThemeFactory.h>

#include <QDir>
#include <QTest>

#include <unistd.h>

class PxThemeFactoryTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void missingItemsGetDefaults();
    void strayNodesAreThemesButBlanksAreNot();
    void themesOfOneFileAreBounded();
    void damagedAndForeignFilesAreLeftOut();
    void bothEndingsAreReadAndTheIndexTakesTheLast();
    void findsImagesWithoutASuffix();
    void imagesAreReadOnceAndWithinBounds();
    void warnsOfNamesThatCannotBeDecoded();
    void defaultThemeFallsBackToTheFirst();
    void instanceChoosesTheDefaultTheme();

private:
    PxThemeList load(const char *file, const QByteArray &themes);

    PxCatalogueDirectory m_directory;
    PxThemeFactory m_factory;
};

void PxThemeFactoryTest::initTestCase()
{
    m_directory.writeProductTypes("7 book BOOK\n8 gift CUP");
    m_directory.write("logo.png", "");
    QImage(5, 6, QImage::Format_RGB32).save(m_directory.filePath("logo.png"));
}

PxThemeList PxThemeFactoryTest::load(const char *file, const QByteArray &themes)
{
    m_directory.write(file, themes);
    QDir directory = QFileInfo(m_directory.filePath(file)).dir();
    return m_factory.loadThemeList(directory);
}

void PxThemeFactoryTest::missingItemsGetDefaults()
{
    const PxLogRecorder log;
    QCOMPARE(load("bare/a.xml", "<themes><t/></themes>").value(0).id(), QString("unbekannt"));
    QCOMPARE(load("bare/a.xml", "<themes><t id=''/></themes>").value(0).id(), QString());
    QCOMPARE(log.texts().filter("image"), QStringList()); // of which none is missing
}

void PxThemeFactoryTest::strayNodesAreThemesButBlanksAreNot()
{
    const PxLogRecorder log;
    const PxThemeList themes = load("stray/a.xml", "<themes>\n  <!-- note -->\n  <t id='A'/>\n"
                                                   "  text\n</themes>");
    QCOMPARE(themes.idList(), QStringList({"unbekannt", "a", "unbekannt"}));
    QCOMPARE(log.texts(), QStringList("PxThemeFactory::loadThemeList() 3"));
    QCOMPARE(log.entries().constFirst().level, QtDebugMsg);
}

void PxThemeFactoryTest::themesOfOneFileAreBounded()
{
    const PxLogRecorder log;
    const QByteArray themes = "<themes>" + QByteArray("<t/>").repeated(50001) + "</themes>";
    QCOMPARE(load("many/a.xml", themes).size(), 50000);
    QVERIFY(log.texts().constLast().startsWith(
        "PxThemeFactory::loadThemeList used are the first 50000 themes of "));
}

void PxThemeFactoryTest::damagedAndForeignFilesAreLeftOut()
{
    const PxLogRecorder log;
    QVERIFY(load("other/a.xml", "<theme><t id='A'/></theme>").isEmpty());
    QCOMPARE(log.texts(), QStringList());
    QVERIFY(load("broken/a.xml", "<themes><t id='A'></themes>").isEmpty());
    QCOMPARE(log.entries().constFirst().level, QtWarningMsg);
    QCOMPARE(log.texts().constFirst(),
             "PxThemeFactory::loadThemeList Could not open config file: " + QDir::currentPath() +
                 '/' + m_directory.filePath("broken/a.xml"));
    QCOMPARE(log.entries().constLast().level, QtDebugMsg);
    QVERIFY(log.texts().constLast().startsWith("PxThemeFactory::loadThemeList the reason: " +
                                               m_directory.filePath("broken/a.xml:1:")));
    QVERIFY(log.entries().constLast().function.contains("loadThemeList"));
    QVERIFY(log.entries().constLast().line > 0);
    QVERIFY(!log.entries().constLast().file.isEmpty());
}

void PxThemeFactoryTest::bothEndingsAreReadAndTheIndexTakesTheLast()
{
    m_directory.write("both/c.txt", "<themes><t id='c'/></themes>");
    m_directory.write("both/B.XML", "<themes><t id='b' producttype='book'/></themes>");
    QStringList ids =
        load("both/a.xml", "<themes><t id='a' producttype='book'/></themes>").idList();
    ids.sort();
    QCOMPARE(ids, QStringList({"a", "b"}));

    PxThemeFactory factory;
    QDir directory(m_directory.filePath("twice"));
    m_directory.write("twice/a.xml", "<themes><t id='a'><description>1</description></t>"
                                     "<t id='a'><description>2</description></t></themes>");
    QCOMPARE(factory.loadThemeList(directory).findTheme("a").description(), QString("1"));
    QCOMPARE(factory.findThemes(QString("x,a,,a, a")).descriptionList(), QStringList({"2", "2"}));
}

void PxThemeFactoryTest::findsImagesWithoutASuffix()
{
    m_directory.write("bare/themed", "");
    QImage(7, 8, QImage::Format_RGB32).save(m_directory.filePath("bare/themed"), "PNG");
    m_directory.write("bare/both.png/x", ""); // a folder, which is passed over
    QImage(9, 1, QImage::Format_RGB32).save(m_directory.filePath("bare/both.jpg"));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_directory.filePath(QString()))); // where thumbnails are looked up
    const auto sizes = [this](const QByteArray &name) {
        const QByteArray path = "'bare/" + name + "'";
        const PxTheme theme = load("bare/a.xml", "<themes><t thumbnail=" + path +
                                                     "><logos><l booktype='BOOK' filename=" + path +
                                                     "/></logos></t></themes>")
                                  .value(0);
        const QSize logo = theme.vemoLogo(7).first.size();
        return theme.thumbnail().size() == logo ? logo : QSize(-1, -1);
    };
    QCOMPARE(sizes("themed"), QSize(7, 8)); // its format follows from the contents
    QCOMPARE(sizes("both"), QSize(9, 1));
    QCOMPARE(sizes("both.png"), QSize(0, 0));
    QCOMPARE(sizes("../logo"), QSize(5, 6));
    QCOMPARE(sizes("logo"), QSize(0, 0));
    QVERIFY(QDir::setCurrent(before));
}

void PxThemeFactoryTest::imagesAreReadOnceAndWithinBounds()
{
    // A bitmap's header is enough to tell its size: this one claims 40,000 x 1,000 pixels.
    m_directory.write("vast.bmp", QByteArray::fromHex("424d0000000000000000360000002800000040"
                                                      "9c0000e8030000010018000000000000000000"
                                                      "00000000000000000000000000000000"));
    m_directory.write("folder.png/x", "");
    const PxLogRecorder log;
    const PxTheme theme = load("images/a.xml", R"(<themes><t><logos>
        <l filename="vast.bmp" booktype="BOOK"/><l filename="VAST.BMP" booktype="CUP"/></logos></t>
        <t><logos><l filename="folder.png" booktype="CUP"/></logos></t></themes>)")
                              .value(0);
    QVERIFY(theme.mustPaintVemoLogo(7));
    QVERIFY(theme.vemoLogo(7).first.isNull());
    QCOMPARE(log.texts().filter("too large").size(), 1);
    QCOMPARE(log.entries().constLast().level, QtWarningMsg);
    QVERIFY(log.texts().constLast().contains("vast.bmp\" is too large: 40000 x 1000 pixels"));
}

void PxThemeFactoryTest::warnsOfNamesThatCannotBeDecoded()
{
    const QByteArray folder = QFile::encodeName(m_directory.filePath("latin"));
    m_directory.write("latin/gr\xC3\xB6n.xml", "<themes><t id='green'/></themes>");
    QByteArrayList files;
    for (const char *name : {"/gr\xF6n.xml", "/\xE4.XML", "/\xE4.png"}) {
        files.append(folder + name);
        FILE *file = fopen(files.constLast(), "w");
        QVERIFY(file);
        fclose(file);
    }
    QDir directory(m_directory.filePath("latin"));
    const PxLogRecorder log;
    QCOMPARE(PxThemeFactory().loadThemeList(directory).idList(), QStringList("green"));
    QCOMPARE(log.entries().constFirst().level, QtWarningMsg);
    QCOMPARE(log.texts(),
             QStringList({"PxUndecodableNames::warn files are not read, for their names are not "
                          "in the encoding of the locale: 2 in \"" +
                              directory.path() + '"',
                          "PxThemeFactory::loadThemeList() 1"}));
    QVERIFY(log.entries().constFirst().function.contains("PxUndecodableNames::warn("));
    for (const QByteArray &file : files)
        unlink(file); // Qt cannot
}

void PxThemeFactoryTest::defaultThemeFallsBackToTheFirst()
{
    auto *directories = PxDirectoryConfig::instance();
    const auto defaultTheme = [&](const QByteArray &themes) {
        m_directory.write("fallback/a.xml", "<themes>" + themes + "</themes>");
        directories->setThemesDirectory(m_directory.filePath("fallback"));
        PxThemeFactory factory;
        factory.init();
        return factory.defaultTheme().id() + factory.defaultTheme().description();
    };
    const QByteArray normal = "<t id='normal' producttype='book'><description>1</description></t>";
    const QByteArray last = "<t id='Normal' producttype='gift'><description>2</description></t>";
    QCOMPARE(defaultTheme("<t id='a' producttype='book'/><t id='normal'/>" + last),
             QString("aunbekannt"));
    QCOMPARE(defaultTheme("<t id='a' producttype='book'/>" + normal + last), QString("normal1"));
    QCOMPARE(defaultTheme(""), QString("unbekanntunbekannt"));
    directories->setThemesDirectory(m_directory.filePath("none"));
    const PxLogRecorder log;
    PxThemeFactory().init();
    QCOMPARE(log.texts().size(), 1); // the directory
}

void PxThemeFactoryTest::instanceChoosesTheDefaultTheme()
{
    m_directory.write("themes/a.xml",
                      "<themes><t id='A' producttype='book'/><t id='alone' producttype='book'>"
                      "<content normalBackgrounds='0'/></t><t id='Normal' producttype='book' "
                      "expiry='299901010000'><keyaccounts><k>5</k></keyaccounts></t></themes>");
    PxDirectoryConfig::instance()->setThemesDirectory(m_directory.filePath("themes"));
    const PxLogRecorder log;
    const PxThemeFactory *factory = PxThemeFactory::instance();
    QCOMPARE(log.texts().constFirst(),
             "\"PxThemeFactory::init() directory: " + m_directory.filePath("themes") + '"');
    QCOMPARE(factory->defaultTheme().id(), QString("normal"));
    QCOMPARE(factory->themeNames(), QStringList({"a", "alone", "normal"}));
    QCOMPARE(factory->themeList(5).idList(), QStringList("normal"));
    QCOMPARE(factory->findThemesWhichAcceptNormalBackgrounds().idList(),
             QStringList({"normal", "a"}));
    QCOMPARE(factory->findThemesWhichAcceptNormalLayouts().idList(), QStringList("normal"));

    PxThemeList list(QString("alone,normal"));
    QVERIFY(list.containsDefaultTheme());
    list.expandDefaultThemeToAllNormalThemes();
    QCOMPARE(list.idList(), QStringList({"alone", "normal", "a"}));
}

QTEST_GUILESS_MAIN(PxThemeFactoryTest)
#include "PxThemeFactoryTest.moc"
