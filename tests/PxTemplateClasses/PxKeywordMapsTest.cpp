#include <EnumHelper.h>

#include <QTest>

using namespace EnumHelper;

class PxKeywordMapsTest : public QObject
{
    Q_OBJECT

private slots:
    void decodesKeywords();
    void decodesAlignmentLists();
    void everyValueLeadsBack();
};

void PxKeywordMapsTest::decodesKeywords()
{
    const auto decode = [](const auto &map, auto fallback, const char *keywords) {
        return int(decodeKeywordList(keywords, map, fallback));
    };
    QCOMPARE(decode(globalMapPageAlignmentString, globalPageAlignmentDefaultValue, "\tTop, "), 17);
    QCOMPARE(decode(globalMapPageAlignmentString, globalPageAlignmentDefaultValue, "CoverPage"), 1);
    QCOMPARE(decode(globalMapProductGroupEnumString, globalProductGroupEnumDefaultValue,
                    "printfun,FUN,product_foto,toy"),
             16 + 32 + 2);
    QCOMPARE(decode(globalMapTemplateTargetString, globalTemplateTargetDefaultValue, "frame"), 8);
    QCOMPARE(decode(globalMapTemplateTargetString, globalTemplateTargetDefaultValue, "poster"), 0);
    QCOMPARE(decode(globalMapAssemblyWayString, globalAssemblyWayDefaultValue, "client"), 1);
    QCOMPARE(decode(globalMapAssemblyWayString, globalAssemblyWayDefaultValue, "shop"), 2);
}

void PxKeywordMapsTest::decodesAlignmentLists()
{
    QCOMPARE(decodePageAlignmentAsList("Top,right,,top"),
             QList<PxPageAlignment>({PxPageAlignmentTop, PxPageAlignmentRight, PxPageAlignmentLeft,
                                     PxPageAlignmentTop}));
    QCOMPARE(decodePageAlignmentAsList(""), QList<PxPageAlignment>{PxPageAlignmentLeft});
}

template <typename ENUM>
static int valuesThatLeadBack(const QHash<QString, ENUM> &map)
{
    int values = 0;
    for (ENUM value : map) {
        const QString keyword = map.key(value);
        if (decodeKeyword(keyword.toLower(), map, static_cast<ENUM>(0)) == value)
            values |= value;
    }
    return values;
}

void PxKeywordMapsTest::everyValueLeadsBack()
{
    QCOMPARE(valuesThatLeadBack(globalMapPageAlignmentString), 127);
    QCOMPARE(valuesThatLeadBack(globalMapSurroundingTypeString), 511);
    QCOMPARE(valuesThatLeadBack(globalMapPageNamingStyleString), 2047);
    QCOMPARE(valuesThatLeadBack(globalMapAssemblyWayString), 3);
    QCOMPARE(valuesThatLeadBack(globalMapTemplateTargetString), 4 + 8 + 32 + 256);
    QCOMPARE(valuesThatLeadBack(globalMapProductGroupEnumString), 511 - 64);
    QCOMPARE(valuesThatLeadBack(globalMapImageFXsString), 5);
}

QTEST_GUILESS_MAIN(PxKeywordMapsTest)
#include "PxKeywordMapsTest.moc"
