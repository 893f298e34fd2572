#include "PxProgramRun.h"
#include "PxSampleCopy.h"

#include <check/findings/PxCheckTags.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTest>

/** Each kind of finding by its example, which is a change to one file of the sample catalogue. */
class PxCheckTagsTest : public QObject
{
    Q_OBJECT

private slots:
    void sampleIsClean();
    void exampleIsFound_data();
    void exampleIsFound();
    void documentationIsWhatTheProgramSays();

private:
    using Replacement = QPair<int, QString>; // how many characters, by what

    QStringList findings(const QString &path, Replacement *replacement = nullptr) const;

    PxSampleCopy m_sample;
};

/** Place and tag of each finding, without the directory, and what mends it for certain. */
QStringList PxCheckTagsTest::findings(const QString &path, Replacement *replacement) const
{
    const PxProgramRun run(PX_CATALOGUE_PROGRAM, {"check", "--pedantic", "--json", path},
                           {{"PX_RESOURCE_DIRS", QString()}});
    QStringList found;
    for (const QJsonValue &finding : run.json()["findings"].toArray()) {
        found.append(QString("%1:%2:%3 %4")
                         .arg(QDir(m_sample.path()).relativeFilePath(finding["path"].toString()))
                         .arg(finding["line"].toInt())
                         .arg(finding["column"].toInt())
                         .arg(finding["tag"].toString()));
        if (finding["now"].toString().isEmpty()) // each tells what becomes of it
            found.append("without \"now\"");
        if (replacement && finding["replacement"].isString()) {
            const int length = finding["endColumn"].toInt() - finding["column"].toInt();
            *replacement = {length, finding["replacement"].toString()};
        }
    }
    return found;
}

void PxCheckTagsTest::sampleIsClean()
{
    QCOMPARE(findings(m_sample.path()), QStringList());
}

void PxCheckTagsTest::exampleIsFound_data()
{
    QTest::addColumn<QString>("name");
    for (const PxCheckTag *tag : PxCheckTags::all()) {
        if (qstrlen(tag->bad) > 0) // else no text of a file can show it
            QTest::newRow(tag->name) << QString(tag->name);
    }
}

void PxCheckTagsTest::exampleIsFound()
{
    QFETCH(QString, name);
    const PxCheckTag &tag = *PxCheckTags::find(name);
    const QString good = QString::fromUtf8(tag.good);
    const QString mark = "»";
    QString bad = QString::fromUtf8(tag.bad);
    if (!good.isEmpty())
        bad = m_sample.read(tag.file).replace(good, bad);
    const QString before = bad.section(mark, 0, 0);
    QCOMPARE(bad.count(mark), 1);
    bad.remove(mark);
    if (good.isEmpty())
        m_sample.write(tag.file, bad);
    else
        m_sample.replace(tag.file, good, QString::fromUtf8(tag.bad).remove(mark));

    const QString place = QString("%1:%2:%3 ")
                              .arg(tag.file)
                              .arg(before.count('\n') + 1)
                              .arg(before.size() - before.lastIndexOf('\n'));
    Replacement replacement{-1, QString()};
    const QStringList found = findings(m_sample.path(), &replacement);
    const QStringList foundAlone = findings(m_sample.filePath(tag.file));
    if (replacement.first >= 0) { // which mends it
        m_sample.write(tag.file, bad.replace(before.size(), replacement.first, replacement.second));
        QCOMPARE(findings(m_sample.path()), QStringList());
    }
    m_sample.restore(tag.file);
    QCOMPARE(found, QStringList(place + name));
    QCOMPARE(foundAlone.contains(place + name), !tag.needsCatalogue);
}

void PxCheckTagsTest::documentationIsWhatTheProgramSays()
{
    const PxProgramRun run(PX_CATALOGUE_PROGRAM, {"check", "--list-tags", "--format", "markdown"});
    QFile file(PX_SOURCE_DIRECTORY "/docs/checks.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString documented = QString::fromUtf8(file.readAll());
    QVERIFY2(documented.split('\n', Qt::SkipEmptyParts) == run.output(),
             "write it again: pxcatalogue check --list-tags --format markdown > docs/checks.md");
}

QTEST_GUILESS_MAIN(PxCheckTagsTest)
#include "PxCheckTagsTest.moc"
