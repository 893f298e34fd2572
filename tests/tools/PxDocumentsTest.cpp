#include "PxProgramRun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/**
 * Does what the documents say, each in a directory of its own: a block below a line "`FILE`:" is
 * written to this file, and the commands of a console block print what it shows. In a line
 * "<!-- $ COMMAND -->" stands a step that readers don't need and that prints nothing.
 *
 * The tutorial builds a program with the library of the build directory that `BUILD` names; CTest
 * does that in a test of its own.
 *
 * Writes each document with the output as it is now into the working directory.
 */
class PxDocumentsTest : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatHappens_data();
    void showsWhatHappens();

private:
    const QString m_workingDirectory = QDir::currentPath();
};

namespace {

QString run(const QString &command)
{
    const QString tools = QFileInfo(PX_CATALOGUE_PROGRAM).path();
    return PxProgramRun("sh", {"-c", "{ " + command + "\n} 2>&1"},
                        {{"PATH", tools + ':' + qEnvironmentVariable("PATH")},
                         {"SOURCE", PX_SOURCE_DIRECTORY},
                         {"PX_RESOURCE_DIRS", QString()},
                         {"PX_USER_DEFAULTS_DIR", QString()},
                         {"COLUMNS", "100"}})
        .printed();
}

/** A line "..." stands for lines that the document leaves out. */
bool isShown(const QString &printed, const QString &shown)
{
    static const QRegularExpression ourGap("^\\.\\.\\.\n", QRegularExpression::MultilineOption);
    QStringList parts = shown.split(ourGap);
    for (QString &part : parts)
        part = QRegularExpression::escape(part);
    return QRegularExpression(QRegularExpression::anchoredPattern(parts.join(".*")),
                              QRegularExpression::DotMatchesEverythingOption)
        .match(printed)
        .hasMatch();
}

/** The console block with the output as it is. */
QString sessionNow(const QString &session)
{
    static const QRegularExpression ourPrompt("^\\$ ", QRegularExpression::MultilineOption);
    QString now;
    for (const QString &step : session.split(ourPrompt).mid(1)) {
        const QString command = step.section('\n', 0, 0);
        const QString shown = step.section('\n', 1);
        const QString printed = run(command);
        now += "$ " + command + '\n' + (isShown(printed, shown) ? shown : printed);
    }
    return now;
}

} // namespace

void PxDocumentsTest::showsWhatHappens_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"README.md", "docs/first-product.md", "docs/logging.md", "docs/pxcatalogue.md",
          "docs/tutorial.md"})
        QTest::newRow(name) << name;
}

void PxDocumentsTest::showsWhatHappens()
{
    QFETCH(QString, name);
    if (name == "docs/tutorial.md" && !qEnvironmentVariableIsSet("BUILD"))
        QSKIP("ctest -R TutorialShowsWhatHappens");
    QFile file(PX_SOURCE_DIRECTORY "/" + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString document = QString::fromUtf8(file.readAll());
    static const QRegularExpression ourStep(
        "^<!-- \\$ (?<hidden>.+?) -->$|^`(?<file>[^`\n]+)`:\n+```\\w+\n(?<content>.*?)^```$|"
        "(?<=^```console\n)(?<session>.*?)(?=^```$)",
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    const QTemporaryDir directory;
    QVERIFY(QDir::setCurrent(directory.path()));
    QString now;
    int end = 0;
    for (auto steps = ourStep.globalMatch(document); steps.hasNext();) {
        const QRegularExpressionMatch step = steps.next();
        now += document.midRef(end, step.capturedStart() - end);
        end = step.capturedEnd();
        if (step.capturedLength("session") > 0) {
            now += sessionNow(step.captured("session"));
            continue;
        }
        now += step.captured();
        if (step.capturedLength("hidden") > 0)
            QCOMPARE(run(step.captured("hidden")), QString());
        QFile shown(step.captured("file"));
        QVERIFY(step.captured("file").isEmpty() ||
                (QDir().mkpath(QFileInfo(shown).path()) && shown.open(QIODevice::WriteOnly) &&
                 shown.write(step.captured("content").toUtf8()) >= 0));
    }
    now += document.midRef(end);
    QVERIFY(QDir::setCurrent(m_workingDirectory));
    QFile written(QFileInfo(name).fileName());
    QVERIFY(written.open(QIODevice::WriteOnly) && written.write(now.toUtf8()) > 0);
    written.close();
    QVERIFY2(now == document,
             qPrintable(name + " shows other output than there is: look at the differences to " +
                        QFileInfo(written).absoluteFilePath() + " and copy it"));
}

QTEST_GUILESS_MAIN(PxDocumentsTest)
#include "PxDocumentsTest.moc"
