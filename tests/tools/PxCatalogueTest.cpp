#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class PxCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void listsTheProductsByClassAndName();
    void listsOneClass();
    void showsSizesInMillimetres();
    void showsSizesAsTheyAreInJson();
    void showsAsManyPagesAsAsked_data();
    void showsAsManyPagesAsAsked();
    void showsLegacyProducts();
    void findsCompatibleProducts_data();
    void findsCompatibleProducts();
    void fitsTheTerminal_data();
    void fitsTheTerminal();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void survivesBrokenProductFiles();
    void showsTemplatesOfTheGivenUser();
    void keepsTheLogOffTheOutput();
};

namespace {

struct Run
{
    int status;
    QStringList output;
    QStringList errors;
    QJsonObject json;
};

QStringList linesOf(const QByteArray &text)
{
    return QString::fromUtf8(text).split('\n', Qt::SkipEmptyParts);
}

Run run(const QStringList &arguments, int columns = 150)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PX_RESOURCE_DIRS", PX_SAMPLE_DIRECTORY);
    environment.insert("COLUMNS", QString::number(columns));
    environment.remove("PX_USER_DEFAULTS_DIR");
    process.setProcessEnvironment(environment);
    process.start(PX_CATALOGUE_PROGRAM, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, {}, {}};
    const QByteArray output = process.readAllStandardOutput();
    return {process.exitCode(), linesOf(output), linesOf(process.readAllStandardError()),
            QJsonDocument::fromJson(output).object()};
}

QStringList namesOf(const QJsonObject &json)
{
    QStringList names;
    for (const QJsonValue &product : json["products"].toArray())
        names.append(product["name"].toString());
    return names;
}

/** A directory of product files with this content, one for each text. */
class ProductDirectory : public QTemporaryDir
{
public:
    explicit ProductDirectory(const QVector<QByteArray> &texts)
    {
        for (const QByteArray &text : texts) {
            QFile file(filePath(QString("product%1.xml").arg(++m_count)));
            if (file.open(QIODevice::WriteOnly))
                file.write(text);
        }
    }

private:
    int m_count = 0;
};

} // namespace

void PxCatalogueTest::listsTheProductsByClassAndName()
{
    const Run text = run({"list"});
    QCOMPARE(text.status, 0);
    QCOMPARE(text.errors, QStringList());
    QStringList rows;
    for (const QString &line : text.output)
        rows.append(line.simplified());
    QCOMPARE(rows[0], QString("Name Class Size mm Binding Paper Pages Orientation Offered"));
    for (const char *row :
         {"BOOK_A4_PORTRAIT book 210×297 Hardcover Digitaldruck 26-154/2 portrait yes",
          "PRINT_10X15 print 152.4×101.6 GIFT Fotopapier glänzend 1 landscape yes"})
        QVERIFY2(rows.contains(QString::fromUtf8(row)), row);

    const QJsonObject json = run({"list", "--json"}).json;
    const QStringList names = namesOf(json);
    for (int i = 0; i < names.size(); ++i)
        QVERIFY(rows[i + 1].startsWith(names[i] + ' '));
    QCOMPARE(names.size() + 1, rows.size());
    QVERIFY(names.indexOf("BOOK_MINI") < names.indexOf("BOOK_XL_SQUARE"));
    QVERIFY(names.indexOf("BOOK_XL_SQUARE") < names.indexOf("ADDRESSBOOK_A6"));
    const QJsonValue cup = json["products"].toArray().at(names.indexOf("CUP2"));
    QCOMPARE(cup["code"].toInt(), 401);
    QCOMPARE(cup["size"]["height"].toInt(), 950);
    QVERIFY(cup["paper"].isNull());
    QVERIFY(!names.contains("CUP1")); // a legacy product
}

void PxCatalogueTest::listsOneClass()
{
    const QStringList prints{"PRINT_10X15"};
    QCOMPARE(namesOf(run({"list", "--class", "print", "--json"}).json), prints);
    QCOMPARE(namesOf(run({"--json", "--class", "PRINT", "list"}).json), prints);
    QCOMPARE(namesOf(run({"list", "--class", "print,calendar", "--json"}).json).size(), 6);
}

void PxCatalogueTest::showsSizesInMillimetres()
{
    const Run book = run({"show", "book_a4_portrait"});
    QCOMPARE(book.status, 0);
    QStringList lines;
    for (const QString &line : book.output)
        lines.append(line.simplified());
    for (const char *line :
         {"Name BOOK_A4_PORTRAIT", "Page counts 26-154/2", "Sold with 26", "Shown with 26",
          "With covers and spine 31", "Fold margin 11.2 mm", "Width 9.4 mm",
          "fullcover left 0 216×303 15/15/15/0 231×333 0",
          "normalpage right 4-28/2 210×297 3/3/0/3 213×303 0",
          "3-29/2 book 9×297 at 201, 0 yes yes images/book-binding-shade-left.png",
          "29 24×6 at 170, 288 yes images/barcode-small.png",
          "spine middle 1 Titel auf dem Ruecken Leinen Weiss", "Replaces BOOK_CLASSIC_A4",
          "Its open cover 425×296 mm", "Numbers of the pages 3, 2, 1, 4-31"})
        QVERIFY2(lines.contains(line), line);
}

void PxCatalogueTest::showsSizesAsTheyAreInJson()
{
    const QJsonObject cup = run({"show", "CUP2", "--json"}).json;
    QCOMPARE(cup["format"].toInt(), 1);
    QCOMPARE(cup["lengthUnit"].toString(), QString("tenths of a millimetre"));
    QCOMPARE(cup["sizes"]["safetyMargins"]["left"].toInt(), 30);
    QCOMPARE(cup["pageKinds"][0]["totalSize"]["width"].toInt(), 2040);
    QCOMPARE(cup["surroundings"][0]["rect"]["height"].toInt(), 950);
    QCOMPARE(cup["variants"]["identifiers"].toArray().size(), 5);
    QCOMPARE(cup["barcodes"].toArray().size(), 0);
    QVERIFY(cup.contains("barcodes"));
    QCOMPARE(cup["legacy"]["replacedPage"]["width"].toInt(), 1950);
    const QJsonObject dibond = run({"show", "DIBOND_30X20", "--json"}).json;
    QCOMPARE(dibond["classification"]["sizeInch"].toString(), QString("12x8"));
    const QJsonObject calendar = run({"show", "CALENDAR_DESK_A5", "--json"}).json;
    QCOMPARE(calendar["rotationRedirects"][1]["target"].toInt(), -1);
    QCOMPARE(calendar["pages"]["isSimplex"].toBool(), false);
}

void PxCatalogueTest::showsAsManyPagesAsAsked_data()
{
    QTest::addColumn<QString>("pages");
    QTest::addColumn<bool>("isOffered");
    QTest::addColumn<QJsonArray>("nearest");
    QTest::addColumn<int>("spine");
    QTest::newRow("smallest") << "26" << true << QJsonArray() << 94;
    QTest::newRow("largest") << "154" << true << QJsonArray() << 203;
    QTest::newRow("between two steps") << "27" << false << QJsonArray{26, 28} << 0;
    QTest::newRow("below all") << "1" << false << QJsonArray{26} << 0;
    QTest::newRow("above all") << "9999" << false << QJsonArray{154} << 0;
}

void PxCatalogueTest::showsAsManyPagesAsAsked()
{
    QFETCH(QString, pages);
    QFETCH(QJsonArray, nearest);
    const QJsonObject json = run({"show", "BOOK_A4_PORTRAIT", "--pages", pages, "--json"}).json;
    QCOMPARE(json["pages"]["pageCount"].toInt(), pages.toInt());
    QCOMPARE(json["pages"]["printedPages"].toInt(), pages.toInt() + 5);
    QTEST(json["pages"]["isPageCountOffered"].toBool(), "isOffered");
    QCOMPARE(json["pages"]["nearestPageCounts"].toArray(), nearest);
    QTEST(json["spine"]["width"].toInt(), "spine");
}

void PxCatalogueTest::showsLegacyProducts()
{
    const Run run = ::run({"show", "BOOK_CLASSIC_A4", "--json"});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.json["legacy"]["replacedBy"].toString(), QString("BOOK_A4_PORTRAIT"));
    QCOMPARE(run.json["product"]["isOffered"].toBool(), false);
    QCOMPARE(run.json["pages"]["pageCounts"]["increment"].toInt(), 4);
    QCOMPARE(run.json["pages"]["pageCount"].toInt(), 26);
    QCOMPARE(run.json["pageKinds"][1]["usableSize"]["width"].toInt(), 90);
}

void PxCatalogueTest::findsCompatibleProducts_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("names");
    const QString book = "BOOK_A4_PORTRAIT";
    QTest::newRow("by what always counts")
        << QStringList{book} << 0
        << QStringList{book + "_GLOSSY", book + "_PHOTO", book + "_SOFT", "BOOK_XXL_PORTRAIT"};
    QTest::newRow("by one criterion")
        << QStringList{book, "--criterion", "paper"} << 0 << QStringList{book + "_SOFT"};
    QTest::newRow("by two, none is left")
        << QStringList{book, "--criterion", "binding, paper"} << 1 << QStringList();
}

void PxCatalogueTest::findsCompatibleProducts()
{
    QFETCH(QStringList, arguments);
    const Run run = ::run(QStringList{"compatible", "--json"} + arguments);
    QTEST(run.status, "status");
    QTEST(namesOf(run.json), "names");
    QCOMPARE(run.json["query"]["product"].toString(), QString("BOOK_A4_PORTRAIT"));
    QCOMPARE(run.errors.size(), run.status);
}

void PxCatalogueTest::fitsTheTerminal_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("columns");
    for (int columns : {1, 30, 80, 100})
        QTest::addRow("list, %d columns", columns) << QStringList{"list"} << columns;
    QTest::newRow("show") << QStringList{"show", "BOOK_A4_PORTRAIT"} << 50;
}

void PxCatalogueTest::fitsTheTerminal()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, columns);
    const Run fitted = run(arguments, columns);
    for (const QString &line : fitted.output)
        QVERIFY2(line.size() <= columns, qPrintable(line));
    QCOMPARE(fitted.output.size(), run(arguments).output.size());
    // The names are what one copies from the list, so that other texts are shortened first.
    if (columns >= 30)
        QVERIFY(fitted.output.join(' ').contains("BOOK_A4_PORTRAIT"));
}

void PxCatalogueTest::saysWhatIsWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("error");
    const QString help = " (\"pxcatalogue --help\" explains everything)";
    const QString list = " (\"pxcatalogue list\" shows all)";
    QTest::newRow("mistyped product")
        << QStringList{"show", "BOK_A4"} << 1
        << "no product \"BOK_A4\": did you mean BOOK_A4_PORTRAIT, BOOK_A4_LANDSCAPE, "
           "BOOK_A4_PORTRAIT_SOFT?" +
               list;
    QTest::newRow("part of a product") << QStringList{"show", "collage"} << 1
                                       << "no product \"collage\": did you mean "
                                          "DEKO_COLLAGE_40X30?" +
                                              list;
    QTest::newRow("nothing like it, and no escape sequence gets through")
        << QStringList{"show", "\x1b[31mXYZZY"} << 1 << "no product \"\uFFFD[31mXYZZY\"" + list;
    QTest::newRow("compatible with a legacy product")
        << QStringList{"compatible", "CUP1"} << 1
        << "no product \"CUP1\" any more: CUP2 replaces it" + list;
    QTest::newRow("no command") << QStringList() << 2
                                << "a command is missing: use list, show or compatible" + help;
    QTest::newRow("unknown command")
        << QStringList{"lst"} << 2
        << "unknown command \"lst\": use list, show or compatible" + help;
    QTest::newRow("no product") << QStringList{"show"} << 2
                                << "show needs the name of a product" + help;
    QTest::newRow("two products") << QStringList{"show", "CUP2", "PDT1"} << 2
                                  << "\"PDT1\" is one argument too many" + help;
    QTest::newRow("option of another command")
        << QStringList{"list", "--pages", "26"} << 2 << "Unknown option 'pages'." + help;
    for (const char *pages : {"0", "10000", "x", "99999999999"})
        QTest::addRow("%s pages", pages)
            << QStringList{"show", "CUP2", "--pages", pages} << 2
            << QString("--pages needs a number from 1 to 9999, not \"%1\"").arg(pages) + help;
    QTest::newRow("unknown class")
        << QStringList{"list", "--class", "book,buch"} << 2
        << "--class does not know \"buch\": use book, calendar, gift, card, deko, print" + help;
    QTest::newRow("empty value") << QStringList{"list", "--products", ""} << 2
                                 << "--products needs a value" + help;
    QTest::newRow("no such directory") << QStringList{"list", "--legacy", "/no/such"} << 2
                                       << "the directory \"/no/such\" does not exist";
    QTest::newRow("a file as directory")
        << QStringList{"list", "--user-defaults", PX_CATALOGUE_PROGRAM} << 2
        << "the directory \"" PX_CATALOGUE_PROGRAM "\" is no directory";
}

void PxCatalogueTest::saysWhatIsWrong()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const Run run = ::run(arguments);
    QTEST(run.status, "status");
    QCOMPARE(run.errors, QStringList{"pxcatalogue: " + error});
    QCOMPARE(run.output, QStringList());
}

void PxCatalogueTest::survivesBrokenProductFiles()
{
    const ProductDirectory directory(
        {"<p><product name='CUP2'><usablesize width='1' height='1'/></p>",
         "<p><product name='PDT1' binding='GIFT'/></p>",
         "<p><product name='CB6' numOfNormalPages='2000000000'><pages>normalpages</pages>"
         "<usablesize width='2147483647' height='5'/>"
         "<defaults><defaults pageType='normalpage' layout='a&#10;b&#x9b;1m'/></defaults>"
         "</product></p>",
         "<p><product name='BOOK_MINI'><usablesize width='10' height='20'/></product></p>"});
    const QStringList products{"--products", directory.path()};
    const Run list = run(QStringList{"list"} + products);
    QCOMPARE(list.status, 0);
    QCOMPARE(list.output.size(), 4);
    QCOMPARE(list.output[1].simplified(), QString("BOOK_MINI book 1×2 GIFT Digitaldruck portrait "
                                                  "yes"));
    QVERIFY(list.output[2].startsWith("CB6 "));
    QCOMPARE(list.output[3].simplified(), QString("PDT1 gift GIFT Digitaldruck 1 no"));
    const QString file = directory.filePath("product1.xml");
    QCOMPARE(list.errors.size(), 2);
    QVERIFY(list.errors[0].startsWith("pxcatalogue: warning: "));
    QVERIFY(list.errors[0].endsWith("could not open \"" + file + '"'));
    QVERIFY(list.errors[1].startsWith("pxcatalogue: warning: the reason: " + file + ":1:"));

    const Run block = run(QStringList{"show", "CB6"} + products);
    QCOMPARE(block.status, 0);
    QVERIFY(block.errors.contains(
        "pxcatalogue: warning: 2000000000 pages are too many to show: 9999 are shown"));
    QVERIFY(block.output.join('\n').contains("a\uFFFDb\uFFFD1m"));
    QVERIFY(block.output.join('\n').contains("214748364.7×0.5 mm"));

    const QJsonObject book = run(QStringList{"show", "BOOK_MINI", "--json"} + products).json;
    QVERIFY(book["pages"]["pageCounts"].isNull());
    QCOMPARE(book["pages"]["pageCount"].toInt(), 1);
    QCOMPARE(book["pages"]["isPageCountOffered"].toBool(), false);
    QCOMPARE(book["pages"]["nearestPageCounts"].toArray(), QJsonArray());
}

void PxCatalogueTest::showsTemplatesOfTheGivenUser()
{
    const QStringList show{"show", "BOOK_A4_PORTRAIT", "--json"};
    const auto normalPage = [](const Run &run) { return run.json["templates"][4]["layout"]; };
    QCOMPARE(normalPage(run(show)).toString(), QString("1 Bild mit Rand"));
    const QTemporaryDir empty;
    QCOMPARE(normalPage(run(show + QStringList{"--user-defaults", empty.path()})).toString(),
             QString("2 Bilder uebereinander"));
}

void PxCatalogueTest::keepsTheLogOffTheOutput()
{
    const ProductDirectory directory({"<p><product name='CUP2' binding='TASSE'>"
                                      "<usablesize width='1' height='1'/></product></p>"});
    const QStringList list{"list", "--json", "--products", directory.path()};
    const Run quiet = run(list);
    const Run verbose = run(list + QStringList{"--verbose"});
    QCOMPARE(quiet.errors, QStringList());
    QVERIFY(verbose.errors.value(0).startsWith("pxcatalogue: debug: undecodable: "));
    QCOMPARE(verbose.output, quiet.output);
    QCOMPARE(namesOf(quiet.json), QStringList{"CUP2"});
}

QTEST_GUILESS_MAIN(PxCatalogueTest)
#include "PxCatalogueTest.moc"
