#include <PxCatalogueDirectory.h>
#include <PxDirectoryConfig.h>
#include <PxRows.h>
#include <description/PxProductPropertiesInitializer.h>
#include <variants/PxProductTypeVariationListModel.h>
#include <variants/PxProductVariantIdentifiers.h>
#include <variants/PxProductVariantListModel.h>

#include <QAbstractItemModelTester>
#include <QFile>
#include <QProcess>
#include <QTranslator>

/** Knows two names, by their comments too, and one label. */
class Translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *comment,
                      int) const override
    {
        const QByteArray key = QByteArrayList{context, text, comment}.join('|');
        if (key == "PxProductVariantIdentifiers|Äffchen|Art des Tierchenanhängers")
            return "Monkey";
        if (key == "PxProductVariantIdentifiers|Schwarz|Farbe für Messenger-Bag")
            return "Black";
        return key == "PxProductVariantIdentifiers|Art|" ? "Kind" : QString();
    }
};

class PxVariantModelsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void namesVariantsOfTheirOwnProduct();
    void listsVariants();
    void rolesTellWhatARowStandsFor();
    void paintsSwatches();
    void listsCompatibleProducts();
    void listsWhatTheThemeAllows();
    void changesRowsBetweenTheResetSignals();
    void exampleShowsTheSwatches();

private:
    PxCatalogueDirectory m_catalogue;
    Translator m_translator;
};

namespace {

PxProductType type(const char *name)
{
    return PxProductType(QString(name));
}

PxProductContext book(const PxEmptyMeansAllSet<PxProductType> &allowed, const char *themeId = "t")
{
    const PxTheme theme(themeId, PxProductGroup(), QString(), QDateTime(), QImage(), {}, {}, false,
                        false, false, {}, false, allowed);
    return PxProductContext(type("BOOK_A4_PORTRAIT"), theme);
}

QStringList textsOf(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, 0).data().toString());
    return texts;
}

} // namespace

void PxVariantModelsTest::initTestCase()
{
    // A part of the sample catalogue, and two products with variants that nothing names.
    m_catalogue.write("products/ba7.xml",
                      "<p><product name='BA7'><variants type='Größe'><variant>color:plaid</variant>"
                      "<variant>color:black</variant></variants></product></p>");
    m_catalogue.write("products/game_memory.xml", "<p><product name='GAME_MEMORY'><variants>"
                                                  "<v>color:black</v></variants></product></p>");
    for (const QString file : {"cup2", "cb14", "pdt1", "book_a4_portrait", "book_a4_portrait_soft",
                               "book_a4_portrait_glossy", "book_a4_portrait_photo"})
        QVERIFY(QFile::copy(PX_SAMPLE_DIRECTORY "/products/" + file + ".xml",
                            m_catalogue.filePath("products/" + file + ".xml")));
    PxDirectoryConfig::instance()->setResourceDirectories(
        {m_catalogue.filePath(QString()), PX_SAMPLE_DIRECTORY});
    QVERIFY(QCoreApplication::installTranslator(&m_translator));
    QVERIFY(PxProductPropertiesInitializer::setupModule());
}

void PxVariantModelsTest::namesVariantsOfTheirOwnProduct()
{
    const auto *identifiers = PxProductVariantIdentifiers::instance();
    pxCheckAnswers(
        "variantName", "CUP2;color:blue=Blau BA7;color:blue= PDT1;figure:monkey=Monkey",
        [=](const QStringList &w) { return identifiers->variantName(PxProductType(w[0]), w[1]); });
    pxCheckAnswers(
        "namedIdentifiers",
        "CB14=ruling:blank,ruling:chequered,ruling:lined BA7=color:black CUP1= CB1=",
        [=](const QString &product) { return identifiers->namedIdentifiers(product).join(','); });
    QVERIFY(PxProductVariantIdentifiers::translatableDescriptions().contains("Innenfarbe"));
    pxCheckAnswers( // the first one of CB14 is the last one in its file
        "defaultVariant", "CB14=ruling:blank BA7=color:black GAME_MEMORY= BOOK_MINI=",
        [=](const QString &product) { return identifiers->defaultVariant(product); });
    pxCheckAnswers("hasVariants", "BA7=true GAME_MEMORY=false BOOK_MINI=false",
                   [=](const QString &product) { return identifiers->hasVariants(product); });
    pxCheckAnswers(
        "variantDescription", "PDT1=Kind CUP2=Innenfarbe BA7=Größe",
        [=](const QString &product) { return identifiers->variantDescription(product); });
}

void PxVariantModelsTest::listsVariants()
{
    PxProductVariantListModel model(type("CB14"));
    QVERIFY(model.index(0).data(Qt::DecorationRole).value<QIcon>().isNull());
    model.setProduct(type("CUP2"));
    QCOMPARE(textsOf(model), QStringList({"Schwarz", "Blau", "Grün", "Rot", "Gelb"}));
    QCOMPARE(model.indexOf("color:red"), 3);
    pxCheckAnswers("identifier", "Grün=color:green Lila=", [&](const QString &name) {
        return model.identifier(name);
    });
    pxCheckAnswers("identifier", "1=color:blue -1= 5=", [&](const QList<int> &row) {
        return model.identifier(row[0]);
    });
    const QPixmap red = model.index(3).data(Qt::DecorationRole).value<QIcon>().pixmap(1);
    QCOMPARE(red.toImage().pixelColor(0, 0), QColor(203, 0, 0));
    QVERIFY(!model.index(3).data(Qt::EditRole).isValid());

    model.setProduct(type("BA7")); // translated names keep their colours
    QCOMPARE(textsOf(model), QStringList("Black"));
    QCOMPARE(model.index(0).data(PxProductVariantListModel::ColorRole), QVariant(QColor(0, 0, 0)));
    QVERIFY(PxProductVariantListModel::colorDescriptionToPixmap("Black").isNull());
}

void PxVariantModelsTest::rolesTellWhatARowStandsFor()
{
    PxProductVariantListModel variants(type("CUP2"));
    const PxProductTypeVariationListModel papers(book({}), PxProductComparationAllButPaperType);
    const auto role = [](const QAbstractItemModel &model, const QString &name) {
        return model.index(1, 0).data(model.roleNames().key(name.toLatin1()));
    };
    pxCheckAnswers("variant", "display=Blau identifier=color:blue color=#281577",
                   [&](const QString &name) { return role(variants, name); });
    pxCheckAnswers("product", "productName=BOOK_A4_PORTRAIT_GLOSSY productCode=102",
                   [&](const QString &name) { return role(papers, name); });
    QCOMPARE(role(papers, "productType").value<PxProductType>(), type("BOOK_A4_PORTRAIT_GLOSSY"));
    variants.setProduct(type("CB14"));
    QVERIFY(!role(variants, "color").isValid());
}

void PxVariantModelsTest::paintsSwatches()
{
    const auto swatch = &PxProductVariantListModel::colorDescriptionToPixmap;
    pxCheckAnswers(
        "colour",
        "schwarz=#000000 WEIß=#ffffff weinrot=#af275d gelb=#ffd14c grün=#00595c "
        "blau=#281577 rot=#cb0000 pink=#e600e6 HellBlau=#0ea6a7 violett=#4d00ff",
        [&](const QString &name) { return swatch(name).toImage().pixelColor(99, 0).name(); });
    QCOMPARE(swatch("rot").size(), QSize(100, 100));
    QVERIFY(swatch("liniert").isNull());
}

void PxVariantModelsTest::listsCompatibleProducts()
{
    const PxProductTypeVariationListModel papers(book({}), PxProductComparationAllButPaperType);
    QCOMPARE(textsOf(papers), QStringList({"Digitaldruck", "Digitaldruck mit Hochglanz-Veredelung",
                                           "Fotopapier glänzend"}));
    QCOMPARE(papers.indexOfCurrentProduct(), papers.index(0));
    QVERIFY(!papers.productAt(3).isValid());
    // By code point "Premium-Matt", which is CB14, stands before "mit Hochglanz-Veredelung".
    const PxProductTypeList sorted{type("CB14"), type("BOOK_A4_PORTRAIT_GLOSSY")};
    QCOMPARE(papers.filterAllowedByTheme({sorted[1], sorted[0]}), sorted);
    QVERIFY(!lessThanQString("a", "a"));

    const PxProductTypeVariationListModel bindings(book({}), PxProductComparationAllButBinding);
    QCOMPARE(textsOf(bindings), QStringList({"Hardcover", "Softcover"}));
    const PxProductTypeList unsorted{bindings.productAt(1), bindings.productAt(0)};
    QCOMPARE(bindings.filterAllowedByTheme(unsorted)[1], unsorted[0]);
    const PxProductTypeVariationListModel sizes(book({}), PxProductComparationSpaceMagnitude);
    QCOMPARE(sizes.filterAllowedByTheme(unsorted), unsorted);
    QVERIFY(!sizes.index(0).data().isValid());
}

void PxVariantModelsTest::listsWhatTheThemeAllows()
{
    const PxProductTypeVariationListModel model(
        book({type("CUP2"), type("BOOK_A4_PORTRAIT_GLOSSY")}), PxProductComparationAllButPaperType);
    QCOMPARE(textsOf(model), QStringList("Digitaldruck mit Hochglanz-Veredelung"));
    QVERIFY(!model.indexOfCurrentProduct().isValid());
}

void PxVariantModelsTest::changesRowsBetweenTheResetSignals()
{
    PxProductVariantListModel variants(type("CB14"));
    PxProductTypeVariationListModel papers(book({}), PxProductComparationAllButPaperType);
    QList<int> rows; // of the model, when a reset is announced and when it is done
    for (QAbstractItemModel *model :
         std::initializer_list<QAbstractItemModel *>{&variants, &papers}) {
        new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::QtTest,
                                     model);
        const auto record = [&rows, model] { rows.append(model->rowCount()); };
        connect(model, &QAbstractItemModel::modelAboutToBeReset, record);
        connect(model, &QAbstractItemModel::modelReset, record);
        QCOMPARE(model->columnCount(), 1);
        QCOMPARE(model->columnCount(model->index(0, 0)), 0);
        QCOMPARE(model->rowCount(model->index(0, 0)), 0);
        QVERIFY(!model->data(QModelIndex()).isValid());
    }
    variants.setProduct(type("CUP2"));
    QCOMPARE(variants.sizeNeeded(), 7);
    const QList<QModelIndex> gone{variants.index(0), papers.index(1)};
    variants.setProduct(type("BOOK_MINI"));
    QCOMPARE(variants.sizeNeeded(), 7); // as wide as it was
    QCOMPARE(PxProductVariantListModel(type("BOOK_MINI")).sizeNeeded(), 0);
    QCOMPARE(rows, QList<int>({3, 5, 5, 0}));
    papers.setProductContext(book({})); // equal
    QCOMPARE(rows.size(), 4);
    papers.setProductContext(book({type("BOOK_A4_PORTRAIT_GLOSSY")}, "other"));
    papers.updateContent();
    QCOMPARE(rows.mid(4), QList<int>({3, 1, 1, 1}));
    for (const QModelIndex &index : gone)
        QVERIFY(!index.data().isValid());
}

void PxVariantModelsTest::exampleShowsTheSwatches()
{
    const QString file = m_catalogue.filePath("window.png");
    qputenv("PX_RESOURCE_DIRS", PX_SAMPLE_DIRECTORY);
    QCOMPARE(QProcess::execute(PX_VARIANTS_PROGRAM, {"--screenshot", file}), 0);
    const QImage picture(file);
    QHash<QRgb, int> pixels;
    for (int i = 0; i < picture.width() * picture.height(); ++i)
        ++pixels[picture.pixel(i % picture.width(), i / picture.width())];
    const QColor colors[] = {{0, 0, 0}, {40, 21, 119}, {0, 89, 92}, {203, 0, 0}, {255, 209, 76}};
    for (const QColor &color : colors)
        QVERIFY2(pixels[color.rgb()] >= 32 * 32, qPrintable(color.name()));
}

QTEST_MAIN(PxVariantModelsTest)
#include "PxVariantModelsTest.moc"
