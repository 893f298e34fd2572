#include <PxOrientation.h>
#include <PxProductGroup.h>

#include <QSizeF>
#include <QTest>

#include <limits>

class PxOrientationTest : public QObject
{
    Q_OBJECT

private slots:
    void readsTextAndSize_data();
    void readsTextAndSize();
    void readsProductGroups();
};

void PxOrientationTest::readsTextAndSize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("value");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("text before size") << " Round, panorama " << QSizeF(1, 2) << 40;
    QTest::newRow("synonym") << "square" << QSizeF(1, 2) << 4;
    QTest::newRow("wide") << "" << QSizeF(2.1, 2) << 2;
    QTest::newRow("high") << "" << QSizeF(2, 2.1) << 1;
    QTest::newRow("neither") << "" << QSizeF(3, 3) << 4;
    QTest::newRow("no size") << "" << QSizeF() << 0;
    QTest::newRow("no height") << "" << QSizeF(3, 0) << 0;
    QTest::newRow("size that is no number") << "" << QSizeF(nan, nan) << 0;
}

void PxOrientationTest::readsTextAndSize()
{
    QFETCH(QString, text);
    QFETCH(QSizeF, size);
    QFETCH(int, value);
    QCOMPARE(int(PxOrientation(text, size).value()), value);
    if (!text.isEmpty())
        QCOMPARE(int(PxOrientation(text).value()), value);
}

void PxOrientationTest::readsProductGroups()
{
    QCOMPARE(PxProductGroup(QString(" Product_FotoBook ")), PxProductGroup(PxProductGroupBook));
    for (const char *text : {"jewellery", "book,gift", ""})
        QVERIFY2(!PxProductGroup(QString(text)).isValid(), text);
}

QTEST_APPLESS_MAIN(PxOrientationTest)
#include "PxOrientationTest.moc"
