#include "PxProgramRun.h"
#include "PxSampleCopy.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

/** What "export" writes: the same everywhere, and of each product what "show" says. */
class PxExportTest : public QObject
{
    Q_OBJECT

private slots:
    void saysWhatShowSays_data();
    void saysWhatShowSays();
    void isTheSameEverywhere_data();
    void isTheSameEverywhere();
    void writesTheSameIntoAFile();
};

namespace {

PxProgramRun run(const QString &directory, const QString &command,
                 const QMap<QString, QString> &environment = {})
{
    return PxProgramRun(PX_CATALOGUE_PROGRAM,
                        command.split(' ') + QStringList{"--resources", directory}, environment);
}

QVector<QJsonObject> objectsOf(const PxProgramRun &run)
{
    QVector<QJsonObject> objects;
    for (const QString &line : run.output())
        objects.append(QJsonDocument::fromJson(line.toUtf8()).object());
    return objects;
}

/** The numbers of a text such as "3, 26-154/2"; one that is open ends before `end`. */
QList<int> numbersOf(const QString &text, int end = 0)
{
    static const QRegularExpression ourRange("^(-?\\d+)(?:(-)(\\d*)(?:/(\\d+))?)?$");
    QList<int> numbers;
    for (const QString &part : text.split(", ", Qt::SkipEmptyParts)) {
        const auto match = ourRange.match(part);
        const int first = match.captured(1).toInt();
        const bool isOpen = !match.captured(2).isEmpty() && match.captured(3).isEmpty();
        const int last = match.captured(2).isEmpty() ? first : match.captured(3).toInt();
        const int step = qMax(1, match.captured(4).toInt());
        for (int n = first; isOpen ? numbers.size() < end : n <= last; n += step)
            numbers.append(n);
    }
    return numbers;
}

/** A product of the export with one page count, as "show" prints it. */
class Shown
{
public:
    Shown(const QJsonObject &product, int pageCount) : m_product(product), m_pageCount(pageCount)
    {
        const QJsonObject table = product["byPageCount"].toObject();
        const QJsonArray rows = table["pageCounts"].toArray();
        int row = 0;
        while (row < rows.size() && !numbersOf(rows[row].toString()).contains(pageCount))
            ++row;
        const QJsonObject columns = table["values"].toObject();
        for (auto column = columns.begin(); column != columns.end(); ++column)
            m_product =
                changed(m_product, column.key().split('/').mid(1), column->toArray().at(row))
                    .toObject();
        listPages();
    }

    QJsonObject json()
    {
        QJsonObject pages = m_product["pages"].toObject();
        for (const char *key : {"offered", "list", "sides"})
            pages.remove(QLatin1String(key));
        const QString withContent = pages["pagesWithContent"].toString();
        pages["pagesWithContent"] = withContent == "all"
                                        ? pagesThat([](int) { return true; })
                                        : pagesThat([list = numbersOf(withContent)](int page) {
                                              return list.contains(page);
                                          });
        QJsonObject production = m_product["production"].toObject();
        production["numbering"] = jsonOf(
            numbersOf(production["numbering"].toString(), m_kinds.size()).mid(0, m_kinds.size()));
        QJsonObject json = m_product;
        json["pages"] = pages;
        json["production"] = production;
        for (const char *key : {"pageKinds", "templates"})
            json[QLatin1String(key)] = withPagesOfKinds(json[QLatin1String(key)].toArray());
        json["surroundings"] = surroundings();
        json["barcodes"] = barcodes();
        for (const char *key : {"contentRedirects", "rotationRedirects"})
            json[QLatin1String(key)] = redirects(json[QLatin1String(key)].toArray());
        for (const char *ofExports : {"byPageCount", "themeTemplates", "type"})
            json.remove(QLatin1String(ofExports));
        return json;
    }

private:
    using Kind = QPair<QString, QString>;

    static QJsonValue changed(const QJsonValue &value, const QStringList &path,
                              const QJsonValue &part)
    {
        if (path.isEmpty())
            return part;
        if (value.isArray()) {
            QJsonArray array = value.toArray();
            const int index = path[0].toInt();
            array[index] = changed(array[index], path.mid(1), part);
            return array;
        }
        QJsonObject object = value.toObject();
        object[path[0]] = changed(object[path[0]], path.mid(1), part);
        return object;
    }

    static QJsonArray jsonOf(const QList<int> &numbers)
    {
        QJsonArray array;
        for (const int number : numbers)
            array.append(number);
        return array;
    }

    void listPages()
    {
        const QJsonObject sides = m_product["pages"].toObject()["sides"].toObject();
        for (const auto &run : m_product["pages"].toObject()["list"].toArray()) {
            const int length = run.toObject()["fixed"].toInt() +
                               run.toObject()["perPageCount"].toInt() * m_pageCount;
            for (int i = 0; i < length; ++i) {
                const int page = m_kinds.size();
                const char *side = page == 0       ? "first"
                                   : page == 1     ? "second"
                                   : page % 2 == 0 ? "even"
                                                   : "odd";
                m_kinds.append(
                    {run.toObject()["pageType"].toString(), sides[QLatin1String(side)].toString()});
            }
        }
    }

    template <typename Condition>
    QJsonArray pagesThat(Condition condition) const
    {
        QList<int> pages;
        for (int page = 0; page < m_kinds.size(); ++page) {
            if (condition(page))
                pages.append(page);
        }
        return jsonOf(pages);
    }

    static Kind kindOf(const QJsonObject &row)
    {
        return {row["pageType"].toString(), row["alignment"].toString()};
    }

    /** In the order of their first pages; those without one are not shown. */
    static QJsonArray sorted(const QJsonArray &rows)
    {
        QMap<int, QJsonObject> byPage;
        for (const auto &row : rows) {
            const QJsonArray pages = row.toObject()["pages"].toArray();
            if (!pages.isEmpty())
                byPage[pages[0].toInt()] = row.toObject();
        }
        QJsonArray sorted;
        for (const QJsonObject &row : byPage)
            sorted.append(row);
        return sorted;
    }

    QJsonArray withPagesOfKinds(const QJsonArray &rows) const
    {
        QJsonArray all;
        for (const auto &value : rows) {
            QJsonObject row = value.toObject();
            row["pages"] =
                pagesThat([this, kind = kindOf(row)](int page) { return m_kinds[page] == kind; });
            all.append(row);
        }
        return sorted(all);
    }

    /** How exactly a place names a page: 0 not at all, then its kind, its number, both. */
    int exactness(const QJsonObject &place, int page) const
    {
        const Kind kind = kindOf(place);
        if (place["page"].isNull())
            return m_kinds[page] == kind ? 1 : 0;
        if (place["page"].toInt() != page)
            return 0;
        return place["pageType"].isNull() ? 2 : m_kinds[page] == kind ? 3 : 0;
    }

    QJsonArray surroundings() const
    {
        QJsonArray rows = m_product["surroundings"].toArray();
        QMap<int, QPair<int, int>> rowOfPage; // with its exactness first
        for (int row = 0; row < rows.size(); ++row) {
            for (const auto &place : rows[row].toObject()["places"].toArray()) {
                for (int page = 0; page < m_kinds.size(); ++page) {
                    const int exact = exactness(place.toObject(), page);
                    if (exact > rowOfPage.value(page).first)
                        rowOfPage[page] = {exact, row};
                }
            }
        }
        for (int row = 0; row < rows.size(); ++row) {
            QJsonObject object = rows[row].toObject();
            object.remove("places");
            object["pages"] = pagesThat([&](int page) {
                return rowOfPage.contains(page) && rowOfPage[page].second == row;
            });
            rows[row] = object;
        }
        return sorted(rows);
    }

    QJsonArray barcodes() const
    {
        QMap<int, QJsonObject> byPage;
        for (const auto &value : m_product["barcodes"].toArray()) {
            QJsonObject barcode = value.toObject();
            const int number = barcode["page"].toInt();
            const int page =
                barcode["isCountedFromBack"].toBool() ? m_kinds.size() - number : number;
            barcode["page"] = page;
            if (page >= 0 && page < m_kinds.size())
                byPage[page] = barcode;
        }
        QJsonArray barcodes;
        for (const QJsonObject &barcode : byPage)
            barcodes.append(barcode);
        return barcodes;
    }

    QJsonArray redirects(const QJsonArray &rows) const
    {
        QJsonArray redirects;
        for (const auto &row : rows) {
            if (row.toObject()["page"].toInt() < m_kinds.size())
                redirects.append(row);
        }
        return redirects;
    }

    QJsonObject m_product;
    int m_pageCount;
    QVector<Kind> m_kinds; // of all pages
};

/** What an export need not have follows from its page counts and list of pages, or is a place. */
QJsonObject withoutWhatIsNotExported(QJsonObject shown)
{
    QJsonObject product = shown["product"].toObject();
    product.remove("file");
    shown["product"] = product;
    QJsonObject pages = shown["pages"].toObject();
    for (const char *key :
         {"pageCounts", "pageCount", "isPageCountOffered", "nearestPageCounts", "printedPages"})
        pages.remove(QLatin1String(key));
    shown["pages"] = pages;
    shown.remove("format");
    shown.remove("lengthUnit");
    return shown;
}

/** Edits of a book: pages in two ranges, any page count, pages with something of their own. */
void writeOddBook(const PxSampleCopy &sample)
{
    QString spines;
    for (int pages = 1; pages < 9; ++pages)
        spines += QString("<spine pages='%1' width='%2'/>").arg(pages).arg(pages / 3 * 2 - 2);
    sample.write("products/book_mini.xml",
                 "<d><product name='BOOK_MINI' binding='HARDCOVER' bleedmargin='30'"
                 " legacy='BOOK_CLASSIC_A4'>"
                 "<surroundings><surrounding type='BOOK' pageType='emptypage' image='e'/>"
                 "<surrounding type='BOOK' pageType='normalpage' alignment='left' image='n'/>"
                 "<surrounding type='BOOK' pageNr='3' image='3'/>"
                 "<surrounding type='BOOK' pageNr='4' image='4'/></surroundings>"
                 "<barcodes><barcode x='1' y='1' width='9' height='9' pageNr='1'"
                 " reverseOrder='true'/><barcode x='2' y='1' width='9' height='9' pageNr='5'/>"
                 "</barcodes><pages>fullcover,spine,normalpages,emptypage,normalpage,normalpages,"
                 "fullcover</pages><pageswithcontent>0,2,4,6</pageswithcontent>"
                 "<productionnumbering>9,7,3,4,1</productionnumbering>"
                 "<contentredirects><contentredirect from='2-9' to='1'/></contentredirects>"
                 "<spines>" +
                     spines + "</spines><usablesize width='900' height='1200'/></product></d>");
}

} // namespace

void PxExportTest::saysWhatShowSays_data()
{
    QTest::addColumn<bool>("isOdd");
    QTest::newRow("the sample") << false;
    QTest::newRow("what nobody would write") << true;
}

void PxExportTest::saysWhatShowSays()
{
    QFETCH(bool, isOdd);
    const PxSampleCopy sample;
    if (isOdd)
        writeOddBook(sample);
    int count = 0;
    for (const QJsonObject &product : objectsOf(run(sample.path(), "export"))) {
        const QString name = product["product"]["name"].toString();
        if (!product["type"].toString().toLower().endsWith("product") ||
            (isOdd && name != "BOOK_MINI"))
            continue;
        ++count;
        const QList<int> offered = numbersOf(product["pages"]["offered"].toString());
        QVERIFY(!offered.isEmpty());
        const QList<int> asked{offered.first(), offered[offered.size() / 2], offered.last()};
        const QList<int> &all = isOdd ? offered : asked;
        for (const int pageCount : QSet<int>(all.begin(), all.end())) {
            const QString command = QString("show %1 --pages %2 --json").arg(name).arg(pageCount);
            const QJsonObject shown = withoutWhatIsNotExported(run(sample.path(), command).json());
            const QJsonObject exported = Shown(product, pageCount).json();
            QCOMPARE(exported.keys(), shown.keys());
            for (const QString &key : shown.keys()) {
                const auto text = [&](const QJsonObject &json) {
                    return command + ' ' +
                           QJsonDocument(QJsonArray{json[key]}).toJson(QJsonDocument::Compact);
                };
                QCOMPARE(text(exported), text(shown));
            }
        }
    }
    QCOMPARE(count, isOdd ? 1 : 52);
}

void PxExportTest::isTheSameEverywhere_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("value");
    QTest::newRow("another language") << "LC_ALL"
                                      << "en_US.UTF-8";
    QTest::newRow("other digits") << "LC_ALL"
                                  << "ar_EG.UTF-8";
    QTest::newRow("no locale") << "LC_ALL"
                               << "C";
    QTest::newRow("a time zone ahead") << "TZ"
                                       << "Asia/Tokyo";
    QTest::newRow("a zone without 30 December 2011") << "TZ"
                                                     << "Pacific/Apia";
    QTest::newRow("another order of hashes") << "QT_HASH_SEED"
                                             << "7";
    QTest::newRow("one thread") << "PX_THREADS"
                                << "1";
    QTest::newRow("a user with templates") << "PX_USER_DEFAULTS_DIR" << PX_SAMPLE_DIRECTORY "/x";
    QTest::newRow("another width") << "COLUMNS"
                                   << "20";
}

void PxExportTest::isTheSameEverywhere()
{
    QFETCH(QString, variable);
    QFETCH(QString, value);
    const QString themes = "<themes><theme id='a' producttype='book' expiry='2011-12-30'/>"
                           "<theme id='a' producttype='book' expiry='2030-01-01T00:30+02:00'/>"
                           "<theme id='a' producttype='fun' expiry='2030-01-01T00:30+02:00'/>"
                           "</themes>";
    // Two copies whose files the file system may list in another order.
    const PxSampleCopy one;
    const PxSampleCopy other;
    one.write("themes/a.xml", themes);
    one.write("themes/b.xml", QString(themes).replace("2030", "2031"));
    other.write("themes/c.xml", QString(themes).replace("2030", "2031"));
    other.write("themes/d.xml", themes);
    const QString exported = run(one.path(), "export").printed();
    QVERIFY(exported.contains("\"id\":\"a\",\"description\":\"unbekannt\",\"group\":\"book\","
                              "\"expiryDay\":\"2011-12-30\""));
    QVERIFY(exported.contains("Wandkalender A4"));
    QVERIFY(!exported.contains("isExpired") && !exported.contains(one.path()));
    QCOMPARE(run(other.path(), "export", {{variable, value}}).printed(), exported);
}

void PxExportTest::writesTheSameIntoAFile()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("export.jsonl");
    const PxProgramRun written = run(PX_SAMPLE_DIRECTORY, "export --output " + path);
    QCOMPARE(written.status(), 0);
    QVERIFY(written.printed().isEmpty());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), run(PX_SAMPLE_DIRECTORY, "export").printed());
}

QTEST_GUILESS_MAIN(PxExportTest)
#include "PxExportTest.moc"
