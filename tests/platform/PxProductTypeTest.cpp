#include <PxDirectoryConfig.h>
#include <PxLogRecorder.h>
#include <PxProductTypeCatalogue.h>
#include <PxProductTypeList.h>

#include <QTemporaryDir>
#include <QTest>

#include <thread>

class PxProductTypeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    // The first to use the catalogue.
    void isReadOnceByThreads();
    void findsByCodeAndName();
    void keepsAnUnknownCode();
    void isAKeyByCodeAlone();
    void leavesOutBadRows_data();
    void leavesOutBadRows();
    void saysWhyItCannotBeRead();

private:
    QString write(const char *xml) const;

    QTemporaryDir m_directory;
};

QString PxProductTypeTest::write(const char *xml) const
{
    QFile file(m_directory.filePath("producttypes.xml"));
    if (!file.open(QIODevice::WriteOnly) || file.write(xml) < 0)
        qFatal("cannot write the catalogue of this test");
    return file.fileName();
}

void PxProductTypeTest::initTestCase()
{
    write("<producttypes><!-- all -->"
          "<producttype code='11' name=' Book_A4 ' class='book' shortname='BA4'/>"
          "<other/><producttype code='12' name='Foil\u00C4' class=' Deko ' shortname=''/>"
          "</producttypes>");
    PxDirectoryConfig::instance()->setResourceDirectories({m_directory.path()});
}

void PxProductTypeTest::isReadOnceByThreads()
{
    bool isBook[8] = {};
    std::vector<std::thread> threads;
    for (bool &result : isBook)
        threads.emplace_back([&result] { result = PxProductType(11).isBook(); });
    for (std::thread &thread : threads)
        thread.join();
    for (bool result : isBook)
        QVERIFY(result);
}

void PxProductTypeTest::findsByCodeAndName()
{
    const PxProductType book(QString("  bOOk_a4\n"));
    QVERIFY(book.isValid());
    QCOMPARE(int(book.type()), 11);
    QCOMPARE(book.productClass(), PxProductClassBook);
    QCOMPARE(book.productName(), QString("Book_A4"));
    QCOMPARE(book.shortProductName(), QString("BA4"));

    const PxProductType foil(QString("FOIL\u00E4"));
    QCOMPARE(foil, PxProductType(12));
    QVERIFY(foil.isDeko() && !foil.isBook() && !foil.isCalendar() && !foil.isGift());
    QVERIFY(foil.isProductClass(PxProductClass(PxProductClassDecoration | PxProductClassCard)));
    QCOMPARE(foil.shortProductName(), QString("Foil\u00C4"));
}

void PxProductTypeTest::keepsAnUnknownCode()
{
    const PxProductType unknown(99);
    QVERIFY(!unknown.isValid());
    QCOMPARE(int(unknown.type()), 99);
    QCOMPARE(unknown.productName(), QString());
    QVERIFY(!unknown.isProductClass(PxProductClass(-1)));
    QCOMPARE(int(PxProductType(QString("no such book")).type()), 0);
    QVERIFY(!PxProductType(QString()).isValid() && !PxProductType(0).isValid());
}

void PxProductTypeTest::isAKeyByCodeAlone()
{
    PxProductTypeList list{PxProductType(99), PxProductType(12), PxProductType(11)};
    std::sort(list.begin(), list.end());
    QCOMPARE(list, (PxProductTypeList{PxProductType(QString("book_a4")), PxProductType(12),
                                      PxProductType(99)}));
    QCOMPARE(qHash(PxProductType(QString("book_a4")), 5), qHash(PxProductType(11), 5));
}

void PxProductTypeTest::leavesOutBadRows_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("reason");
    constexpr struct
    {
        const char *row;
        const char *reason;
    } rows[] = {
        {"code='7' class='gift'", "it has no name"},
        {"code='7' name=' ' class='gift'", "it has no name"},
        {"code='0' name='B' class='gift'", "its code is no number above 0"},
        {"code='7a' name='B' class='gift'", "its code is no number above 0"},
        {"code='7' name='B' class='gifts'", "its class is unknown"},
        {"code='7' name='B'", "its class is unknown"},
        {"code='1' name='B' class='gift'", "an earlier row has its code"},
        {"code='7' name='a' class='gift'", "an earlier row has its name"},
    };
    for (const auto &row : rows)
        QTest::newRow(row.row) << row.row << row.reason;
}

void PxProductTypeTest::leavesOutBadRows()
{
    QFETCH(QString, row);
    QFETCH(QString, reason);
    const QString file = write(
        qPrintable("<producttypes><producttype code='1' name='A' class='card'/><producttype " +
                   row + "/><producttype code='3' name='C' class='print'/></producttypes>"));
    const PxLogRecorder log;
    const PxProductTypeCatalogue catalogue{QFileInfo(file)};
    QCOMPARE(log.texts(),
             QStringList("PxProductTypeCatalogue leaves out row 2 of \"" + file + "\": " + reason));
    QCOMPARE(catalogue.find(1)->productClass, PxProductClassCard);
    QCOMPARE(catalogue.find("c")->type, PxProductTypeEnum(3));
    QVERIFY(!catalogue.find(7) && !catalogue.find("B"));
}

void PxProductTypeTest::saysWhyItCannotBeRead()
{
    const PxLogRecorder log;
    PxProductTypeCatalogue(QFileInfo(m_directory.filePath("missing.xml")));
    QCOMPARE(log.texts(), QStringList());

    const QFileInfo file(write("<producttypes>\n</producttype>"));
    PxProductTypeCatalogue{file};
    QCOMPARE(log.texts().size(), 1);
    QVERIFY2(log.texts().last().contains(file.filePath() + ":2:14: "), qPrintable(log.texts()[0]));

    write("<products/>");
    PxProductTypeCatalogue{file};
    QVERIFY(log.texts().last().contains("not producttypes"));
}

QTEST_GUILESS_MAIN(PxProductTypeTest)
#include "PxProductTypeTest.moc"
