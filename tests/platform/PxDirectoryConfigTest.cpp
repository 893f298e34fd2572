#include <PxDirectoryConfig.h>
#include <PxLogRecorder.h>
#include <PxProductType.h>

#include <QTemporaryDir>
#include <QTest>

class PxDirectoryConfigTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void takesTheDirectoriesOfTheEnvironment();
    void reportsWhatIsMissing();
    void answersOneNameWithAPathOfItsOwn();
    void findsThemesInTheResourceDirectories();
    void fallsBackToTheInstalledResources();

private:
    QTemporaryDir m_root;
};

void PxDirectoryConfigTest::initTestCase()
{
    for (const char *path : {"first/shared", "second/shared", "second/products/legacy"})
        QVERIFY(QDir(m_root.path()).mkpath(path));
    QVERIFY(QDir::setCurrent(m_root.path()));
    qputenv("PX_RESOURCE_DIRS", QFile::encodeName(":first/:" + m_root.filePath("second")));
    qputenv("PX_USER_DEFAULTS_DIR", "own/../user");
    qputenv("PX_THEMES_DIR", "themes");
}

void PxDirectoryConfigTest::takesTheDirectoriesOfTheEnvironment()
{
    const PxDirectoryConfig *config = PxDirectoryConfig::instance();
    const QDir root = QDir::current();
    QCOMPARE(config->resource("shared", true), root.filePath("first/shared"));
    QCOMPARE(config->resource("products/legacy", true), m_root.filePath("second/products/legacy"));
    QCOMPARE(config->resource("logo.png", false), root.filePath("first/logo.png"));
    QCOMPARE(config->userDefaultsPath(), root.filePath("user"));
    QCOMPARE(config->lumoThemesDirectory(false).path(), root.filePath("themes"));
}

void PxDirectoryConfigTest::reportsWhatIsMissing()
{
    const PxLogRecorder log;
    QVERIFY(!PxProductType(7).isValid()); // nobody has to have a catalogue
    for (bool isNeeded : {false, true}) {
        QCOMPARE(log.texts(), QStringList());
        PxDirectoryConfig::instance()->resource("logo.png", isNeeded);
        PxDirectoryConfig::instance()->lumoThemesDirectory(isNeeded);
    }
    QCOMPARE(log.texts().size(), 2);
    QCOMPARE(log.entries().first().level, QtWarningMsg);
    for (const char *part : {"\"logo.png\"", "/first\"", "/second\""})
        QVERIFY2(log.texts().first().contains(part), qPrintable(log.texts().first()));
    QVERIFY(log.texts().last().contains("/themes"));
}

void PxDirectoryConfigTest::answersOneNameWithAPathOfItsOwn()
{
    PxDirectoryConfig *config = PxDirectoryConfig::instance();
    const QString before = config->resource("products", false);
    config->setResource("products", "elsewhere");
    QCOMPARE(config->resource("products", false), QDir::current().filePath("elsewhere"));
    QCOMPARE(config->resource("products/legacy", false), m_root.filePath("second/products/legacy"));
    const PxLogRecorder log;
    config->resource("products", false);
    config->setResource("products", "first");
    config->resource("products", true);
    QCOMPARE(log.texts(), QStringList());
    config->setResource("products", "elsewhere");
    config->resource("products", true);
    QCOMPARE(log.texts().filter("\"products\" is missing, set to").size(), 1);
    config->setResource("products", QString());
    QCOMPARE(config->resource("products", false), before);
}

void PxDirectoryConfigTest::findsThemesInTheResourceDirectories()
{
    PxDirectoryConfig *config = PxDirectoryConfig::instance();
    const auto themes = [config] { return config->lumoThemesDirectory(false).path(); };
    config->setThemesDirectory(QString()); // not the variable, but the default
    QCOMPARE(themes(), QDir::current().filePath("first/themes")); // where it would be
    QVERIFY(QDir(m_root.path()).mkpath("second/themes"));
    QVERIFY(QFile("first/themes").open(QIODevice::WriteOnly)); // which is no folder
    QCOMPARE(themes(), m_root.filePath("second/themes"));
    QVERIFY(QDir(m_root.path()).mkpath("third/themes"));
    config->setResourceDirectories({"third", "second"});
    QCOMPARE(themes(), QDir::current().filePath("third/themes"));
    config->setThemesDirectory("elsewhere");
    QCOMPARE(themes(), QDir::current().filePath("elsewhere"));
}

void PxDirectoryConfigTest::fallsBackToTheInstalledResources()
{
    PxDirectoryConfig *config = PxDirectoryConfig::instance();
    config->setResourceDirectories({QString(), ""});
    config->setThemesDirectory(QString());
    config->setUserDefaultsPath(QString());
    const QDir installed(
        QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/PxProductProperties"));
    QCOMPARE(config->resource("nothing.xml", false), installed.filePath("nothing.xml"));
    QCOMPARE(config->lumoThemesDirectory(false).path(), installed.filePath("themes"));
    // The application may get its name after the instance was created.
    QCoreApplication::setApplicationName("Renamed");
    QVERIFY(config->userDefaultsPath().endsWith("/Renamed/defaults"));
}

QTEST_GUILESS_MAIN(PxDirectoryConfigTest)
#include "PxDirectoryConfigTest.moc"
