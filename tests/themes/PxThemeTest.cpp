#include <themes/PxThemeList.h>

#include <QTest>

namespace {

const QDateTime farFuture(QDate(2999, 12, 31), QTime(23, 59));

QImage logo()
{
    QImage image(2, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

PxTheme createTheme(const QString &id, const QDateTime &expiry = farFuture,
                    const PxEmptyMeansAllSet<PxProductType> &products = {})
{
    return PxTheme(id, PxProductGroupBook, "text of " + id, expiry, QImage(), {1, 2},
                   {{PxProductTypeEnum(7), {logo(), QRect(1, 2, 3, 4)}}}, true, false, true,
                   {{PxJigTypeFrame, PxThematicCategory("Holz", "")}}, false, products);
}

} // namespace

class PxThemeTest : public QObject
{
    Q_OBJECT

private slots:
    void voidThemeIsNoTheme();
    void namesDecideInAnyCase();
    void flagsAreNotCrossed();
    void comparisonLeavesTheProductsOut();
    void expiryAndKeyAccounts();
    void listFindsFiltersAndOrders();
};

void PxThemeTest::voidThemeIsNoTheme()
{
    const PxTheme theme = PxTheme::voidTheme();
    QVERIFY(!theme.isValid() && !theme.isDefaultTheme() && theme.isThemeWithContent());
    QCOMPARE(theme.id() + theme.description(), QString("unbekanntunbekannt"));
    QVERIFY(theme.canUseNormalBackgrounds() && !theme.useSpineLogo() && theme.isExpired());
    QVERIFY(theme.defaultContentCategory().isEmpty());
    QVERIFY(theme.vemoLogo(7).first.isNull() && !theme.vemoLogo(7).second.isValid());
    QVERIFY(theme == PxTheme());
}

void PxThemeTest::namesDecideInAnyCase()
{
    QVERIFY(createTheme("NORMAL").isDefaultTheme() && !createTheme("NORMAL").isThemeWithContent());
    QVERIFY(createTheme("Design").isDesignTheme() && createTheme("Design").isThemeWithContent());
}

void PxThemeTest::flagsAreNotCrossed()
{
    const PxTheme theme = createTheme("a");
    QVERIFY(theme.useSpineText() && !theme.canMoveContent() && theme.canUseNormalBackgrounds());
    QVERIFY(!theme.useSpineLogo() && !theme.canUseNormalLayouts());
    QVERIFY(theme.mustPaintVemoLogo(PxProductType(7)) && !theme.mustPaintVemoLogo(8));
    QCOMPARE(theme.vemoLogo(7).second, QRect(1, 2, 3, 4));
    QCOMPARE(theme.defaultFrameCategory().name(), QString("Holz"));
    QVERIFY(theme.defaultFadingCategory().isEmpty());
}

void PxThemeTest::comparisonLeavesTheProductsOut()
{
    PxEmptyMeansAllSet<PxProductType> products;
    products.insert(PxProductType(7));
    const PxTheme all = createTheme("a");
    const PxTheme few = createTheme("a", farFuture, products);
    QVERIFY(all == few);
    QCOMPARE(qHash(all, 5), qHash(few, 5));
    QVERIFY(all != createTheme("b") && all != createTheme("a", farFuture.addSecs(1)));
}

void PxThemeTest::expiryAndKeyAccounts()
{
    const PxTheme old = createTheme("a", QDateTime(QDate(1976, 12, 30), QTime(23, 59)));
    QCOMPARE(old.expiryDayToOrderTxt(), QString("1976-12-30"));
    QVERIFY(old.isExpired() && !createTheme("a").isExpired());
    QVERIFY(old.isValidForKeyAccount(2) && !old.isValidForKeyAccount(3));
    QVERIFY(!PxTheme().isValidForKeyAccount(0));
}

void PxThemeTest::listFindsFiltersAndOrders()
{
    const QDateTime past(QDate(2001, 1, 1), QTime(0, 0));
    PxThemeList list({createTheme("a"), createTheme("normal"), createTheme("b", past),
                      createTheme("design"), createTheme("a", past)});
    QCOMPARE(list.findTheme("a").expiryDate(), farFuture);
    QVERIFY(!list.contains(QString("A")) && !list.findTheme("A").isValid());
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
