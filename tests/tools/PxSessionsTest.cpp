#include "PxCheckedSample.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

struct Session
{
    QString name;
    QStringList edits; ///< of the sample: "FILE: OLD -> NEW", or "FILE:  -> NEW" for a new file
    QString command;
    QStringList texts; ///< that the output contains, whatever its line breaks
    QStringList answer;
};

QList<Session> readSessions(QByteArray *comments)
{
    QFile file(PX_TEST_DATA_DIRECTORY "/sessions.txt");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read the sessions");
    QList<Session> sessions;
    for (const QString &line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
        if (line.startsWith("== "))
            sessions.append({line.mid(3), {}, {}, {}, {}});
        else if (line.startsWith("$"))
            sessions.last().command = line.mid(2);
        else if (line.startsWith("  "))
            sessions.last().texts.append(line.mid(2));
        else if (QString("|>!=").contains(line.front()))
            sessions.last().answer.append(line);
        else if (line.startsWith('#'))
            *comments += line.toUtf8() + '\n';
        else
            sessions.last().edits.append(line);
    }
    return sessions;
}

/** Characters are written "\\u001b" where nobody would see them. */
QString unescaped(QString text)
{
    static const QRegularExpression ourEscape("\\\\u([0-9a-f]{4})");
    for (auto match = ourEscape.match(text); match.hasMatch(); match = ourEscape.match(text))
        text.replace(match.captured(), QChar(match.captured(1).toUShort(nullptr, 16)));
    return text;
}

/** All the output but the lines of files, with single blanks. */
QString textOf(const PxProgramRun &run)
{
    static const QRegularExpression ourFrame("^[ \\d]{5} \\| |: also here$");
    QStringList lines;
    for (const QString &line : run.output()) {
        if (!ourFrame.match(line).hasMatch())
            lines.append(line);
    }
    return lines.join(' ').simplified();
}

/** Perhaps the output, then findings, errors, and the exit status unless it is 0. */
QStringList answerOf(const PxProgramRun &run, bool withOutput)
{
    QStringList answer;
    if (withOutput)
        answer.append("| " + run.output().join("\n| "));
    for (const QString &finding : findingsOf(run))
        answer.append("> " + finding);
    for (const QString &error : run.errors())
        answer.append("! " + error);
    if (run.status() != 0)
        answer.append(QString("= %1").arg(run.status()));
    return answer;
}

} // namespace

/** What users type, and what they read: in a table that is a text as they see it. */
class PxSessionsTest : public QObject
{
    Q_OBJECT

private slots:
    void isAnswered_data();
    void isAnswered();
    void cleanupTestCase();

private:
    QByteArray m_found; // begins with the comments
    QList<Session> m_sessions = readSessions(&m_found);
    const QString m_workingDirectory = QDir::currentPath();
    PxSampleCopy m_sample;
};

void PxSessionsTest::isAnswered_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < m_sessions.size(); ++i)
        QTest::newRow(qPrintable(m_sessions[i].name)) << i;
}

void PxSessionsTest::isAnswered()
{
    QFETCH(int, index);
    const Session &session = m_sessions[index];
    QVERIFY(QDir::setCurrent(m_sample.path()));
    for (const QString &edit : session.edits) {
        const QString change = unescaped(edit.section(": ", 1));
        const QString old = change.section("-> ", 0, 0).chopped(1);
        const QString text = change.section("-> ", 1);
        if (old.isEmpty())
            m_sample.write(unescaped(edit.section(": ", 0, 0)), text);
        else
            m_sample.replace(edit.section(": ", 0, 0), old, text);
    }
    // "check" finds the catalogue by itself.
    const bool isCheck = session.command.contains("check");
    QMap<QString, QString> environment{{"PX_RESOURCE_DIRS", isCheck ? QString() : m_sample.path()}};
    QStringList words = QString(session.command)
                            .replace("DATA/", PX_TEST_DATA_DIRECTORY "/")
                            .replace("SAMPLE", m_sample.path())
                            .replace("UNCHANGED", PX_SAMPLE_DIRECTORY)
                            .split(' ', Qt::SkipEmptyParts);
    for (QString &word : words)
        word = unescaped(word); // so that a blank within one is written \u0020
    for (; QRegularExpression("^[A-Z_]+=").match(words.value(0)).hasMatch(); words.removeFirst())
        environment[words[0].section('=', 0, 0)] = words[0].section('=', 1);
    const PxProgramRun run(PX_CATALOGUE_PROGRAM, words, environment);
    for (const QString &edit : session.edits)
        m_sample.restore(unescaped(edit.section(": ", 0, 0)));
    static const QRegularExpression ourCounts("\\w+-\\w+: \\d+ products, .* \\d+ files: ");
    const QStringList answer = answerOf(run, session.answer.value(0).startsWith('|'))
                                   .replaceInStrings(m_sample.path(), "SAMPLE")
                                   .replaceInStrings(ourCounts, "COUNTS: ")
                                   .replaceInStrings("\x1b", "\\u001b")
                                   .replaceInStrings(PX_TEST_DATA_DIRECTORY, "DATA");
    QStringList lines = QStringList("== " + session.name) + session.edits;
    lines.append(QString("$ " + session.command).trimmed());
    for (const QString &text : session.texts)
        lines.append("  " + text);
    m_found += (lines + answer).join('\n').toUtf8() + '\n';
    const QString output = textOf(run).replace(ourCounts, "COUNTS: ");
    for (const QString &text : session.texts)
        QVERIFY2(output.contains(text), qPrintable(output));
    QCOMPARE(answer.join('\n'), session.answer.join('\n'));
}

/** Writes the sessions with the answers as they are: for new ones, and to see what has changed. */
void PxSessionsTest::cleanupTestCase()
{
    QVERIFY(QDir::setCurrent(m_workingDirectory));
    QFile file("sessions.txt");
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(m_found) > 0);
}

QTEST_GUILESS_MAIN(PxSessionsTest)
#include "PxSessionsTest.moc"
