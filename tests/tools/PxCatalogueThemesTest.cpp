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
    void showsAProductInATheme();
    void namesVariantsInTheLanguageAskedFor();
    void saysWhatIsWrong();
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
    const QString text = run("themes").text();
    for (const char *row : {"albfreetheme Freie Gestaltung für Bücher book 2050-12-31 no 1000 7 ",
                            "design Design-Vorlagen book 2050-12-31 no 1000, 2000 all ",
                            "winter-2022 Winterzauber 2022 book 2023-02-28 yes 1000 all"})
        QVERIFY2(text.contains(row), row);
    const PxProgramRun partner = run("themes --json --key-account 3000");
    QCOMPARE(joined(partner, "themes", "id"), // without "jubilaeum", which is expired
             QString("geburtstag,normal,reise,schule,urlaub,weihnachten"));

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
    QVERIFY(errors.size() == 2 && errors[0].contains("Could not open config file"));
    QVERIFY(errors[1].startsWith(
        "pxcatalogue: warning: PxThemeFactory::loadThemeList the reason: " + broken.fileName() +
        ":1:"));
}

void PxCatalogueThemesTest::showsAProductInATheme()
{
    const QString command = "show BOOK_A4_PORTRAIT --pages 26 --json";
    const QJsonObject normal = run(command).json();
    const QJsonObject wedding = run(command + " --theme Hochzeit").json();
    QVERIFY(!normal.contains("theme"));
    QCOMPARE(normal["templates"][2]["background"].toString(), QString("Schiefer dunkel"));
    QCOMPARE(wedding["templates"][2]["background"].toString(), QString("Rosenblueten"));
    const QJsonValue theme = wedding["theme"];
    QVERIFY(theme["isValid"].toBool() && theme["mustPaintLogo"].toBool());
    QCOMPARE(theme["iconSize"]["height"].toInt(), 212);
    QCOMPARE(theme["iconSizeSinglePage"]["height"].toInt(), 424);
    QCOMPARE(theme["logoRect"]["x"].toInt(), 1800);
    QCOMPARE(theme["logoSize"]["width"].toInt(), 48);
    QCOMPARE(theme["fadingCategory"].toString(), QString("Ovale"));
    QCOMPARE(theme["pagesWithContent"].toArray().size(), 31);
    const QJsonValue plain = run(command + " --theme normal").json()["theme"];
    QVERIFY(plain["logoRect"].isNull() && plain["logoSize"].isNull());
    QCOMPARE(plain["pagesWithContent"].toArray().size(), 0); // the default theme has no content
    const QString text = run("show CUP2 --theme geburt").text();
    for (const char *part : {"Valid together no", "Icon 300×142 px", "(theme geburt, "})
        QVERIFY2(text.contains(part), part);

    const QString compatible = "compatible BOOK_A4_PORTRAIT --json";
    QVERIFY(joined(run(compatible), "products", "name").contains("BOOK_XXL_PORTRAIT"));
    QCOMPARE(joined(run(compatible + " --theme albfreetheme"), "products", "name"),
             QString("BOOK_A4_PORTRAIT_GLOSSY,BOOK_A4_PORTRAIT_PHOTO,BOOK_A4_PORTRAIT_SOFT"));
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

void PxCatalogueThemesTest::saysWhatIsWrong()
{
    const auto check = [](const QString &command, int status, const QString &error) {
        const PxProgramRun wrong = run(command);
        QCOMPARE(wrong.errors().join('\n'), "pxcatalogue: " + error);
        QCOMPARE(wrong.status(), status);
    };
    const QString help = " (\"pxcatalogue --help\" explains everything)";
    const QString themes = " (\"pxcatalogue themes\" shows all)";
    // clang-format off
    check("show CUP2 --theme hochzet", 1, "no theme \"hochzet\": did you mean hochzeit?" + themes);
    check("compatible CUP2 --theme xyzzy", 1, "no theme \"xyzzy\"" + themes);
    check("compatible BOOK_A4_PORTRAIT --theme geburt", 1, "no other product is interchangeable with BOOK_A4_PORTRAIT and allowed by the theme \"geburt\"");
    check("show CUP1 --theme normal", 1, "no product \"CUP1\" any more: CUP2 replaces it (\"pxcatalogue list\" shows all)");
    check("variants BOOK_MINI", 1, "BOOK_MINI has no variants that have a name");
    check("themes --key-account 4711", 1, "no theme that key account 4711 may order");
    check("themes --key-account x", 2, "--key-account needs a number from 0 to 2147483647, not \"x\"" + help);
    check("list --lang fr", 2, "--lang needs en or de, not \"fr\"" + help);
    check("themes --themes /no/such", 2, "the directory \"/no/such\" does not exist");
    // clang-format on
}

void PxCatalogueThemesTest::runsTheEditorExample()
{
    const QString lastPage = "30: emptypage, 213 x 303 mm, \"\" on \"Weiss\", "
                             "images/book-binding-shade-right.png";
    QVERIFY(PxProgramRun(PX_EDITOR_PROGRAM, {}).text().endsWith(lastPage));
}

QTEST_GUILESS_MAIN(PxCatalogueThemesTest)
#include "PxCatalogueThemesTest.moc"
