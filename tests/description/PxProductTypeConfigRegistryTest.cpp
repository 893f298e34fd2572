#include "PxCatalogueDirectory.h"
#include "PxLogRecorder.h"

#include <description/PxProductTypeConfigRegistry.h>
#include <description/PxProductTypeDescriptionReader.h>

#include <PxProductCheckerRegistry.h>

#include <QDir>
#include <QTest>

#include <algorithm>

class PxProductTypeConfigRegistryTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void damagedFileIsReportedAndSkipped();
    void filesWithoutKnownProductAreSkippedSilently();
    void ofTwoFilesOfOneProductOneIsKept();
    void unknownTypeIsAnsweredFromDefaults();
    void listsTheProductsOnOffer();
    void findsSuccessorsOfLegacyProducts();
    void ofTwoSuccessorsTheOneWithTheSmallerCodeIsFound();
    void findsOfferedProductsOfTheSameClass();

private:
    void write(const char *file, const QByteArray &xml) const { m_directory.write(file, xml); }
    QDir directory(const char *name) const { return QDir(m_directory.filePath(name)); }

    PxCatalogueDirectory m_directory;
    // Kept, as every registry: see its destructor.
    PxProductTypeConfigRegistry *m_registry = nullptr;
};

static QByteArray product(const QByteArray &attributes, const QByteArray &children = "")
{
    return "<d><product " + attributes + ">" + children + "</product></d>";
}

void PxProductTypeConfigRegistryTest::initTestCase()
{
    m_directory.writeProductTypes("1 book BOOK\n2 book LEGACY\n3 calendar CAL\n4 book SMALL\n"
                                  "5 book INVALID\n6 gift GIFT\n7 book OTHER\n1009 book 1009\n"
                                  "2003 book 2003\n3001 book 3001\n4007 book 4007\n5003 book 5003");
    const QByteArray portrait = "<usablesize width='2000' height='3000'/>";
    write("products/book.xml", product("name='BOOK' legacy='LEGACY' space='xl'",
                                       portrait + "<classification cm='20x30' group='Leinwand'/>"));
    write("products/small.xml",
          product("name=' small '", "<usablesize width='1000' height='2000'/>"));
    write("products/other.xml", product("name='OTHER'", "<usablesize width='9' height='8'/>"));
    write("products/gift.xml", product("name='GIFT'", portrait));
    write("products/invalid.xml", product("name='INVALID' orientation='portrait'"));
    m_registry = new PxProductTypeConfigRegistry(directory("products"));
}

void PxProductTypeConfigRegistryTest::damagedFileIsReportedAndSkipped()
{
    write("damaged/a.xml", "<d>\n<product name='BOOK'></d>");
    write("damaged/b.XML", product("name='BOOK'"));
    write("damaged/c.txt", "no product file");
    const PxLogRecorder log;
    const auto descriptions = PxProductTypeDescriptionReader(directory("damaged")).readDir();
    QCOMPARE(descriptions.keys(), QList<PxProductType>{1});
    qDeleteAll(descriptions);

    const QString path = directory("damaged").absoluteFilePath("a.xml");
    QCOMPARE(log.entries().size(), 2);
    const auto context = [&log](int index) {
        const PxLogRecorder::Entry entry = log.entries().at(index);
        return QString("%1 %2 %3:%4 %5")
            .arg(entry.level)
            .arg(entry.category, entry.file)
            .arg(entry.line)
            .arg(entry.function);
    };
    const QString function = " QPair<PxProductType, PxProductTypeDescription*> "
                             "PxProductTypeDescriptionReader::readFile(const QFileInfo&)";
    QCOMPARE(context(0), "1 default PxProductTypeDescriptionReader:78" + function);
    QCOMPARE(context(1), "0 px.productproperties PxProductTypeDescriptionReader:79" + function);
    QCOMPARE(log.texts().at(0),
             "PxProductTypeDescriptionReader::readFile could not open \"" + path + '"');
    const QString reason = "PxProductTypeDescriptionReader::readFile the reason: " + path + ":2:";
    QVERIFY2(log.texts().at(1).startsWith(reason), qPrintable(log.texts().at(1)));
}

void PxProductTypeConfigRegistryTest::filesWithoutKnownProductAreSkippedSilently()
{
    write("unknown/a.xml", product("name='NEVERHEARDOF'"));
    write("unknown/b.xml", "<d/>");
    const PxLogRecorder log;
    for (const char *name : {"unknown", "no such directory"})
        QVERIFY(PxProductTypeDescriptionReader(directory(name)).readDir().isEmpty());
    QCOMPARE(log.texts(), QStringList());
}

void PxProductTypeConfigRegistryTest::ofTwoFilesOfOneProductOneIsKept()
{
    write("twice/a.xml", product("name='BOOK' foldmargin='1'"));
    write("twice/b.xml", product("name='BOOK' foldmargin='2'"));
    // The directory's own order decides.
    const QString last = directory("twice").entryList(QDir::Files, QDir::Unsorted).constLast();
    const auto descriptions = PxProductTypeDescriptionReader(directory("twice")).readDir();
    QCOMPARE(descriptions.size(), 1);
    QCOMPARE(descriptions.value(1)->foldMargin(), last == "a.xml" ? 1 : 2);
    qDeleteAll(descriptions);
}

void PxProductTypeConfigRegistryTest::unknownTypeIsAnsweredFromDefaults()
{
    QVERIFY(m_registry->exists(1));
    QVERIFY(!m_registry->exists(5)); // has a file without a size
    QVERIFY(!m_registry->exists(3)); // has no file
    QVERIFY(!m_registry->exists(99));
    QCOMPARE(m_registry->description(99), m_registry->description(PxProductType()));
    QVERIFY(m_registry->description(5) != m_registry->description(99));
}

void PxProductTypeConfigRegistryTest::listsTheProductsOnOffer()
{
    // Without INVALID; by class and name, not by code.
    QCOMPARE(m_registry->products(), PxProductTypeList({1, 7, 4, 6}));
}

void PxProductTypeConfigRegistryTest::findsSuccessorsOfLegacyProducts()
{
    QCOMPARE(m_registry->findProductForLegacy(2), PxProductType(1));
    QCOMPARE(m_registry->findProductForLegacy(1), PxProductType(0));
    // Most products replace none, which is type 0 as well.
    QCOMPARE(m_registry->findProductForLegacy(0), PxProductType(0));
}

void PxProductTypeConfigRegistryTest::ofTwoSuccessorsTheOneWithTheSmallerCodeIsFound()
{
    for (const int code : {3001, 2003, 1009, 4007, 5003})
        write(qPrintable(QString("successors/%1.xml").arg(code)),
              product("legacy='LEGACY' name='" + QByteArray::number(code) + '\''));
    // Kept, as every registry: see its destructor.
    static const auto *ourRegistry = new PxProductTypeConfigRegistry(directory("successors"));
    QCOMPARE(ourRegistry->findProductForLegacy(2), PxProductType(1009));
}

void PxProductTypeConfigRegistryTest::findsOfferedProductsOfTheSameClass()
{
    QVERIFY(m_registry->findCompatibleProducts(1, PxProductComparationNone).isEmpty());
    QVERIFY(PxProductCheckerRegistry::instance()->registerChecker(m_registry));
    PxProductTypeList compatible =
        m_registry->findCompatibleProducts(1, PxProductComparationBinding);
    std::sort(compatible.begin(), compatible.end());
    QCOMPARE(compatible, PxProductTypeList({1, 4}));
    QCOMPARE(m_registry->findCompatibleProducts(1, PxProductComparationSpaceMagnitude),
             PxProductTypeList{1});

    const auto books = m_registry->createProductClassifationManager(PxProductClassBook);
    QCOMPARE(books.size(1, true), QString("20x30"));
    QCOMPARE(books.size(6, true), QString()); // a gift
    QCOMPARE(books.type(PxProductMaterial("Leinwand"), "20x30", true), PxProductType(1));
}

QTEST_GUILESS_MAIN(PxProductTypeConfigRegistryTest)
#include "PxProductTypeConfigRegistryTest.moc"
