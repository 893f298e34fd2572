#include "PxCheckedSample.h"

#include <check/findings/PxCheckTags.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTest>

#include <sys/stat.h>

/** What "check" prints of its findings, in each format, and what it leaves out. */
class PxCheckOutputTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tellsTheSameInEveryFormat();
    void declaresAllRulesInSarif();
    void hidesWhatIsKnown();
    void readsOnlyFilesAsBaselines();
    void tellsAHundredOfAKind();
    void hidesWhatIsKnownOfMany();
    void countsCharacters();
    void printsWhatTheDocumentShows();

private:
    PxCheckedSample m_sample;
};

namespace {

QStringList findingsOfSarif(const QJsonObject &sarif)
{
    QStringList findings;
    for (const QJsonValue &result : sarif["runs"][0]["results"].toArray()) {
        const QJsonValue location = result["locations"][0]["physicalLocation"];
        findings.append(
            QString("./%1:%2:%3 %4 %5")
                .arg(location["artifactLocation"]["uri"].toString())
                .arg(location["region"]["startLine"].toInt())
                .arg(location["region"]["startColumn"].toInt())
                .arg(result["properties"]["severity"].toString(), result["ruleId"].toString()));
    }
    return findings;
}

} // namespace

void PxCheckOutputTest::init()
{
    m_sample.restore();
    QDir::setCurrent(m_sample.path());
}

void PxCheckOutputTest::tellsTheSameInEveryFormat()
{
    m_sample.addFindings();
    const PxProgramRun text = m_sample.check(".");
    const QStringList expected{"./products/cup2.xml:30:5 warning allowance-unused",
                               "./products/cup3.xml.b\\u009B:1:1 info file-not-read",
                               "./products/pendant.xml:4:10 error xml-attribute-twice"};
    QCOMPARE(findingsOf(text), expected);
    QVERIFY(text.output().contains("    now: the file is not read at all"));
    QVERIFY(text.output().contains("    hint: keep the one that is meant"));
    QVERIFY(text.output().constLast().endsWith(" files read: 1 error, 1 warning, 1 info"));
    QCOMPARE(text.errors(), QStringList());

    const PxProgramRun json = m_sample.check("--format json .");
    QCOMPARE(findingsOf(json.json()).replaceInStrings("\u009B", "\\u009B"), expected);
    QVERIFY(!json.text().contains(QChar(0x9B)));
    QCOMPARE(json.json()["counts"]["warning"].toInt(), 1);
    QCOMPARE(json.json()["files"].toInt(), text.output().constLast().section(' ', 0, 0).toInt());
    const QJsonValue twice = json.json()["findings"][2];
    QCOMPARE(twice["endColumn"].toInt(), 11);
    QCOMPARE(twice["hint"].toString(), QString("keep the one that is meant"));

    const PxProgramRun sarif = m_sample.check("--format sarif .");
    QCOMPARE(findingsOfSarif(sarif.json()).replaceInStrings("%C2%9B", "\\u009B"), expected);
    QCOMPARE(QVector<int>({text.status(), json.status(), sarif.status()}), QVector<int>(3, 1));
}

void PxCheckOutputTest::declaresAllRulesInSarif()
{
    m_sample.addFindings();
    const auto run = [&](const QString &path) {
        return m_sample.check("--format sarif " + path).json()["runs"][0];
    };
    const QJsonValue here = run(".");
    QCOMPARE(here["tool"]["driver"]["rules"].toArray().size(), PxCheckTags::all().size());
    const QJsonValue info = here["results"][1];
    QCOMPARE(here["tool"]["driver"]["rules"][info["ruleIndex"].toInt()]["id"], info["ruleId"]);
    QCOMPARE(info["level"].toString(), QString("note"));

    // From elsewhere the same findings have other places, but are the same findings.
    const QString path = m_sample.path();
    QDir::setCurrent(QDir::rootPath() + "proc");
    const QJsonValue there = run(path);
    QCOMPARE(there["results"].toArray().size(), 3);
    QCOMPARE(there["results"][0]["partialFingerprints"], here["results"][0]["partialFingerprints"]);
    const QJsonValue file =
        there["results"][0]["locations"][0]["physicalLocation"]["artifactLocation"];
    QCOMPARE(file["uri"].toString(), cup);

    m_sample.write("products/pendant.xml", "<p><product name='{0} [a](b) [c]'/></p>");
    QVERIFY(run(path)["results"].toArray().last()["message"]["text"].toString().startsWith(
        "there is no product type \"{{0}} \\[a](b) [c]\"\n"));
    QVERIFY(there["originalUriBaseIds"].toObject().contains(file["uriBaseId"].toString()));
}

void PxCheckOutputTest::hidesWhatIsKnown()
{
    m_sample.addFindings();
    const QString themes = "themes/grundthemen.xml";
    m_sample.write("themes/twice.xml",
                   m_sample.read(themes)); // found with the place of the other
    const PxProgramRun first = m_sample.check("--write-baseline known.json .");
    QCOMPARE(first.status(), 0);
    QCOMPARE(first.output().size(), 1);
    QVERIFY(first.text().contains(" files read: nothing found, "));
    const QString written = m_sample.read("known.json");
    m_sample.check("--write-baseline known.json " + m_sample.path());
    QCOMPARE(m_sample.read("known.json"), written);

    m_sample.replace(themes, "<themes>", "\n\n<themes>"); // the line does not matter
    QCOMPARE(findingsOf(m_sample.check("--baseline known.json .")), QStringList());
    QVERIFY(m_sample.check("--baseline known.json --format json .").json()["known"].toInt() > 3);
    m_sample.replace(cup, "<pages>", comment + "<pages>"); // one more of them
    QCOMPARE(findingsOf(m_sample.check("--baseline known.json .")).size(), 1);

    for (const char *broken :
         {"", "[]", "{\"format\": 2, \"findings\": []}", "{\"format\": 1}",
          "{\"format\": 1, \"findings\": [{\"path\": \"\", \"tag\": \"\", \"message\": \"\"}]}"}) {
        m_sample.write("known.json", broken);
        QCOMPARE(m_sample.check("--baseline known.json .").status(), 2);
    }
}

/** A baseline comes from anywhere, as the files of a catalogue do. */
void PxCheckOutputTest::readsOnlyFilesAsBaselines()
{
    const auto problemOf = [this](const QString &name) {
        const PxProgramRun run = m_sample.check("--baseline " + name + " .");
        const QString prefix = "pxcatalogue: the baseline \"" + name + "\" ";
        const QString error = run.errors().join('\n');
        return run.status() == 2 && error.startsWith(prefix) ? error.mid(prefix.size())
                                                             : "none: " + error;
    };
    QVERIFY(mkfifo("pipe.json", 0600) == 0 && QFile::link("pipe.json", "link.json"));
    for (const QString name : {"pipe.json", "link.json", "products"})
        QCOMPARE(problemOf(name), QString("cannot be read: it is no regular file"));
    m_sample.write("large.json", QString());
    QVERIFY(QFile::resize("large.json", qint64(1) << 40));
    QCOMPARE(problemOf("large.json"),
             QString("cannot be read: it has 1099511627776 bytes, but the limit is 8388608"));
    m_sample.write("deep.json", QString(5000000, '['));
    QVERIFY(problemOf("deep.json").startsWith("is no JSON: "));
    for (const QString count : {"1e300", "-1", "0.5", "\"1\"", "null"}) {
        m_sample.write("count.json", "{\"format\":1,\"findings\":[{\"path\":\"\\ud800\",\"tag\":"
                                     "\"\",\"message\":\"\",\"count\":" +
                                         count + "}]}");
        QVERIFY2(problemOf("count.json").startsWith("has a finding without \"count\""),
                 qPrintable(count));
    }
}

/** The rest is one finding, which counts as all of them. */
void PxCheckOutputTest::tellsAHundredOfAKind()
{
    const QString element = "<" + QString("x").repeated(2000) + "/>";
    m_sample.replace(cup, size,
                     size + "\n<!-- check: allow element-unknown --><barcodes>" +
                         QString("<y/>").repeated(120) + "</barcodes>\n" +
                         QString("<t/>\n").repeated(129) + element);
    const PxProgramRun text = m_sample.check(". --fail-on warning");
    QCOMPARE(findingsOf(text).size(), 101);
    QCOMPARE(findingsOf(text)[100], QString("./products/cup2.xml:132:2 warning element-unknown"));
    QVERIFY(text.output()[text.output().size() - 2].endsWith(
        "warning: and 30 more in this file [element-unknown]"));
    QVERIFY(text.output().constLast().endsWith(" files read: 130 warnings"));
    QCOMPARE(text.status(), 1);
    const QJsonObject json = m_sample.check("--format json .").json();
    QCOMPARE(json["counts"]["warning"].toInt(), 130);
    QCOMPARE(json["findings"][99]["count"].toInt(), 1);
    QCOMPARE(json["findings"][100]["count"].toInt(), 30);
    const QJsonObject sarif = m_sample.check("--format sarif .").json();
    QCOMPARE(sarif["runs"][0]["results"][100]["occurrenceCount"].toInt(), 30);
    QCOMPARE(
        m_sample.check("--override element-unknown=info --format json .").json()["counts"]["info"],
        QJsonValue(130));

    // What follows from a name is told for it, also where neither is told one by one.
    m_sample.write("themes/many.xml", "<themes>" +
                                          QString("<theme ID='a' producttype='book' "
                                                  "expiry='205012312359'/>")
                                              .repeated(130) +
                                          "</themes>");
    const QJsonObject counts =
        m_sample.check("--format json --only theme-id-missing,attribute-unknown .")
            .json()["counts"]
            .toObject();
    QCOMPARE(counts["error"].toInt(), 130);
    QCOMPARE(counts["warning"].toInt(), 0);
}

/** A repair moves others up, so that they are told one by one. */
void PxCheckOutputTest::hidesWhatIsKnownOfMany()
{
    QStringList elements;
    for (int i = 0; i < 150; ++i)
        elements.append(QString("<t%1/>").arg(i));
    const auto found = [&](const QString &options) {
        m_sample.restore(cup);
        m_sample.replace(cup, size, size + elements.join('\n'));
        return m_sample.check(options + " --format json .").json();
    };
    QCOMPARE(found("--write-baseline known.json")["known"].toInt(), 150);
    elements.removeFirst();
    QCOMPARE(found("--baseline known.json")["findings"].toArray().size(), 0);
    elements.append("<u/>");
    QCOMPARE(found("--baseline known.json")["findings"].toArray().size(), 0);
    elements.prepend("<v/>");
    const QJsonObject one = found("--baseline known.json");
    QCOMPARE(one["findings"].toArray().size(), 1);
    QVERIFY(one["findings"][0]["message"].toString().startsWith("\"v\""));
    elements.append({"<w/>", "<w/>"});
    const QJsonObject three = found("--baseline known.json");
    QCOMPARE(three["counts"]["warning"].toInt(), 3);
    QCOMPARE(three["known"].toInt(), 150);
    QCOMPARE(three["findings"][1]["message"].toString(), QString("and 2 more in this file"));
}

/** Also where the loader gives up, which counts otherwise. */
void PxCheckOutputTest::countsCharacters()
{
    for (const char *text : {"ü", "\U0001F600"}) {
        m_sample.write(cup, "<d>" + QString::fromUtf8(text) + QString("<a>").repeated(300));
        QCOMPARE(findingsOf(m_sample.check(cup)),
                 QStringList("products/cup2.xml:1:772 error xml-limit-exceeded"));
    }
}

void PxCheckOutputTest::printsWhatTheDocumentShows()
{
    QFile file(PX_SOURCE_DIRECTORY "/docs/pxcatalogue.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString shown = QString::fromUtf8(file.readAll())
                              .section("```console\n$ pxcatalogue check catalogue\n", 1)
                              .section("\n```", 0, 0);
    m_sample.replace(cup, size, "<usablesize width=\"2000\" width=\"2500\" height=\"950\"/>");
    QCOMPARE(m_sample.check(".").output().join('\n'), QString(shown).replace("catalogue/", "./"));
}

QTEST_GUILESS_MAIN(PxCheckOutputTest)
#include "PxCheckOutputTest.moc"
