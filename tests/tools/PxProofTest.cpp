#include "PxProgramRun.h"
#include "PxSampleCopy.h"

#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

/** The folder that "proof" writes; what a browser makes of it is tested in tests/browser. */
class PxProofTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void valuesHaveTheirOrigins();
    void pagesShowWhatElseIsKnown();
    void wordsAreTranslated();
    void changesAreShown_data();
    void changesAreShown();
    void hostileNamesAreTexts();
    void linksLeadSomewhere();
    void bytesAreTheSameEverywhere();
    void otherFoldersAreKept_data();
    void otherFoldersAreKept();
    void brokenRunKeepsTheEarlierProof();
    void catalogueAndCurrentFolderAreKept();
    void killedRunIsClearedUp();

private:
    QString path(const QString &name = QString()) const { return m_folder + name; }
    PxProgramRun write(const QStringList &options = {},
                       const QMap<QString, QString> &environment = {}) const;
    QDomDocument page(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_folder;
};

namespace {

const QString hostileNames = PX_SAMPLE_DIRECTORY "/../../tests/data/hostile-names";

using Files = QMap<QString, QByteArray>;

/** The contents of all files of a folder, by name. */
Files filesIn(const QString &folder)
{
    Files files;
    QDirIterator names(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (names.hasNext()) {
        QFile file(names.next());
        if (file.open(QIODevice::ReadOnly))
            files.insert(file.fileName().mid(folder.size() + 1), file.readAll());
    }
    return files;
}

QVector<QDomElement> elements(const QDomDocument &page, const QString &tag)
{
    QVector<QDomElement> found;
    const QDomNodeList nodes = page.elementsByTagName(tag);
    for (int i = 0; i < nodes.size(); ++i)
        found.append(nodes.at(i).toElement());
    return found;
}

/** What follows the heading with this id, up to the next one. */
QString section(const QDomDocument &page, const QString &id)
{
    QString text;
    for (const QDomElement &heading : elements(page, "h2")) {
        if (heading.attribute("id") != id)
            continue;
        for (QDomElement e = heading.nextSiblingElement(); !e.isNull() && e.tagName() != "h2";
             e = e.nextSiblingElement())
            text += e.text() + '\n';
    }
    return text;
}

QString linkTo(const QDomDocument &page, const QString &name)
{
    for (const QDomElement &link : elements(page, "a")) {
        if (link.text() == name)
            return link.attribute("href");
    }
    return QString();
}

} // namespace

void PxProofTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_folder = m_directory->filePath("proof");
}

PxProgramRun PxProofTest::write(const QStringList &options,
                                const QMap<QString, QString> &environment) const
{
    return PxProgramRun(PX_CATALOGUE_PROGRAM, QStringList{"proof", "--output", m_folder} + options,
                        environment);
}

/** Pages are XML, too, so that each element that is opened is closed. */
QDomDocument PxProofTest::page(const QString &name) const
{
    QFile file(path("/" + name + ".html"));
    QDomDocument page;
    QString error;
    if (!file.open(QIODevice::ReadOnly) || !page.setContent(file.readAll(), &error))
        qWarning() << name << error;
    return page;
}

void PxProofTest::valuesHaveTheirOrigins()
{
    QCOMPARE(write().status(), 0);
    const PxProgramRun shown(PX_CATALOGUE_PROGRAM,
                             {"show", "BOOK_A4_PORTRAIT", "--origin", "--json"});
    int values = 0;
    for (const QDomElement &origin : elements(page("product-book-a4-portrait"), "td")) {
        if (origin.attribute("class") != "origin")
            continue;
        ++values;
        QVERIFY(!origin.text().isEmpty());
        const QDomElement value = origin.previousSiblingElement();
        if (value.hasAttribute("title"))
            QCOMPARE(value.attribute("title"), origin.text());
    }
    QVERIFY(values > 100);
    const QDomElement binding = elements(page("product-book-a4-portrait"), "table").value(1);
    const QJsonObject place = shown.json()["origins"].toObject()["/product/binding"].toObject();
    QVERIFY(section(page("product-book-a4-portrait"), "spine").contains("20,3"));
    QVERIFY(binding.text().contains(QString("BindungHardcover%1:%2:%3")
                                        .arg(place["path"].toString())
                                        .arg(place["line"].toInt())
                                        .arg(place["column"].toInt())));
}

void PxProofTest::pagesShowWhatElseIsKnown()
{
    const PxSampleCopy catalogue;
    catalogue.replace("products/book_mini.xml", "normalpages", "normalpags");
    QCOMPARE(write({"--resources", catalogue.path(), "--lang", "en", "--title", "Summer"}).status(),
             0);
    const QDomDocument index = page("index");
    QCOMPARE(elements(index, "h1").value(0).text(), QString("Summer"));
    QCOMPARE(elements(index, "html").value(0).attribute("lang"), QString("en"));
    QVERIFY(section(index, "products").contains("Hardcover"));
    QVERIFY(section(index, "earlier").contains("BOOK_CLASSIC_A4"));
    QVERIFY(section(index, "themes").contains("2050-12-31"));
    for (const QDomElement &input : elements(index, "input"))
        QCOMPARE(input.hasAttribute("min"), input.attribute("type") == "number");

    const QString faulty = section(page("product-book-mini"), "findings");
    QVERIFY(faulty.contains("did you mean \"normalpages\"?"));
    QVERIFY(faulty.contains("products/book_mini.xml:26:48"));
    QVERIFY(faulty.contains("emptypage,normalpags"));
    const QDomDocument book = page("product-book-a4-portrait");
    QVERIFY(section(book, "findings").contains("No findings."));
    QVERIFY(section(book, "spine").contains("20.3"));
    QVERIFY(section(book, "in-themes").contains("Rosenblueten"));
    QCOMPARE(linkTo(book, "hochzeit"), QString("theme-hochzeit.html"));
    QCOMPARE(linkTo(book, "BOOK_A4_PORTRAIT_GLOSSY"),
             QString("product-book-a4-portrait-glossy.html"));
    QVERIFY(section(book, "compatible").contains("BOOK_A4_PORTRAIT_GLOSSY (the same: binding"));
    QStringList chosen;
    for (const QDomElement &input : elements(book, "input")) {
        if (input.attribute("type") == "radio" && input.hasAttribute("checked"))
            chosen.append(input.attribute("value"));
    }
    QCOMPARE(chosen, QStringList{"26"});
    for (const QDomElement &head : elements(book, "thead")) {
        const QDomElement row = head.nextSiblingElement("tbody").firstChildElement("tr");
        QCOMPARE(head.firstChildElement("tr").childNodes().size(), row.childNodes().size());
    }
    const QDomDocument cup = page("product-cup2");
    QVERIFY(section(cup, "variants").contains("(color:blue)"));
    QVERIFY(!elements(cup, "rect").isEmpty());
    QCOMPARE(linkTo(page("theme-hochzeit"), "BOOK_A4_PORTRAIT"),
             QString("product-book-a4-portrait.html"));
}

/** Labels of reports are English in the source, all other words of the pages are German. */
void PxProofTest::wordsAreTranslated()
{
    const QSet<QString> alike{"Name",     "Layout", "Layouts", "Material",
                              "Cliparts", "Text",   "Barcodes"};
    QMap<QString, QSet<QString>> words;
    for (const QString language : {"de", "en"}) {
        QCOMPARE(write({"--lang", language, "--title", "x"}).status(), 0);
        for (const char *name : {"index", "product-book-a4-portrait", "product-cup2",
                                 "product-book-square-linen", "theme-hochzeit"}) {
            const QDomDocument page = this->page(name);
            for (const char *tag : {"th", "h2", "h3", "legend", "label", "button", "summary"}) {
                for (const QDomElement &element : elements(page, tag)) {
                    const bool isName = element.attribute("class") == "name";
                    const QString text = element.firstChild().toText().data().trimmed();
                    if (!isName && text.contains(QRegularExpression("[a-z]")))
                        words[language].insert(text);
                }
            }
        }
    }
    QVERIFY(words["de"].size() > 100);
    const QSet<QString> untranslated = words["de"] & words["en"];
    QCOMPARE(QStringList((untranslated - alike).values()).join(", "), QString());
}

void PxProofTest::changesAreShown_data()
{
    QTest::addColumn<bool>("isExport");
    QTest::newRow("since a directory") << false;
    QTest::newRow("since an earlier proof") << true;
}

void PxProofTest::changesAreShown()
{
    QFETCH(bool, isExport);
    const PxSampleCopy catalogue;
    const QString earlier = m_directory->filePath("earlier");
    if (isExport)
        QCOMPARE(write().status(), 0);
    QVERIFY(!isExport || QDir().rename(m_folder, earlier));
    catalogue.replace("products/cup2.xml", "<usablesize width=\"2000\"",
                      "<usablesize width=\"2100\"");
    catalogue.replace("producttypes.xml", "name=\"BOOK_MINI\"", "name=\"BOOK_TINY\"");
    catalogue.replace("products/book_mini.xml", "name=\"BOOK_MINI\"", "name=\"BOOK_TINY\"");
    QFile::remove(catalogue.filePath("products/ba7.xml"));
    QCOMPARE(write({"--resources", catalogue.path(), "--lang", "en", "--previous",
                    isExport ? earlier : QString(PX_SAMPLE_DIRECTORY)})
                 .status(),
             0);
    const QString summary = section(page("index"), "changes");
    QVERIFY(summary.contains("BOOK_TINY: was BOOK_MINI"));
    QVERIFY(summary.contains("CUP2: changes that customers notice: "));
    QVERIFY(summary.contains("BA7: no longer there"));
    const QString changed = section(page("product-cup2"), "changes");
    QVERIFY(changed.contains("10 mm wider, 200×95 → 210×95 mm (products/cup2.xml:"));
    QVERIFY(changed.startsWith("What customers notice\n") && !changed.contains("production"));
    QVERIFY(section(page("product-book-compact"), "changes").contains("Nothing has changed."));

    QCOMPARE(write({"--previous", m_directory->filePath("none")}).status(), 2);
}

void PxProofTest::hostileNamesAreTexts()
{
    const QString script = "<script>alert(1)</script>";
    QCOMPARE(write({"--resources", hostileNames, "--title", script}).status(), 0);
    static const QRegularExpression ourPlainNames("^(drawings/)?[a-z0-9][a-z0-9._-]{0,150}$");
    const Files files = filesIn(m_folder);
    for (auto file = files.begin(); file != files.end(); ++file) {
        QVERIFY2(ourPlainNames.match(file.key()).hasMatch(), qPrintable(file.key()));
        for (const QChar unit : QString::fromUtf8(*file)) {
            const bool isSeen = unit == '\n' ||
                                (unit.isPrint() && unit.category() != QChar::Other_Format) ||
                                unit.isSurrogate();
            QVERIFY2(isSeen, qPrintable(file.key() + QString::number(unit.unicode(), 16)));
        }
        if (!file.key().endsWith(".html"))
            continue;
        const QDomDocument page = this->page(QString(file.key()).chopped(5));
        QCOMPARE(elements(page, "script").size(), 1);
        QCOMPARE(elements(page, "script").value(0).attribute("src"), QString("proof.js"));
        QCOMPARE(elements(page, "strong").value(0).text(), script);
        for (const QDomElement &element : elements(page, "*")) {
            const QDomNamedNodeMap attributes = element.attributes();
            for (int i = 0; i < attributes.size(); ++i) {
                const QString name = attributes.item(i).nodeName();
                const QString target = attributes.item(i).nodeValue().section('#', 0, 0);
                QVERIFY2(!name.startsWith("on") && name != "style", qPrintable(name));
                if (name == "href" || name == "src")
                    QVERIFY2(target.isEmpty() || files.contains(target), qPrintable(target));
            }
        }
    }
    // 30 products, one of an earlier catalogue, 32 themes of which two share an id, and the index.
    QCOMPARE(QStringList(files.keys()).filter(".html").size(), 30 + 1 + 32 + 1);
    QCOMPARE(linkTo(page("index"), script),
             QString("product--script-alert-1---script-_5c140d35dcb46a622e2cedf5ef5cc363.html"));
}

/** A catalogue may have neither earlier products nor themes. */
void PxProofTest::linksLeadSomewhere()
{
    const PxSampleCopy catalogue;
    for (int run = 0; run < 2; ++run) {
        QCOMPARE(write({"--resources", catalogue.path()}).status(), 0);
        QSet<QString> targets{"index.html"};
        for (const QDomElement &heading : elements(page("index"), "h2"))
            targets.insert("index.html#" + heading.attribute("id"));
        for (const char *name : {"index", "product-cup2"}) {
            const QDomElement nav = elements(page(name), "nav").value(0);
            const QDomNodeList links = nav.elementsByTagName("a");
            QCOMPARE(links.size(), run == 0 ? 3 : 1);
            for (int i = 0; i < links.size(); ++i)
                QVERIFY(targets.contains(links.at(i).toElement().attribute("href")));
        }
        for (const char *part : {"themes", "products/legacy"})
            QVERIFY(QDir(catalogue.filePath(part)).removeRecursively());
    }
}

void PxProofTest::bytesAreTheSameEverywhere()
{
    const PxSampleCopy catalogue;
    catalogue.replace("products/cup2.xml", "<pages>normalpage</pages>", "<pages>normalpag</pages>");
    QCOMPARE(write({"--resources", catalogue.path()},
                   {{"QT_HASH_SEED", "1"}, {"PX_THREADS", "1"}, {"TZ", "Pacific/Kiritimati"}})
                 .status(),
             0);
    const Files first = filesIn(m_folder);
    const QString moved = m_directory->filePath("moved");
    QVERIFY(QFile::rename(catalogue.path(), moved));
    QCOMPARE(write({"--resources", moved}, {{"QT_HASH_SEED", "2"},
                                            {"PX_THREADS", "4"},
                                            {"QT_QPA_PLATFORM", "none"},
                                            {"TZ", "America/St_Johns"},
                                            {"LC_ALL", "C"}})
                 .status(),
             0);
    const Files second = filesIn(m_folder);
    QCOMPARE(second.keys(), first.keys());
    for (auto file = first.begin(); file != first.end(); ++file)
        QVERIFY2(second[file.key()] == *file, qPrintable(file.key()));
}

void PxProofTest::otherFoldersAreKept_data()
{
    QTest::addColumn<QStringList>("files"); // "a->b" is a link
    QTest::addColumn<QString>("reason");
    const QString notProof = "it has files and is not an earlier proof; name another folder";
    QTest::newRow("a file") << QStringList{"proof"} << "it is a file; name another folder";
    QTest::newRow("a folder with a file") << QStringList{"proof/notes.txt"} << notProof;
    QTest::newRow("a hidden one") << QStringList{"proof/.git/config"} << notProof;
    QTest::newRow("a proof to which somebody added a file")
        << QStringList{"proof/catalogue.json", "proof/index.html", "proof/drawings/notes.txt"}
        << notProof;
    QTest::newRow("the beginning of a name")
        << QStringList{"proof/catalogue.json", "proof/product-.txt"} << notProof;
    QTest::newRow("beside it") << QStringList{"proof.unfinished/notes.txt"}
                               << "\"" + QString("%1.unfinished") + "\" is in the way";
    QTest::newRow("a link") << QStringList{"proof->none"}
                            << "it is a link to nothing; name another folder";
}

void PxProofTest::otherFoldersAreKept()
{
    QFETCH(QStringList, files);
    QFETCH(QString, reason);
    for (const QString &name : files) {
        QFile file(m_directory->filePath(name.section("->", 0, 0)));
        if (name.contains("->")) {
            QVERIFY(QFile::link(m_directory->filePath(name.section("->", 1)), file.fileName()));
            continue;
        }
        QDir().mkpath(QFileInfo(file).path());
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const Files before = filesIn(m_directory->path());
    const PxProgramRun run = write();
    QCOMPARE(run.status(), 2);
    QCOMPARE(
        run.errors(),
        QStringList(QString("pxcatalogue: the folder \"%1\" cannot be written: ").arg(m_folder) +
                    reason.replace("%1", m_folder)));
    QCOMPARE(filesIn(m_directory->path()), before);
}

void PxProofTest::brokenRunKeepsTheEarlierProof()
{
    QCOMPARE(write().status(), 0);
    const Files before = filesIn(m_directory->path());
    const PxProgramRun run("sh", {"-c", "ulimit -f 40; \"$0\" proof --output \"$1\" --title new",
                                  PX_CATALOGUE_PROGRAM, m_folder});
    QCOMPARE(run.status(), 2);
    QCOMPARE(run.errors().size(), 1);
    QCOMPARE(filesIn(m_directory->path()), before);
    const PxProgramRun second = write({"--title", "new"});
    QCOMPARE(second.status(), 0);
    QCOMPARE(second.errors() + second.output(), QStringList());
    QCOMPARE(elements(page("index"), "h1").value(0).text(), QString("new"));
}

void PxProofTest::catalogueAndCurrentFolderAreKept()
{
    const PxSampleCopy catalogue;
    const auto outputs = {catalogue.filePath("products/new/proof"), catalogue.filePath("themes")};
    for (const QString &output : outputs) {
        const Files before = filesIn(catalogue.path());
        const PxProgramRun run(PX_CATALOGUE_PROGRAM,
                               {"proof", "--output", output, "--resources", catalogue.path()});
        QCOMPARE(run.status(), 2);
        QVERIFY(run.errors().value(0).contains("it belongs to the catalogue"));
        QCOMPARE(filesIn(catalogue.path()), before);
    }
    QCOMPARE(write().status(), 0);
    const PxProgramRun inside("sh", {"-c", "cd \"$1/drawings\" && \"$0\" proof --output ..",
                                     PX_CATALOGUE_PROGRAM, m_folder});
    QCOMPARE(inside.status(), 2);
    QVERIFY(inside.errors().value(0).contains("run it from another folder"));
    const auto readable = QFile::permissions(m_folder) | QFile::ReadOther | QFile::ExeOther;
    for (const auto permissions : {readable, readable ^ (QFile::ReadOther | QFile::ExeOther)}) {
        QVERIFY(QFile::setPermissions(m_folder, permissions));
        QCOMPARE(write().status(), 0);
        QCOMPARE(QFile::permissions(m_folder), permissions);
    }
}

/** It may have been killed while it wrote, or between the two steps that put the new folder in
 * place. */
void PxProofTest::killedRunIsClearedUp()
{
    QCOMPARE(write().status(), 0);
    const Files before = filesIn(m_directory->path());
    QVERIFY(QDir().rename(m_folder, m_folder + ".old"));
    QVERIFY(QDir().mkpath(m_folder + ".unfinished/drawings"));
    QVERIFY(QFile::copy(m_folder + ".old/index.html", m_folder + ".unfinished/index.html"));
    QCOMPARE(write({"--resources", m_directory->filePath("none")}).status(), 2);
    QCOMPARE(write({"--previous", m_directory->filePath("none")}).status(), 2);
    QCOMPARE(filesIn(m_directory->path()), before);
    QCOMPARE(write().status(), 0);
    QCOMPARE(filesIn(m_directory->path()), before);
}

QTEST_GUILESS_MAIN(PxProofTest)
#include "PxProofTest.moc"
