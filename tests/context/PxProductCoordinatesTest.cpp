#include "PxRows.h"

#include <context/PxProductCoordinates.h>
#include <context/PxProductGroupPropertyManager.h>

#include <QRectF>

class PxProductCoordinatesTest : public QObject
{
    Q_OBJECT

private slots:
    void halvesGoUp();
    void sizesAreEvenAndAtLeast2();
    void millimetresAreTenthsOfUnits();
    void extremesAreClamped();
    void groupsHavePropertiesOfTheirOwn();
};

void PxProductCoordinatesTest::halvesGoUp()
{
    pxCheckAnswers("x", "0.5=1 0.49=0 -0.5=0 -1.5=-1 -1.51=-2", [](const QString &x) {
        return PxProductCoordinates::posX(QRectF(x.toDouble(), 0, 0, 0));
    });
    QCOMPARE(PxProductCoordinates::posY(QRectF(0, 3, 0, 5)), 6);
}

void PxProductCoordinatesTest::sizesAreEvenAndAtLeast2()
{
    pxCheckAnswers("width", "7.6=8 6.6=6 9.5=10 10.49=10 1.2=2 -30=2", [](const QString &width) {
        return PxProductCoordinates::posWidth(QRectF(0, 0, width.toDouble(), 0));
    });
    QCOMPARE(PxProductCoordinates::posHeight(QRectF(0, 0, 0, 5)), 4);
}

void PxProductCoordinatesTest::millimetresAreTenthsOfUnits()
{
    QCOMPARE(PxProductCoordinates::posXMM(QRect(0, 0, 10, 10)), 0.5);
    QCOMPARE(PxProductCoordinates::posYMM(QRect(0, -7, 10, 1)), -0.6);
    QCOMPARE(PxProductCoordinates::posWidthMM(QRect(0, 0, 33, 1)), 3.2);
    QCOMPARE(PxProductCoordinates::posHeightMM(QRect(0, 0, 1, 33)), 3.2);
}

void PxProductCoordinatesTest::extremesAreClamped()
{
    constexpr int largest = 2147483647;
    const QRect all(QPoint(-largest, -largest), QPoint(largest, largest));
    QCOMPARE(PxProductCoordinates::posWidthMM(all), 214748364.6);
    QCOMPARE(PxProductCoordinates::posX(QRectF(1e300, 0, 1, 1)), largest);
    QCOMPARE(PxProductCoordinates::posY(QRectF(0, -1e300, 1, 1)), -largest - 1);
    QCOMPARE(PxProductCoordinates::posX(QRectF(qQNaN(), 0, 1, 1)), 0);
}

void PxProductCoordinatesTest::groupsHavePropertiesOfTheirOwn()
{
    auto *manager = PxProductGroupPropertyManager::instance();
    QCOMPARE(manager->fotoIndex(PxProductGroupFoto),
             "Bestellung vom " +
                 QLocale::system().toString(QDate::currentDate(), QLocale::LongFormat));
    QVERIFY(!manager->borderColor(PxProductGroupFoto).isValid());
    manager->setBorderColor(PxProductGroupFoto, Qt::red);
    manager->setPaperType(PxProductGroupFoto, PxFotoPaperTypeMatt);
    manager->setCopyToWebAlbum(PxProductGroupPoster, true);
    manager->setFotoIndex(PxProductGroupPoster, "A");
    const auto *foto = manager->productGroupProperties(PxProductGroupFoto);
    QCOMPARE(foto->borderColor(), QColor(Qt::red));
    QCOMPARE(foto->paperType(), PxFotoPaperTypeMatt);
    QVERIFY(!foto->copyToWebAlbum());
    QVERIFY(foto->fotoIndex() != "A");
    QCOMPARE(manager->paperType(PxProductGroupPoster), PxFotoPaperTypeUnknown);
}

QTEST_GUILESS_MAIN(PxProductCoordinatesTest)
#include "PxProductCoordinatesTest.moc"
