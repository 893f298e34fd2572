#include "PxProgramRun.h"
#include "PxSampleCopy.h"

#include <check/findings/PxCheckTags.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QRegularExpression>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

/** The command line of "check", with findings that any file can have. */
class PxCheckCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tellsTheSameInEveryFormat();
    void declaresAllRulesInSarif();
    void answersTheWorstFinding_data();
    void answersTheWorstFinding();
    void silencesWhatIsAllowed();
    void hidesWhatIsKnown();
    void readsOnlyFilesAsBaselines();
    void tellsAHundredOfAKind();
    void hidesWhatIsKnownOfMany();
    void tellsWhatFollowsFromNames_data();
    void tellsWhatFollowsFromNames();
    void tellsNamesWhenNothingFollows();
    void checksSingleFiles();
    void countsCharacters();
    void knowsOtherThemes();
    void tellsADroppedRowOnce();
    void checksWhatItIsToldTo();
    void findsWhatNoExampleShows();
    void findsNamesThatCannotBeDecoded();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void keepsQuiet();
    void explains();
    void optionsAreDocumented();
    void printsWhatTheDocumentShows();

private:
    PxProgramRun check(const QString &options) const;
    void addFindings() const;

    QScopedPointer<PxSampleCopy> m_sample;
};

namespace {

const QString cup = "products/cup2.xml";
const QString size = "<usablesize width=\"2000\" height=\"950\"/>";
const QString comment = "<!-- check: allow xml-limit-exceeded for a reason -->";

/** "PATH:LINE:COLUMN SEVERITY TAG" of each finding in the text. */
QStringList findingsOf(const PxProgramRun &text)
{
    static const QRegularExpression ourFinding("^(\\S+:\\d+:\\d+): (\\w+): .* \\[(\\S+)\\]$");
    QStringList findings;
    for (const QString &line : text.output()) {
        const QRegularExpressionMatch finding = ourFinding.match(line);
        if (finding.hasMatch())
            findings.append(finding.capturedTexts().mid(1).join(' '));
    }
    return findings;
}

QStringList findingsOf(const QJsonObject &json)
{
    QStringList findings;
    for (const QJsonValue &finding : json["findings"].toArray())
        findings.append(QString("%1:%2:%3 %4 %5")
                            .arg(finding["path"].toString())
                            .arg(finding["line"].toInt())
                            .arg(finding["column"].toInt())
                            .arg(finding["severity"].toString(), finding["tag"].toString()));
    return findings;
}

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

/** Where the program runs, "." is a copy of the sample. */
void PxCheckCommandTest::init()
{
    QDir::setCurrent("/");
    m_sample.reset(new PxSampleCopy);
    QDir::setCurrent(m_sample->path());
}

PxProgramRun PxCheckCommandTest::check(const QString &options) const
{
    return PxProgramRun(PX_CATALOGUE_PROGRAM,
                        QStringList("check") + options.split(' ', Qt::SkipEmptyParts),
                        {{"PX_RESOURCE_DIRS", QString()}});
}

/** An error, a warning and an info. */
void PxCheckCommandTest::addFindings() const
{
    m_sample->write("products/pendant.xml",
                    QStringLiteral("\uFEFF<!-- ü -->\r\n<p>\r\n\t<a n='\U0001F600ü>'\tm=\"1\"\r\n"
                                   "   ö='\U0001F600' ö=''/></p>"));
    m_sample->replace(cup, size, comment + size);
    m_sample->write("products/cup3.xml.b\u009B", QString());
}

void PxCheckCommandTest::tellsTheSameInEveryFormat()
{
    addFindings();
    const PxProgramRun text = check(".");
    const QStringList expected{"./products/cup2.xml:30:5 warning allowance-unused",
                               "./products/cup3.xml.b\\u009B:1:1 info file-not-read",
                               "./products/pendant.xml:4:10 error xml-attribute-twice"};
    QCOMPARE(findingsOf(text), expected);
    QVERIFY(text.output().contains("    now: the file is not read at all"));
    QVERIFY(text.output().contains("    hint: keep the one that is meant"));
    QVERIFY(text.output().constLast().endsWith(" files read: 1 error, 1 warning, 1 info"));
    QCOMPARE(text.errors(), QStringList());

    const PxProgramRun json = check("--format json .");
    QCOMPARE(findingsOf(json.json()).replaceInStrings("\u009B", "\\u009B"), expected);
    QVERIFY(!json.text().contains(QChar(0x9B)));
    QCOMPARE(json.json()["counts"]["warning"].toInt(), 1);
    QCOMPARE(json.json()["files"].toInt(), text.output().constLast().section(' ', 0, 0).toInt());
    const QJsonValue twice = json.json()["findings"][2];
    QCOMPARE(twice["endColumn"].toInt(), 11);
    QCOMPARE(twice["hint"].toString(), QString("keep the one that is meant"));

    const PxProgramRun sarif = check("--format sarif .");
    QCOMPARE(findingsOfSarif(sarif.json()).replaceInStrings("%C2%9B", "\\u009B"), expected);
    QCOMPARE(QVector<int>({text.status(), json.status(), sarif.status()}), QVector<int>(3, 1));
}

void PxCheckCommandTest::declaresAllRulesInSarif()
{
    addFindings();
    const auto run = [&](const QString &path) {
        return check("--format sarif " + path).json()["runs"][0];
    };
    const QJsonValue here = run(".");
    QCOMPARE(here["tool"]["driver"]["rules"].toArray().size(), PxCheckTags::all().size());
    const QJsonValue info = here["results"][1];
    QCOMPARE(here["tool"]["driver"]["rules"][info["ruleIndex"].toInt()]["id"], info["ruleId"]);
    QCOMPARE(info["level"].toString(), QString("note"));

    // From elsewhere the same findings have other places, but are the same findings.
    const QString path = m_sample->path();
    QDir::setCurrent(QDir::rootPath() + "proc");
    const QJsonValue there = run(path);
    QCOMPARE(there["results"].toArray().size(), 3);
    QCOMPARE(there["results"][0]["partialFingerprints"], here["results"][0]["partialFingerprints"]);
    const QJsonValue file =
        there["results"][0]["locations"][0]["physicalLocation"]["artifactLocation"];
    QCOMPARE(file["uri"].toString(), cup);

    m_sample->write("products/pendant.xml", "<p><product name='{0} [a](b) [c]'/></p>");
    QVERIFY(run(path)["results"].toArray().last()["message"]["text"].toString().startsWith(
        "there is no product type \"{{0}} \\[a](b) [c]\"\n"));
    QVERIFY(there["originalUriBaseIds"].toObject().contains(file["uriBaseId"].toString()));
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
    addFindings();
    const PxProgramRun run = check(options + " --format json .");
    QCOMPARE(run.status(), status);
    QCOMPARE(findingsOf(run.json()).size(), count);
}

void PxCheckCommandTest::silencesWhatIsAllowed()
{
    const auto findings = [&](const QString &allowed, const QString &options = QString()) {
        m_sample->restore(cup);
        m_sample->replace(cup, "<productdescription>",
                          "<!-- check: allow " + allowed + " --><productdescription>");
        return findingsOf(check(options + " --pedantic .")).size();
    };
    m_sample->replace("products/addressbook_a6.xml", "<productdescription>",
                      comment + "<productdescription>");
    QCOMPARE(findings("allowance-unused"), 2); // not in another file, and not itself
    QCOMPARE(findings("xml-limit-exceeded", "--skip xml-limit-exceeded"), 0);
    QCOMPARE(findings(""), 2);
    findings("xml-limit-exceded because");
    QVERIFY(check(".").output().contains("    hint: did you mean \"xml-limit-exceeded\"?"));
}

void PxCheckCommandTest::hidesWhatIsKnown()
{
    addFindings();
    const QString themes = "themes/grundthemen.xml";
    m_sample->write("themes/twice.xml",
                    m_sample->read(themes)); // found with the place of the other
    const PxProgramRun first = check("--write-baseline known.json .");
    QCOMPARE(first.status(), 0);
    QCOMPARE(first.output().size(), 1);
    QVERIFY(first.text().contains(" files read: nothing found, "));
    const QString written = m_sample->read("known.json");
    check("--write-baseline known.json " + m_sample->path());
    QCOMPARE(m_sample->read("known.json"), written);

    m_sample->replace(themes, "<themes>", "\n\n<themes>"); // the line does not matter
    QCOMPARE(findingsOf(check("--baseline known.json .")), QStringList());
    QVERIFY(check("--baseline known.json --format json .").json()["known"].toInt() > 3);
    m_sample->replace(cup, "<pages>", comment + "<pages>"); // one more of them
    QCOMPARE(findingsOf(check("--baseline known.json .")).size(), 1);

    for (const char *broken :
         {"", "[]", "{\"format\": 2, \"findings\": []}", "{\"format\": 1}",
          "{\"format\": 1, \"findings\": [{\"path\": \"\", \"tag\": \"\", \"message\": \"\"}]}"}) {
        m_sample->write("known.json", broken);
        QCOMPARE(check("--baseline known.json .").status(), 2);
    }
}

/** A baseline comes from anywhere, as the files of a catalogue do. */
void PxCheckCommandTest::readsOnlyFilesAsBaselines()
{
    const auto problemOf = [this](const QString &name) {
        const PxProgramRun run = check("--baseline " + name + " .");
        const QString prefix = "pxcatalogue: the baseline \"" + name + "\" ";
        const QString error = run.errors().join('\n');
        return run.status() == 2 && error.startsWith(prefix) ? error.mid(prefix.size())
                                                             : "none: " + error;
    };
    QVERIFY(mkfifo("pipe.json", 0600) == 0 && QFile::link("pipe.json", "link.json"));
    for (const QString name : {"pipe.json", "link.json", "products"})
        QCOMPARE(problemOf(name), QString("cannot be read: it is no regular file"));
    m_sample->write("large.json", QString());
    QVERIFY(QFile::resize("large.json", qint64(1) << 40));
    QCOMPARE(problemOf("large.json"),
             QString("cannot be read: it has 1099511627776 bytes, no more than 8388608 are read"));
    m_sample->write("deep.json", QString(5000000, '['));
    QVERIFY(problemOf("deep.json").startsWith("is no JSON: "));
    for (const QString count : {"1e300", "-1", "0.5", "\"1\"", "null"}) {
        m_sample->write("count.json", "{\"format\":1,\"findings\":[{\"path\":\"\\ud800\",\"tag\":"
                                      "\"\",\"message\":\"\",\"count\":" +
                                          count + "}]}");
        QVERIFY2(problemOf("count.json").startsWith("has a finding without \"count\""),
                 qPrintable(count));
    }
}

/** The rest is one finding, which counts as all of them. */
void PxCheckCommandTest::tellsAHundredOfAKind()
{
    const QString element = "<" + QString("x").repeated(2000) + "/>";
    m_sample->replace(cup, size,
                      size + "\n<!-- check: allow element-unknown --><barcodes>" +
                          QString("<y/>").repeated(120) + "</barcodes>\n" +
                          QString("<t/>\n").repeated(129) + element);
    const PxProgramRun text = check(". --fail-on warning");
    QCOMPARE(findingsOf(text).size(), 101);
    QCOMPARE(findingsOf(text)[100], QString("./products/cup2.xml:132:2 warning element-unknown"));
    QVERIFY(text.output()[text.output().size() - 2].endsWith(
        "warning: and 30 more in this file [element-unknown]"));
    QVERIFY(text.output().constLast().endsWith(" files read: 130 warnings"));
    QCOMPARE(text.status(), 1);
    const QJsonObject json = check("--format json .").json();
    QCOMPARE(json["counts"]["warning"].toInt(), 130);
    QCOMPARE(json["findings"][99]["count"].toInt(), 1);
    QCOMPARE(json["findings"][100]["count"].toInt(), 30);
    const QJsonObject sarif = check("--format sarif .").json();
    QCOMPARE(sarif["runs"][0]["results"][100]["occurrenceCount"].toInt(), 30);
    QCOMPARE(check("--override element-unknown=info --format json .").json()["counts"]["info"],
             QJsonValue(130));

    // What follows from a name is told for it, also where neither is told one by one.
    m_sample->write("themes/many.xml", "<themes>" +
                                           QString("<theme ID='a' producttype='book' "
                                                   "expiry='205012312359'/>")
                                               .repeated(130) +
                                           "</themes>");
    const QJsonObject counts = check("--format json --only theme-id-missing,attribute-unknown .")
                                   .json()["counts"]
                                   .toObject();
    QCOMPARE(counts["error"].toInt(), 130);
    QCOMPARE(counts["warning"].toInt(), 0);
}

/** A repair moves others up, so that they are told one by one. */
void PxCheckCommandTest::hidesWhatIsKnownOfMany()
{
    QStringList elements;
    for (int i = 0; i < 150; ++i)
        elements.append(QString("<t%1/>").arg(i));
    const auto found = [&](const QString &options) {
        m_sample->restore(cup);
        m_sample->replace(cup, size, size + elements.join('\n'));
        return check(options + " --format json .").json();
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

void PxCheckCommandTest::tellsWhatFollowsFromNames_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("good");
    QTest::addColumn<QString>("bad"); // "»" before the place of the only finding
    QTest::addColumn<QString>("finding");
    const auto row = [](const QString &file, const char *good, const char *bad,
                        const char *finding) {
        QTest::newRow(qPrintable(QString(bad).remove('\n')))
            << file << good << QString::fromUtf8(bad) << finding;
    };
    const char *book = "products/book_a4_portrait.xml";
    const char *theme = "themes/JAHRESZEITEN.XML";
    row(book, "<spine pages=\"26\"", "<spine »page=\"26\"", "error spine-pages-missing");
    row(book, "<pdf filename=\"extra/imp", "<pdf »filname=\"extra/imp",
        "error extra-page-incomplete");
    row(book, "<target_pages>3</target_pages>", "<target_pages>»x;y</target_pages>",
        "error extra-page-incomplete");
    row(cup, "<usablesize", "<»usablesise", "error size-missing");
    row(cup, "<usablesize width", "<usablesize »widht", "error size-missing");
    row(cup, "product name=", "product »nam=", "error product-name-missing");
    row(cup, "\"urlaub\" pageType", "\"urlaub\" »pagetype", "error defaults-page-type-missing");
    row(cup, "\"urlaub\" pageType=\"normalpage", "\"urlaub\" pageType=\"», ",
        "error defaults-page-type-missing");
    const char *spring = "<defaultcategories background=\"Blumenwiese\" clipart=\"Blüten\"/>";
    row(theme, spring, "<products>»CUP2, CUP1</products>", "error theme-products-all-unknown");
    row(theme, spring, "<products><»produkt>CUP2</produkt></products>",
        "error theme-products-all-unknown");
    row(theme, spring, "<»product>CUP2</product><product>BA7</product>",
        "error theme-products-all-unknown");
    row(theme, "\"fruehling\" producttype", "\"fruehling\" »productype",
        "error theme-group-missing");
    row("producttypes.xml", "code=\"907\"", "»cod=\"907\"", "error product-type-row-dropped");
    row("producttypes.xml", "code=\"907\"", "code=\"»9x7\"", "error integer-malformed");
    row("producttypes.xml", "<producttype code=\"907\"",
        "<producttype code=\"907\" name=\"CUP1\" class=\"»gifts\"/><producttype code=\"907\"",
        "error product-type-row-dropped");
    row(theme, "erwachen</description>\n    <keyaccounts>",
        "erwachen</description>\n    <keyaccounts>&#32;»<![CDATA[]]>",
        "warning theme-key-account-malformed");
    row(cup, "<pages>normalpage", "<pages><!--> a, -->normalpage,»x", "error pages-entry-unknown");
    // A value that was written as an attribute.
    row(cup, "<variant>color:black</variant>", "<variant »name=\"color:black\"/>",
        "warning variant-unnamed");
    row(cup, "<pages>normalpage</pages>", "<pages »value=\"normalpage\"/>",
        "error pages-entry-empty");
    row(theme, spring, "<products><product »name=\"CUP2\"/><product name=\"BA7\"/></products>",
        "error theme-products-all-unknown");
    // Nothing follows, or less than is told of the name.
    row(cup, "<usablesize width", "<usablesize »color=\"\" width", "warning attribute-unknown");
    row(theme, "<description>Goldener Herbst</description>", "<»descripton>Herbst</descripton>",
        "warning element-unknown");
    row(cup, "</variants>", "</variants><»variant>a</variant><variant>b</variant>",
        "warning element-misplaced");
}

/** One mistake is one finding: the one that says what the product or theme lacks for it. */
void PxCheckCommandTest::tellsWhatFollowsFromNames()
{
    QFETCH(QString, file);
    QFETCH(QString, good);
    QFETCH(QString, bad);
    QFETCH(QString, finding);
    m_sample->replace(file, good, bad);
    const QString before = m_sample->read(file).section(QChar(u'»'), 0, 0);
    m_sample->write(file, m_sample->read(file).remove(QChar(u'»')));
    const QString place = QString("%1:%2:%3 ")
                              .arg(file)
                              .arg(before.count('\n') + 1)
                              .arg(before.size() - before.lastIndexOf('\n'));
    QCOMPARE(findingsOf(check("--pedantic " + file)), QStringList(place + finding));
}

/** Nothing that is told, or that matters as much. */
void PxCheckCommandTest::tellsNamesWhenNothingFollows()
{
    const QString consequence = "defaults-page-type-missing";
    const QStringList name("products/cup2.xml:20:32 warning attribute-unknown");
    const auto findings = [&](const QString &options = QString()) {
        return findingsOf(check(options + ' ' + cup));
    };
    m_sample->replace(cup, "\"urlaub\" pageType", "\"urlaub\" pagetype");
    QCOMPARE(findings("--only attribute-unknown"), name);
    QCOMPARE(findings("--skip " + consequence), name);
    QCOMPARE(findings("--override " + consequence + "=info"), name);

    // An allowance for one of the two is of use, and leaves the other.
    m_sample->replace(cup, "<productdescription>",
                      "<!-- check: allow attribute-unknown --><productdescription>");
    QCOMPARE(findings(), QStringList("products/cup2.xml:20:32 error " + consequence));
    m_sample->replace(cup, "allow attribute-unknown", "allow " + consequence);
    QCOMPARE(findings(), name);
}

void PxCheckCommandTest::checksSingleFiles()
{
    addFindings();
    const PxProgramRun run = check("products/pendant.xml ./products/pendant.xml " + cup);
    QCOMPARE(findingsOf(run), (QStringList{"products/cup2.xml:30:5 warning allowance-unused",
                                           "products/pendant.xml:4:10 error xml-attribute-twice"}));
    QCOMPARE(run.output().constLast(), QString("2 files read: 1 error, 1 warning"));
    QVERIFY(run.text().contains("not checked without the whole catalogue: "));
    const QJsonObject json = check("--format json --skip file-not-read " + cup).json();
    QVERIFY(!json["notChecked"].toArray().contains("file-not-read"));

    // Each is of another kind, and clean as such.
    const PxProgramRun clean = check("--pedantic producttypes.xml frames.xml "
                                     "themes/JAHRESZEITEN.XML defaults/CARD_FOLDED_A6.xml "
                                     "products/legacy/cup1.xml products/book_mini.xml");
    QCOMPARE(findingsOf(clean), QStringList());
    QCOMPARE(clean.output().constLast(), QString("6 files read: nothing found"));

    // An allowance for what is not checked may well be of use.
    const QString mini = "products/book_mini.xml";
    m_sample->replace(mini, "<productdescription>",
                      "<!-- check: allow file-not-read --><productdescription>");
    QCOMPARE(findingsOf(check(mini)), QStringList());
    m_sample->replace(mini, "check: allow file-not-read", "check: allow spine-pages-twice");
    QCOMPARE(findingsOf(check(mini)).size(), 1);
    m_sample->replace(mini, "BOOK_MINI\"", "BOOK_MINNI\"");
    QCOMPARE(findingsOf(check(mini)),
             QStringList("products/book_mini.xml:4:18 error product-name-unknown"));
}

/** Though only one of them is checked. */
/** Where the loader gives up, too, which counts otherwise. */
void PxCheckCommandTest::countsCharacters()
{
    for (const char *text : {"ü", "\U0001F600"}) {
        m_sample->write(cup, "<d>" + QString::fromUtf8(text) + QString("<a>").repeated(300));
        QCOMPARE(findingsOf(check(cup)),
                 QStringList("products/cup2.xml:1:772 error xml-limit-exceeded"));
    }
}

void PxCheckCommandTest::knowsOtherThemes()
{
    const QString seasons = "themes/JAHRESZEITEN.XML";
    m_sample->replace(seasons, "\"fruehling\"", "\"normal\"");
    const PxProgramRun twice = check("--only theme-id-twice " + seasons);
    QCOMPARE(findingsOf(twice), QStringList("themes/JAHRESZEITEN.XML:5:14 error theme-id-twice"));
    QVERIFY(twice.text().contains(" is also in themes/grundthemen.xml:6 "));
    m_sample->write("draft.xml", m_sample->read("themes/grundthemen.xml"));
    QCOMPARE(findingsOf(check("draft.xml")), QStringList());

    m_sample->replace(seasons, "</themes>", QString());
    const QString cause = "<!-- check: allow defaults-theme-unknown -->";
    m_sample->replace(cup, "<productdescription>", cause + "<productdescription>");
    const QJsonObject json = check("--format json .").json();
    QCOMPARE(json["notChecked"].toArray(), QJsonArray{"defaults-theme-unknown"});
    QCOMPARE(findingsOf(json).size(), 1);
    QVERIFY(check(".").output().contains(
        "not checked without the id of every theme: defaults-theme-unknown"));
}

/** Where the row is checked, too, it is told there and not once more at the product. */
void PxCheckCommandTest::tellsADroppedRowOnce()
{
    m_sample->replace("producttypes.xml", "code=\"907\"", "code=\"4x1\"");
    QCOMPARE(findingsOf(check(".")),
             QStringList("./producttypes.xml:68:22 error integer-malformed"));
    m_sample->restore("producttypes.xml");
    m_sample->replace("producttypes.xml", "name=\"CUP1\"", "nam=\"CUP1\"");
    QCOMPARE(findingsOf(check(".")).size(), 1);
    const PxProgramRun alone = check("products/legacy/cup1.xml");
    QCOMPARE(findingsOf(alone),
             QStringList("products/legacy/cup1.xml:4:18 error product-name-unknown"));
    QVERIFY(!alone.text().contains("did you mean"));
}

void PxCheckCommandTest::checksWhatItIsToldTo()
{
    addFindings();
    QVERIFY(mkfifo(QFile::encodeName(m_sample->filePath("products/pipe.xml")), 0600) == 0);
    QVERIFY(QFile::rename(m_sample->filePath("themes"), m_sample->filePath("designs")));
    m_sample->write("designs/lost.xml~", QString());
    QDir().mkpath(m_sample->filePath("designs/old.xml"));
    QDir().mkpath(m_sample->filePath("products/drafts"));
    m_sample->write("products/.hidden.xml", QString());
    m_sample->write("products/.directory", QString());
    QVERIFY(QFile::link("nowhere.xml", m_sample->filePath("products/link.xml")));
    m_sample->write("designs/preview.png", QString());
    const PxProgramRun run =
        check("--resources " + m_sample->path() + "/ --themes ./designs --only file-not-read");
    QCOMPARE(findingsOf(run),
             (QStringList{"./designs/lost.xml~:1:1 info file-not-read",
                          "./designs/old.xml:1:1 info file-not-read",
                          m_sample->path() + "/products/.hidden.xml:1:1 info file-not-read",
                          m_sample->path() + "/products/cup3.xml.b\\u009B:1:1 info file-not-read",
                          m_sample->path() + "/products/link.xml:1:1 info file-not-read",
                          m_sample->path() + "/products/pipe.xml:1:1 info file-not-read"}));
    QCOMPARE(check("products/pipe.xml").status(), 2);
}

/** Of which no example in a table could tell. */
void PxCheckCommandTest::findsWhatNoExampleShows()
{
    const QString pages = m_sample->read(cup).replace(
        "<pages>normalpage</pages>",
        "<pages>" + QString("normalpage,").repeated(1000) + "normalpage</pages>");
    m_sample->write(cup, pages);
    QCOMPARE(findingsOf(check(".")),
             QStringList("./products/cup2.xml:29:11012 warning pages-too-many"));
    m_sample->restore(cup);

    const QString pillow = "products/pillow_premium.xml";
    const QString image = "image=\"images/pillow-seam.png\"";
    m_sample->replace(pillow, image, QString());
    QCOMPARE(findingsOf(check(".")),
             QStringList("./products/pillow_premium.xml:11:8 warning surrounding-empty"));
    m_sample->restore(pillow);
    m_sample->replace(pillow, image, "hasbindingshade=\"true\"");
    QCOMPARE(findingsOf(check(".")), QStringList());
    m_sample->write(pillow, "<p><products><product name='PILLOW_PREMIUM'/></products></p>");
    QVERIFY(check(pillow).text().contains("hint: move \"product\" out of \"products\""));
    m_sample->restore(pillow);

    const QString themes = "themes/grundthemen.xml";
    m_sample->write(themes,
                    m_sample->read(themes).replace("images/logo-schule.png", "images/logo-schule"));
    QCOMPARE(findingsOf(check(".")), QStringList()); // found by the suffix of an image format

    m_sample->restore(themes);
    const QString logo = m_sample->filePath("images/logo-schule.png");
    QVERIFY(QFile::resize(logo, QFileInfo(logo).size() - 20));
    m_sample->write("images/logo-urlaub.png", "no picture");
    const PxProgramRun images = check(".");
    QCOMPARE(findingsOf(images),
             (QStringList{"./themes/grundthemen.xml:85:52 warning theme-image-missing",
                          "./themes/grundthemen.xml:87:48 warning theme-image-missing",
                          "./themes/grundthemen.xml:154:38 warning theme-image-cut-off",
                          "./themes/grundthemen.xml:155:41 warning theme-image-cut-off"}));
    QVERIFY(images.text().contains("\"images/logo-schule.png\" is cut off"));
    QVERIFY(images.text().contains("\"images/logo-urlaub.png\" is no PNG, JPEG, GIF or BMP"));
    m_sample->restore("images/logo-schule.png");
    m_sample->restore("images/logo-urlaub.png");

    QVERIFY(QFile::remove("frames.xml") && mkfifo("frames.xml", 0600) == 0);
    QCOMPARE(findingsOf(check(".")), QStringList("./frames.xml:1:1 error file-unreadable"));
    m_sample->write("producttypes.xml", "\n<types/>");
    QVERIFY(
        findingsOf(check(".")).contains("./producttypes.xml:2:2 error product-types-root-wrong"));
}

void PxCheckCommandTest::findsNamesThatCannotBeDecoded()
{
    QStringList expected;
    QByteArrayList files;
    for (const char *directory : {"defaults", "products", "products/legacy", "themes"}) {
        const QByteArray path = QFile::encodeName(m_sample->filePath(directory));
        for (const char *name : {"/gr\xF6n.xml", "/\xE4.xml", "/\xE4.png"}) {
            files.append(path + name);
            FILE *file = fopen(files.constLast(), "w");
            QVERIFY(file);
            fclose(file);
        }
        expected.append(QString("./%1:1:1 warning file-name-undecodable").arg(directory));
    }
    const PxProgramRun run = check(".");
    QCOMPARE(findingsOf(run), expected);
    QCOMPARE(run.text().count("not in the encoding of the locale: 2"), 4);
    QCOMPARE(findingsOf(check(cup)), QStringList());
    // The library warns of each directory that a command makes it read.
    QString warnings;
    for (const QStringList &command : {QStringList{"list", "--earlier"}, QStringList{"themes"}}) {
        const PxProgramRun read(PX_CATALOGUE_PROGRAM,
                                command + QStringList{"--resources", m_sample->path()});
        warnings += read.errors().join(' ');
    }
    for (const char *directory : {"defaults", "products", "products/legacy", "themes"})
        QVERIFY2(warnings.contains("locale: 2 in \"" + m_sample->filePath(directory) + '"'),
                 qPrintable(warnings));
    for (const QByteArray &file : files)
        unlink(file); // Qt cannot
}

void PxCheckCommandTest::saysWhatIsWrong_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("error");
    QTest::newRow("tag") << "--only xml-limit-exceded ."
                         << "did you mean \"xml-limit-exceeded\"?";
    QTest::newRow("list") << "--skip file-not-read,,x ."
                          << "--skip does not know the tag \"\"";
    QTest::newRow("severity") << "--override file-not-read=fatal ."
                              << "use error, warning, info";
    QTest::newRow("override") << "--override file-not-read ."
                              << "needs TAG=SEVERITY";
    QTest::newRow("format") << "--format xml ."
                            << "text or json or sarif, not \"xml\"";
    QTest::newRow("format of tags") << "--list-tags --format json"
                                    << "text or markdown";
    QTest::newRow("explain") << "--explain nothing"
                             << "--list-tags shows all";
    QTest::newRow("baselines") << "--baseline a --write-baseline b ."
                               << "do not go together";
    QTest::newRow("mixed") << "products/cup2.xml ."
                           << "one resource directory, or files";
    QTest::newRow("two resources") << "--resources . ."
                                   << "both name the resource directory";
    QTest::newRow("missing") << "products/nothing.xml"
                             << "does not exist";
    QTest::newRow("no catalogue") << "products"
                                  << "producttypes.xml";
    QTest::newRow("no catalogue above") << "/etc/passwd"
                                        << "with --resources";
    QTest::newRow("no baseline") << "--baseline nothing.json ."
                                 << "cannot be read";
    QTest::newRow("baseline nowhere") << "--write-baseline no/where ."
                                      << "cannot be written";
}

void PxCheckCommandTest::saysWhatIsWrong()
{
    QFETCH(QString, options);
    QFETCH(QString, error);
    QDir().mkpath(m_sample->filePath("products/products"));
    const PxProgramRun run = check(options);
    QCOMPARE(run.status(), 2);
    QCOMPARE(run.output(), QStringList());
    QCOMPARE(run.errors().size(), 1);
    QVERIFY2(run.errors().constFirst().contains(error), qPrintable(run.errors().constFirst()));
}

void PxCheckCommandTest::keepsQuiet()
{
    QCOMPARE(check("--quiet .").output(), QStringList());
    addFindings();
    const PxProgramRun run = check("--quiet --only xml-attribute-twice .");
    QCOMPARE(run.output().size(), 3);
    QCOMPARE(run.errors(), QStringList());
}

void PxCheckCommandTest::explains()
{
    const QStringList lines = check("--explain xml-attribute-twice").output();
    QVERIFY(lines.constFirst().startsWith("xml-attribute-twice (error): "));
    const int example =
        lines.indexOf("    <usablesize width=\"2000\" width=\"2500\" height=\"950\"/>");
    QVERIFY(example > 0);
    QCOMPARE(lines.value(example + 1), QString(29, ' ') + '^');
    QCOMPARE(check("--list-tags").output().size(), PxCheckTags::all().size());
    QCOMPARE(check("--version").output(),
             PxProgramRun(PX_CATALOGUE_PROGRAM, {"--version"}).output());
}

void PxCheckCommandTest::optionsAreDocumented()
{
    QFile file(PX_SOURCE_DIRECTORY "/docs/pxcatalogue.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString documentation = QString::fromUtf8(file.readAll());
    static const QRegularExpression ourOption("--[a-z-]+");
    QRegularExpressionMatchIterator options = ourOption.globalMatch(check("--help").text());
    QVERIFY(options.hasNext());
    while (options.hasNext()) {
        const QString option = options.next().captured();
        QVERIFY2(documentation.contains(QRegularExpression(option + "\\b(?!-)")),
                 qPrintable(option));
    }
}

void PxCheckCommandTest::printsWhatTheDocumentShows()
{
    QFile file(PX_SOURCE_DIRECTORY "/docs/pxcatalogue.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString shown = QString::fromUtf8(file.readAll())
                              .section("```console\n$ pxcatalogue check catalogue\n", 1)
                              .section("\n```", 0, 0);
    m_sample->replace(cup, size, "<usablesize width=\"2000\" width=\"2500\" height=\"950\"/>");
    QCOMPARE(check(".").output().join('\n'), QString(shown).replace("catalogue/", "./"));
}

QTEST_GUILESS_MAIN(PxCheckCommandTest)
#include "PxCheckCommandTest.moc"
