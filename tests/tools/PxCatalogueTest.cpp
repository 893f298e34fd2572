#include "PxProgramRun.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

class PxCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void fitsTheTerminal();
    void explainsEachCommand();
    void namingACatalogueMeansItsThemesAndDefaults();
    void namesVariantsInTheLanguageAskedFor();
    void runsTheEditorExample();
};

namespace {

PxProgramRun run(const QString &command, int columns = 150)
{
    return PxProgramRun(PX_CATALOGUE_PROGRAM, command.split(' ', Qt::SkipEmptyParts),
                        {{"COLUMNS", QString::number(columns)}, {"LC_ALL", "C.UTF-8"}});
}

/** The lines without their alignment. */
QStringList simplified(QStringList lines)
{
    for (QString &line : lines)
        line = line.simplified();
    return lines;
}

/** The lines of --help about the commands, each with a name first. */
QStringList commandLines(const QStringList &help)
{
    const int begin = help.indexOf(QRegularExpression("Commands .*")) + 1;
    const int end = help.indexOf(QRegularExpression("Exit status.*"));
    return simplified(help.mid(begin, end - begin));
}

bool fitsInto(int columns, const QStringList &lines)
{
    return std::all_of(lines.begin(), lines.end(),
                       [columns](const QString &line) { return line.size() <= columns; });
}

/** The options that a text of --help has. */
QStringList optionsOf(const PxProgramRun &help)
{
    static const QRegularExpression ourOption("--[a-z-]+");
    QStringList options;
    for (auto matches = ourOption.globalMatch(help.text()); matches.hasNext();)
        options.append(matches.next().captured());
    return options;
}

QString textOf(const char *path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
}

} // namespace

void PxCatalogueTest::fitsTheTerminal()
{
    const auto fit = [](const QString &command, int columns) {
        const PxProgramRun fitted = run(command, columns);
        for (const QString &line : fitted.output())
            QVERIFY2(line.size() <= columns, qPrintable(line));
        QCOMPARE(fitted.output().size(), run(command).output().size());
        // The names are what one copies from the list, so that other texts are shortened first.
        QVERIFY(columns < 30 || fitted.output().join(' ').contains("BOOK_A4_PORTRAIT"));
    };
    for (int columns : {1, 30, 80, 100})
        fit("list", columns);
    fit("show BOOK_A4_PORTRAIT", 50);
    fit("why BOOK_A4_PORTRAIT --page 0 --pages 26 --compatible-with CUP2", 60);
}

void PxCatalogueTest::explainsEachCommand()
{
    const QString document = textOf(PX_SOURCE_DIRECTORY "/docs/pxcatalogue.md");
    const QStringList general = run("--help").output();
    QCOMPARE(run("help").output(), general);
    QVERIFY(fitsInto(80, general));
    const QStringList lines = commandLines(general);
    QVERIFY(lines.size() >= 6);
    for (const QString &line : lines) {
        const QString name = line.section(' ', 0, 0);
        const PxProgramRun help = run("help " + name);
        QCOMPARE(help.status(), 0);
        QCOMPARE(help.output(), run(name + " --help").output());
        QVERIFY2(fitsInto(80, help.output()), qPrintable(name));
        QVERIFY2(help.text().startsWith("Usage: pxcatalogue "), qPrintable(name));
        const QString summary = help.output().value(1);
        QVERIFY2(!summary.isEmpty() && line.endsWith(summary), qPrintable(line));
        QVERIFY2(document.contains("| `pxcatalogue " + name), qPrintable(name));
        const QStringList options = optionsOf(help);
        QVERIFY2(options.contains("--help"), qPrintable(name));
        for (const QString &option : options)
            QVERIFY2(document.contains(QRegularExpression(option + "\\b(?!-)")),
                     qPrintable(option));
    }
}

void PxCatalogueTest::namingACatalogueMeansItsThemesAndDefaults()
{
    const QTemporaryDir empty;
    const auto layout = [&empty](const QStringList &more, bool isInVariable) {
        const QString other = isInVariable ? empty.path() : QString();
        const PxProgramRun shown(
            PX_CATALOGUE_PROGRAM,
            QStringList{"show", "BOOK_A4_PORTRAIT", "--json", "--theme", "normal"} + more,
            {{"XDG_DATA_HOME", empty.path()},
             {"PX_THEMES_DIR", other},
             {"PX_USER_DEFAULTS_DIR", other}});
        return shown.json()["templates"][4]["layout"].toString();
    };
    const QStringList resources{"--resources", PX_SAMPLE_DIRECTORY};
    const QString ofUser = "1 Bild mit Rand";
    const QString ofProduct = "2 Bilder uebereinander";
    QCOMPARE(layout(resources, true), ofUser);
    QCOMPARE(layout(resources + QStringList{"--user-defaults", empty.path()}, true), ofProduct);
    QCOMPARE(layout(resources + QStringList{"--themes", empty.path()}, true), QString());
    // Otherwise it is as in applications: themes beside the products, defaults in the user's data.
    QCOMPARE(layout({}, false), ofProduct);
    QCOMPARE(layout({}, true), QString());
    QVERIFY(QDir(empty.path()).mkpath("pxcatalogue"));
    QVERIFY(QFile::link(PX_SAMPLE_DIRECTORY "/defaults", empty.filePath("pxcatalogue/defaults")));
    QCOMPARE(layout({}, false), ofUser);
}

void PxCatalogueTest::namesVariantsInTheLanguageAskedFor()
{
    const auto check = [](const char *locale, const char *language, const QString &option,
                          const char *words) {
        const PxProgramRun variants(PX_CATALOGUE_PROGRAM, ("variants CUP2" + option).split(' '),
                                    {{"LC_ALL", locale}, {"LANGUAGE", language}});
        QVERIFY2(variants.text().contains(words), qPrintable(locale + option));
    };
    check("de_DE.UTF-8", "", " --lang en", "Differ in Inside colour");
    check("en_US.UTF-8", "", " --lang de", "Differ in Innenfarbe");
    check("en_US.UTF-8", "", "", "color:black Black");
    check("fr_FR.UTF-8", "", "", "color:black Schwarz");
    check("de_DE.UTF-8", "de:en", "", "color:black Schwarz"); // the first choice needs no catalogue
}

void PxCatalogueTest::runsTheEditorExample()
{
    const QString lastPage = "30: emptypage, 213 x 303 mm, \"\" on \"Weiss\", "
                             "images/book-binding-shade-right.png";
    QVERIFY(PxProgramRun(PX_EDITOR_PROGRAM, {}).text().endsWith(lastPage));
}

QTEST_GUILESS_MAIN(PxCatalogueTest)
#include "PxCatalogueTest.moc"
