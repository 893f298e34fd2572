#include "PxProgramRun.h"
#include "PxSampleCopy.h"

#include <writing/PxVisibleText.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

/** What the tools write, and where: nothing is lost, and nothing gets out that nobody would see. */
class PxOutputTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheFileThatItCannotReplace_data();
    void keepsTheFileThatItCannotReplace();
    void writesToWhatIsThere();
    void tellsWhenTheOutputIsLost();
    void endsQuietlyWhenTheReaderIsGone();
    void writesOutWhatNobodySees_data();
    void writesOutWhatNobodySees();
    void showsNothingRaw();
    void shortensWhatHasNoEnd();
};

namespace {

/** The program, as "$0", in a script with "$1" and so on. */
PxProgramRun runScript(const QString &script, const QStringList &arguments,
                       const QString &program = PX_CATALOGUE_PROGRAM)
{
    return PxProgramRun("sh", QStringList{"-c", script, program} + arguments, {{"LC_ALL", "C"}});
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Fails each write to a regular file; needs no rights, unlike a disk that is full. */
const QString withoutRoom = "trap '' XFSZ; ulimit -f 0; ";

constexpr int cannotMount = 77; // as the script below says

} // namespace

void PxOutputTest::keepsTheFileThatItCannotReplace_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no file may have a size")
        << "sh" << withoutRoom + "\"$0\" check --quiet --write-baseline \"$1/known.json\""
        << "File too large; make room";
    QTest::newRow("no line of an export has room")
        << "sh" << withoutRoom + "\"$0\" export --output \"$1/known.json\""
        << "File too large; make room";
    // What is in the file system ends with the last process that sees it.
    QTest::newRow("the disk is full")
        << "unshare"
        << QString("mkdir \"$1/disk\" && mount -t tmpfs -o size=16k none \"$1/disk\" || exit 77\n"
                   "cd \"$1/disk\" && mv ../known.json . && printf %0100000d 0 > all 2>&-\n"
                   "\"$0\" check --quiet --write-baseline known.json; status=$?\n"
                   "rm all; mv * ..; exit $status")
        << "No space left on device; make room";
}

void PxOutputTest::keepsTheFileThatItCannotReplace()
{
    QFETCH(QString, command);
    QFETCH(QString, script);
    QFETCH(QString, reason);
    const QTemporaryDir directory;
    const QByteArray known = "{\"findings\": [], \"format\": 1}";
    QFile file(directory.filePath("known.json"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(known) > 0);
    file.close();
    QStringList arguments{"-c", script, PX_CATALOGUE_PROGRAM, directory.path()};
    if (command == "unshare")
        arguments = QStringList{"-rm", "sh"} + arguments;
    const PxProgramRun run(command, arguments, {{"LC_ALL", "C"}});
    const bool isRefused = run.status() == -1 || run.errors().join(' ').contains("unshare: ");
    if (run.status() == cannotMount || (command == "unshare" && isRefused))
        return QTest::qSkip("no file system can be mounted here", __FILE__, __LINE__);
    QCOMPARE(run.status(), 2);
    QCOMPARE(run.errors().size(), 1);
    QVERIFY2(run.errors()[0].contains("known.json\" cannot be written: " + reason),
             qPrintable(run.errors()[0]));
    QCOMPARE(contentOf(file.fileName()), known);
    QDir().rmdir(directory.filePath("disk"));
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files), QStringList{"known.json"});
}

void PxOutputTest::writesToWhatIsThere()
{
    const QTemporaryDir directory;
    const auto write = [&directory](const QString &script) {
        return runScript("cd \"$1\"; " + script, {directory.path()});
    };
    const QString start = "{\"findings\":[],\"format\":1}";
    const auto isBaseline = [&](QString text) { return text.remove(' ') == start; };
    const QString check = "\"$0\" check --quiet --write-baseline ";

    const PxProgramRun pipe = write("mkfifo pipe; cat pipe & " + check + "pipe; wait");
    QVERIFY(pipe.status() == 0);
    QVERIFY(isBaseline(pipe.output().join("")));
    struct stat info = {};
    QVERIFY(stat(QFile::encodeName(directory.filePath("pipe")), &info) == 0 &&
            S_ISFIFO(info.st_mode));

    // A file that the shell has opened for the output goes on where that is, and is the same after.
    QCOMPARE(write("{ echo before; " + check + "out.json; echo behind; } > out.json").status(), 0);
    QString out = contentOf(directory.filePath("out.json")).simplified();
    QVERIFY2(out.startsWith("before {") && out.endsWith("} behind"), qPrintable(out));

    QVERIFY(write("mkdir else; ln -s else/known.json link; " + check + "link && " + check +
                  "link && test -L link")
                .status() == 0);
    QVERIFY(isBaseline(QString(contentOf(directory.filePath("else/known.json"))).simplified()));

    const PxProgramRun refused = write(check + "else");
    QCOMPARE(refused.status(), 2);
    QCOMPARE(refused.errors().join('\n'),
             QString("pxcatalogue: the baseline \"else\" cannot be written: it is no regular "
                     "file; name another file"));
    QCOMPARE(write(check + "no/such").status(), 2);
}

void PxOutputTest::tellsWhenTheOutputIsLost()
{
    const QTemporaryDir directory;
    const auto lose = [&directory](const QString &program, const QString &command) {
        const PxProgramRun lost =
            runScript(withoutRoom + "cd \"$1\"; shift; exec \"$0\" \"$@\" > out",
                      QStringList{directory.path()} + command.split(' '), program);
        QVERIFY2(lost.status() == 2 && lost.errors().size() == 1, qPrintable(command));
        QVERIFY2(lost.errors()[0].endsWith("cannot write the output: File too large"),
                 qPrintable(lost.errors()[0]));
    };
    for (const QString command :
         {"list", "list --json", "show CUP2", "compatible BOOK_A4_PORTRAIT", "themes",
          "variants ADDRESSBOOK_A6", "check", "check --format json", "check --format sarif",
          "check --list-tags", "check --explain keyword-repeated", "--help", "--version"})
        lose(PX_CATALOGUE_PROGRAM, command);
    for (const QString command :
         {"xsd product", "tables " PX_SOURCE_DIRECTORY "/docs/file-format.md"})
        lose(PX_VOCABULARY_PROGRAM, command);
}

void PxOutputTest::endsQuietlyWhenTheReaderIsGone()
{
    constexpr int inherited = 9; // scripts name no larger one
    int ends[2] = {-1, -1};
    QVERIFY(pipe(ends) == 0 && dup2(ends[1], inherited) == inherited);
    close(ends[0]);
    close(ends[1]);
    const PxProgramRun run = runScript("trap '' PIPE; exec \"$0\" list >&9", {});
    close(inherited);
    QVERIFY(run.status() == 2);
    QVERIFY(run.errors().isEmpty());
}

void PxOutputTest::writesOutWhatNobodySees_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("json"); // empty for the text itself
    const QString half(QChar(0xD83D));
    const QString umlauts =
        "Größe 10\u00A0×\u00A015\u202Fcm – „Hütte“ \U0001F600e\u0301 \\u202E %1";
    const auto row = [](const char *name, const QString &text, const QString &line) {
        QTest::newRow(name) << text << line << line;
    };
    QTest::newRow("German") << umlauts << umlauts << "";
    QTest::newRow("controls") << "a\nb\x1b[1m\x7f"
                              << "a\\u000Ab\\u001B[1m\\u007F"
                              << "a\\nb\\u001b[1m\\u007F";
    QTest::newRow("tags") << "\U000E0041"
                          << "\\U000E0041"
                          << "\\uDB40\\uDC41";
    QTest::newRow("the escape of a half") << "\\ud83d"
                                          << "\\ud83d"
                                          << "\\\\ud83d";
    row("controls of 8 bits", "\u009B1m\u009D", "\\u009B1m\\u009D");
    row("direction", "\u202E\u2066\u200F", "\\u202E\\u2066\\u200F");
    row("width of nothing", "\u200B\uFEFF\u00AD\uFE0F\u3164",
        "\\u200B\\uFEFF\\u00AD\\uFE0F\\u3164");
    row("lines", "\u2028\u2029\u0085", "\\u2028\\u2029\\u0085");
    row("no characters", "\uE000\uFFFE", "\\uE000\\uFFFE");
    row("halves", half + half + 'x' + half, "\uFFFD\uFFFDx\uFFFD");
}

void PxOutputTest::writesOutWhatNobodySees()
{
    QFETCH(QString, text);
    QFETCH(QString, line);
    QFETCH(QString, json);
    QCOMPARE(PxVisibleText::line(text), line);
    QCOMPARE(PxVisibleText::line(line), line);
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson();
    const QString visible = PxVisibleText::json(array);
    const QString expected = json.isEmpty() ? QString(text).replace('\\', "\\\\") : json;
    QCOMPARE(visible, "[\n    \"" + expected + "\"\n]\n");
    if (!line.contains(QChar::ReplacementCharacter))
        QCOMPARE(QJsonDocument::fromJson(visible.toUtf8()).array(), QJsonArray{text});
}

/** In every command, every format and every message. */
void PxOutputTest::showsNothingRaw()
{
    const QString hidden = "\u009B\u202E\x7F\uFEFF\U000E0041\u0085\u2028\u00AD";
    const QString book = "BOOK" + hidden;
    const QString theme = "theme" + hidden;
    const PxSampleCopy sample;
    sample.replace("producttypes.xml", "</producttypes>",
                   QString("<producttype code='99901' name='%1' class='book'/>"
                           "<producttype code='99902' name='%1' class='%1'/></producttypes>")
                       .arg(book));
    sample.write("products/a\x1b[1m" + hidden + ".xml",
                 QString("<p><product name='%1' binding='%2' a\u202E\u00AD='%2'><usablesize "
                         "width='1' height='1'/>"
                         "<variants type='%2'><variant>v%2</variant></variants>"
                         "<defaults><defaults layout='%2'/></defaults></product></p>")
                     .arg(book, hidden));
    sample.write("products/broken" + hidden + ".xml", QString("<p><%1").arg(hidden));
    sample.write("themes/hidden.xml",
                 QString("<themes><theme id='%1'><description>%1</description></theme></themes>")
                     .arg(theme));

    const QString commands =
        "list --verbose,list --json,show BOOK --theme THEME,show BOOK --theme THEME --json,"
        "show BOOK?,show BOOK --theme ?,show BOOK --pages ?,compatible BOOK,compatible BOOK --json,"
        "themes,themes --json,variants BOOK,variants BOOK --json,variants ?,?,list --?,"
        "check --pedantic,check --pedantic --format json,check --pedantic --format sarif,"
        "check --verbose,check --baseline ?,check --explain ?,check ?,"
        "check --quiet --write-baseline FILE";
    for (const QString &text : commands.split(',')) {
        QStringList command = text.split(' ');
        command.replaceInStrings("BOOK", book).replaceInStrings("THEME", theme);
        command.replaceInStrings("?", hidden)
            .replaceInStrings("FILE", sample.filePath("known.json"));
        if (text != "check ?")
            command += QStringList{"--resources", sample.path()};
        const PxProgramRun run(PX_CATALOGUE_PROGRAM, command);
        QVERIFY2(run.status() >= 0 && run.status() < 3, qPrintable(command.join(' ')));
        const QString all = (run.output() + run.errors()).join(' ') + sample.read("known.json");
        for (const QChar character : hidden + QChar(0x1B))
            QVERIFY2(!all.contains(character), qPrintable(command.join(' ')));
        if (command.contains("--json") && command.first() != "compatible")
            QVERIFY2(QJsonDocument(run.json()).toJson().contains(hidden.toUtf8().left(5)),
                     qPrintable(command.join(' ')));
    }
}

void PxOutputTest::shortensWhatHasNoEnd()
{
    const PxSampleCopy sample;
    const QString id(1000000, 'x');
    sample.write("themes/long.xml", "<themes><theme id='" + id + "' keyaccounts='7'/></themes>");
    const QStringList command{"themes", "--resources", sample.path()};
    const PxProgramRun text(PX_CATALOGUE_PROGRAM, command, {{"COLUMNS", "100000"}});
    QCOMPARE(text.status(), 0);
    QVERIFY(text.output().constLast().contains("xx…  "));
    for (const QString &line : text.output())
        QVERIFY(line.size() < 2000);
    const PxProgramRun json(PX_CATALOGUE_PROGRAM, command + QStringList{"--json"});
    QVERIFY(json.jsonColumn("themes", "id").contains(id));
}

QTEST_GUILESS_MAIN(PxOutputTest)

#include "PxOutputTest.moc"
