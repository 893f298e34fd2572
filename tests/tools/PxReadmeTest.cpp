#include <QFile>
#include <QProcess>
#include <QTest>

namespace {

QString textOf(const char *path)
{
    QFile file(QString(PX_SOURCE_DIRECTORY) + '/' + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
}

QString outputOf(QStringList words)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PX_RESOURCE_DIRS", PX_SAMPLE_DIRECTORY);
    environment.insert("COLUMNS", "100");
    process.setProcessEnvironment(environment);
    words.removeFirst();
    process.start(PX_CATALOGUE_PROGRAM, words);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

/** What the documents show is what the programs print. */
class PxReadmeTest : public QObject
{
    Q_OBJECT

private slots:
    void showsRealOutput();
    void showsTheExample();
};

void PxReadmeTest::showsRealOutput()
{
    const QStringList blocks = textOf("README.md").split("```console\n$ ").mid(1);
    QVERIFY(blocks.size() >= 2);
    for (const QString &block : blocks) {
        const QString shown = block.section("\n```", 0, 0);
        const QString output = outputOf(shown.section('\n', 0, 0).split(' '));
        // "..." stands for groups that the document leaves out.
        for (const QString &group : shown.section('\n', 1).split("...", Qt::SkipEmptyParts))
            QVERIFY2(output.contains(group.trimmed()), qPrintable(group));
    }
}

void PxReadmeTest::showsTheExample()
{
    QVERIFY(textOf("README.md").contains(textOf("examples/spine/main.cpp")));
}

QTEST_GUILESS_MAIN(PxReadmeTest)
#include "PxReadmeTest.moc"
