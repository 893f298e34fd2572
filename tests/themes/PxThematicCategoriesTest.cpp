#include <PxElement.h>
#include <themes/PxThematicCategorySet.h>

#include <QDebug>
#include <QTest>

#include <type_traits>

static_assert(!std::is_default_constructible_v<PxThematicCategory>, "a category has a name");

class PxThematicCategoriesTest : public QObject
{
    Q_OBJECT

private slots:
    void comparesWithoutCaseButHashesAsWritten();
    void readsLists();
    void prefersOneCategory();
    void comparesSets();
    void writesMembers();
};

void PxThematicCategoriesTest::comparesWithoutCaseButHashesAsWritten()
{
    const PxThematicCategory bin("papierkorb", "Abfall");
    QCOMPARE(bin, PxThematicCategory::recycleBin());
    QVERIFY(bin != PxThematicCategory::favourites());
    QVERIFY(bin.isRecycleBin());
    QVERIFY(!bin.isFavourite());
    QVERIFY(PxThematicCategory::favourites().isFavourite());
    QCOMPARE(qHash(bin), qHash(QString("papierkorb"), 0));
    QVERIFY(PxThematicCategory("Tiere", "") < PxThematicCategory("tiere", ""));
    QVERIFY(!PxThematicCategorySet(bin).contains(PxThematicCategory::recycleBin()));
    QCOMPARE(PxThematicCategorySet(QStringList{"Tiere", "tiere", "Tiere"}).size(), 2);
}

void PxThematicCategoriesTest::readsLists()
{
    QStringList names =
        PxThematicCategorySet::buildFromCSV(",Meer, Meer,,Berge").toDataStringList();
    names.sort();
    QCOMPARE(names, QStringList({" Meer", "Berge", "Meer"}));
}

void PxThematicCategoriesTest::prefersOneCategory()
{
    const auto preferred = [](const char *names) {
        return PxThematicCategorySet::buildFromCSV(names).preferredCategory().name();
    };
    QCOMPARE(preferred(""), QString());
    QCOMPARE(preferred("Papierkorb"), QString("Papierkorb"));
    QCOMPARE(preferred("Alles anzeigen...,Papierkorb,Favoriten,InterneMasken,InterneRahmen,Meer"),
             QString("Meer"));
    QCOMPARE(preferred("Meer,Multicolor"), QString("Multicolor"));
    QCOMPARE(preferred("Favoriten,favoriten"), QString("favoriten")); // another spelling: ordinary
}

void PxThematicCategoriesTest::comparesSets()
{
    const PxThematicCategorySet none;
    const PxThematicCategorySet sea(QStringList{"Meer"});
    const PxThematicCategorySet colour(PxThematicCategory::multiColor());
    QVERIFY(colour.isOnlyMultiColor());
    QVERIFY(!sea.isOnlyMultiColor());
    QVERIFY(!colour.plusFavourites().isOnlyMultiColor());
    QVERIFY(none.plusFavourites().containsOnlyFavouritesAnd(none));
    QVERIFY(sea.plusFavourites().containsOnlyFavouritesAnd(sea));
    QVERIFY(!sea.containsOnlyFavouritesAnd(colour));
    QVERIFY(sea.containsAtLeastOne(sea.plusFavourites()));
    QVERIFY(!sea.containsAtLeastOne(colour));
}

void PxThematicCategoriesTest::writesMembers()
{
    QDomElement parent = pxElement("<item/>");
    PxThematicCategorySet(QStringList{"Meer & Sand"}).toXml(parent);
    QCOMPARE(pxXml(parent), QString("<item><subcategory>Meer &amp; Sand</subcategory></item>"));

    QTest::ignoreMessage(QtDebugMsg, "Category name :  \"InterneMasken\" \n "
                                     "Category VisibleName :  \"Masken\"");
    qDebug() << PxThematicCategorySet(PxThematicCategory::passpartouts());
}

QTEST_GUILESS_MAIN(PxThematicCategoriesTest)
#include "PxThematicCategoriesTest.moc"
