#include "PxAskEverything.h"
#include "PxCatalogueDirectory.h"
#include "PxPictures.h"

#include <context/PxIndirectProductDescription.h>
#include <context/PxProductContext.h>
#include <description/PxProductPropertiesInitializer.h>
#include <description/PxProductTypeConfigRegistry.h>
#include <themes/PxThemeFactory.h>

#include <PxDirectoryConfig.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

/** What a file says, in one line, and the answers to it. */
struct Block
{
    QString file;
    QStringList expected;
    QStringList found;
};

QString read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

const QRegularExpression ourComment("^#");

/** Expected answers are indented by two spaces. */
QList<Block> readBlocks(const char *name)
{
    QList<Block> blocks;
    const QString text = read(PX_TEST_DATA_DIRECTORY "/" + QString::fromUtf8(name));
    for (const QString &line : text.split('\n', Qt::SkipEmptyParts)) {
        if (line.startsWith("  "))
            blocks.last().expected.append(line.mid(2));
        else if (!line.contains(ourComment))
            blocks.append({line, {}, {}});
    }
    return blocks;
}

/** Without the name of who answers, which every product and theme has for itself. */
QStringList lines(QString answers, const QString &name)
{
    QStringList lines;
    for (const QString &line : answers.replace(name, "NAME").split('\n', Qt::SkipEmptyParts))
        lines.append(line.trimmed());
    return lines;
}

constexpr int firstCode = 9000;
const QString theThemeOfProducts = "a";

QStringList answersOfProduct(int code)
{
    PxArguments arguments;
    arguments.pages = {-1, 0, 1, 2, 3};
    arguments.pageCounts = {2, 4};
    arguments.kinds = {PxPageContext(PxPageTypeNormalPage, PxPageAlignmentLeft),
                       PxPageContext(PxPageTypeFullCover, PxPageAlignmentRight)};
    arguments.themes = QStringList{theThemeOfProducts};
    const auto *registry = PxProductTypeConfigRegistry::instance();
    const PxProductContext context(code, theThemeOfProducts);
    return lines(pxAskEverything(*registry->description(code), arguments) +
                     pxAskEverything(*registry, code, arguments) +
                     pxAskEverything(context, arguments) +
                     pxAskEverything(PxIndirectProductDescription(context)),
                 QString::number(code));
}

QStringList answersOfTheme(const QString &id)
{
    PxArguments arguments;
    arguments.pages = {1};
    arguments.pageCounts = {};
    arguments.kinds = {};
    arguments.productType = 1;
    const PxTheme theme = PxThemeFactory::instance()->findTheme(id);
    return lines(pxAskEverything(theme, arguments) +
                     pxAskEverything(PxProductContext(1, theme), arguments),
                 '"' + id + '"');
}

/** Leaves the answers that differ from those to the first file. */
void leaveDifferences(QList<Block> &blocks)
{
    for (int i = 1; i < blocks.size(); ++i) {
        for (const QString &answer : qAsConst(blocks.first().found))
            blocks[i].found.removeAll(answer);
    }
}

} // namespace

/**
 * Every question of the library has an answer of its own: a file that says one thing more changes
 * the answers to these questions, and no other answer.
 */
class PxAnswersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fileIsAnsweredBy_data();
    void fileIsAnsweredBy();
    void everyAnswerIsChangedByAFile();
    void everyQuestionIsAsked_data();
    void everyQuestionIsAsked();
    void cleanupTestCase();

private:
    void writeFiles() const;

    QList<Block> m_products = readBlocks("answers-of-products.txt");
    QList<Block> m_themes = readBlocks("answers-of-themes.txt");
    const QString m_workingDirectory = QDir::currentPath();
    PxCatalogueDirectory m_directory;
};

void PxAnswersTest::writeFiles() const
{
    QByteArray types = "1 book BOOK";
    for (int i = 0; i < m_products.size(); ++i) {
        const QByteArray name = 'P' + QByteArray::number(firstCode + i);
        const QByteArray productClass = m_products[i].file.section(' ', 0, 0).toUtf8();
        const QByteArray rest = m_products[i].file.section(' ', 1).toUtf8();
        types += '\n' + name.mid(1) + ' ' + productClass + ' ' + name;
        if (rest != "without a file")
            m_directory.write("products/" + name + ".xml",
                              "<d><product name='" + name + "' " + rest + "</product></d>");
    }
    m_directory.writeProductTypes(types);
    QByteArray themes;
    for (const Block &block : m_themes) {
        if (block.file.contains('>')) // else it is an id that no theme has
            themes += "<theme " + block.file.toUtf8() + "</theme>";
    }
    m_directory.write("themes/a.xml", "<themes>" + themes + "</themes>");
    m_directory.write("preview.png", PxPictures::png({7, 5}));
}

void PxAnswersTest::initTestCase()
{
    writeFiles();
    PxDirectoryConfig::instance()->setThemesDirectory(m_directory.filePath("themes"));
    QVERIFY(QDir::setCurrent(m_directory.filePath(QString()))); // where thumbnails are looked up
    QVERIFY(PxProductPropertiesInitializer::setupModule());
    for (int i = 0; i < m_products.size(); ++i)
        m_products[i].found = answersOfProduct(firstCode + i);
    for (Block &block : m_themes)
        block.found = answersOfTheme(block.file.section('\'', 1, 1).toLower());
    leaveDifferences(m_products);
    leaveDifferences(m_themes);
}

/** Writes the answers as they are: for new rows, and to see what a change changes. */
void PxAnswersTest::cleanupTestCase()
{
    for (const auto *blocks : {&m_products, &m_themes}) {
        const QString name =
            blocks == &m_themes ? "/answers-of-themes.txt" : "/answers-of-products.txt";
        QFile file(m_workingDirectory + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        for (const QString &line :
             read(PX_TEST_DATA_DIRECTORY + name).split('\n').filter(ourComment))
            file.write(line.toUtf8() + '\n');
        for (const Block &block : *blocks)
            file.write((QStringList(block.file) + block.found).join("\n  ").toUtf8() + '\n');
    }
}

void PxAnswersTest::fileIsAnsweredBy_data()
{
    QTest::addColumn<QStringList>("found");
    QTest::addColumn<QStringList>("expected");
    for (const Block &block : m_products + m_themes)
        QTest::newRow(qPrintable(block.file)) << block.found << block.expected;
}

void PxAnswersTest::fileIsAnsweredBy()
{
    QFETCH(QStringList, found);
    QFETCH(QStringList, expected);
    for (const QString &answer : found)
        QVERIFY2(expected.contains(answer), qPrintable("unexpected: " + answer));
    for (const QString &answer : expected)
        QVERIFY2(found.contains(answer), qPrintable("missing: " + answer));
}

void PxAnswersTest::everyAnswerIsChangedByAFile()
{
    // Who is asked, and what; with which arguments does not matter here.
    static const QRegularExpression ourQuestion("^([\\w ]+).*?: (.*?\\)):");
    const auto question = [](const QString &answer) {
        const QRegularExpressionMatch match = ourQuestion.match(answer);
        return match.captured(1) + ": " + match.captured(2);
    };
    // The first three are constants, the others the same of all these products and themes.
    QSet<QString> changed{"registry: type()",
                          "context: minimumImageAreaSize()",
                          "theme: canUseNormalLayouts()",
                          "context: isVoidContext()",
                          "context: startsWithLeftPage()",
                          "indirect description: isEmpty()",
                          "indirect description: isValid()"};
    for (const Block &block : m_products.mid(1) + m_themes.mid(1)) {
        for (const QString &answer : block.expected)
            changed.insert(question(answer));
    }
    const QStringList all = m_products[0].expected + m_themes[0].expected;
    for (const QString &answer : all.filter("NAME"))
        changed.insert(question(answer));
    QStringList unchanged;
    for (const QString &answer : all) {
        if (!changed.contains(question(answer)))
            unchanged.append(question(answer));
    }
    QVERIFY2(unchanged.isEmpty(), qPrintable(unchanged.join(QChar(10))));
}

void PxAnswersTest::everyQuestionIsAsked_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<QStringList>("others"); // asked about several objects, in other tests
    QTest::newRow("description") << "description/PxProductTypeDescription.h" << QStringList();
    QTest::newRow("registry") << "description/PxProductTypeConfigRegistry.h"
                              << QStringList({"description", "products", "findProductForLegacy",
                                              "findCompatibleProducts",
                                              "createProductClassifationManager"});
    QTest::newRow("context") << "context/PxProductContext.h"
                             << QStringList({"isVerySimilarTo", "hash"});
    QTest::newRow("indirect description")
        << "context/PxIndirectProductDescription.h" << QStringList({"matches", "toXml"});
    QTest::newRow("theme") << "themes/PxTheme.h" << QStringList("sortingKey");
}

void PxAnswersTest::everyQuestionIsAsked()
{
    QFETCH(QString, header);
    QFETCH(QStringList, others);
    const QString asked = (m_products[0].expected + m_themes[0].expected).join('\n');
    const QString text = read(PX_SOURCE_DIRECTORY "/src/" + header).section("\nprivate:", 0, 0);
    static const QRegularExpression ourQuestion(R"(^    [^/*\n]*?\b(\w+)\([^;{}]*\) const\b)",
                                                QRegularExpression::MultilineOption);
    auto questions = ourQuestion.globalMatch(text);
    QVERIFY(questions.hasNext());
    while (questions.hasNext()) {
        const QString name = questions.next().captured(1);
        const QRegularExpression line(
            QString(R"(^%1[^(]*: %2\()").arg(QTest::currentDataTag(), name),
            QRegularExpression::MultilineOption);
        if (!name.startsWith("operator") && !others.contains(name))
            QVERIFY2(asked.contains(line), qPrintable(name));
    }
}

QTEST_GUILESS_MAIN(PxAnswersTest)
#include "PxAnswersTest.moc"
