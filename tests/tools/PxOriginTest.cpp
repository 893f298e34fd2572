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
    void everyValueHasAnOrigin();
    void valuesChangeWithTheirOrigins_data();
    void valuesChangeWithTheirOrigins();
};

namespace {

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
    bool isNew;         ///< an attribute that was not there
    QString what;
    QString text; ///< of the whole file
};

QStringList valuesOf(const PxAttributeRow &row, const QString &old)
{
    switch (row.type) {
    case PxValueType::Integer:
    case PxValueType::Length:
    case PxValueType::RectanglePart:
        return {QString::number(old.toInt() + 2), "0", "1", "-1", "9999", "x"};
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
        return {"x", "x,y", "", "hochzeit", "images/barcode.png", old.toLower()};
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

/** All edits of one file, or of the first element that has this attribute with this value. */
QVector<Edit> editsOf(const PxSampleCopy &sample, const QString &name, PxFileKind kind,
                      const QString &only)
{
    const PxCheckedFile file(sample.filePath(name));
    const QString text = file.source().text();
    const auto placeOf = [&](int index) {
        const PxPlace place = file.place({index, index});
        return QString("%1:%2:%3").arg(name).arg(place.line).arg(place.column);
    };
    constexpr int most = 4; // of equal elements more would only take time
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
        if (!row || !isMeant || path.isEmpty() || ++countOf[path.join('/')] > most)
            return;
        const auto add = [&](const QStringList &places, bool isNew, const PxSourceRange &range,
                             const QString &part, const QString &what) {
            edits.append({places, isNew, path.join('/') + what + '=' + part,
                          text.left(range.begin) + part + text.mid(range.end)});
        };
        for (const PxAttributeRow &attribute : row->attributes) {
            const PxSourceAttribute *own = element.attribute(attribute.name);
            const int behind = element.nameRange.end;
            const QStringList places{placeOf(own ? own->nameRange.begin : behind + 1)};
            const QString what = QString("@") + attribute.name;
            for (const QString &value : valuesOf(attribute, own ? own->value : QString())) {
                if (own)
                    add(places + around, false, own->valueRange, value, what);
                else if (countOf[path.join('/')] == 1)
                    add(places + around, true, {behind, behind},
                        QString(" %1=\"%2\"").arg(attribute.name, value), what);
            }
            if (own)
                add(places + around, false, {own->nameRange.begin, own->valueRange.end + 1}, "",
                    what);
        }
        for (const QString &value : textsOf(*row))
            add(around, false, element.textRange(), value, "");
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

} // namespace

void PxOriginTest::everyValueHasAnOrigin()
{
    const PxSampleCopy sample;
    const PxProgramRun list(PX_CATALOGUE_PROGRAM, {"list", "--json", "--resources", sample.path()});
    const PxProgramRun legacy(PX_CATALOGUE_PROGRAM,
                              {"list", "--earlier", "--json", "--resources", sample.path()});
    QStringList questions;
    for (const QString &name : list.jsonColumn("products", "name"))
        questions += {name, name + " --theme hochzeit", name + " --theme weihnachten --pages 7"};
    questions += legacy.jsonColumn("products", "name");
    QVERIFY(questions.size() > 140);
    for (const QString &question : qAsConst(questions)) {
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
                             !ownerOf(from.toString(), origins).isEmpty() ||
                             from.toString() == "/theme/id",
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
    add("its user defaults", book, "defaults/BOOK_A4_PORTRAIT.xml", PxFileKind::UserDefaults);
    add("its theme", wedding, "themes/grundthemen.xml", PxFileKind::Theme, "hochzeit");
    add("its type", book, "producttypes.xml", PxFileKind::ProductTypes, "BOOK_A4_PORTRAIT");
    add("calendar", "CALENDAR_WALL_A4", "products/calendar_wall_a4.xml", PxFileKind::Product, "",
        false);
    add("card", "CARD_FOLDED_A6", "products/card_folded_a6.xml", PxFileKind::Product, "", false);
    add("legacy", "BOOK_CLASSIC_A4", "products/legacy/book_classic_a4.xml", PxFileKind::Product, "",
        false);
}

void PxOriginTest::valuesChangeWithTheirOrigins()
{
    QFETCH(QString, question);
    QFETCH(QString, file);
    QFETCH(int, kind);
    QFETCH(QString, only);
    QFETCH(bool, isExact);
    const PxSampleCopy sample;
    // What tells nothing more would only take time.
    for (const QString &other : QDir(sample.filePath("products")).entryList({"*.xml"})) {
        if (!QRegularExpression("book_a4_portrait(_glossy)?|calendar_wall|card_folded")
                 .match(other)
                 .hasMatch())
            QFile::remove(sample.filePath("products/" + other));
    }
    QString text = sample.read(file);
    text.remove(QRegularExpression("      <spine pages=\"(3[2-57-9]|[4-9].|1..)\".*\n"));
    // So that counting from the front there is no such page.
    text.replace("pageNr=\"2\" reverseOrder", "pageNr=\"31\" reverseOrder");
    text.replace("110\" pageNr=\"0\"", "110\" pageNr=\"5\"");
    sample.write(file, text);

    const QJsonObject before = show(sample, question + " --origin");
    const QJsonObject origins = before["origins"].toObject();
    QStringList wrong;
    QSet<QString> changing;        // pattern and place
    QMap<QString, QString> edited; // what, by its place
    for (const Edit &edit : editsOf(sample, file, PxFileKind(kind), only)) {
        sample.write(file, edit.text);
        const QJsonObject after = show(sample, question + (edit.isNew ? " --origin" : ""));
        if (after.isEmpty())
            continue; // the product is gone
        if (!edit.isNew)
            edited[edit.places[0]] = edit.what;
        for (const QString &pointer : origins.keys()) {
            if (!isChanged(before, after, pointer))
                continue;
            for (const QString &place : edit.places)
                changing.insert(PxOriginRows::patternOf(pointer) + ' ' + place);
            const QSet<QString> names =
                namedBy(edit.isNew ? after["origins"].toObject() : origins, pointer);
            if (!names.intersects(QSet<QString>(edit.places.begin(), edit.places.end())))
                wrong.append(
                    QString("%1 changes %2")
                        .arg(edit.what.section('=', 0, 0), PxOriginRows::patternOf(pointer)));
        }
    }
    QMap<QString, QSet<QString>> named;
    for (const QString &pointer : origins.keys())
        named[pointer] = namedBy(origins, pointer);
    for (auto names = named.begin(); names != named.end(); ++names) {
        for (const QString &place : qAsConst(*names)) {
            const QString pattern = PxOriginRows::patternOf(names.key());
            const bool isInert =
                edited.contains(place) && !changing.contains(pattern + ' ' + place);
            if (isExact && isInert && !isException(pattern, edited[place]))
                wrong.append(QString("%1 does not change %2").arg(place, pattern));
        }
    }
    wrong.removeDuplicates();
    QCOMPARE(wrong.join('\n'), QString());
}

QTEST_GUILESS_MAIN(PxOriginTest)
#include "PxOriginTest.moc"
