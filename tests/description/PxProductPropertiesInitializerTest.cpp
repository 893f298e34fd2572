#include "PxProgramRun.h"

#include <description/PxProductPropertiesInitializer.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/** The registry is created once in a process, so that each catalogue is read in one of its own. */
class PxProductPropertiesInitializerTest : public QObject
{
    Q_OBJECT

private slots:
    void warnsOnceWithoutProducts_data();
    void warnsOnceWithoutProducts();
};

void PxProductPropertiesInitializerTest::warnsOnceWithoutProducts_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("warning");
    const QString types = "producttypes.xml";
    const QString start = "PxProductPropertiesInitializer::setupModule ";
    // clang-format off
    QTest::newRow("products") << QStringList{types, "products/a.xml"} << "";
    QTest::newRow("no directory") << QStringList{types} << "PxDirectoryConfig::resource \"products\" is missing, searched in (\"DIR/first\", \"DIR/second\")";
    QTest::newRow("no product file") << QStringList{types, "products/a.txt"} << start + "found no product file in \"DIR/second/products\"";
    QTest::newRow("no product types") << QStringList{"products/a.xml"} << "PxDirectoryConfig::resource \"producttypes.xml\" is missing, searched in (\"DIR/first\", \"DIR/second\")";
    QTest::newRow("no known product") << QStringList{types, "products/b.xml"} << start + "found no product on offer in \"DIR/second/products\" with the product types of \"DIR/second/producttypes.xml\"";
    // clang-format on
}

void PxProductPropertiesInitializerTest::warnsOnceWithoutProducts()
{
    QFETCH(QStringList, files);
    QFETCH(QString, warning);
    const QTemporaryDir directory;
    const QDir second(directory.filePath("second"));
    QVERIFY(second.mkpath("."));
    for (const QString &name : files) {
        QVERIFY(second.mkpath(QFileInfo(name).path()));
        QFile file(second.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(name.startsWith("products/")
                               ? name.endsWith("b.xml")
                                     ? "<d><product name='MUG'/></d>"
                                     : "<d><product name='CUP'><usablesize width='1' height='1'/>"
                                       "</product></d>"
                               : "<producttypes><producttype code='1' name='CUP' class='gift'/>"
                                 "</producttypes>") > 0);
    }
    const QString directories = directory.filePath("first") + ':' + directory.filePath("second");
    const PxProgramRun run(QCoreApplication::applicationFilePath(), {"--setup"},
                           {{"PX_RESOURCE_DIRS", directories}});
    QCOMPARE(run.errors().join('\n').replace(directory.path(), "DIR"),
             warning.isEmpty() ? warning : "px.productproperties: " + warning);
    QCOMPARE(run.status(), 0);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 2 && QByteArray(argv[1]) == "--setup")
        return PxProductPropertiesInitializer::setupModule() &&
                       !PxProductPropertiesInitializer::setupModule()
                   ? 0
                   : 1;
    PxProductPropertiesInitializerTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PxProductPropertiesInitializerTest.moc"
