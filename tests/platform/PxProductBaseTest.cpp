#include <PxCatalogueDirectory.h>
#include <PxLogRecorder.h>
#include <PxOrientation.h>
#include <PxPageOrganizationCalculator.h>
#include <PxPageOrganizationManager.h>
#include <PxProductChecker.h>
#include <PxProductCheckerRegistry.h>
#include <PxProductTypeCatalogue.h>
#include <PxProductTypeList.h>
#include <PxRows.h>

#include <QSizeF>
#include <QTest>

class PxProductBaseTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void findsByCodeAndName();
    void keepsAnUnknownCode();
    void isAKeyByCodeAlone();
    void leavesOutBadRows();
    void countsFurtherBadRows();
    void saysWhyItCannotBeRead();
    void orientationIsReadFromTextBeforeSize();
    void asksTheCalculatorAddedLast();
    void asksTheCheckersOfAKind();

private:
    QFileInfo write(const QString &xml) const;

    PxCatalogueDirectory m_directory;
};

QFileInfo PxProductBaseTest::write(const QString &xml) const
{
    m_directory.write("producttypes.xml", xml.toUtf8());
    return QFileInfo(m_directory.filePath("producttypes.xml"));
}

void PxProductBaseTest::initTestCase()
{
    write("<producttypes><!-- all -->"
          "<producttype code='11' name=' Book_A4 ' class='book' shortname='BA4'/>"
          "<other/><producttype code='12' name='Foil\u00C4' class=' Deko ' shortname=''/>"
          "</producttypes>");
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
    QCOMPARE(int(PxOrientation(" Round, panorama ", QSizeF(1, 2)).value()), 40);
    QCOMPARE(int(PxOrientation(" Round, panorama ").value()), 40);
    QCOMPARE(int(PxOrientation("portraitpanorama").value()), 16);
    QCOMPARE(int(PxOrientation("square", QSizeF(1, 2)).value()), 4);
    pxCheckAnswers("width,height", "2.1,2=2 2,2.1=1 3,3=4 -1,-1=0 3,0=0 0,3=0 0.5,0.75=1 nan,nan=0",
                   [](const QString &size) {
                       const QSizeF s(size.section(',', 0, 0).toDouble(),
                                      size.section(',', 1).toDouble());
                       return int(PxOrientation("", s).value());
                   });
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
    pxCheckAnswers("type,kind", "40,0=true 50,0=true 40,4=true 41,0=false 40,5=false 40,6=false",
                   [=](const QList<int> &asked) { return registry->isValid(asked[0], asked[1]); });
}

QTEST_GUILESS_MAIN(PxProductBaseTest)
#include "PxProductBaseTest.moc"
