#include "PxAskEverything.h"
#include "PxCatalogueDirectory.h"
#include "PxLogRecorder.h"
#include "PxProgramRun.h"
#include "PxReadingRecorder.h"

#include <PxOrientation.h>
#include <PxProductType.h>
#include <description/PxProductTypeDescription.h>
#include <description/PxProductTypeDescriptionReader.h>
#include <format/PxFormat.h>
#include <format/PxOriginRows.h>
#include <themes/PxThemeFactory.h>
#include <values/PxHumanReadable.h>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

#include <functional>

/** Compares the rows of the format with what the library really reads. */
class PxFormatTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void libraryAsksForWhatTheTableHas();
    void attributeIsReadAndHasItsDefault_data();
    void attributeIsReadAndHasItsDefault();
    void elementCountsAsOften_data();
    void elementCountsAsOften();
    void originsNameTheFormat();
    void framesAreReadOnce();
    void keywordsAreThoseOfTheLibrary();
    void platformKnowsTheSameKeywords();

private:
    QDomDocument document(PxFileKind kind) const;
    QString answers(PxFileKind kind, const QDomDocument &document) const;

    PxCatalogueDirectory m_directory;
    QMap<PxFileKind, QByteArray> m_files;
    QStringList m_words; ///< that may be keywords of the platform
};

namespace {

/** The path of the row and of all that is in it. */
void addPaths(PxFileKind kind, const PxElementRow &row, const QString &path,
              QVector<QPair<PxFileKind, QString>> *paths)
{
    paths->append({kind, path});
    for (const PxElementRow &child : row.children)
        addPaths(kind, child, path + '/' + child.name, paths);
}

/** What the library asks for when it reads an element that the row describes. */
void addNames(const PxElementRow &row, const QString &path, QSet<QString> *names)
{
    for (const PxAttributeRow &attribute : row.attributes)
        names->insert(path + '@' + attribute.name);
    for (const PxElementRow &child : row.children) {
        names->insert(path + '/' + child.name);
        addNames(child, path + '/' + child.name, names);
    }
}

QStringList sorted(const QSet<QString> &names)
{
    QStringList list = names.values();
    list.sort();
    return list;
}

/** The elements of all kinds of files whose reading can be repeated, by path. */
QVector<QPair<PxFileKind, QString>> allPaths()
{
    QVector<QPair<PxFileKind, QString>> paths;
    for (PxFileKind kind : {PxFileKind::Product, PxFileKind::UserDefaults, PxFileKind::Theme,
                            PxFileKind::ProductTypes})
        addPaths(kind, PxFormat::root(kind), QString(), &paths);
    return paths;
}

QDomElement elementAt(const QDomDocument &document, const QString &path)
{
    QDomElement element = document.documentElement();
    for (const QString &name : path.split('/', Qt::SkipEmptyParts))
        element = element.firstChildElement(name);
    return element;
}

/**
 * Attributes that hide others, or that show in no answer with the value that they have in the
 * fixture: their value while others are tested, null for none, and while they are.
 */
constexpr struct
{
    const char *path;
    const char *attribute;
    const char *base;
    const char *probe;
} adaptations[] = {
    {"/product", "binding", "CALENDAR_SIMPLEX", nullptr},
    {"/product", "bleedmarginhorizontal", nullptr, nullptr},
    {"/product", "bleedmarginvertical", nullptr, nullptr},
    {"/product", "bleedmargincoverhorizontal", nullptr, nullptr},
    {"/product", "bleedmargincoververtical", nullptr, nullptr},
    {"/product", "collegeBlockStyleAlignment", nullptr, nullptr},
    {"/product/usablesize", "orientation", nullptr, nullptr},
    {"/product/usablesize", "space", nullptr, nullptr},
    {"/product/surroundings/surrounding", "pageNr", nullptr, nullptr},
    {"/product/defaults/defaults", "theme", nullptr, "design"},
    {"/product/defaults/defaults", "templates", "short,form", "form,short"},
    {"/product/defaults/defaults", "layout", nullptr, nullptr},
    {"/product/defaults/defaults", "background", nullptr, nullptr},
    {"/defaults/defaults", "layout", nullptr, nullptr},
    {"/defaults/defaults", "background", nullptr, nullptr},
};

/**
 * All texts in the file of a library that may be keywords, in small letters: also the ends of
 * texts, as the linker keeps only the longest of those that end alike.
 */
QStringList wordsIn(const char *library)
{
    const QRegularExpression word("^[A-Za-z][A-Za-z0-9_-]{1,31}$");
    QFile file(library);
    file.open(QIODevice::ReadOnly);
    QSet<QString> words;
    for (const QByteArray &bytes : file.readAll().split('\0')) {
        const QString text = QString::fromLatin1(bytes).toLower();
        if (!word.match(text).hasMatch())
            continue;
        for (int i = 0; i + 1 < text.size(); ++i)
            words.insert(text.mid(i));
    }
    return sorted(words);
}

constexpr int firstCode = 1000; // of the product types that have one of those words as class

} // namespace

void PxFormatTest::initTestCase()
{
    QByteArray types = "1 book PROBEBOOK\n2 book OLDBOOK\n4 gift CUP\n";
    m_words = wordsIn(PX_PRODUCT_BASE_LIBRARY);
    for (int i = 0; i < m_words.size(); ++i)
        types += QStringLiteral("%1 %2 OF_%1\n").arg(firstCode + i).arg(m_words[i]).toLatin1();
    m_directory.writeProductTypes(types);
    m_directory.write("types/products/can.xml", "<a><product name='CAN'/></a>");
    m_directory.write("logo.png", "");
    QImage(5, 6, QImage::Format_RGB32).save(m_directory.filePath("logo.png"));
    QDir::setCurrent(m_directory.filePath(QString())); // where previews are looked for

    const QMap<PxFileKind, QString> files{{PxFileKind::Product, "values"},
                                          {PxFileKind::UserDefaults, "defaults"},
                                          {PxFileKind::Theme, "theme"},
                                          {PxFileKind::ProductTypes, "product-types"},
                                          {PxFileKind::Frames, "frames"}};
    for (auto name = files.begin(); name != files.end(); ++name) {
        QFile file(PX_TEST_DATA_DIRECTORY "/distinct-" + *name + ".xml");
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_files[name.key()] = file.readAll();
    }
    m_directory.write("frames.xml", m_files[PxFileKind::Frames]);
}

/** Comes first: a process reads its product types and its frames once. */
void PxFormatTest::libraryAsksForWhatTheTableHas()
{
    QSet<QString> known;
    for (auto kind = m_files.keyBegin(); kind != m_files.keyEnd(); ++kind)
        addNames(PxFormat::root(*kind), document(*kind).documentElement().tagName(), &known);

    const PxReadingRecorder reading;
    {
        const PxLogRecorder log; // of words that are no class
        QVERIFY(PxProductType("CUP").isValid());
    }
    QCOMPARE(PxHumanReadable::instance()->frameName("a"), QString("A"));
    for (PxFileKind kind : {PxFileKind::Product, PxFileKind::UserDefaults, PxFileKind::Theme})
        answers(kind, document(kind));
    QCOMPARE(sorted(reading.names() - known).join(' '), QString());
    const QStringList unasked = sorted(known - reading.names());
    QCOMPARE(unasked.filter("@").join(' '), QString()); // elements may also be found by walking
}

QDomDocument PxFormatTest::document(PxFileKind kind) const
{
    QDomDocument document;
    document.setContent(m_files[kind]);
    return document;
}

QString PxFormatTest::answers(PxFileKind kind, const QDomDocument &document) const
{
    const PxLogRecorder log;
    const QByteArray text = document.toByteArray();
    const auto describe = [this] {
        const QScopedPointer<PxProductTypeDescription> description(
            PxProductTypeDescriptionReader(QDir())
                .readFile(QFileInfo(m_directory.filePath("products/a.xml")))
                .second);
        PxArguments arguments;
        // Those of the fixture (27 of 100 is the 73rd from the back), and those it says nothing of.
        arguments.pages = {-1, 0, 1, 2, 27, 58, 63, 64, 65, 66, 67, 68, 73, 74, 76, 77, 78, 82, 83};
        arguments.pageCounts = {0, 9, 24, 26, 28, 40, 100};
        arguments.kinds.clear();
        for (const PxPageTypeEnum pageType :
             {PxPageTypeNormalPage, PxPageTypeFullCover, PxPageTypeNone}) {
            for (const PxPageAlignment side :
                 {PxPageAlignmentLeft, PxPageAlignmentTop, PxPageAlignmentNone})
                arguments.kinds.append(PxPageContext(pageType, side));
        }
        arguments.themes = QStringList{"normal", "design"};
        return pxAskEverything(*description, arguments);
    };
    if (kind == PxFileKind::Product) {
        m_directory.write("products/a.xml", text);
        return describe();
    }
    if (kind == PxFileKind::UserDefaults) {
        m_directory.write("products/a.xml",
                          "<productdescription><product name='PROBEBOOK'/></productdescription>");
        m_directory.write("user/PROBEBOOK.xml", text);
        const QString found = describe();
        QFile::remove(m_directory.filePath("user/PROBEBOOK.xml"));
        return found;
    }
    if (kind == PxFileKind::Theme) {
        m_directory.write("themes/a.xml", text);
        QDir directory(m_directory.filePath("themes"));
        PxArguments arguments;
        arguments.productType = 4;
        QString answers;
        for (const PxTheme &theme : PxThemeFactory().loadThemeList(directory))
            answers += pxAskEverything(theme, arguments);
        return answers;
    }
    // A process reads its product types once.
    m_directory.write("types/producttypes.xml", text);
    const QStringList list{"list", "--json", "--resources", m_directory.filePath("types")};
    return PxProgramRun(PX_CATALOGUE_PROGRAM, list).text();
}

void PxFormatTest::attributeIsReadAndHasItsDefault_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("attribute");
    for (const auto &[kind, path] : allPaths()) {
        for (const PxAttributeRow &row : PxFormat::find(kind, path)->attributes)
            QTest::newRow(qPrintable(path + '@' + row.name)) << int(kind) << path << row.name;
    }
}

void PxFormatTest::attributeIsReadAndHasItsDefault()
{
    QFETCH(int, kind);
    QFETCH(QString, path);
    QFETCH(QString, attribute);
    const auto fileKind = static_cast<PxFileKind>(kind);
    const PxAttributeRow &row = *PxFormat::attribute(*PxFormat::find(fileKind, path), attribute);
    const QDomDocument file = document(fileKind);
    QDomElement element = elementAt(file, path);
    QString probe = element.attribute(attribute);
    for (const auto &adaptation : adaptations) {
        QDomElement adapted = elementAt(file, adaptation.path);
        if (path == adaptation.path && attribute == adaptation.attribute && adaptation.probe)
            probe = adaptation.probe;
        if (adaptation.base)
            adapted.setAttribute(adaptation.attribute, adaptation.base);
        else
            adapted.removeAttribute(adaptation.attribute);
    }
    QVERIFY2(!probe.isNull(), "the fixture does not have it");
    if (row.type == PxValueType::Boolean && row.defaultText)
        probe = row.defaultText == QByteArray("true") ? "false" : "true";

    element.removeAttribute(attribute);
    const QString without = answers(fileKind, file);
    element.setAttribute(attribute, probe);
    QVERIFY(answers(fileKind, file) != without);
    if (row.defaultText) {
        element.setAttribute(attribute, QString::fromUtf8(row.defaultText));
        QCOMPARE(answers(fileKind, file), without);
    }
}

void PxFormatTest::elementCountsAsOften_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("path");
    for (const auto &[kind, path] : allPaths())
        QTest::newRow(qPrintable(QString::number(int(kind)) + path)) << int(kind) << path;
}

void PxFormatTest::elementCountsAsOften()
{
    QFETCH(int, kind);
    QFETCH(QString, path);
    const auto fileKind = static_cast<PxFileKind>(kind);
    const PxElementRow &row = *PxFormat::find(fileKind, path);
    const QDomDocument file = document(fileKind);
    QDomElement element = elementAt(file, path);
    const QString full = answers(fileKind, file);

    element.setTagName("any");
    QCOMPARE(answers(fileKind, file) == full, row.occurrence == PxOccurrence::AnyName);
    element.setTagName(row.name);
    if (row.text == PxTextKind::None && row.occurrence != PxOccurrence::AnyName &&
        fileKind != PxFileKind::Theme) {
        const QDomNode text = element.appendChild(QDomDocument(file).createTextNode("7"));
        QCOMPARE(answers(fileKind, file), full);
        element.removeChild(text);
    }
    if (path.isEmpty())
        return; // there is only one document element
    // An empty one before it: where only the first one counts, nothing is left.
    QDomNode parent = element.parentNode();
    parent.insertBefore(QDomDocument(file).createElement(row.name), element);
    const QString withBoth = answers(fileKind, file);
    parent.removeChild(element);
    const QString empty = answers(fileKind, file);
    QVERIFY(empty != full);
    QCOMPARE(withBoth == empty, row.occurrence == PxOccurrence::First);
}

/**
 * Each row of origins names what exists; each attribute is named, but for what "show" does not
 * print.
 */
void PxFormatTest::originsNameTheFormat()
{
    const QMap<QString, QPair<PxFileKind, QString>> roots = {
        {"", {PxFileKind::Product, "product"}},
        {"replaced", {PxFileKind::Product, "product"}},
        {"successor", {PxFileKind::Product, "product"}},
        {"user", {PxFileKind::UserDefaults, "defaults"}},
        {"theme", {PxFileKind::Theme, "theme"}},
        {"type", {PxFileKind::ProductTypes, "producttype"}}};
    QSet<QString> named;
    for (const PxOriginRow &row : PxOriginRows::all()) {
        for (QString term : QString(row.inputs).split(QRegularExpression("[ ;|]+"))) {
            const QString prefix = term.contains(':') ? term.section(':', 0, 0) : "";
            if (term.startsWith('/'))
                QVERIFY2(!PxOriginRows::of(term).isEmpty(), qPrintable(term));
            if (term.isEmpty() || term.startsWith('/') || !roots.contains(prefix))
                continue;
            const auto [kind, root] = roots[prefix];
            term = term.section(':', -1).remove(QRegularExpression("\\[\\w+\\]"));
            const QString path = root + '/' + term.section('@', 0, 0);
            const PxElementRow *element =
                PxFormat::find(kind, path.endsWith('/') ? path.chopped(1) : path);
            QVERIFY2(element, qPrintable(path));
            const QString attribute = term.section('@', 1);
            QVERIFY2(attribute.isEmpty() || PxFormat::attribute(*element, attribute),
                     qPrintable(term));
            named.insert(QString(element->name) + '@' + attribute);
        }
    }
    QStringList unnamed;
    const std::function<void(const PxElementRow &)> look = [&](const PxElementRow &element) {
        for (const PxAttributeRow &attribute : element.attributes) {
            const QString name = QString("%1@%2").arg(element.name, attribute.name);
            if (!named.contains(name))
                unnamed.append(name);
        }
        for (const PxElementRow &child : element.children)
            look(child);
    };
    for (const auto &root : roots)
        look(PxFormat::root(root.first));
    unnamed.removeDuplicates();
    QCOMPARE(unnamed.join(' '), QString("theme@id theme@producttype theme@thumbnail"));
}

/** In a process they are read once, so one file has to show it all. */
void PxFormatTest::framesAreReadOnce()
{
    QStringList names;
    for (const char *id : {"a", "b", "c", "d"})
        names.append(PxHumanReadable::instance()->frameName(id));
    QCOMPARE(names, QStringList({"A", "b", "c", "D"}));

    const PxElementRow &root = PxFormat::root(PxFileKind::Frames);
    const PxElementRow &frame = *PxFormat::child(root, "frame");
    QCOMPARE(PxFormat::attributeNames(frame), QStringList({"id", "name"}));
    QVERIFY(root.occurrence == PxOccurrence::AnyName);
    QVERIFY(frame.occurrence == PxOccurrence::Any);
}

void PxFormatTest::keywordsAreThoseOfTheLibrary()
{
    using Set = PxKeywordSet;
    for (int i = int(Set::Binding); i <= int(Set::Orientation); ++i) {
        const PxKeywordSetRow &set = PxFormat::keywords(Set(i));
        for (const PxKeywordTableRow &row : set.keywords) {
            QVERIFY2(PxFormat::isKeyword(set.set, row.keyword), qPrintable(row.keyword));
            QCOMPARE(PxFormat::decode(set.set, row.keyword), row.value);
        }
        QVERIFY(!PxFormat::isKeyword(set.set, "none of them"));
        QCOMPARE(PxFormat::decode(set.set, "none of them"), set.defaultValue);
    }
}

/** Only for these two are the words repeated. */
void PxFormatTest::platformKnowsTheSameKeywords()
{
    const PxLogRecorder log; // of words that are no keyword
    const QStringList orientations = PxFormat::keywordNames(PxKeywordSet::Orientation);
    const QStringList classes = PxFormat::keywordNames(PxKeywordSet::ProductClass);
    for (const QString &word : orientations + classes)
        QVERIFY2(m_words.contains(word), qPrintable(word));
    for (int i = 0; i < m_words.size(); ++i) {
        const QString &word = m_words[i];
        QVERIFY2(PxOrientation(word).isNull() != orientations.contains(word), qPrintable(word));
        QVERIFY2(PxProductType(firstCode + i).productClass() ==
                     PxFormat::decode(PxKeywordSet::ProductClass, word),
                 qPrintable(word));
    }
}

QTEST_GUILESS_MAIN(PxFormatTest)
#include "PxFormatTest.moc"
