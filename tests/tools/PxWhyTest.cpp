#include "drawing/PxProductFile.h"
#include "report/PxCatalogueProducts.h"
#include "why/PxWhyProduct.h"
#include "why/PxWhyQuestions.h"

#include <PxSampleCopy.h>

#include <geometry/PxDefaultTemplateMap.h>

#include <QFile>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <memory>
#include <vector>

/** The rules that "why" prints explain what the library answers, for all that can be asked. */
class PxWhyTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void explainsOffers();
    void explainsPageCounts();
    void explainsThemes();
    void explainsKeyAccounts();
    void explainsCompatibility();
    void explainsPages();
    void documentsEachRule();
    void readsEachFileOnce();

private:
    QString elementAt(const PxPlace &place) const;

    const PxSampleCopy m_sample;
    std::vector<std::unique_ptr<PxWhyProduct>> m_products;
};

namespace {

constexpr const char *bound = " binding='HARDCOVER'>";
constexpr const char *size = "<usablesize width='2100' height='2970'/>";
constexpr const char *pages = "<pages>fullcover,spine,fullcover,normalpages</pages>";

QString spines(const QList<int> &pageCounts)
{
    QString text;
    for (int count : pageCounts)
        text += QString("<spine pages='%1' width='%2'/>").arg(count).arg(count % 3);
    return "<spines>" + text + "</spines>";
}

/** Products that nobody would write, or only by mistake. */
struct Variant
{
    const char *name;
    const char *productClass;
    QString content; ///< of the file, behind the name of the product; empty for none
};

QVector<Variant> variants()
{
    const QString book = bound + QString(size);
    // clang-format off
    return {
        {"NO_FILE", "book", ""},
        {"NO_SIZE", "book", bound + QString(pages) + spines({26, 28, 30})},
        {"NO_BINDING", "book", ">" + QString(size) + pages + spines({26, 28, 30})},
        {"NO_SHAPE", "gift", bound + QString("<usablesize width='0' height='0'/>")},
        {"EMPTY_SIZE", "gift", bound + QString("<usablesize width='0' height='0' orientation='round'/>")},
        {"NEGATIVE_SIZE", "gift", bound + QString("<usablesize width='-1' height='5' orientation='round'/>")},
        {"PRINTED_BOOK", "print", book + pages + spines({26, 28, 30})},
        {"NO_SPINES", "book", book + pages},
        {"ONE_SPINE", "book", book + pages + spines({26})},
        {"TWO_SPINES", "book", book + pages + spines({40, 26})},
        {"SAME_SPINES", "book", book + pages + spines({26, 26, 28, 28})},
        {"IRREGULAR_END", "book", book + pages + spines({24, 26, 28, 31})},
        {"GAPS", "book", book + pages + spines({24, 28, 34, 36, 38})},
        {"GAPS_WITHOUT_SPINE", "book", book + "<pages>normalpages</pages>" + spines({24, 28, 34, 36, 38})},
        {"OTHER_THAN_SPINE", "book", book + "<pages>fullcover,emptypage,fullcover,normalpages</pages>" + spines({24, 26, 28, 31})},
        {"BELOW_NOTHING", "book", book + pages + spines({-4, -2, 0, 2, 4})},
        {"TOO_MANY", "book", book + "<pages>normalpages</pages>" + spines({99996, 99998, 100000, 100002})},
        {"HUGE_STEP", "book", book + pages + spines({-2147483647, 0, 2147483647})},
        {"NO_PIECES", "card", " numOfNormalPages='0'" + book},
        {"SPIRAL_BOOK", "book", " binding='CALENDAR_DUPLEX'>" + QString(size) + pages},
        {"PRESSED_CALENDAR", "calendar", book},
    };
    // clang-format on
}

QSet<QString> ourTags; // of all rules that were asked

void check(const PxWhyQuestion &question, bool answer)
{
    QStringList failing;
    for (const PxWhyRule &rule : question.rules) {
        ourTags.insert(rule.tag);
        if (!rule.holds)
            failing.append(rule.tag);
    }
    QVERIFY2(question.answer == answer, qPrintable(question.text));
    QVERIFY2(failing.isEmpty() == answer,
             qPrintable(question.text + " the rules say " + failing.join(", ")));
}

PxThemeList themes()
{
    return PxThemeFactory::instance()->themeList();
}

} // namespace

void PxWhyTest::initTestCase()
{
    QString types;
    int code = 70000;
    for (const Variant &variant : variants()) {
        types += QString("<producttype code='%1' name='%2' class='%3'/>")
                     .arg(QString::number(++code), variant.name, variant.productClass);
        if (!variant.content.isEmpty())
            m_sample.write(QString("products/%1.xml").arg(variant.name),
                           QString("<d><product name='%1'%2</product></d>")
                               .arg(variant.name, variant.content));
    }
    m_sample.replace("producttypes.xml", "</producttypes>", types + "</producttypes>");
    m_sample.write(
        "themes/more.xml",
        "<themes><theme id='past' producttype='book' expiry='200001010000'/>"
        "<theme id='none' producttype='book'><products><product>CUP1</product></products>"
        "<keyaccounts><a>7</a><a>x</a></keyaccounts></theme>"
        "<theme id='cups' expiry='205012312359'><products><product>cup2</product>"
        "<product>NO_SIZE</product><product>CUP1</product></products><keyaccounts><a>7</a></"
        "keyaccounts></theme></themes>");
    PxDirectoryConfig::instance()->setResourceDirectories({m_sample.path()});
    PxDirectoryConfig::instance()->setUserDefaultsPath(m_sample.filePath("defaults"));
    QVERIFY(PxProductPropertiesInitializer::setupModule());
    const auto *current = PxProductTypeConfigRegistry::instance();
    const auto *legacy = PxProductTypeConfigRegistry::legacyInstance();
    for (const PxProductType &type : PxCatalogueProducts::of(current))
        m_products.push_back(std::make_unique<PxWhyProduct>(current, type));
    for (const PxProductType &type : PxCatalogueProducts::of(legacy))
        m_products.push_back(std::make_unique<PxWhyProduct>(legacy, type));
    m_products.push_back(std::make_unique<PxWhyProduct>(current, PxProductType("NO_FILE")));
    QCOMPARE(int(m_products.size()), 45 + 7 + variants().size());
}

/** The start tag of an element, with the templates as the library calls them. */
QString PxWhyTest::elementAt(const PxPlace &place) const
{
    const QString text =
        m_sample.read(place.path).section('\n', place.line - 1).mid(place.column - 1);
    return PxDefaultTemplateMap::removeUmlauts(text.section('>', 0, 0));
}

void PxWhyTest::explainsOffers()
{
    const PxProductTypeList offered = PxProductTypeConfigRegistry::instance()->products();
    for (const auto &product : m_products)
        check(PxWhyQuestions::offered(*product), offered.contains(product->type()));
}

void PxWhyTest::explainsPageCounts()
{
    for (const auto &product : m_products) {
        const PxProductContext context(product->type());
        QList<int> counts{0, 1, 2, 12, 24, 99999, 100000, 100001, 2147483647};
        for (int count : product->description().offeredPageCounts())
            counts += {count - 1, count, count + 1};
        for (int count = 22; count < 44; ++count)
            counts.append(count);
        for (int count : qAsConst(counts))
            check(PxWhyQuestions::pageCount(*product, count),
                  context.offeredPageCounts().contains(count));
    }
}

void PxWhyTest::explainsThemes()
{
    for (const PxTheme &theme : themes()) {
        for (const auto &product : m_products) {
            const bool isAllowed = PxProductContext(product->type(), theme).isValid();
            check(PxWhyQuestions::theme(*product, theme),
                  product->isCurrent() && isAllowed && !theme.isExpired());
        }
    }
}

void PxWhyTest::explainsKeyAccounts()
{
    for (const PxTheme &theme : themes()) {
        for (int account : theme.keyAccounts() + PxKeyAccountNumberList{-1, 0, 7, 1000, 4711}) {
            const bool isOpen = PxThemeFactory::instance()->themeList(account).contains(theme);
            for (const auto &product : m_products) {
                const bool isAllowed =
                    PxProductContext(product->type(), theme).isValid() &&
                    PxProductTypeConfigRegistry::instance()->exists(product->type());
                check(PxWhyQuestions::keyAccount(*product, theme, account), isOpen && isAllowed);
            }
        }
    }
}

void PxWhyTest::explainsCompatibility()
{
    const auto *registry = PxProductTypeConfigRegistry::instance();
    int compatible = 0;
    for (const auto &product : m_products) {
        for (int criterion = 0; criterion < 16; ++criterion) {
            const auto flags = static_cast<PxProductComparationCriterion>(criterion);
            const PxProductTypeList others =
                registry->findCompatibleProducts(product->type(), flags);
            compatible += others.size();
            for (const auto &other : m_products)
                check(PxWhyQuestions::compatible(*product, *other, flags),
                      others.contains(other->type()));
        }
    }
    QVERIFY(compatible > 1000);
}

/** A page gets what the library says, from an entry that says so. */
void PxWhyTest::explainsPages()
{
    const auto explain = [this](const PxWhyProduct &product) {
        const int pageCount = product.shown().pageCount;
        const int count = product.description().pageTypes(pageCount).size();
        for (int number : {0, 1, 2, 3, 4, count - 1, count}) { // of each kind one
            const PxWhyQuestion question = PxWhyQuestions::page(product, number);
            check(question, product.isDescribed() && number < count);
            for (const PxWhyRule &rule : question.rules.mid(3)) {
                const QString given = rule.given.json.toString();
                const bool isWritten = !rule.given.json.isNull() && given != "dummy-barcode.png";
                const bool isFixed = given == "Weiss" && rule.origins.value(0).place.line == 0;
                QVERIFY2(!isWritten || isFixed ||
                             elementAt(rule.origins.value(0).place).contains(given),
                         qPrintable(question.text + ' ' + rule.tag));
            }
        }
    };
    for (const auto &product : m_products)
        explain(*product);
    const auto *registry = PxProductTypeConfigRegistry::instance();
    for (const char *name : {"BOOK_A4_PORTRAIT", "CALENDAR_WALL_A4", "CARD_FOLDED_A6", "CUP2"}) {
        for (const PxTheme &theme : themes())
            explain(PxWhyProduct(registry, PxProductType(name), theme.id()));
    }
    explain(PxWhyProduct(PxProductTypeConfigRegistry::legacyInstance(),
                         PxProductType("BOOK_CLASSIC_A4"), "hochzeit"));
}

void PxWhyTest::documentsEachRule()
{
    QFile file(PX_SOURCE_DIRECTORY "/docs/pxcatalogue.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY(ourTags.size() > 30); // those of the tests before
    for (const QString &tag : qAsConst(ourTags))
        QVERIFY2(text.contains('`' + tag + '`'), qPrintable(tag));
}

/** Else looking for products without a file would take the square of their number. */
void PxWhyTest::readsEachFileOnce()
{
    const PxProductType product("NO_FILE");
    m_sample.write("few/products/some.xml", "<d><product name='CUP1'/></d>");
    PxDirectoryConfig::instance()->setResourceDirectories({m_sample.filePath("few")});
    QCOMPARE(PxProductFile::pathOf(product, false), QString());
    m_sample.write("few/products/some.xml", "<d><product name='NO_FILE'/></d>");
    QCOMPARE(PxProductFile::pathOf(product, false), QString());
    QCOMPARE(PxProductFile::pathOf(PxProductType("CUP1"), false), QString("products/some.xml"));
}

QTEST_GUILESS_MAIN(PxWhyTest)
#include "PxWhyTest.moc"
