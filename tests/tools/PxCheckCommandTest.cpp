#include "PxCheckedSample.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

/** The options of "check", the files that it takes and its exit statuses. */
class PxCheckCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void checksWhatItIsToldTo();
    void findsWhatNoExampleShows();
    void findsNamesThatCannotBeDecoded();

private:
    PxCheckedSample m_sample;
};

void PxCheckCommandTest::init()
{
    m_sample.restore();
    QDir::setCurrent(m_sample.path());
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
                          m_sample.path() + "/products/pipe.xml:1:1 info file-not-read"}));
    QVERIFY(findingsOf(m_sample.check(". --themes ./designs"))
                .contains("./products/link.xml:1:1 error file-unreadable"));
    QCOMPARE(m_sample.check("products/pipe.xml").status(), 2);
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

    const QString logo = m_sample.filePath("images/logo-schule.png");
    QVERIFY(QFile::resize(logo, QFileInfo(logo).size() - 20));
    m_sample.write("images/logo-urlaub.png", "no picture");
    const PxProgramRun images = m_sample.check(".");
    QCOMPARE(findingsOf(images),
             (QStringList{"./themes/grundthemen.xml:85:52 warning theme-image-missing",
                          "./themes/grundthemen.xml:154:38 warning theme-image-cut-off"}));
    QVERIFY(images.text().contains("\"images/logo-schule.png\" is cut off"));
    QVERIFY(images.text().contains("\"images/logo-urlaub.png\" is no PNG, JPEG, GIF or BMP"));
    m_sample.restore("images/logo-schule.png");
    m_sample.restore("images/logo-urlaub.png");

    QVERIFY(QFile::remove("frames.xml") && mkfifo("frames.xml", 0600) == 0);
    QCOMPARE(findingsOf(m_sample.check(".")),
             QStringList("./frames.xml:1:1 error file-unreadable"));
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

QTEST_GUILESS_MAIN(PxCheckCommandTest)
#include "PxCheckCommandTest.moc"
