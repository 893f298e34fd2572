#include "PxProgramRun.h"
#include "PxSampleCopy.h"

#include <check/source/PxCheckedFile.h>
#include <format/PxFormat.h>
#include <format/PxOriginRows.h>

#include <QDir>
#include <QJsonArray>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <iterator>

/** "show --origin": every value has an origin, and changes only with what its origin names. */
class PxOriginTest : public QObject
{
    Q_OBJECT

private slots:
    void saysAllOfAnOrigin();
    void formulasGiveTheirValues();
    void fitsTheTerminalAndIsWholeElsewhere();
    void everyValueHasAnOrigin();
    void valuesChangeWithTheirOrigins_data();
    void valuesChangeWithTheirOrigins();
};

namespace {

#ifdef NDEBUG
constexpr int everyNth = 1;
#else
constexpr int everyNth = 10; // of ten questions or edits only one, which takes long enough
#endif

QJsonObject show(const PxSampleCopy &sample, const QString &arguments)
{
    return PxProgramRun(PX_CATALOGUE_PROGRAM, ("show " + arguments + " --json").split(' ') +
                                                  QStringList{"--resources", sample.path()})
        .json();
}

QJsonValue valueAt(const QJsonValue &output, const QString &pointer)
{
    QJsonValue value = output;
    for (const QString &step : pointer.split('/').mid(1))
        value = value.isArray() ? value.toArray().at(step.toInt()) : value[step];
    return value;
}

/** What a value is compared by: of a table the number of its rows, of a row nothing. */
QJsonValue comparable(const QJsonObject &output, const QString &pointer)
{
    const QJsonValue value = valueAt(output, pointer);
    const QJsonArray array = value.toArray();
    if (!array.isEmpty() && array[0].isObject())
        return array.size();
    return PxOriginRows::patternOf(pointer).endsWith("/*") ? QJsonValue() : value;
}

bool isChanged(const QJsonObject &before, const QJsonObject &after, const QString &pointer)
{
    // A part of a value that is null has not changed by itself.
    const QString around = pointer.section('/', 0, -2);
    const bool isPart = valueAt(before, around).isNull() || valueAt(after, around).isNull();
    return !isPart && comparable(before, pointer) != comparable(after, pointer);
}

void addPointers(const QJsonValue &value, const QString &pointer, QStringList *pointers)
{
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        addPointers(*member, pointer + '/' + member.key(), pointers);
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i)
        addPointers(array[i], pointer + '/' + QString::number(i), pointers);
    if (object.isEmpty() && array.isEmpty())
        pointers->append(pointer);
}

/** The pointer of the origin of a value: its own or one around it; empty if there is none. */
QString ownerOf(QString pointer, const QJsonObject &origins)
{
    while (!pointer.isEmpty() && !origins.contains(pointer))
        pointer.truncate(pointer.lastIndexOf('/'));
    return pointer;
}

/** All that an origin names, through the other values, too. */
QSet<QString> namedBy(const QJsonObject &origins, const QString &pointer)
{
    QSet<QString> named;
    QStringList left{pointer};
    while (!left.isEmpty()) {
        const QJsonObject origin = origins[ownerOf(left.takeFirst(), origins)].toObject();
        QStringList inputs;
        for (const auto &input : origin["from"].toArray())
            inputs.append(input.toString());
        if (!origin["line"].isNull())
            inputs.append(QString("%1:%2:%3")
                              .arg(origin["path"].toString())
                              .arg(origin["line"].toInt())
                              .arg(origin["column"].toInt()));
        for (const QString &input : inputs) {
            if (!named.contains(input) && input.startsWith('/'))
                left.append(input);
            named.insert(input);
        }
    }
    return named;
}

/** A change of a file. */
struct Edit
{
    QStringList places; ///< of what is changed, and of the elements around it
    bool isNew;         ///< adds an attribute
    bool isRemoval;     ///< takes one away
    QString what;
    QString text; ///< of the whole file
};

QStringList valuesOf(const PxAttributeRow &row, const QString &old)
{
    switch (row.type) {
    case PxValueType::Integer:
    case PxValueType::Length:
    case PxValueType::RectanglePart:
        return {QString::number(old.toInt() + 2), "9999", "-1", "0", "x"};
    case PxValueType::Boolean:
        return {"true", "false", "x"};
    case PxValueType::Keyword:
    case PxValueType::KeywordList:
    case PxValueType::OneKeyword:
        return PxFormat::mainKeywordNames(row.keywords).mid(0, 14) + QStringList{"x"};
    case PxValueType::PageRange:
        return {"2", "4-6", "x"};
    case PxValueType::DateTime:
        return {"202001010000"};
    case PxValueType::ProductName:
        return {"BOOK_CLASSIC_SQUARE", "CUP2", old.toLower()};
    default:
        return {"x,y", "", "hochzeit", "images/barcode.png", old.toLower()};
    }
}

QStringList textsOf(const PxElementRow &row)
{
    switch (row.text) {
    case PxTextKind::NumberList:
        return {"5,6"};
    case PxTextKind::PageTypes:
        return {"normalpages", "normalpage", "fullcover,spine,normalpages,normalpage",
                "spine,fullcover,fullcover"};
    case PxTextKind::ProductName:
        return {"CUP2", "BOOK_A4_PORTRAIT"};
    case PxTextKind::Text:
        return {"x"};
    default:
        return {};
    }
}

/**
 * Edits of a file, or of what is in its element with this id or name. Exact ones change in many
 * ways what is there, the others also add what is not.
 */
QVector<Edit> editsOf(const PxSampleCopy &sample, const QString &name, PxFileKind kind,
                      const QString &only, bool isExact)
{
    const PxCheckedFile file(sample.filePath(name));
    const QString text = file.source().text();
    const auto placeOf = [&](int index) {
        const PxPlace place = file.place({index, index});
        return QString("%1:%2:%3").arg(name).arg(place.line).arg(place.column);
    };
    // More would only take time.
    constexpr int elements = 3; // that are equal
    const int values = isExact ? 20 : 2;
    QMap<QString, int> countOf;
    QVector<Edit> edits;
    file.source().forEachElement([&](const PxSourceElement &element) {
        QStringList path;
        QStringList around;
        bool isMeant = only.isEmpty();
        for (const PxSourceElement *e = &element; e->parent; e = e->parent) {
            path.prepend(e->name);
            around.append(placeOf(e->nameRange.begin));
            isMeant = isMeant || e->value("id") == only || e->value("name") == only;
        }
        const PxElementRow *row = PxFormat::find(kind, path.join('/'));
        if (!row || !isMeant || path.isEmpty() || ++countOf[path.join('/')] > elements)
            return;
        const auto add = [&](const QStringList &places, const PxSourceRange &range,
                             const QString &part, const QString &what) {
            const bool isNew = range.begin == range.end;
            edits.append({places, isNew, part.isNull(), path.join('/') + what + '=' + part,
                          text.left(range.begin) + part + text.mid(range.end)});
        };
        const int behind = element.nameRange.end;
        for (const PxAttributeRow &attribute : row->attributes) {
            const PxSourceAttribute *own = element.attribute(attribute.name);
            const QString what = QString("@") + attribute.name;
            const QStringList places =
                QStringList{placeOf(own ? own->nameRange.begin : behind + 1)} + around;
            if (own)
                add(places, {own->nameRange.begin, own->valueRange.end + 1}, QString(), what);
            else if (isExact || countOf[path.join('/')] > 1)
                continue;
            for (const QString &value : valuesOf(attribute, own ? own->value : "").mid(0, values)) {
                if (own && own->value == value)
                    continue;
                const QString all = QString("%1=\"%2\"").arg(attribute.name, value);
                if (own)
                    add(places, {own->nameRange.begin, own->valueRange.end + 1}, all, what);
                else
                    add(places, {behind, behind}, ' ' + all, what);
            }
        }
        for (const QString &value : textsOf(*row))
            add(around, element.textRange(), value, "");
    });
    return edits;
}

/** Values that something decides only together with something else. */
constexpr struct
{
    const char *pattern;
    const char *attribute;
    const char *reason;
} exceptions[] = {
    {"/design/pointSize", "product/usablesize@",
     "the size counts if the size class has no type size"},
    {"/pages/nearestPageCounts", "product/usablesize@",
     "without a size no page count is offered, so none is the nearest, as if this one was offered"},
};

bool isException(const QString &pattern, const QString &attribute)
{
    return std::any_of(std::begin(exceptions), std::end(exceptions), [&](const auto &row) {
        return pattern == QLatin1String(row.pattern) &&
               attribute.startsWith(QLatin1String(row.attribute));
    });
}

/** What changes although its origin names nothing that the edit changes. */
QStringList unnamedChanges(const QJsonObject &before, const QJsonObject &after, const Edit &edit)
{
    const QJsonObject origins = (edit.isNew ? after : before)["origins"].toObject();
    const QSet<QString> places(edit.places.begin(), edit.places.end());
    QStringList wrong;
    for (const QString &pointer : origins.keys()) {
        if (isChanged(before, after, pointer) && !namedBy(origins, pointer).intersects(places))
            wrong.append(edit.what + " changes " + pointer);
    }
    return wrong;
}

/** What is no default although its origin says so, as it changes when the attribute is missing. */
QStringList wrongDefaults(const QJsonObject &absent, const QJsonObject &after, const Edit &edit)
{
    const QJsonObject origins = after["origins"].toObject();
    QStringList wrong;
    for (auto origin = origins.begin(); origin != origins.end(); ++origin) {
        if (origin.value()["kind"] == "default" && origin.value()["from"].toArray().isEmpty() &&
            isChanged(absent, after, origin.key()))
            wrong.append(edit.what + " is no default of " + origin.key());
    }
    return wrong;
}

/** What the formulas in a rule give, for example "page 2100 (…) + 70 (…)"; empty without one. */
QVector<double> resultsOf(QString rule)
{
    static const QRegularExpression place(" \\([^()]+:[0-9]+:[0-9]+\\)");
    static const QRegularExpression start("^(page|normal pages|spine) (?=[-+×0-9 ])");
    QVector<double> results;
    for (QString formula : rule.remove(place).split(" by ")) {
        if (!formula.contains(start) || formula.contains(',')) // "page 3, from the front"
            return {};
        const QStringList parts = formula.remove(start).split(' ');
        double result = parts[0].isEmpty() ? qQNaN() : parts[0].toInt();
        for (int i = 1; i < parts.size(); i += 2) {
            const double number = parts.value(i + 1).isEmpty() ? qQNaN() : parts[i + 1].toInt();
            result = parts[i] == "+"   ? result + number
                     : parts[i] == "-" ? result - number
                                       : result * number;
        }
        results.append(result);
    }
    return results;
}

/** Leaves few files and elements; what is left has an effect each. */
void prepare(const PxSampleCopy &sample, const QString &file)
{
    // What tells nothing more would only take time.
    for (const QString &other : QDir(sample.filePath("products")).entryList({"*.xml"})) {
        if (!QRegularExpression("book_a4_portrait(_glossy)?|mini|cup2|calendar_wall|card_folded")
                 .match(other)
                 .hasMatch())
            QFile::remove(sample.filePath("products/" + other));
    }
    QString text = sample.read(file);
    if (file.contains("mini")) {
        QFile all(PX_TEST_DATA_DIRECTORY "/distinct-values.xml");
        QVERIFY(all.open(QIODevice::ReadOnly));
        text = QString::fromUtf8(all.readAll()).replace("PROBEBOOK", "BOOK_MINI");
        sample.write(file, text);
    }
    text.remove(QRegularExpression("      <spine pages=\"(3[2-57-9]|[4-9].|1..)\".*\n"));
    // The second and third surrounding in a list of their own.
    const QString right = "<surrounding type=\"BOOK\" pageType=\"normalpage,emptypage\"";
    text.insert(text.indexOf(right), "</surroundings><surroundings>");
    // So that counting from the front there is no such page.
    text.replace("pageNr=\"2\" reverseOrder", "pageNr=\"31\" reverseOrder");
    text.replace("110\" pageNr=\"0\"", "110\" pageNr=\"5\"");
    sample.write(file, text);
}

} // namespace

void PxOriginTest::saysAllOfAnOrigin()
{
    const PxSampleCopy sample;
    const QJsonObject origins =
        show(sample, "BOOK_A4_PORTRAIT --pages 28 --theme hochzeit --origin")["origins"].toObject();
    const QString file = "products/book_a4_portrait.xml";
    QCOMPARE(origins["/spine/width"].toObject(),
             (QJsonObject{
                 {"kind", "computed"},
                 {"path", file},
                 {"line", 71},
                 {"column", 25},
                 {"from", QJsonArray{file + ":71:25", file + ":71:14", "/pages/pageCount",
                                     "/product/class", file + ":70:25", file + ":69:6"}},
                 {"rule", "spine 76 (" + file + ":71:25) + 20"},
             }));
    const auto kindOf = [&](const char *pointer) {
        return origins[QLatin1String(pointer)].toObject()["kind"].toString();
    };
    QCOMPARE(kindOf("/product/binding"), QString("file"));
    QCOMPARE(kindOf("/product/hasHook"), QString("default"));
    QCOMPARE(kindOf("/templates/3/layout"), QString("default"));
    QCOMPARE(kindOf("/theme/expiryDay"), QString("theme"));
    QCOMPARE(kindOf("/theme/isExpired"), QString("clock"));
    QCOMPARE(kindOf("/pages/pageCount"), QString("question"));
    QCOMPARE(kindOf("/product/shortName"), QString("productTypes"));

    // Of a product without a size no pointer leads to its width.
    sample.replace("products/cup2.xml", "<usablesize", "<size");
    const QJsonObject cup = show(sample, "CUP2 --origin");
    const QJsonObject ofCup = cup["origins"].toObject();
    for (auto origin = ofCup.begin(); origin != ofCup.end(); ++origin) {
        QStringList pointers{origin.key()};
        for (const auto &part : origin.value()["from"].toArray()) {
            if (part.toString().startsWith('/'))
                pointers.append(part.toString());
        }
        for (const QString &pointer : qAsConst(pointers))
            QVERIFY2(!valueAt(cup, pointer).isUndefined(), qPrintable(pointer));
    }

    // Directories elsewhere; files in the catalogue are named from there.
    QVERIFY(QDir(sample.path()).rename("products", "other") &&
            QDir(sample.path()).rename("defaults", "own") &&
            QDir(sample.path()).rename("themes", "designs"));
    const QString other = "CARD_FOLDED_A6 --origin --products %1/other --user-defaults %1/own";
    const QJsonObject moved = show(sample, other.arg(sample.path()))["origins"].toObject();
    QCOMPARE(moved["/product/binding"].toObject()["path"],
             QJsonValue(sample.filePath("other/card_folded_a6.xml")));
    const QJsonObject background = moved["/templates/0/background"].toObject();
    QCOMPARE(background["kind"], QJsonValue("userDefaults"));
    QCOMPARE(background["path"], QJsonValue(sample.filePath("own/CARD_FOLDED_A6.xml")));
    // A rule is followed by its places, also by those that begin with "/".
    const PxProgramRun run(PX_CATALOGUE_PROGRAM,
                           {"show", "CUP2", "--resources", sample.path(), "--products",
                            sample.filePath("other"), "--themes", sample.filePath("designs"),
                            "--theme", "hochzeit", "--origin"});
    const QString expired = "(" + sample.filePath("designs/grundthemen.xml:");
    QVERIFY(run.output().filter("whether this is in the past").join(' ').contains(expired));
}

/** A formula in numbers gives its value, also if some of the numbers are missing. */
void PxOriginTest::formulasGiveTheirValues()
{
    const PxSampleCopy sample;
    const auto edit = [&](const char *file, const QString &pattern, const char *text) {
        sample.write(file, sample.read(file).replace(QRegularExpression(pattern), text));
    };
    edit("products/book_a4_portrait.xml", "<usablesize width=\"[0-9]+\"", "<usablesize");
    edit("products/book_mini.xml", "coverextrahorizontal=\"[0-9]+\"", "coverextrahorizontal=\"\"");
    edit("products/cup2.xml", "<usablesize[^>]*>", "");
    edit("products/card_folded_a6.xml", "height=\"[0-9]+\"", "height=\"x\"");
    int count = 0;
    for (const QString &name :
         PxProgramRun(PX_CATALOGUE_PROGRAM, {"list", "--json", "--resources", sample.path()})
             .jsonColumn("products", "name")) {
        const QJsonObject output = show(sample, name + " --origin");
        const QJsonObject origins = output["origins"].toObject();
        for (const QString &pointer : origins.keys()) {
            const QString rule = origins[pointer]["rule"].toString();
            const QJsonValue value = valueAt(output, pointer);
            const QVector<double> results = resultsOf(rule);
            if (results.isEmpty() || value.isUndefined() || value.isNull())
                continue;
            const QString what = QString("%1 %2: %3").arg(name, pointer, rule);
            const QVector<double> expected =
                value.isDouble() ? QVector<double>{value.toDouble()}
                : pointer == "/sizes/cover"
                    ? QVector<double>{value["width"].toDouble(), value["height"].toDouble()}
                    : QVector<double>{value["minimum"].toDouble()};
            QVERIFY2(results == expected, qPrintable(what));
            ++count;
        }
    }
    QVERIFY(count > 150);
}

void PxOriginTest::fitsTheTerminalAndIsWholeElsewhere()
{
    for (const int columns : {1, 40, 80, 0}) {
        const PxProgramRun run(PX_CATALOGUE_PROGRAM,
                               {"show", "BOOK_A4_PORTRAIT", "--theme", "hochzeit", "--origin"},
                               {{"COLUMNS", columns > 0 ? QString::number(columns) : ""}});
        QVERIFY(run.output().size() > 100);
        for (const QString &line : run.output())
            QVERIFY2(columns > 0 ? line.size() <= columns : !line.contains(QChar(0x2026)),
                     qPrintable(line));
    }
}

void PxOriginTest::everyValueHasAnOrigin()
{
    const PxSampleCopy sample;
    const PxProgramRun list(PX_CATALOGUE_PROGRAM, {"list", "--json", "--resources", sample.path()});
    const PxProgramRun legacy(PX_CATALOGUE_PROGRAM,
                              {"list", "--earlier", "--json", "--resources", sample.path()});
    const QStringList themes =
        PxProgramRun(PX_CATALOGUE_PROGRAM, {"themes", "--json", "--resources", sample.path()})
            .jsonColumn("themes", "id");
    QStringList questions = legacy.jsonColumn("products", "name");
    for (const QString &name : list.jsonColumn("products", "name")) {
        questions.append(name);
        for (const QString &theme : themes)
            questions.append(name + " --theme " + theme);
    }
    QVERIFY(questions.size() > 600);
    int count = 0;
    for (const QString &question : qAsConst(questions)) {
        if (++count % everyNth != 0)
            continue;
        QJsonObject output = show(sample, question + " --origin");
        const QJsonObject origins = output.take("origins").toObject();
        QStringList pointers;
        addPointers(output, QString(), &pointers);
        QVERIFY(pointers.size() > 80);
        for (const QString &pointer : qAsConst(pointers))
            QVERIFY2(!ownerOf(pointer, origins).isEmpty(), qPrintable(question + pointer));
        for (auto origin = origins.begin(); origin != origins.end(); ++origin) {
            QVERIFY2(!valueAt(output, origin.key()).isUndefined() ||
                         valueAt(output, origin.key().section('/', 0, -2)).isNull(),
                     qPrintable(question + origin.key()));
            for (const auto &from : origin.value()["from"].toArray())
                QVERIFY2(!from.toString().startsWith('/') ||
                             !ownerOf(from.toString(), origins).isEmpty(),
                         qPrintable(question + origin.key() + from.toString()));
        }
    }
}

void PxOriginTest::valuesChangeWithTheirOrigins_data()
{
    QTest::addColumn<QString>("question");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("only");
    QTest::addColumn<bool>("isExact"); // all that an origin names must have an effect
    const auto add = [](const char *name, const char *question, const char *file, PxFileKind kind,
                        const char *only = "", bool isExact = true) {
        QTest::newRow(name) << question << file << int(kind) << only << isExact;
    };
    const char *book = "BOOK_A4_PORTRAIT --pages 26";
    const char *wedding = "BOOK_A4_PORTRAIT --pages 26 --theme hochzeit";
    add("book", wedding, "products/book_a4_portrait.xml", PxFileKind::Product);
    add("distinct values", "BOOK_MINI --pages 28", "products/book_mini.xml", PxFileKind::Product,
        "", false);
    add("replaced product", book, "products/legacy/book_classic_a4.xml", PxFileKind::Product);
    add("successor", "CUP1", "products/cup2.xml", PxFileKind::Product);
    add("its user defaults", book, "defaults/BOOK_A4_PORTRAIT.xml", PxFileKind::UserDefaults);
    add("its theme", wedding, "themes/grundthemen.xml", PxFileKind::Theme, "hochzeit");
    add("its type", book, "producttypes.xml", PxFileKind::ProductTypes, "BOOK_A4_PORTRAIT");
    add("calendar", "CALENDAR_WALL_A4", "products/calendar_wall_a4.xml", PxFileKind::Product, "",
        false);
    add("card", "CARD_FOLDED_A6", "products/card_folded_a6.xml", PxFileKind::Product, "", false);
}

void PxOriginTest::valuesChangeWithTheirOrigins()
{
    QFETCH(QString, question);
    QFETCH(QString, file);
    QFETCH(int, kind);
    QFETCH(QString, only);
    QFETCH(bool, isExact);
    const PxSampleCopy sample;
    prepare(sample, file);
    const QJsonObject before = show(sample, question + " --origin");
    const QJsonObject origins = before["origins"].toObject();
    QStringList wrong;
    QJsonObject absent;
    int count = 0;
    QMap<QString, QString> edited; // what, by its place
    QSet<QString> changing;        // pattern and place
    for (const Edit &edit : editsOf(sample, file, PxFileKind(kind), only, isExact)) {
        if (++count % everyNth != 0)
            continue;
        sample.write(file, edit.text);
        const QJsonObject after = show(sample, question + " --origin");
        if (edit.isNew || edit.isRemoval)
            absent = edit.isNew ? before : after;
        if (after.isEmpty())
            continue; // the product is gone
        wrong += unnamedChanges(before, after, edit);
        if (everyNth == 1 && edit.what.contains('@') && !absent.isEmpty())
            wrong += wrongDefaults(absent, after, edit);
        if (!edit.isNew)
            edited[edit.places[0]] = edit.what;
        for (const QString &pointer : origins.keys()) {
            for (const QString &place : edit.places) {
                if (isChanged(before, after, pointer))
                    changing.insert(PxOriginRows::patternOf(pointer) + ' ' + place);
            }
        }
    }
    for (const QString &pointer : origins.keys()) {
        const QString pattern = PxOriginRows::patternOf(pointer);
        for (const QString &place : namedBy(origins, pointer)) {
            if (isExact && everyNth == 1 && edited.contains(place) &&
                !changing.contains(pattern + ' ' + place) && !isException(pattern, edited[place]))
                wrong.append(edited[place] + " does not change " + pattern);
        }
    }
    wrong.removeDuplicates();
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

QTEST_GUILESS_MAIN(PxOriginTest)
#include "PxOriginTest.moc"
