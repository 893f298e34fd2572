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
    void declaresAllRulesInSarif();
    void hidesWhatIsKnown();
    void readsOnlyFilesAsBaselines();
    void tellsAHundredOfAKind();
    void hidesWhatIsKnownOfMany();
    void countsCharacters();

private:
    PxCheckedSample m_sample;
};

void PxCheckOutputTest::init()
{
    m_sample.restore();
    QDir::setCurrent(m_sample.path());
}

void PxCheckOutputTest::declaresAllRulesInSarif()
{
    m_sample.addFindings();
    const QJsonValue here = m_sample.check("--format sarif .").json()["runs"][0];
    QCOMPARE(here["tool"]["driver"]["rules"].toArray().size(), PxCheckTags::all().size());
    const QJsonValue info = here["results"][1];
    QCOMPARE(here["tool"]["driver"]["rules"][info["ruleIndex"].toInt()]["id"], info["ruleId"]);

    // From elsewhere the same findings have other places, but are the same findings.
    const QString path = m_sample.path();
    QDir::setCurrent(QDir::rootPath() + "proc");
    const QJsonValue there = m_sample.check("--format sarif " + path).json()["runs"][0];
    QCOMPARE(there["results"].toArray().size(), 3);
    QCOMPARE(there["results"][0]["partialFingerprints"], here["results"][0]["partialFingerprints"]);
    const QJsonValue file =
        there["results"][0]["locations"][0]["physicalLocation"]["artifactLocation"];
    QCOMPARE(file["uri"].toString(), cup);
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
    QVERIFY(first.text().contains(" files: nothing found, "));
    const QString written = m_sample.read("known.json");
    m_sample.check("--write-baseline known.json " + m_sample.path());
    QCOMPARE(m_sample.read("known.json"), written);

    m_sample.replace(themes, "<themes>", "\n\n<themes>"); // the line does not matter
    QCOMPARE(findingsOf(m_sample.check("--baseline known.json .")), QStringList());
    QVERIFY(m_sample.check("--baseline known.json --format json .").json()["known"].toInt() > 3);
    m_sample.replace(cup, "<pages>", comment + "<pages>"); // one more of them
    QCOMPARE(findingsOf(m_sample.check("--baseline known.json .")).size(), 1);
    m_sample.restore(cup); // where now there is none
    const QString gone = "in the baseline, but gone: products/cup2.xml: nothing here is "
                         "\"xml-limit-exceeded\" [allowance-unused]";
    QVERIFY(m_sample.check("--baseline known.json .").output().contains(gone));
    QCOMPARE(m_sample.check("--baseline known.json --json .").json()["gone"].toArray().size(), 1);
    for (const QString unknown : {"--skip allowance-unused .", "products/pendant.xml"})
        QVERIFY(!m_sample.check("--baseline known.json " + unknown).text().contains("gone"));
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
    QVERIFY(text.output().constLast().endsWith(" files: 130 warnings"));
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

QTEST_GUILESS_MAIN(PxCheckOutputTest)
#include "PxCheckOutputTest.moc"
