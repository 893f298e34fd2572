#include "PxCheckedSample.h"

#include <check/findings/PxCheckTags.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

/** The options of "check", the files that it takes and its exit statuses. */
class PxCheckCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void answersTheWorstFinding_data();
    void answersTheWorstFinding();
    void checksSingleFiles();
    void knowsOtherThemes();
    void checksWhatItIsToldTo();
    void tellsOneFaultOfAnAttribute();
    void findsWhatNoExampleShows();
    void findsNamesThatCannotBeDecoded();
    void keepsQuiet();
    void explains();

private:
    PxCheckedSample m_sample;
};

void PxCheckCommandTest::init()
{
    m_sample.restore();
    QDir::setCurrent(m_sample.path());
}

void PxCheckCommandTest::answersTheWorstFinding_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("count");
    const QString skip = "--skip xml-attribute-twice ";
    QTest::newRow("an error") << "" << 1 << 3;
    QTest::newRow("a warning") << skip << 0 << 2;
    QTest::newRow("a warning that counts") << skip + "--fail-on warning" << 1 << 2;
    QTest::newRow("an info") << skip + "--skip allowance-unused --fail-on warning" << 0 << 1;
    QTest::newRow("raised") << skip + "--override file-not-read=error" << 1 << 2;
    QTest::newRow("lowered") << "--override xml-attribute-twice=info" << 0 << 3;
    QTest::newRow("lowered to style")
        << "--override xml-attribute-twice=pedantic,allowance-unused=pedantic" << 0 << 1;
    QTest::newRow("style") << "--pedantic --override xml-attribute-twice=pedantic" << 0 << 3;
    QTest::newRow("style that counts")
        << "--pedantic --fail-on pedantic --override file-not-read=pedantic --only file-not-read"
        << 1 << 1;
}

void PxCheckCommandTest::answersTheWorstFinding()
{
    QFETCH(QString, options);
    QFETCH(int, status);
    QFETCH(int, count);
    m_sample.addFindings();
    const PxProgramRun run = m_sample.check(options + " --format json .");
    QCOMPARE(run.status(), status);
    QCOMPARE(findingsOf(run.json()).size(), count);
}

void PxCheckCommandTest::checksSingleFiles()
{
    m_sample.addFindings();
    const PxProgramRun run = m_sample.check("products/pendant.xml ./products/pendant.xml " + cup);
    QCOMPARE(findingsOf(run), (QStringList{"products/cup2.xml:30:5 warning allowance-unused",
                                           "products/pendant.xml:4:10 error xml-attribute-twice"}));
    QCOMPARE(run.output().constLast(), QString("2 files read: 1 error, 1 warning"));
    QVERIFY(run.text().contains("not checked without the whole catalogue: "));
    const QJsonObject json = m_sample.check("--format json --skip file-not-read " + cup).json();
    QVERIFY(!json["notChecked"].toArray().contains("file-not-read"));

    // Each is of another kind, and clean as such.
    const PxProgramRun clean = m_sample.check("--pedantic producttypes.xml frames.xml "
                                              "themes/JAHRESZEITEN.XML defaults/CARD_FOLDED_A6.xml "
                                              "products/legacy/cup1.xml products/book_mini.xml");
    QCOMPARE(findingsOf(clean), QStringList());
    QCOMPARE(clean.output().constLast(), QString("6 files read: nothing found"));

    // An allowance for what is not checked may well be of use.
    const QString mini = "products/book_mini.xml";
    m_sample.replace(mini, "<productdescription>",
                     "<!-- check: allow file-not-read --><productdescription>");
    QCOMPARE(findingsOf(m_sample.check(mini)), QStringList());
    m_sample.replace(mini, "check: allow file-not-read", "check: allow spine-pages-twice");
    QCOMPARE(findingsOf(m_sample.check(mini)).size(), 1);
    m_sample.replace(mini, "BOOK_MINI\"", "BOOK_MINNI\"");
    QCOMPARE(findingsOf(m_sample.check(mini)),
             QStringList("products/book_mini.xml:4:18 error product-name-unknown"));
}

/** Though only one of them is checked. */
void PxCheckCommandTest::knowsOtherThemes()
{
    const QString seasons = "themes/JAHRESZEITEN.XML";
    m_sample.replace(seasons, "\"fruehling\"", "\"normal\"");
    const PxProgramRun twice = m_sample.check("--only theme-id-twice " + seasons);
    QCOMPARE(findingsOf(twice), QStringList("themes/JAHRESZEITEN.XML:5:14 error theme-id-twice"));
    QVERIFY(twice.text().contains(" is also in themes/grundthemen.xml:6 "));
    m_sample.write("draft.xml", m_sample.read("themes/grundthemen.xml"));
    QCOMPARE(findingsOf(m_sample.check("draft.xml")), QStringList());

    m_sample.replace(seasons, "</themes>", QString());
    const QString cause = "<!-- check: allow defaults-theme-unknown -->";
    m_sample.replace(cup, "<productdescription>", cause + "<productdescription>");
    const QJsonObject json = m_sample.check("--format json .").json();
    QCOMPARE(json["notChecked"].toArray(), QJsonArray{"defaults-theme-unknown"});
    QCOMPARE(findingsOf(json).size(), 1);
    QVERIFY(m_sample.check(".").output().contains(
        "not checked without the id of every theme: defaults-theme-unknown"));
}

void PxCheckCommandTest::checksWhatItIsToldTo()
{
    m_sample.addFindings();
    QVERIFY(mkfifo(QFile::encodeName(m_sample.filePath("products/pipe.xml")), 0600) == 0);
    QVERIFY(QFile::rename(m_sample.filePath("themes"), m_sample.filePath("designs")));
    m_sample.write("designs/lost.xml~", QString());
    QDir().mkpath(m_sample.filePath("designs/old.xml"));
    QDir().mkpath(m_sample.filePath("products/drafts"));
    m_sample.write("products/.hidden.xml", QString());
    m_sample.write("products/.directory", QString());
    QVERIFY(QFile::link("nowhere.xml", m_sample.filePath("products/link.xml")));
    m_sample.write("designs/preview.png", QString());
    const PxProgramRun run = m_sample.check("--resources " + m_sample.path() +
                                            "/ --themes ./designs --only file-not-read");
    QCOMPARE(findingsOf(run),
             (QStringList{"./designs/lost.xml~:1:1 info file-not-read",
                          "./designs/old.xml:1:1 info file-not-read",
                          m_sample.path() + "/products/.hidden.xml:1:1 info file-not-read",
                          m_sample.path() + "/products/cup3.xml.b\\u009B:1:1 info file-not-read",
                          m_sample.path() + "/products/link.xml:1:1 info file-not-read",
                          m_sample.path() + "/products/pipe.xml:1:1 info file-not-read"}));
    QCOMPARE(m_sample.check("products/pipe.xml").status(), 2);
}

/** The first that its rules find; but each attribute that is wrong, and each parent by itself. */
void PxCheckCommandTest::tellsOneFaultOfAnAttribute()
{
    m_sample.write("frames.xml", "<frames>\n<frame/>\n<frame id='ä'/>\n<frame id='ä' name='b'/>\n"
                                 "<frame id='ä' name='c'/>\n<frame id='ä' name='d'/></frames>");
    const PxProgramRun frames = m_sample.check("--pedantic frames.xml");
    QCOMPARE(findingsOf(frames), (QStringList{"frames.xml:2:2 warning frame-incomplete",
                                              "frames.xml:3:2 warning frame-incomplete",
                                              "frames.xml:4:12 pedantic frame-id-not-ascii",
                                              "frames.xml:5:12 warning frame-id-twice",
                                              "frames.xml:6:12 warning frame-id-twice"}));
    QVERIFY(frames.text().contains("the frame \"ä\" is in line 5, too"));

    const QString logo = "<logo filename='' booktype='%1' width='9' height='9'/>";
    m_sample.write("themes/a.xml", "<themes>\n<a id='A, '><logos>" + logo.arg("cup2") +
                                       "</logos></a>\n<a id=' '><logos>" + logo.arg("Cup2") + '\n' +
                                       logo.arg("CUP2") + "</logos></a></themes>");
    QCOMPARE(findingsOf(m_sample.check("--pedantic --only "
                                       "theme-id-unlistable,theme-id-lowered,theme-logo-twice "
                                       "themes/a.xml")),
             (QStringList{"themes/a.xml:2:8 pedantic theme-id-lowered",
                          "themes/a.xml:2:8 warning theme-id-unlistable",
                          "themes/a.xml:3:8 warning theme-id-unlistable",
                          "themes/a.xml:4:29 warning theme-logo-twice"}));
}

/** Of which no example in a table could tell. */
void PxCheckCommandTest::findsWhatNoExampleShows()
{
    const QString pages = m_sample.read(cup).replace(
        "<pages>normalpage</pages>",
        "<pages>" + QString("normalpage,").repeated(1000) + "normalpage</pages>");
    m_sample.write(cup, pages);
    QCOMPARE(findingsOf(m_sample.check(".")),
             QStringList("./products/cup2.xml:29:11012 warning pages-too-many"));
    m_sample.restore(cup);

    const QString pillow = "products/pillow_premium.xml";
    m_sample.write(pillow, "<p><products><product name='PILLOW_PREMIUM'/></products></p>");
    QVERIFY(m_sample.check(pillow).text().contains("hint: move \"product\" out of \"products\""));
    m_sample.restore(pillow);

    const QString themes = "themes/grundthemen.xml";
    m_sample.write(themes,
                   m_sample.read(themes).replace("images/logo-schule.png", "images/logo-schule"));
    QCOMPARE(findingsOf(m_sample.check(".")),
             QStringList()); // found by the suffix of an image format

    m_sample.restore(themes);
    const QString logo = m_sample.filePath("images/logo-schule.png");
    QVERIFY(QFile::resize(logo, QFileInfo(logo).size() - 20));
    m_sample.write("images/logo-urlaub.png", "no picture");
    const PxProgramRun images = m_sample.check(".");
    QCOMPARE(findingsOf(images),
             (QStringList{"./themes/grundthemen.xml:85:52 warning theme-image-missing",
                          "./themes/grundthemen.xml:87:48 warning theme-image-missing",
                          "./themes/grundthemen.xml:154:38 warning theme-image-cut-off",
                          "./themes/grundthemen.xml:155:41 warning theme-image-cut-off"}));
    QVERIFY(images.text().contains("\"images/logo-schule.png\" is cut off"));
    QVERIFY(images.text().contains("\"images/logo-urlaub.png\" is no PNG, JPEG, GIF or BMP"));
    m_sample.restore("images/logo-schule.png");
    m_sample.restore("images/logo-urlaub.png");

    QVERIFY(QFile::remove("frames.xml") && mkfifo("frames.xml", 0600) == 0);
    QCOMPARE(findingsOf(m_sample.check(".")),
             QStringList("./frames.xml:1:1 error file-unreadable"));
    m_sample.write("producttypes.xml", "\n<types/>");
    QVERIFY(findingsOf(m_sample.check("."))
                .contains("./producttypes.xml:2:2 error product-types-root-wrong"));
}

void PxCheckCommandTest::findsNamesThatCannotBeDecoded()
{
    QStringList expected;
    QByteArrayList files;
    for (const char *directory : {"defaults", "products", "products/legacy", "themes"}) {
        const QByteArray path = QFile::encodeName(m_sample.filePath(directory));
        for (const char *name : {"/gr\xF6n.xml", "/\xE4.xml", "/\xE4.png"}) {
            files.append(path + name);
            FILE *file = fopen(files.constLast(), "w");
            QVERIFY(file);
            fclose(file);
        }
        expected.append(QString("./%1:1:1 warning file-name-undecodable").arg(directory));
    }
    const PxProgramRun run = m_sample.check(".");
    QCOMPARE(findingsOf(run), expected);
    QCOMPARE(run.text().count("not in the encoding of the locale: 2"), 4);
    QCOMPARE(findingsOf(m_sample.check(cup)), QStringList());
    // The library warns of each directory that a command makes it read.
    QString warnings;
    for (const QStringList &command : {QStringList{"list", "--earlier"}, QStringList{"themes"}}) {
        const PxProgramRun read(PX_CATALOGUE_PROGRAM,
                                command + QStringList{"--resources", m_sample.path()});
        warnings += read.errors().join(' ');
    }
    for (const char *directory : {"defaults", "products", "products/legacy", "themes"})
        QVERIFY2(warnings.contains("locale: 2 in \"" + m_sample.filePath(directory) + '"'),
                 qPrintable(warnings));
    for (const QByteArray &file : files)
        unlink(file); // Qt cannot
}

void PxCheckCommandTest::keepsQuiet()
{
    QCOMPARE(m_sample.check("--quiet .").output(), QStringList());
    m_sample.addFindings();
    const PxProgramRun run = m_sample.check("--quiet --only xml-attribute-twice .");
    QCOMPARE(run.output().size(), 3);
    QCOMPARE(run.errors(), QStringList());
}

void PxCheckCommandTest::explains()
{
    const QStringList lines = m_sample.check("--explain xml-attribute-twice").output();
    QVERIFY(lines.constFirst().startsWith("xml-attribute-twice (error): "));
    const int example =
        lines.indexOf("    <usablesize width=\"2000\" width=\"2500\" height=\"950\"/>");
    QVERIFY(example > 0);
    QCOMPARE(lines.value(example + 1), QString(29, ' ') + '^');
    QCOMPARE(m_sample.check("--list-tags").output().size(), PxCheckTags::all().size());
    QCOMPARE(m_sample.check("--version").output(),
             PxProgramRun(PX_CATALOGUE_PROGRAM, {"--version"}).output());
}

QTEST_GUILESS_MAIN(PxCheckCommandTest)
#include "PxCheckCommandTest.moc"
