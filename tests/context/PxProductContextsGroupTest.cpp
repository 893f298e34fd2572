#include "PxCatalogueDirectory.h"
#include "PxElement.h"
#include "PxRows.h"

#include <context/PxProductContext.h>
#include <context/PxProductContextsGroup.h>

#include <PxDirectoryConfig.h>

namespace {

PxThemeList themes(const char *ids)
{
    return PxThemeList(QString(ids));
}

} // namespace

class PxProductContextsGroupTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void emptySetsAdmitEverything();
    void invalidThemeOfTheAskedContextIsIgnored();
    void productsMatchExplicitlyOrByDescription();
    void defaultThemeBringsTheOthers();
    void namesAndXmlGoTogether();
    void indirectDescription();
    void comparesFields();

private:
    PxCatalogueDirectory m_directory;
};

void PxProductContextsGroupTest::initTestCase()
{
    m_directory.writeProductTypes("1 book BOOK\n2 calendar CAL\n3 card CARD");
    m_directory.write("products/1.xml", "<d><product name='BOOK'><usablesize width='300' "
                                        "height='100'/></product></d>");
    m_directory.write("themes/a.xml",
                      "<themes><t id='normal' producttype='book'/><t id='a' producttype='book'/>"
                      "<t id='b' producttype='book'><content normalBackgrounds='0'/></t>"
                      "<t id='void'/></themes>");
    PxDirectoryConfig::instance()->setThemesDirectory(m_directory.filePath("themes"));
}

void PxProductContextsGroupTest::emptySetsAdmitEverything()
{
    const PxProductContextsGroup all;
    QVERIFY(all.containsContext(PxProductContext(1, QString("a"))));
    QVERIFY(all.themeName().isNull() && all.defaultContext().isVoidContext());
    const PxProductContextsGroup a({1}, themes("a"));
    QVERIFY(all.matches(a));
    QVERIFY(!a.matches(PxProductContextsGroup({1}, themes("b"))));
    QVERIFY(!a.matches(PxProductContextsGroup({2}, themes("a"))));
    QVERIFY(!all.productsMatchExplicitly(all));
    QVERIFY(all.themesMatchSomewhat(all));
    QVERIFY(PxProductContextsGroup({1}, {}).defaultContext().isVoidContext());
    QCOMPARE(PxProductContextsGroup({1}, themes("a")).defaultWidthHeightRatio(), 3.0);
    QCOMPARE(all.defaultWidthHeightRatio(), 1.0);
}

void PxProductContextsGroupTest::invalidThemeOfTheAskedContextIsIgnored()
{
    const PxProductContextsGroup group({1}, themes("a"));
    QVERIFY(group.containsContext(PxProductContext(1, QString("a"))));
    QVERIFY(!group.containsContext(PxProductContext(1, QString("b"))));
    QVERIFY(group.containsContext(PxProductContext(1, QString("void"))));
    QVERIFY(!group.containsContext(PxProductContext(2, QString("void"))));
    // The group's own invalid theme admits just itself.
    QVERIFY(!PxProductContextsGroup({1}, themes("void"))
                 .containsContext(PxProductContext(1, QString("a"))));
}

void PxProductContextsGroupTest::productsMatchExplicitlyOrByDescription()
{
    const auto group = [](const QString &codes, PxOrientationEnum orientation) {
        PxProductTypeList types;
        for (const int code : pxIntList(codes))
            types.append(code);
        PxProductContextsGroup created(types, {});
        created.setIndirectProductDescription({orientation, PxTemplateTargetGift});
        return created;
    };
    const auto match = [&group](const QStringList &codes) {
        const auto own = group(codes[0], PxOrientationPortrait);
        return QString("%1%2")
            .arg(own.productMatches(group(codes[1], PxOrientationPortrait)))
            .arg(own.productMatches(group(codes[1], PxOrientationLandscape)));
    };
    // By the same descriptions, and by others.
    pxCheckAnswers("products", "1,2;2,3=11 1;2=00 ;2=10 ;=10", match);
}

void PxProductContextsGroupTest::defaultThemeBringsTheOthers()
{
    PxProductContextsGroup group{themes("normal")};
    group.expandThemesIfMyThemesContainTheDefaultTheme(false, true);
    QCOMPARE(group.themeNames(), QStringList("normal"));
    group.expandThemesIfMyThemesContainTheDefaultTheme(true, false);
    QVERIFY(group.containsTheme(themes("a").first()) && !group.containsTheme(themes("b").first()));

    PxProductContextsGroup all;
    QVERIFY(all.containsTheme(themes("b").first()));
    all.expandThemesIfMyThemesContainTheDefaultTheme(true, false);
    QVERIFY(!all.containsTheme(themes("b").first()));

    PxProductContextsGroup without{themes("b")};
    without.expandThemesIfMyThemesContainTheDefaultTheme(true, true);
    QCOMPARE(without.themeName(), QString("b"));
}

void PxProductContextsGroupTest::namesAndXmlGoTogether()
{
    PxProductContextsGroup group({3, 1, 3}, themes("b,normal,a"));
    group.setIndirectProductDescription(
        {PxOrientation("landscape,portrait"),
         static_cast<PxTemplateTarget>(PxTemplateTargetGift | PxTemplateTargetFotoBook)});
    QCOMPARE(group.explicitProductTypes(), PxProductTypeList({1, 3}));
    QCOMPARE(group.themeName(), QString("normal"));
    QCOMPARE(group.defaultContext().themeId(), group.themeNames().constFirst());

    QDomElement root = pxElement("<group/>");
    group.toXml(root);
    QString expected = "<group><product>BOOK</product><product>CARD</product>";
    for (const QString &theme : group.themeNames())
        expected += "<theme>" + theme + "</theme>";
    expected += "<orientation>portrait, landscape</orientation><type>FOTOBOOK,GIFT</type></group>";
    QCOMPARE(pxXml(root), expected);
}

void PxProductContextsGroupTest::indirectDescription()
{
    const PxIndirectProductDescription book(PxProductContext(1));
    QCOMPARE(book.templateTypes().values(), QList<PxTemplateTarget>{PxTemplateTargetFotoBook});
    QCOMPARE(book.defaultWidthHeightRatio(), 1.5);
    QVERIFY(book.isValid());
    QCOMPARE(PxIndirectProductDescription::guessTemplateTarget(PxProductContext(3)),
             PxTemplateTargetGift);
    QCOMPARE(PxIndirectProductDescription::guessTemplateTarget(PxProductContext()),
             PxTemplateTargetUnknown);

    const PxIndirectProductDescription any;
    QVERIFY(any.isEmpty() && any.matches(book));
    QCOMPARE(any.orientation().value(), 63);
    QCOMPARE(any.defaultWidthHeightRatio(), 1.0);
    const PxIndirectProductDescription portrait(PxOrientationPortrait, PxTemplateTargetUnknown);
    QCOMPARE(portrait.defaultWidthHeightRatio(), 0.666666);
    QVERIFY(!portrait.isValid() && !portrait.matches(book));
}

void PxProductContextsGroupTest::comparesFields()
{
    pxCheckComparison("PxProductContext", "1;a 2;a 1;b", [](const QStringList &words) {
        return PxProductContext(words[0].toInt(), words[1]);
    });
    pxCheckComparison(
        "PxIndirectProductDescription", "3,4 2,4 0,4 3,12 3,0", [](const QList<int> &n) {
            const auto orientation = static_cast<PxOrientationEnum>(n[0]);
            return PxIndirectProductDescription(orientation, static_cast<PxTemplateTarget>(n[1]));
        });
}

QTEST_GUILESS_MAIN(PxProductContextsGroupTest)
#include "PxProductContextsGroupTest.moc"
