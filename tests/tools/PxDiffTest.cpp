#include "PxProgramRun.h"
#include "PxSampleCopy.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/** What "diff" says of catalogues of which it is known how they differ. */
class PxDiffTest : public QObject
{
    Q_OBJECT

private slots:
    void namesEachChangeOnce();
    void placesOnlyThemesThatAreToldApart();
    void findsNothingInTheSame_data();
    void findsNothingInTheSame();
    void refusesWhatIsNoExport_data();
    void refusesWhatIsNoExport();
    void joinsPageCountsThatChangeAlike();
    void comparesEveryExportedValue();
};

namespace {

PxProgramRun run(const QStringList &words, const QMap<QString, QString> &environment = {})
{
    return PxProgramRun(PX_CATALOGUE_PROGRAM, words, environment);
}

QString textOf(const QJsonValue &value)
{
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(json.mid(1, json.size() - 2)).remove('"');
}

/** Each difference in a line: "products BOOK_MINI /pages/offered: 18-42/4 -> 18-38/4". */
QStringList differencesIn(const QJsonObject &json)
{
    QStringList lines;
    for (const QString kind : {"products", "legacyProducts", "themes"}) {
        const QJsonObject diff = json[kind].toObject();
        for (const char *list : {"added", "removed", "renamed"}) {
            for (const auto &name : diff[QLatin1String(list)].toArray())
                lines.append(QString("%1 %2 %3").arg(kind, list, textOf(name)));
        }
        for (const auto &object : diff["changed"].toArray()) {
            for (const auto &value : object.toObject()["changes"].toArray()) {
                const QJsonObject change = value.toObject();
                const QString pageCounts = change["pageCounts"].toString();
                lines.append(QString("%1 %2 %3%4: %5 -> %6")
                                 .arg(kind, object.toObject()["name"].toString(),
                                      change["key"].toString(),
                                      pageCounts.isEmpty() ? "" : " for " + pageCounts,
                                      textOf(change["before"]), textOf(change["after"])));
            }
        }
    }
    return lines;
}

/** The places of all changes; "none: KEY" where there is none. */
QStringList placesIn(const QJsonObject &json)
{
    QStringList places;
    for (const QString kind : {"products", "legacyProducts", "themes"}) {
        for (const auto &object : json[kind].toObject()["changed"].toArray()) {
            for (const auto &change : object.toObject()["changes"].toArray()) {
                const QString place = change.toObject()["place"].toString();
                places.append(place.isEmpty() ? "none: " + change.toObject()["key"].toString()
                                              : place);
            }
        }
    }
    return places;
}

QStringList without(QStringList lines, const QStringList &others)
{
    for (const QString &line : others)
        lines.removeAll(line);
    return lines;
}

/** A change of a file: without an old text a new file, without a new one the end of a file. */
struct Edit
{
    const char *file;
    const char *before;
    const char *after;
    const char *difference; ///< what is said of it; lines
};

// clang-format off
constexpr Edit edits[] = {
    // Spines of some page counts; a larger page, and a cover that is larger by itself, too
    {"products/book_a4_portrait.xml", R"(<spine pages="26" width="74")", R"(<spine pages="26" width="76")", "products BOOK_A4_PORTRAIT /spine/width for 26: 94 -> 96"},
    {"products/book_a4_portrait.xml", R"(<spine pages="28" width="76")", R"(<spine pages="28" width="78")", "products BOOK_A4_PORTRAIT /spine/width for 28: 96 -> 98"},
    {"products/book_a4_landscape.xml", R"(<usablesize width="2970")", R"(<usablesize width="2990")", "products BOOK_A4_LANDSCAPE /sizes/page: {height:2100,width:2970} -> {height:2100,width:2990}"},
    {"products/book_a4_landscape.xml", R"(coverextravertical="60")", R"(coverextravertical="70")", "products BOOK_A4_LANDSCAPE /sizes/cover: {height:2160,width:3030} -> {height:2170,width:3050}"},
    // Values that would follow from others that change, too, but are written themselves
    {"products/book_a4_landscape.xml", R"(orientation="landscape")", R"(orientation="panorama")", "products BOOK_A4_LANDSCAPE /product/orientation: landscape -> panorama\nproducts BOOK_A4_LANDSCAPE /sizes/foldMargin: 121 -> 0"},
    {"products/book_xxl_portrait.xml", R"(<usablesize width="3000")", R"(<usablesize width="3100")", "products BOOK_XXL_PORTRAIT /sizes/page: {height:4000,width:3000} -> {height:4000,width:3100}"},
    {"products/book_xxl_portrait.xml", R"(foldmargin="100")", R"(foldmargin="110")", "products BOOK_XXL_PORTRAIT /sizes/foldMargin: 100 -> 110"},
    {"producttypes.xml", R"(name="PILLOW_PREMIUM" class="gift")", R"(name="PILLOW_PREMIUM" class="book")", "products PILLOW_PREMIUM /product/class: gift -> book\nproducts PILLOW_PREMIUM /design/fullBackgroundOnEachPage: true -> false"},
    {"products/pillow_premium.xml", R"(<product name="PILLOW_PREMIUM")", R"(<product name="PILLOW_PREMIUM" coverBackgroundCategories="Leinen")", "products PILLOW_PREMIUM /design/backgroundCategories: [] -> [Leinen]"},
    // Page counts, whether it is offered at all, and pages that lie otherwise
    {"products/book_mini.xml", R"(<spine pages="42" width="111" maxfontheight="72"/>)", " ", "products BOOK_MINI /pages/offered: 18-42/4 -> 18-38/4"},
    {"products/book_compact.xml", R"(<spine pages="90" width="107" maxfontheight="69"/>)", R"(<spine pages="90" width="107" maxfontheight="69"/><spine pages="92" width="110"/>)", "products BOOK_COMPACT /pages/offered: 26-90/2 -> 26-92/2"},
    {"products/gallery_30x90.xml", R"(<usablesize)", R"(<size)", "products GALLERY_30X90 /product/isOffered: true -> false"},
    {"products/calendar_desk_a5.xml", R"(horizontalPages="false")", R"(horizontalPages="true")", "products CALENDAR_DESK_A5 /pages/horizontalPages: false -> true"},
    // What the product is made of, and which earlier one it replaces
    {"products/book_square_linen.xml", R"(bleedmargin="30")", R"(bleedmargin="40")", "products BOOK_SQUARE_LINEN /sizes/bleed: {bottom:30,left:30,right:30,top:30} -> {bottom:40,left:40,right:40,top:40}"},
    {"products/book_square_linen.xml", R"(paper="indigo-matt")", R"(paper="glossy")", "products BOOK_SQUARE_LINEN /product/paper: {keyword:indigo-matt,name:Digitaldruck Premium-Matt} -> {keyword:glossy,name:Digitaldruck mit Hochglanz-Veredelung}"},
    {"products/book_xl_square.xml", R"(binding="ARTIFICIALLEATHER")", R"(binding="LEATHER")", "products BOOK_XL_SQUARE /product/binding: {keyword:ARTIFICIALLEATHER,name:Kunstleder} -> {keyword:LEATHER,name:Leder}"},
    {"products/calendar_wall_a4.xml", R"(numOfSpirals="34")", R"(numOfSpirals="36")", "products CALENDAR_WALL_A4 /product/numberOfSpiralLoops: 34 -> 36"},
    {"products/card_folded_a6.xml", R"(legacy="CARD_CLASSIC_FOLDED")", R"(legacy="CUP1")", "products CARD_FOLDED_A6 /legacy/replaces: CARD_CLASSIC_FOLDED -> CUP1"},
    // Rows of tables, one of them before the others, one for two kinds of pages
    {"products/book_xxl_portrait.xml", R"(<surroundings>)", R"(<surroundings><surrounding type="PHOTOPAPERBOOK" pageType="emptypage" image="images/new.png" x="1" y="2" width="3" height="4"/>)", "products BOOK_XXL_PORTRAIT /surroundings/1: null -> {hasBindingShade:false,image:images/new.png,paintOnTop:true,places:[{alignment:left,page:null,pageType:emptypage},{alignment:right,page:null,pageType:emptypage}],rect:{height:4,width:3,x:1,y:2},type:[photopaperbook]}"},
    {"products/book_a4_portrait.xml", R"(<extra_production_pages>)", R"(<extra_production_pages><item><target_pages>3</target_pages><pdf filename="a" type="background" layer="0"/></item>)", "products BOOK_A4_PORTRAIT /extraPages/0: null -> {file:a,layer:0,pages:[3],type:background}"},
    {"products/book_foil_small.xml", R"(x="0" y="0" width="1400")", R"(x="10" y="0" width="1400")", "products BOOK_FOIL_SMALL /surroundings/0/rect: {height:1400,width:1400,x:0,y:0} -> {height:1400,width:1400,x:10,y:0}"},
    {"products/book_foil_small.xml", R"(y="1300")", R"(y="1310")", "products BOOK_FOIL_SMALL /barcodes/0/rect: {height:60,width:240,x:540,y:1300} -> {height:60,width:240,x:540,y:1310}"},
    {"products/canvas_40x30.xml", R"(Einfarbig Weiß,Bild ganzseitig)", R"(Einfarbig Weiß,Bild quer)", "products CANVAS_40X30 /templates/0/layout: Bild ganzseitig -> Bild quer"},
    {"products/book_clamp_a4_landscape.xml", R"("Weiß,1 Bild mittig")", R"("Weiß,1 Bild oben")", "products BOOK_CLAMP_A4_LANDSCAPE /templates/3/layout: 1 Bild mittig -> 1 Bild oben"},
    {"products/book_a4_portrait.xml", R"(layout="Raster Süd")", R"(layout="Raster Nord")", "products BOOK_A4_PORTRAIT /themeTemplates/3/layout: Raster Sued -> Raster Nord"},
    {"products/book_a4_portrait.xml", R"(<contentredirect from="1" to="2"/>)", R"(<contentredirect from="5" to="2"/>)", "products BOOK_A4_PORTRAIT /contentRedirects/1/page: 1 -> 5"},
    // Product types
    {"producttypes.xml", R"(shortname="Collegeblock A5")", R"(shortname="Block A5")", "products CB6 /product/shortName: Collegeblock A5 -> Block A5"},
    // Themes
    {"themes/grundthemen.xml", R"(id="schule" producttype="gift" expiry="205008312359")", R"(id="schule" producttype="gift" expiry="205107312359")", "themes schule expiryDay: 2050-08-31 -> 2051-07-31"},
    {"themes/JAHRESZEITEN.XML", R"(<theme id="herbst")", R"(<theme id="herbst-2">)" "</theme><theme id=\"herbst\"", "themes added herbst-2"},
    {"themes/JAHRESZEITEN.XML", R"(id="winter-2022")", R"(id="winter-2023")", "themes added winter-2023\nthemes removed winter-2022"},
    // Products that come, go and get another name
    {"products/legacy/cup1.xml", R"(width="1950")", R"(width="1940")", "legacyProducts CUP1 /sizes/page: {height:950,width:1950} -> {height:950,width:1940}"},
    {"products/cb13s3.xml", "x", "", "products removed CB13S3"},
    {"producttypes.xml", R"(<producttype code="406" name="CB13S3" class="gift" shortname="Schreibhefte 3er-Set"/>)", " ", ""}, // so that a theme has it no longer
    {"producttypes.xml", R"(<!-- Calendars -->)", R"(<producttype code="9999" name="CUP3" class="gift"/>)", "products added CUP3"},
    {"products/cup3.xml", "", R"(<d><product name="CUP3" binding="GIFT" orientation="panorama"><pages>normalpage</pages><usablesize width="2000" height="950"/></product></d>)", ""},
    {"producttypes.xml", R"(name="BOOK_A4_PORTRAIT_PHOTO")", R"(name="BOOK_A4_PHOTO")", "products renamed {code:104,from:BOOK_A4_PORTRAIT_PHOTO,to:BOOK_A4_PHOTO}"},
    {"products/book_a4_portrait_photo.xml", R"(name="BOOK_A4_PORTRAIT_PHOTO")", R"(name="BOOK_A4_PHOTO")", ""},
    {"themes/grundthemen.xml", R"(<product>BOOK_A4_PORTRAIT_PHOTO</product>)", R"(<product>BOOK_A4_PHOTO</product>)", ""},
    {"products/legacy/canvas_classic_40x30.xml", "x", "", "legacyProducts removed CANVAS_CLASSIC_40X30"},
};
// clang-format on

void apply(const PxSampleCopy &copy, const Edit &edit)
{
    if (qstrlen(edit.before) == 0)
        copy.write(edit.file, QString::fromUtf8(edit.after));
    else if (qstrlen(edit.after) == 0)
        QVERIFY(QFile::remove(copy.filePath(edit.file)));
    else
        copy.replace(edit.file, QString::fromUtf8(edit.before), QString::fromUtf8(edit.after));
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n')
                                          : QStringList();
}

/** Whether the line of a place is none of the sample. */
bool isEdited(const PxSampleCopy &copy, const QString &place)
{
    const QString file = place.section(':', 0, 0);
    const QStringList lines = linesOf(copy.filePath(file));
    return !linesOf(PX_SAMPLE_DIRECTORY "/" + file)
                .contains(lines.value(place.section(':', 1, 1).toInt() - 1));
}

} // namespace

void PxDiffTest::namesEachChangeOnce()
{
    const PxSampleCopy copy;
    QStringList expected;
    for (const Edit &edit : edits) {
        apply(copy, edit);
        expected += QString::fromUtf8(edit.difference).split('\n', Qt::SkipEmptyParts);
    }
    const PxProgramRun found = run({"diff", PX_SAMPLE_DIRECTORY, copy.path(), "--json"});
    QCOMPARE(found.errors(), QStringList());
    QCOMPARE(found.status(), 1);
    const QStringList differences = differencesIn(found.json());
    QVERIFY2(without(differences, expected).isEmpty(),
             qPrintable("too much:\n" + without(differences, expected).join('\n')));
    QVERIFY2(without(expected, differences).isEmpty(),
             qPrintable("missing:\n" + without(expected, differences).join('\n')));
    QCOMPARE(differences.size(), expected.size());
    const QStringList places = placesIn(found.json());
    for (const QString &place : places)
        QVERIFY2(place.startsWith("none") || isEdited(copy, place), qPrintable(place));
    // What is lost has no place, nor what follows from several values.
    QStringList without{"/sizes/cover", "/sizes/foldMargin", "/pages/offered",
                        "/product/isOffered"};
    QCOMPARE(places.filter("none: "), without.replaceInStrings(QRegularExpression("^"), "none: "));

    // Exports have the same differences, whoever made them, but no places.
    const QString oldFile = copy.filePath("old.jsonl");
    const QString newFile = copy.filePath("new.jsonl");
    const QMap<QString, QString> elsewhere{{"LC_ALL", "C"}, {"TZ", "Pacific/Kiritimati"}};
    run({"export", "--resources", PX_SAMPLE_DIRECTORY, "--output", oldFile}, elsewhere);
    run({"export", "--resources", copy.path(), "--output", newFile});
    const PxProgramRun ofExports = run({"diff", oldFile, newFile, "--json"}, elsewhere);
    QCOMPARE(differencesIn(ofExports.json()), differences);
    QVERIFY(!ofExports.printed().contains("\"place\": \""));
}

void PxDiffTest::placesOnlyThemesThatAreToldApart()
{
    const PxSampleCopy copies[2];
    for (int i = 0; i < 2; ++i) {
        const QString day = QString("producttype='book' expiry='2050010%1'").arg(10000 * (i + 1));
        copies[i].write("themes/own.xml",
                        QString("<themes>\n<theme %1/>\n<theme id='A' %1/>\n<theme id='a' %1/>\n"
                                "<theme id='b' %1/>\n</themes>")
                            .arg(day));
        copies[i].write("themes/other.xml", "<others><theme id='b' expiry='1'/></others>");
    }
    const PxProgramRun found =
        run({"diff", copies[0].path(), copies[1].path(), "--only", "expiryDay"});
    const QString days = "    until: 2050-01-01 → 2050-01-02";
    const QStringList expected{"  theme a",         days,
                               "  theme a",         days,
                               "  theme b",         days + " (themes/own.xml:5:34)",
                               "  theme unbekannt", days + " (themes/own.xml:2:27)"};
    QCOMPARE(found.output().mid(1).join('\n'), expected.join('\n'));
}

void PxDiffTest::findsNothingInTheSame_data()
{
    QTest::addColumn<QString>("catalogues");
    for (const char *catalogues :
         {"SAMPLE SAMPLE", "SAMPLE EXPORT", "EXPORT SAMPLE", "ENGLISH EXPORT"})
        QTest::newRow(catalogues) << catalogues;
}

void PxDiffTest::findsNothingInTheSame()
{
    QFETCH(QString, catalogues);
    const QTemporaryDir directory;
    const QString german = directory.filePath("de.jsonl");
    const QString english = directory.filePath("en.jsonl");
    run({"export", "--resources", PX_SAMPLE_DIRECTORY, "--output", german});
    run({"export", "--resources", PX_SAMPLE_DIRECTORY, "--output", english, "--lang", "en"});
    catalogues.replace("SAMPLE", PX_SAMPLE_DIRECTORY);
    catalogues.replace("EXPORT", german).replace("ENGLISH", english);
    const PxProgramRun found = run(QStringList{"diff", "--json"} + catalogues.split(' '));
    QCOMPARE(found.errors(), QStringList());
    QCOMPARE(found.status(), 0);
    QCOMPARE(differencesIn(found.json()), QStringList());
}

void PxDiffTest::refusesWhatIsNoExport_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("problem");
    const QByteArray header = R"({"type":"catalogue","format":1,"lengthUnit":"tenths of a )"
                              R"(millimetre","products":2,"themes":0})"
                              "\n";
    const QByteArray product =
        R"({"type":"product","product":{"name":"A"},"pages":{"offered":"1"}})"
        "\n";
    const QByteArray manyPages = QByteArray(product).replace("\"1\"", "\"1-2000000000\"");
    // clang-format off
    const struct { const char *name; QByteArray contents; const char *problem; } rows[] = {
        {"nothing", "", "is empty"},
        {"other text", "\x1b[31m<xml>\n", "line 1: this is neither a resource directory nor"},
        {"later format", R"({"type":"catalogue","format":2})", "line 1: the export has another format"},
        {"lines are missing", header + product, "line 2: the export ends here, but 1 of type \"product\" are missing"},
        {"cut off", header + product + product.left(30), "line 3: no JSON at byte "},
        {"more lines", header + product + R"({"type":"theme","id":"a"})", "line 3: there is no type \"theme\""},
        {"product twice", header + product + product, "line 3: there is another product \"A\""},
        {"too many page counts", header + manyPages, "line 2: the page counts of \"A\" cannot be read, or are more than 100 000"},
        {"deep", header + QByteArray(100000, '['), "line 2: no JSON at byte 1025: too deeply nested document"},
        {"long", header + "{\"type\":\"" + QByteArray(17 * 1024 * 1024, 'x') + "\"}", "line 2: the line is longer than 16 MiB"},
        {"wide", header + '[' + QByteArray("[],").repeated(3 * 1024 * 1024) + "0]", "line 2: no JSON object"},
    };
    // clang-format on
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.contents << QString(row.problem);
}

void PxDiffTest::refusesWhatIsNoExport()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, problem);
    const QTemporaryDir directory;
    QFile file(directory.filePath("x.jsonl"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
    file.close();
    QElapsedTimer timer;
    timer.start();
    for (const QStringList &catalogues : {QStringList{file.fileName(), PX_SAMPLE_DIRECTORY},
                                          QStringList{PX_SAMPLE_DIRECTORY, file.fileName()}}) {
        const PxProgramRun found = run(QStringList("diff") + catalogues);
        QCOMPARE(found.status(), 2);
        QCOMPARE(found.errors().size(), 1);
        QVERIFY2(found.errors()[0].startsWith("pxcatalogue: \"" + file.fileName() + '"') &&
                     found.errors()[0].contains(problem),
                 qPrintable(found.errors()[0]));
    }
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
}

void PxDiffTest::joinsPageCountsThatChangeAlike()
{
    constexpr int most = 30000;
    const PxSampleCopy copies[2];
    for (int i = 0; i < 2; ++i) {
        QString spines;
        for (int pages = 1; pages <= most - i; ++pages) {
            const int width = pages % 1000 + (pages == 20000 ? 0 : 3 * i);
            spines += QString("<spine pages='%1' width='%2'/>").arg(pages).arg(width);
        }
        // The last page has a barcode and content in the longer product only.
        copies[i].write("products/book_mini.xml",
                        "<d><product name='BOOK_MINI' binding='SOFTCOVER'><pages>spine,normalpages"
                        "</pages><barcodes><barcode pageNr='30000' image='x' width='9' height='9'/>"
                        "</barcodes><pageswithcontent>1,30000</pageswithcontent><spines>" +
                            spines +
                            "</spines><usablesize width='900' height='1200'/></product></d>");
    }
    for (const bool isLonger : {false, true}) {
        const QStringList paths{copies[0].path(), copies[1].path()};
        const PxProgramRun found = run({"diff", paths[isLonger ? 1 : 0], paths[isLonger ? 0 : 1],
                                        "--only", "/pages,/barcodes,/spine"});
        QCOMPARE(found.status(), 1);
        const QString lines =
            found.output().join('\n').remove(QRegularExpression(" \\(products.*?\\)"));
        const QString expected =
            isLonger
                ? "    page counts: now 30000, 1-29999 → 1-30000\n"
                  "    spine for 1 to 19999 pages: 0.3 mm narrower, 2.4 to 102.2 → 2.1 to 101.9 "
                  "mm\n"
                  "    spine for 20001 to 29999 pages: 0.3 mm narrower, 2.4 to 102.2 → 2.1 to "
                  "101.9 mm"
                : "    page counts: no longer 30000, 1-30000 → 1-29999\n"
                  "    spine for 1 to 19999 pages: 0.3 mm wider, 2.1 to 101.9 → 2.4 to 102.2 mm\n"
                  "    spine for 20001 to 29999 pages: 0.3 mm wider, 2.1 to 101.9 → 2.4 to 102.2 "
                  "mm";
        QCOMPARE(lines, "What customers notice\n  BOOK_MINI\n" + expected);
    }
}

/** A value that is exported but not compared would be a change that nobody sees. */
void PxDiffTest::comparesEveryExportedValue()
{
    QFile file(PX_SOURCE_DIRECTORY "/docs/export.schema.json");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject types = QJsonDocument::fromJson(file.readAll()).object()["$defs"].toObject();
    const auto resolved = [&types](const QJsonValue &type) {
        const QString name = type["$ref"].toString().section('/', -1);
        return name.isEmpty() ? type.toObject() : types[name].toObject();
    };
    QStringList keys;
    const QJsonObject sections = types["productLine"].toObject()["properties"].toObject();
    for (const QString &section : sections.keys()) {
        const QJsonObject type = resolved(sections[section]);
        const bool isTable = type["type"] == "array";
        const QJsonObject row = isTable ? resolved(type["items"]) : type;
        for (const QString &member : row["properties"].toObject().keys())
            keys.append(QString(isTable ? "/%1/*/%2" : "/%1/%2").arg(section, member));
    }
    for (const QString &member : types["themeLine"].toObject()["properties"].toObject().keys())
        keys.append(member);
    QVERIFY(keys.size() > 90);
    // They say which product, theme or row it is.
    for (const char *identity :
         {"/product/name", "/product/isLegacy", "/pageKinds/*/pageType", "/pageKinds/*/alignment",
          "/templates/*/pageType", "/templates/*/alignment", "/themeTemplates/*/theme",
          "/themeTemplates/*/pageType", "/themeTemplates/*/alignment", "id", "type"})
        QCOMPARE(keys.removeAll(identity), 1);
    const PxProgramRun found =
        run({"diff", PX_SAMPLE_DIRECTORY, PX_SAMPLE_DIRECTORY, "--only", keys.join(',')});
    QCOMPARE(found.errors(), QStringList());
    QCOMPARE(found.status(), 0);
}

QTEST_GUILESS_MAIN(PxDiffTest)
#include "PxDiffTest.moc"
