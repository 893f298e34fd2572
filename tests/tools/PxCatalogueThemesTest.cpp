#include "PxProgramRun.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

class PxCatalogueThemesTest : public QObject
{
    Q_OBJECT

private slots:
    void listsTheThemes();
    void namesVariantsInTheLanguageAskedFor();
    void runsTheEditorExample();
};

namespace {

PxProgramRun run(const QString &command, const QMap<QString, QString> &environment = {})
{
    return PxProgramRun(PX_CATALOGUE_PROGRAM, command.split(' '), environment);
}

/** A member of all elements, in their order, with commas. */
QString joined(const PxProgramRun &shown, const char *array, const char *member)
{
    return shown.jsonColumn(array, member).join(',');
}

} // namespace

void PxCatalogueThemesTest::listsTheThemes()
{
    // Of themes with one id all are shown, in the order in which they are read.
    const QTemporaryDir directory;
    QFile file(directory.filePath("themes.xml"));
    QVERIFY(
        file.open(QIODevice::WriteOnly) &&
        file.write("<themes><theme id='B'><description>1</description></theme>"
                   "<theme id='b'><description>2</description></theme><theme id='a'/></themes>"));
    file.close();
    const PxProgramRun themes = run("themes --json --themes " + directory.path());
    QCOMPARE(joined(themes, "themes", "id") + joined(themes, "themes", "description"),
             QString("a,b,bunbekannt,1,2"));

    QFile broken(directory.filePath("broken.xml"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("<themes>"));
    broken.close();
    const QStringList errors = run("themes --themes " + directory.path()).errors();
    QVERIFY(errors.size() == 2);
    QVERIFY(errors[0].contains("Could not open config file"));
    QVERIFY(errors[1].startsWith(
        "pxcatalogue: warning: PxThemeFactory::loadThemeList the reason: " + broken.fileName() +
        ":1:"));
}

void PxCatalogueThemesTest::namesVariantsInTheLanguageAskedFor()
{
    const PxProgramRun notebook = run("variants CB14 --json");
    QCOMPARE(joined(notebook, "variants", "name"), QString("blanko,kariert,liniert"));
    QCOMPARE(notebook.json()["product"]["defaultVariant"].toString(), QString("ruling:blank"));

    const auto check = [](const char *locale, const char *language, const QString &option,
                          const char *words) {
        const PxProgramRun variants =
            run("variants CUP2" + option, {{"LC_ALL", locale}, {"LANGUAGE", language}});
        QVERIFY2(variants.text().contains(words), qPrintable(locale + option));
    };
    check("de_DE.UTF-8", "", " --lang en", "Differ in Inside colour");
    check("en_US.UTF-8", "", " --lang de", "Differ in Innenfarbe");
    check("en_US.UTF-8", "", "", "color:black Black");
    check("fr_FR.UTF-8", "", "", "color:black Schwarz");
    check("de_DE.UTF-8", "de:en", "", "color:black Schwarz"); // the first choice needs no catalogue
    // Tables of display names are translated, too: those that are built when they are first used.
    QVERIFY(run("list --lang en").text().contains("BOOKLET_A5_LANDSCAPE book 210×148 Booklet "));
    QVERIFY(run("list --lang de").text().contains("BOOKLET_A5_LANDSCAPE book 210×148 Heft "));
}

void PxCatalogueThemesTest::runsTheEditorExample()
{
    const QString lastPage = "30: emptypage, 213 x 303 mm, \"\" on \"Weiss\", "
                             "images/book-binding-shade-right.png";
    QVERIFY(PxProgramRun(PX_EDITOR_PROGRAM, {}).text().endsWith(lastPage));
}

QTEST_GUILESS_MAIN(PxCatalogueThemesTest)
#include "PxCatalogueThemesTest.moc"
