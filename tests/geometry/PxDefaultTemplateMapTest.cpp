#include <PxElement.h>
#include <geometry/PxDefaultTemplateMap.h>

#include <QTest>

class PxDefaultTemplateMapTest : public QObject
{
    Q_OBJECT

private slots:
    void readsNames();
    void findsByThemeTypeAndAlignment();
    void hashMixesAllParts();
};

void PxDefaultTemplateMapTest::readsNames()
{
    const auto names = [](const QString &attributes) {
        const PxDefaultTemplateMap map(
            pxElement("<product><defaults pageType='normal' " + attributes + "/></product>"));
        const auto find = [&map](DefaultTemplateType type) {
            return map.findTemplate(PxDefaultTemplateKey("normal", PxPageContext(), type), false);
        };
        return find(DefaultTemplateTypeLayout) + '/' + find(DefaultTemplateTypeBackground);
    };
    QCOMPARE(names("templates='bg_a,lay_a'"), QString("lay_a/bg_a"));
    QCOMPARE(names("templates=',bg_a,'"), QString("/bg_a"));
    QCOMPARE(names("templates='bg_a,x,lay_a'"), QString("/bg_a"));
    QCOMPARE(names("templates='a,b' layout='' background='c'"), QString("/c"));
    QCOMPARE(names("layout=' Größe Öl ' templates=' für '"), QString("Groesse Öl/fuer"));
    // Names with umlauts are shared; however many there are, none is taken for another.
    for (int i = 0; i < 1200; ++i) {
        const QString number = QString::number(i % 600);
        QCOMPARE(names("layout='Tür " + number + "'"), "Tuer " + number + '/');
    }
}

void PxDefaultTemplateMapTest::findsByThemeTypeAndAlignment()
{
    const PxDefaultTemplateMap map(
        pxElement("<product><defaults pageType='spine,fullcover' layout='plain'/>"
                  "<defaults theme='sea,, lake' pageType='spine,normal' layout='wave'/>"
                  "<defaults theme='sea' pageType='cover' layout='shore'/>"
                  "<defaults theme='sea' pageType='spine' alignment='Center' layout='foam'/>"
                  "<defaults theme='sea' pageType='spine' alignment='askew'/></product>"));
    // Without the theme "normal" to fall back to, and with it.
    const auto find = [&map](const char *theme, const char *pageType, int alignment) {
        const PxPageContext page(PxPageType(pageType), static_cast<PxPageAlignment>(alignment));
        const PxDefaultTemplateKey key(theme, page, DefaultTemplateTypeLayout);
        return map.findTemplate(key, false) + '/' + map.findTemplate(key, true);
    };
    QCOMPARE(find("sea", "spine", PxPageAlignmentRight), QString("wave/wave"));
    QCOMPARE(find("lake", "normal", PxPageAlignmentBottom), QString("wave/wave"));
    QCOMPARE(find("city", "spine", PxPageAlignmentRight), QString("/plain"));
    // A later element wins, also with an empty name, which then counts as none.
    QCOMPARE(find("sea", "spine", PxPageAlignmentCenter), QString("foam/foam"));
    QCOMPARE(find("sea", "spine", PxPageAlignmentLeft), QString("/plain"));
    // Page types match as they stand, alignments one by one; "fullpage" is no default.
    QCOMPARE(find("sea", "cover", PxPageAlignmentRight), QString("shore/shore"));
    QCOMPARE(find("sea", "fullcover", PxPageAlignmentRight), QString("/plain"));
    QCOMPARE(find("sea", "spine", PxPageAlignmentTop | PxPageAlignmentRight), QString("/"));
    QCOMPARE(find("sea", "spine", PxPageAlignmentFullPage), QString("/"));

    const PxPageContext spine(PxPageTypeSpine, PxPageAlignmentRight);
    const auto noType = static_cast<DefaultTemplateType>(12);
    QCOMPARE(map.findTemplate(PxDefaultTemplateKey("sea", spine, noType), true), QString());
}

void PxDefaultTemplateMapTest::hashMixesAllParts()
{
    const PxDefaultTemplateKey key("sea", PxPageContext(PxPageTypeFullCover, PxPageAlignmentTop),
                                   DefaultTemplateTypeBackground);
    QCOMPARE(qHash(key, 1024), qHash(QString("sea")) ^ 1024 ^ 1 ^ 64 ^ 16);
}

QTEST_GUILESS_MAIN(PxDefaultTemplateMapTest)
#include "PxDefaultTemplateMapTest.moc"
