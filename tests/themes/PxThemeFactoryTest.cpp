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
    void differsInOneItem();
    void strayNodesAreThemesButBlanksAreNot();
    void themesOfOneFileAreBounded();
    void damagedAndForeignFilesAreLeftOut();
    void bothEndingsAreReadAndTheIndexTakesTheLast();
    void warnsOfNamesThatCannotBeDecoded();
    void defaultThemeFallsBackToTheFirst();
    void instanceChoosesTheDefaultTheme();
    void listFindsFiltersAndOrders();

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
    QImage(9, 2, QImage::Format_RGB32).save(m_directory.filePath("thumbnail.png"));
    QVERIFY(QDir::setCurrent(m_directory.filePath(QString()))); // where thumbnails are looked up
}

PxThemeList PxThemeFactoryTest::load(const char *file, const QByteArray &themes)
{
    m_directory.write(file, themes);
    QDir directory = QFileInfo(m_directory.filePath(file)).dir();
    return m_factory.loadThemeList(directory);
}

void PxThemeFactoryTest::differsInOneItem()
{
    const QByteArray all = R"(<Themes><any id="Reise" producttype=" book" expiry="205001022304"
        thumbnail="thumbnail.PNG"><description>Große Reise</description>
        <keyaccounts><a>12</a><b>x</b><c>13</c></keyaccounts>
        <products><product>cup</product></products><logos>
        <l filename="LOGO.PNG" booktype="book" x="1" y="2" width="3" height="4"/></logos>
        <spinetext use="1"/><spinelogo use="0"/><content movable="1" normalBackgrounds="0"/>
        <defaultcategories background="B" frame="R" layout="L"/></any></Themes>)";
    enum { Equal = 1, Hash = 2, Key = 4 };
    const struct
    {
        const char *before;
        const char *after;
        int same; // in spite of the difference
    } rows[] = {
        {"Reise\"", "Rast\"", 0},
        {"Große", "Kleine", Hash},
        {"type=\" book", "type=\"books", Hash},
        {"thumbnail.", "logo.", Hash | Key},
        {"2050", "1950", 0},
        {"13", "14", Hash},
        {">cup", ">pot", Equal | Hash | Key},
        {"spinetext use=\"1", "spinetext use=\"0", Hash},
        {"spinelogo use=\"0", "spinelogo use=\"1", Hash},
        {"movable=\"1", "movable=\"0", Hash},
        {"Backgrounds=\"0", "Backgrounds=\"1", Hash},
        {"booktype=\"book", "booktype=\"cup", Hash},
        {"LOGO.", "thumbnail.", Hash | Key},
        {"height=\"4", "height=\"5", Hash},
        {"\"B\"", "\"L\"", Hash},
        {"\"R\"", "\"r\"", Equal | Hash | Key},
        {"\"L\"", "\"B\"", Hash},
    };
    const PxTheme base = load("full/a.xml", all).value(0);
    for (const auto &[before, after, same] : rows) {
        const PxTheme theme = load("full/a.xml", QByteArray(all).replace(before, after)).value(0);
        QVERIFY2((theme == base) == ((same & Equal) != 0), after);
        QVERIFY2((theme != base) == ((same & Equal) == 0), after);
        QVERIFY2((qHash(theme, 5) == qHash(base, 5)) == ((same & Hash) != 0), after);
        QVERIFY2((theme.sortingKey() == base.sortingKey()) == ((same & Key) != 0), after);
        QCOMPARE(qHash(theme), qHash(theme, 0));
    }
    QCOMPARE(PxTheme::voidTheme(), PxTheme());
}

void PxThemeFactoryTest::strayNodesAreThemesButBlanksAreNot()
{
    const PxLogRecorder log;
    const PxThemeList themes = load("stray/a.xml", "<themes>\n  <!-- note -->\n  <t id='A'/>\n"
                                                   "  text<t id=''/>\n</themes>");
    QCOMPARE(themes.idList(), QStringList({"unbekannt", "a", "unbekannt", ""}));
    QCOMPARE(log.texts(), QStringList("PxThemeFactory::loadThemeList() 4"));
    QCOMPARE(log.entries().constFirst().level, QtDebugMsg);
    QCOMPARE(log.entries().constFirst().category, QString("default"));
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
    QCOMPARE(log.entries().constFirst().category, QString("default"));
    QCOMPARE(log.texts().constFirst(),
             "PxThemeFactory::loadThemeList Could not open config file: " + QDir::currentPath() +
                 '/' + m_directory.filePath("broken/a.xml"));
    QCOMPARE(log.entries().constLast().level, QtDebugMsg);
    QCOMPARE(log.entries().constLast().category, QString("px.productproperties"));
    // By which a handler knows that this is the reason of the warning.
    QCOMPARE(log.entries().constLast().file, log.entries().constFirst().file);
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
    QCOMPARE(log.entries().constFirst().category, QString("default"));
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

void PxThemeFactoryTest::listFindsFiltersAndOrders()
{
    const QDateTime farFuture(QDate(2999, 12, 31), QTime(23, 59));
    const QDateTime past(QDate(1976, 12, 30), QTime(23, 59));
    const auto createTheme = [&](const QString &id, const QDateTime &expiry) {
        return PxTheme(id, PxProductGroupBook, "text of " + id, expiry, {}, {1, 2}, {}, false,
                       false, false, {}, false, {});
    };
    PxThemeList list({createTheme("a", farFuture), createTheme("normal", farFuture),
                      createTheme("b", past), createTheme("design", farFuture),
                      createTheme("a", past)});
    QCOMPARE(list.findTheme("a").expiryDate(), farFuture);
    QVERIFY(!list.contains(QString("A")));
    QVERIFY(!list.findTheme("A").isValid());
    QCOMPARE(list.filter(2, true).asCommaSeparatedIDList(), QString("a,normal,design"));
    QCOMPARE(list.filter(2, false).asCommaSeparatedIDList(), QString("b,a"));
    QVERIFY(list.filter(3, true).isEmpty());
    list.normalize();
    QCOMPARE(list.asCommaSeparatedIDList(), QString("design,normal,a,b,a"));
    list.appendUnique(
        PxThemeList({createTheme("b", past), createTheme("albfreetheme", farFuture)}));
    list.normalize();
    QCOMPARE(list.asCommaSeparatedIDList(), QString("albfreetheme,design,normal,a,b,a"));
    const PxThemeList same = list;
    list.appendUnique(same);
    QCOMPARE(list.size(), same.size());
    QCOMPARE(list.descriptionList().constLast(), QString("text of a"));
    PxThemeList invalid({createTheme("a", farFuture), PxTheme("normal", {}, {}, {}, {}, {}, {},
                                                              false, false, false, {}, false, {})});
    invalid.normalize();
    QCOMPARE(invalid.asCommaSeparatedIDList(), QString("a,normal"));
}

QTEST_GUILESS_MAIN(PxThemeFactoryTest)
#include "PxThemeFactoryTest.moc"
