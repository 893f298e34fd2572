#include "PxProgramRun.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/** The manual page, and the completion in the shells themselves. */
class PxShellTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void manualExplainsEachCommand();
    void manualExplainsEachVariable();
    void manualExplainsFilesAndStatuses();
    void manualIsWellFormed();
    void bashOffers();
    void bashCompletes();
    void zshCompletes();
    void fishOffers();

private:
    PxProgramRun run(const QString &command) const;
    QString type(const QString &shell, const QString &typed) const;
    bool isWritten() const;
    QString read(const QString &name) const;
    void write(const QString &name, const QString &text) const;

    const QTemporaryDir m_directory;
};

namespace {

/** Asks about CUP2, and Tab completes each word. */
constexpr const char *keys = "pxcatalogue --resources sample var\tcup2\t--js\t > written\n";

QString manual()
{
    return PxProgramRun(PX_CATALOGUE_PROGRAM, {"--manual"}).printed();
}

/** What the lines say without fonts and escapes. */
QString plain(QString manual)
{
    static const QRegularExpression ourFont("\\\\f[A-Z]");
    return manual.remove(ourFont)
        .replace("\\-", "-")
        .replace("\\[u2026]", "…")
        .replace("\\e", "\\");
}

} // namespace

/** Each shell works in this directory. */
void PxShellTest::initTestCase()
{
    QVERIFY(QDir::setCurrent(m_directory.path()));
    QVERIFY(QFile::link(PX_SAMPLE_DIRECTORY, "sample"));
    QVERIFY(QDir().mkpath("my folder"));
    QVERIFY(QFile::link(PX_SAMPLE_DIRECTORY, "my folder/catalogue"));
    write("drawing.svg", QString());
}

PxProgramRun PxShellTest::run(const QString &command) const
{
    const QString path = QFileInfo(PX_CATALOGUE_PROGRAM).path();
    return PxProgramRun("sh", {"-c", command},
                        {{"PATH", path + ':' + qEnvironmentVariable("PATH")},
                         {"HOME", m_directory.path()},
                         {"ZDOTDIR", m_directory.path()},
                         {"TERM", "dumb"},
                         {"PX_RESOURCE_DIRS", QString()}});
}

/** Types the keys in an interactive shell that has a terminal. */
QString PxShellTest::type(const QString &shell, const QString &typed) const
{
    write("keys", typed + "exit\n");
    return run("timeout 60 script -qec '" + shell + "' /dev/null < keys").printed();
}

/** Whether the keys have run the program; the next shell starts again. */
bool PxShellTest::isWritten() const
{
    const bool isWritten = read("written").contains("color:black");
    QFile::remove(m_directory.filePath("written"));
    return isWritten;
}

QString PxShellTest::read(const QString &name) const
{
    QFile file(m_directory.filePath(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void PxShellTest::write(const QString &name, const QString &text) const
{
    QFile file(m_directory.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("cannot write %s", qPrintable(name));
}

void PxShellTest::manualExplainsEachCommand()
{
    const QString text = plain(manual());
    const QString all = text.section(".SH OPTIONS", 1);
    const QStringList commands = text.section(".SS ", 1).section(".SH ", 0, 0).split("\n.SS ");
    QVERIFY(commands.size() > 10);
    static const QRegularExpression ourOption("^  (?<names>(-h, )?--[^ ]+( <[^>]+>)?)",
                                              QRegularExpression::MultilineOption);
    for (const QString &command : commands) {
        const QString help =
            PxProgramRun(PX_CATALOGUE_PROGRAM, {"help", command.section(' ', 0, 0)}).printed();
        int count = 0;
        for (auto options = ourOption.globalMatch(help); options.hasNext(); ++count) {
            const QString option = options.next().captured("names").remove('<').remove('>');
            QVERIFY2(command.contains(".TP\n" + option + '\n') ||
                         all.contains(".TP\n" + option + '\n'),
                     qPrintable(option + " of " + command));
        }
        QVERIFY(count > 4);
    }
}

/** Those of the environment that library and tools ask for. */
void PxShellTest::manualExplainsEachVariable()
{
    static const QRegularExpression ourName("EnvironmentVariable[a-zA-Z]*\\(\"([A-Z_]+)\"");
    const QString environment = plain(manual()).section(".SH ENVIRONMENT", 1).section(".SH", 0, 0);
    QStringList names;
    for (const char *folder : {"src", "tools"}) {
        QDirIterator files(QString(PX_SOURCE_DIRECTORY "/") + folder, {"*.cpp"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            for (auto all = ourName.globalMatch(file.readAll()); all.hasNext();)
                names.append(all.next().captured(1));
        }
    }
    QVERIFY(names.contains("PX_THREADS") && names.contains("NO_COLOR"));
    names.removeAll("QT_QPA_PLATFORM"); // which the program sets for itself
    for (const QString &name : qAsConst(names))
        QVERIFY2(environment.contains(".TP\n" + name + '\n'), qPrintable(name));
}

/** Where the library looks by itself, and how the program ends. */
void PxShellTest::manualExplainsFilesAndStatuses()
{
    const QString text = plain(manual()).section(".SH FILES", 1);
    for (const char *name : {"share/PxProductProperties\n", "producttypes.xml", "products/",
                             "products/legacy/", "frames.xml", "themes/", "defaults/"})
        QVERIFY2(text.section(".SH", 0, 0).contains(name), name);
    const QString statuses = text.section(".SH EXIT STATUS", 1).section(".SH", 0, 0);
    for (const char *status : {"0 ", "1 ", "2 ", "3 "})
        QVERIFY2(statuses.simplified().contains(status), status);
}

void PxShellTest::manualIsWellFormed()
{
    if (QString(PX_MANDOC).isEmpty())
        QSKIP("needs mandoc");
    write("pxcatalogue.1", manual());
    // Of a page that is the same whenever it is written, the date is missing.
    QCOMPARE(run(PX_MANDOC " -Tlint -Wwarning pxcatalogue.1 | grep -v 'missing date'").printed(),
             QString());
}

/** Types each row in the same bash and presses Tab, where the offers are written down. */
void PxShellTest::bashOffers()
{
    // clang-format off
    constexpr struct { const char *typed; const char *offered; } rows[] = {
        {"li", "list"},
        {"help va", "variants"},
        {"help list ", ""},
        {"list --min", "--min-width --min-height"},
        {"list --not-offered --not", "--not-offered"},
        {"list --json --ear", "--earlier"},
        {"themes a --key", "--key-account"},
        {"diff --resou", ""}, // it refuses them
        {"show x --origin --or", "--origin"},
        {"nothing --la", "--lang"},
        {"list --lang ", "en de"},
        {"list --class BOOK,ca", "BOOK,calendar BOOK,card"},
        {"list --class=book,g", "book,gift"},
        {"list --sort=-si", "-size"},
        {"list --paper unb", "unbekanntes\\ Papier"},
        {"list --pages ", ""},
        {"check --format j", "json"},
        {"check --only spine-pages-t,spine-pages-m", "spine-pages-t,spine-pages-missing"},
        {"draw CUP2 --layers -bl", "-bleed"},
        {"draw CUP2 --sheet ", "all cover inside"},
        {"diff --only /spine/w", "/spine/width"},
        {"show --resources sample book_mi", "BOOK_MINI"},
        {"--resources=sample show BOOK_MI", "BOOK_MINI"},
        {"show --resources 'my folder/catalogue' BOOK_MI", "BOOK_MINI"},
        {"show --resources ~/my\\ folder/catalogue BOOK_MI", "BOOK_MINI"},
        {"show --resources nowhere BOOK_MI", ""},
        {"why CUP2 --resources sample --compatible-with pdt", "PDT1"},
        {"show --resources sample cup", "CUP2 CUP1"},
        {"variants --resources sample cup", "CUP2"},
        {"list --resources sample --theme hochz", "hochzeit"},
        {"draw CUP2 --output dr", "drawing.svg"},
        {"draw CUP2 --output=dr", "drawing.svg"},
        {"list --resources sample:my", "my folder"},
        {"list --products my\\ folder/", "my folder/catalogue"},
        {"proof --output dr", ""}, // no folder
        {"diff sample dr", "drawing.svg"},
    };
    // clang-format on
    QString typed;
    QStringList expected;
    for (const auto &row : rows) {
        typed += QString("pxcatalogue %1\t\a").arg(row.typed);
        expected.append(QString("%1: %2").arg(row.typed, row.offered));
    }
    write("bashrc", ". " PX_COMPLETION_DIRECTORY "/completion.bash\n"
                    "offer() {\n"
                    "    _pxcatalogue \"$@\"\n"
                    "    echo \"${COMP_LINE#pxcatalogue }: ${COMPREPLY[*]}\" >> offers\n"
                    "}\n"
                    "complete -F offer pxcatalogue\n"
                    "bind '\"\\C-g\": kill-whole-line'\n");
    const QString terminal = type("bash --noprofile --rcfile bashrc -i", typed);
    const QStringList offers = read("offers").split('\n', Qt::SkipEmptyParts);
    QVERIFY2(offers.size() == expected.size(), qPrintable(terminal));
    QCOMPARE(offers, expected);
}

void PxShellTest::bashCompletes()
{
    const QString terminal =
        type("bash --noprofile --rcfile " PX_COMPLETION_DIRECTORY "/completion.bash -i", keys);
    QVERIFY2(isWritten(), qPrintable(terminal));
}

void PxShellTest::zshCompletes()
{
    if (QString(PX_ZSH).isEmpty())
        QSKIP("needs zsh");
    QVERIFY(QDir().mkpath("functions") &&
            QFile::link(PX_COMPLETION_DIRECTORY "/completion.zsh", "functions/_pxcatalogue"));
    write(".zshrc", "fpath=(functions $fpath)\nautoload -Uz compinit\ncompinit -u -D\n");
    const QString terminal = type(PX_ZSH " -d -i", keys);
    QVERIFY2(isWritten(), qPrintable(terminal));
}

void PxShellTest::fishOffers()
{
    if (QString(PX_FISH).isEmpty())
        QSKIP("needs fish");
    const auto offered = [this](const QString &typed) {
        return run(PX_FISH " --no-config -c \"source " PX_COMPLETION_DIRECTORY
                           "/completion.fish; complete -C 'pxcatalogue " +
                   typed + "'\" < /dev/null")
            .output();
    };
    QCOMPARE(offered("show --resources sample book_mi"), QStringList("BOOK_MINI\tBuch Mini"));
    QCOMPARE(offered("draw x --output=dr"), QStringList("--output=drawing.svg"));
    QCOMPARE(offered("list --resources=my"), QStringList("--resources=my folder/"));
}

QTEST_GUILESS_MAIN(PxShellTest)
#include "PxShellTest.moc"
