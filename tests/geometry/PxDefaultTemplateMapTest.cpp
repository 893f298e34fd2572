#include <PxElement.h>
#include <PxLogRecorder.h>
#include <PxRows.h>
#include <geometry/PxDefaultTemplateMap.h>

class PxDefaultTemplateMapTest : public QObject
{
    Q_OBJECT

private slots:
    void readsNames();
    void findsByThemeTypeAndAlignment();
    void comparesKeys();
};

static QString nameIn(const QString &attributes, DefaultTemplateType type)
{
    const PxDefaultTemplateMap map(
        pxElement("<product><defaults pageType='normal' " + attributes + "/></product>"));
    return map.findTemplate(PxDefaultTemplateKey("normal", PxPageContext(), type), false);
}

void PxDefaultTemplateMapTest::readsNames()
{
    const auto names = [](const QString &attributes) {
        return nameIn(attributes, DefaultTemplateTypeLayout) + '/' +
               nameIn(attributes, DefaultTemplateTypeBackground);
    };
    QCOMPARE(names("templates='bg_a,lay_a'"), QString("lay_a/bg_a"));
    QCOMPARE(names("templates=',bg_a,'"), QString("/bg_a"));
    QCOMPARE(names("templates='bg_a,x,lay_a'"), QString("/bg_a"));
    QCOMPARE(names("templates='a,b' layout='' background='c'"), QString("/c"));
    QCOMPARE(names("layout=' Größe Öl ' templates=' für '"), QString("Groesse Öl/fuer"));
    // Names with umlauts are shared in a file; however many there are, none is taken for another.
    QString xml = "<product>";
    for (int i = 0; i < 200; ++i)
        xml +=
            QString("<defaults theme='%1' layout='Tür %2' background='für'/>").arg(i).arg(i % 50);
    const PxDefaultTemplateMap map(pxElement(xml + "</product>"));
    const auto name = [&map](int i, DefaultTemplateType type) {
        const PxPageContext page(QString(), PxPageAlignmentLeft);
        return map.findTemplate({QString::number(i), page, type}, false);
    };
    for (int i = 0; i < 200; ++i)
        QCOMPARE(name(i, DefaultTemplateTypeLayout), QString("Tuer %1").arg(i % 50));
    QCOMPARE(name(8, DefaultTemplateTypeBackground).constData(),
             name(9, DefaultTemplateTypeBackground).constData());
}

static PxDefaultTemplateKey keyOf(const QStringList &words)
{
    const PxPageContext page(words[1], static_cast<PxPageAlignment>(words[2].toInt()));
    return PxDefaultTemplateKey(words[0], page, static_cast<DefaultTemplateType>(words[3].toInt()));
}

void PxDefaultTemplateMapTest::findsByThemeTypeAndAlignment()
{
    const PxDefaultTemplateMap map(
        pxElement("<product><defaults pageType='spine,fullcover' layout='plain'/>"
                  "<defaults theme='sea,, lake' pageType='spine,normal' layout='wave'/>"
                  "<defaults theme='sea' pageType='cover' layout='shore'/>"
                  "<defaults theme='sea' pageType='spine' alignment='Center' layout='foam'/>"
                  "<defaults theme='sea' pageType='spine' alignment='askew'/>"
                  "<defaults theme='sky' pageType='normal,attic' layout='cloud' "
                  "background='blue'/></product>"));
    // Without the theme "normal" to fall back to, and with it. Page types match as they stand,
    // alignments one by one. A later element wins, also with an empty name, which counts as none.
    pxCheckAnswers("template",
                   "sea;spine;2=wave/wave lake;normal;32=wave/wave city;spine;2=/plain "
                   "sea;spine;64=foam/foam sea;spine;1=/plain sea;cover;2=shore/shore "
                   "sea;fullcover;2=/plain sea;spine;18=/ sea;spine;8=/ sky;attic;2=cloud/cloud "
                   "sky;normal;0=/ sky;spine;2=/plain",
                   [&map](const QStringList &page) {
                       const PxDefaultTemplateKey key = keyOf(page + QStringList("0"));
                       return map.findTemplate(key, false) + '/' + map.findTemplate(key, true);
                   });
    pxCheckAnswers("type", "sky;normal;2;0=cloud sky;normal;2;1=blue sky;normal;2;2=",
                   [&map](const QStringList &key) { return map.findTemplate(keyOf(key), true); });
}

void PxDefaultTemplateMapTest::comparesKeys()
{
    pxCheckComparison("PxDefaultTemplateKey",
                      "sea;cover;2;0 lake;cover;2;0 sea;spine;2;0 sea;cover;1;0 sea;cover;2;1",
                      keyOf);
    const PxDefaultTemplateKey key = keyOf({"sea", "fullcover", "16", "1"});
    QCOMPARE(qHash(key, 1024), qHash(QString("sea")) ^ 1024 ^ 1 ^ 64 ^ 16);
    QCOMPARE(pxShown(key).section(", ", -1), QString("background)"));
}

QTEST_GUILESS_MAIN(PxDefaultTemplateMapTest)
#include "PxDefaultTemplateMapTest.moc"
