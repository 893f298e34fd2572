#include <PxDirectoryConfig.h>
#include <PxLogRecorder.h>
#include <PxOrientation.h>
#include <PxPageOrganizationCalculator.h>
#include <PxPageOrganizationManager.h>
#include <PxProductChecker.h>
#include <PxProductCheckerRegistry.h>
#include <PxProductGroup.h>
#include <PxProductTypeCatalogue.h>
#include <PxProductTypeList.h>

#include <QSizeF>
#include <QTemporaryDir>
#include <QTest>

class PxProductBaseTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void findsByCodeAndName();
    void isOfOneClass();
    void keepsAnUnknownCode();
    void isAKeyByCodeAlone();
    void leavesOutBadRows();
    void countsFurtherBadRows();
    void saysWhyItCannotBeRead();
    void orientationIsReadFromTextBeforeSize();
    void groupIsReadFromOneKeyword();
    void asksTheCalculatorAddedLast();
    void asksTheCheckersOfAKind();

private:
    QFileInfo write(const QString &xml) const;

    QTemporaryDir m_directory;
};

QFileInfo PxProductBaseTest::write(const QString &xml) const
{
    QFile file(m_directory.filePath("producttypes.xml"));
    if (!file.open(QIODevice::WriteOnly) || file.write(xml.toUtf8()) < 0)
        qFatal("cannot write the catalogue of this test");
    return QFileInfo(file.fileName());
}

void PxProductBaseTest::initTestCase()
{
    write("<producttypes><!-- all -->"
          "<producttype code='11' name=' Book_A4 ' class='book' shortname='BA4'/>"
          "<other/><producttype code='12' name='Foil\u00C4' class=' Deko ' shortname=''/>"
          "<producttype code='13' name='C' class='calendar'/>"
          "<producttype code='14' name='D' class='gift'/>"
          "<producttype code='15' name='E' class='card'/>"
          "<producttype code='16' name='F' class='print'/></producttypes>");
    PxDirectoryConfig::instance()->setResourceDirectories({m_directory.path()});
}

void PxProductBaseTest::findsByCodeAndName()
{
    const PxProductType book("  bOOk_a4\n");
    QVERIFY(book.isValid());
    QCOMPARE(book, PxProductType(11));
    QVERIFY(book != PxProductType(12));
    QCOMPARE(book.productName() + book.shortProductName(), QString("Book_A4BA4"));
    const PxProductType foil("FOIL\u00E4");
    QCOMPARE(foil, PxProductType(12));
    QCOMPARE(foil.shortProductName(), QString("Foil\u00C4"));
    QVERIFY(foil.isProductClass(PxProductClass(PxProductClassDecoration | PxProductClassCard)));
}

void PxProductBaseTest::isOfOneClass()
{
    constexpr int codes[] = {11, 13, 14, 15, 12, 16}; // the last one is a print
    for (int i = 0; i < 6; ++i) {
        const PxProductType t(codes[i]);
        const bool is[] = {t.isBook(), t.isCalendar(), t.isGift(), t.isCard(), t.isDeko()};
        for (int k = 0; k < 5; ++k)
            QVERIFY2(is[k] == (i == k), qPrintable(t.productName()));
    }
}

void PxProductBaseTest::keepsAnUnknownCode()
{
    const PxProductType unknown(99);
    QVERIFY(!unknown.isValid());
    QVERIFY(!unknown.isProductClass(PxProductClass(-1)));
    QCOMPARE(int(unknown.type()), 99);
    QCOMPARE(unknown.productName() + unknown.shortProductName(), QString());
    QCOMPARE(int(PxProductType("no such book").type()), 0);
    QVERIFY(!PxProductType(QString()).isValid());
    QVERIFY(!PxProductType(0).isValid());
}

void PxProductBaseTest::isAKeyByCodeAlone()
{
    PxProductTypeList list{99, 12, 11};
    std::sort(list.begin(), list.end());
    QCOMPARE(list, PxProductTypeList({PxProductType("book_a4"), 12, 99}));
    QCOMPARE(qHash(PxProductType("book_a4"), 5), qHash(PxProductType(11), 5));
    QCOMPARE(qHash(PxProductType(11)), qHash(PxProductType(11), 0));
}

void PxProductBaseTest::leavesOutBadRows()
{
    // clang-format off
    constexpr struct { const char *row; const char *reason; } rows[] = {
        {"code='7' class='gift'", "it has no name"}, {"code='7' name=' ' class='gift'", "it has no name"},
        {"code='0' name='B' class='gift'", "its code is no number above 0"}, {"code='7a' name='B' class='gift'", "its code is no number above 0"},
        {"code='7' name='B' class='gifts'", "its class is unknown"}, {"code='7' name='B'", "its class is unknown"},
        {"code='1' name='B' class='gift'", "an earlier row has its code"}, {"code='7' name='a' class='gift'", "an earlier row has its name"},
    };
    // clang-format on
    for (const auto &row : rows) {
        const QFileInfo file = write(
            QString("<producttypes><producttype code='1' name='A' class='card'/><producttype %1/>"
                    "<producttype code='3' name='C' class='print'/></producttypes>")
                .arg(row.row));
        const PxLogRecorder log;
        const PxProductTypeCatalogue catalogue{file};
        QCOMPARE(log.texts(), QStringList("PxProductTypeCatalogue leaves out row 2 of \"" +
                                          file.filePath() + "\": " + row.reason));
        QCOMPARE(catalogue.find(1)->productClass, PxProductClassCard);
        QCOMPARE(catalogue.find("c")->type, PxProductTypeEnum(3));
        QVERIFY(!catalogue.find(7));
        QVERIFY(!catalogue.find("B"));
    }
}

void PxProductBaseTest::countsFurtherBadRows()
{
    for (const int bad : {100, 102}) {
        const QFileInfo file =
            write("<producttypes>" + QString("<producttype/>").repeated(bad) + "</producttypes>");
        const PxLogRecorder log;
        PxProductTypeCatalogue{file};
        QCOMPARE(log.texts().size(), qMin(bad, 101));
        QCOMPARE(log.texts().filter("leaves out 2 more rows of \"" + file.filePath()).size(),
                 bad > 100 ? 1 : 0);
    }
}

void PxProductBaseTest::saysWhyItCannotBeRead()
{
    const PxLogRecorder log;
    PxProductTypeCatalogue(QFileInfo(m_directory.filePath("missing.xml")));
    QCOMPARE(log.texts(), QStringList());
    const QFileInfo file = write("<producttypes>\n</producttype>");
    PxProductTypeCatalogue{file};
    QCOMPARE(log.texts().size(), 1);
    QVERIFY2(log.texts()[0].contains(file.filePath() + ":2:14: "), qPrintable(log.texts()[0]));
    write("<products/>");
    PxProductTypeCatalogue{file};
    QVERIFY(log.texts().last().contains("not producttypes"));
}

void PxProductBaseTest::orientationIsReadFromTextBeforeSize()
{
    const auto orientation = [](const QString &text, double width, double height) {
        return int(PxOrientation(text, QSizeF(width, height)).value());
    };
    QCOMPARE(orientation(" Round, panorama ", 1, 2), 40);
    QCOMPARE(int(PxOrientation(" Round, panorama ").value()), 40);
    QCOMPARE(int(PxOrientation("portraitpanorama").value()), 16);
    QCOMPARE(orientation("square", 1, 2), 4);
    QCOMPARE(orientation("", 2.1, 2), 2);
    QCOMPARE(orientation("", 2, 2.1), 1);
    QCOMPARE(orientation("", 3, 3), 4);
    QCOMPARE(orientation("", -1, -1), 0);
    QCOMPARE(orientation("", 3, 0), 0);
    QCOMPARE(orientation("", 0, 3), 0);
    QCOMPARE(orientation("", 0.5, 0.75), 1);
    QCOMPARE(orientation("", qQNaN(), qQNaN()), 0);
}

void PxProductBaseTest::groupIsReadFromOneKeyword()
{
    QCOMPARE(PxProductGroup(" Product_FotoBook "), PxProductGroup(PxProductGroupBook));
    for (const char *text : {"jewellery", "book,gift", ""})
        QVERIFY2(!PxProductGroup(QString(text)).isValid(), text);
}

namespace {

struct Calculator : PxPageOrganizationCalculator
{
    explicit Calculator(unsigned minimum) : m_minimum(minimum) {}
    PxPageCountOrganization createPageOrganization(const PxProductType &type) const override
    {
        return {m_minimum, unsigned(type.type()), 3};
    }
    unsigned m_minimum;
};

/** Finds one type valid. */
struct Checker : PxProductChecker
{
    Checker(int validType, int kind) : m_validType(validType), m_kind(kind) {}
    bool isValid(const PxProductType &type) const override { return type.type() == m_validType; }
    int type() const override { return m_kind; }
    int minPages(const PxProductType &) const override { return 0; }
    int maxPages(const PxProductType &) const override { return 0; }
    int pageIncrement(const PxProductType &) const override { return 0; }
    int m_validType;
    int m_kind;
};

} // namespace

void PxProductBaseTest::asksTheCalculatorAddedLast()
{
    PxPageOrganizationManager *manager = PxPageOrganizationManager::instance();
    QVERIFY(manager->pageCountOrganzation(70) == PxPageCountOrganization(1, 1, 0));
    for (const auto &[minimum, maximum, increment] : {std::array{2, 1, 0}, {1, 2, 0}, {1, 1, 1}})
        QVERIFY(!(PxPageCountOrganization(1, 1, 0) ==
                  PxPageCountOrganization(minimum, maximum, increment)));

    manager->addCalculator(new Calculator(5));
    manager->addCalculator(new Calculator(unsigned(-1))); // how a missing number arrives here
    manager->addCalculator(nullptr);
    QVERIFY(manager->pageCountOrganzation(70) == PxPageCountOrganization(unsigned(-1), 70, 3));
    QCOMPARE(manager->minPages(70), -1);
    QCOMPARE(manager->maxPages(70), 70);
    QCOMPARE(manager->pageIncrement(70), 3);
}

void PxProductBaseTest::asksTheCheckersOfAKind()
{
    PxProductCheckerRegistry *registry = PxProductCheckerRegistry::instance();
    static Checker four(40, 4); // registered for the life of the process
    static Checker five(50, 5);
    QVERIFY(!registry->isValid(40, 0));
    QVERIFY(registry->registerChecker(&four));
    QVERIFY(registry->registerChecker(&five));
    QVERIFY(!registry->registerChecker(&four));
    QVERIFY(!registry->registerChecker(nullptr));
    constexpr int valid[][2] = {{40, 0}, {50, 0}, {40, 4}};
    for (const auto &[type, kind] : valid)
        QVERIFY2(registry->isValid(type, kind), QByteArray::number(kind));
    constexpr int invalid[][2] = {{41, 0}, {40, 5}, {40, 6}};
    for (const auto &[type, kind] : invalid)
        QVERIFY2(!registry->isValid(type, kind), QByteArray::number(kind));
}

QTEST_GUILESS_MAIN(PxProductBaseTest)
#include "PxProductBaseTest.moc"
