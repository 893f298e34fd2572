#include <PxDirectoryConfig.h>
#include <PxLogRecorder.h>
#include <themes/PxThemeList.h>

#include <QTest>

namespace {

const QDateTime farFuture(QDate(2999, 12, 31), QTime(23, 59));
const QDateTime past(QDate(1976, 12, 30), QTime(23, 59));

struct Parts
{
    QString id = "a";
    PxProductGroup group = PxProductGroupBook;
    QString description = "text";
    QDateTime expiry = farFuture;
    int thumbnailWidth = 3;
    PxKeyAccountNumberList keyAccounts{1, 2};
    PxProductTypeEnum typeOfLogo = PxProductTypeEnum(7);
    int logoWidth = 4;
    QRect placeOfLogo{5, 6, 7, 8};
    bool useSpineText = true;
    bool canMoveContent = false;
    bool canUseNormalBackgrounds = true;
    QMap<PxJigTypeEnum, QString> categories{
        {PxJigTypeBackground, "Meer"},    {PxJigTypeClipart, "Herz"}, {PxJigTypeContent, "Reise"},
        {PxJigTypePassepartout, "Nebel"}, {PxJigTypeFrame, "Holz"},   {PxJigTypeLayout, "Raster"}};
    bool useSpineLogo = false;
    QList<int> products = {};
};

PxTheme themeOf(const Parts &p)
{
    const auto image = [](int width) {
        QImage blank(width, 3, QImage::Format_RGB32);
        blank.fill(Qt::red);
        return blank;
    };
    PxDefaultThematicCategories categories;
    for (auto it = p.categories.begin(); it != p.categories.end(); ++it)
        categories.insert(it.key(), PxThematicCategory(*it, ""));
    PxEmptyMeansAllSet<PxProductType> products;
    for (int type : p.products)
        products.insert(type);
    return PxTheme(p.id, p.group, p.description, p.expiry, image(p.thumbnailWidth), p.keyAccounts,
                   {{p.typeOfLogo, {image(p.logoWidth), p.placeOfLogo}}}, p.useSpineText,
                   p.canMoveContent, p.canUseNormalBackgrounds, categories, p.useSpineLogo,
                   products);
}

PxTheme createTheme(const QString &id, const QDateTime &expiry = farFuture)
{
    Parts parts;
    parts.id = id;
    parts.description += " of " + id;
    parts.expiry = expiry;
    return themeOf(parts);
}

enum Sameness { Equal = 1, Hash = 2, Key = 4 };

} // namespace

class PxThemeTest : public QObject
{
    Q_OBJECT

private slots:
    void differsInOnePart_data();
    void differsInOnePart();
    void missingCatalogueIsNotReported();
    void listFindsFiltersAndOrders();
};

void PxThemeTest::differsInOnePart_data()
{
    QTest::addColumn<PxTheme>("theme");
    QTest::addColumn<int>("same"); // in spite of the difference
    const auto row = [](const char *part, int same, void (*change)(Parts &)) {
        Parts parts;
        change(parts);
        QTest::newRow(part) << themeOf(parts) << same;
    };
    row("id", 0, [](Parts &p) { p.id = "A"; });
    row("default theme", 0, [](Parts &p) { p.id = "NORMAL"; });
    row("design theme", 0, [](Parts &p) { p.id = "Design"; });
    row("description", Hash, [](Parts &p) { p.description = "Text"; });
    row("group", Hash, [](Parts &p) { p.group = PxProductGroupUnknown; });
    row("thumbnail", Hash | Key, [](Parts &p) { p.thumbnailWidth = 9; });
    row("expiry", 0, [](Parts &p) { p.expiry = farFuture.addSecs(-60); });
    row("expired", 0, [](Parts &p) { p.expiry = past; });
    row("key accounts", Hash, [](Parts &p) { p.keyAccounts = {1, 3}; });
    row("products", Equal | Hash | Key, [](Parts &p) { p.products = {7}; });
    row("useSpineText", Hash, [](Parts &p) { p.useSpineText = false; });
    row("useSpineLogo", Hash, [](Parts &p) { p.useSpineLogo = true; });
    row("canMove", Hash, [](Parts &p) { p.canMoveContent = true; });
    row("backgrounds", Hash, [](Parts &p) { p.canUseNormalBackgrounds = false; });
    row("type of the logo", Hash, [](Parts &p) { p.typeOfLogo = PxProductTypeEnum(8); });
    row("logo", Hash | Key, [](Parts &p) { p.logoWidth = 9; });
    row("place", Hash, [](Parts &p) { p.placeOfLogo.setHeight(9); });
    row("background", Hash, [](Parts &p) { p.categories[PxJigTypeBackground] = "Wald"; });
    row("frame", Hash | Key | Equal, [](Parts &p) { p.categories[PxJigTypeFrame] = "HOLZ"; });
    row("layout", Hash, [](Parts &p) { p.categories[PxJigTypeLayout] = "Wald"; });
}

void PxThemeTest::differsInOnePart()
{
    QFETCH(PxTheme, theme);
    QFETCH(int, same);
    const PxTheme base = themeOf({});
    QCOMPARE(theme == base, (same & Equal) != 0);
    QCOMPARE(theme != base, (same & Equal) == 0);
    QCOMPARE(qHash(theme, 5) == qHash(base, 5), (same & Hash) != 0);
    QCOMPARE(theme.sortingKey() == base.sortingKey(), (same & Key) != 0);
    QCOMPARE(qHash(theme), qHash(theme, 0));
}

void PxThemeTest::missingCatalogueIsNotReported()
{
    PxDirectoryConfig::instance()->setResourceDirectories({QDir::tempPath() + "/none"});
    const PxLogRecorder log;
    QVERIFY(!PxProductType(7).isValid());
    QCOMPARE(log.texts(), QStringList());
}

void PxThemeTest::listFindsFiltersAndOrders()
{
    PxThemeList list({createTheme("a"), createTheme("normal"), createTheme("b", past),
                      createTheme("design"), createTheme("a", past)});
    QCOMPARE(list.findTheme("a").expiryDate(), farFuture);
    QVERIFY(!list.contains(QString("A")));
    QVERIFY(!list.findTheme("A").isValid());
    QCOMPARE(list.filter(2, true).asCommaSeparatedIDList(), QString("a,normal,design"));
    QCOMPARE(list.filter(2, false).asCommaSeparatedIDList(), QString("b,a"));
    QVERIFY(list.filter(3, true).isEmpty());
    list.normalize();
    QCOMPARE(list.asCommaSeparatedIDList(), QString("design,normal,a,b,a"));
    list.appendUnique(PxThemeList({createTheme("b", past), createTheme("albfreetheme")}));
    list.normalize();
    QCOMPARE(list.asCommaSeparatedIDList(), QString("albfreetheme,design,normal,a,b,a"));
    const PxThemeList same = list;
    list.appendUnique(same);
    QCOMPARE(list.size(), same.size());
    QCOMPARE(list.descriptionList().constLast(), QString("text of a"));
    PxThemeList invalid({createTheme("a"), PxTheme("normal", {}, {}, {}, {}, {}, {}, false, false,
                                                   false, {}, false, {})});
    invalid.normalize();
    QCOMPARE(invalid.asCommaSeparatedIDList(), QString("a,normal"));
}

QTEST_GUILESS_MAIN(PxThemeTest)
#include "PxThemeTest.moc"
