#include <PxElement.h>
#include <PxOrientation.h>
#include <description/PxProductTypeDescription.h>

#include <QTest>

// An application may instantiate the templates itself; the tables must be those of the libraries.
template class PxEnumWrapper<PxBindingEnum>;
template class PxEnumWrapper<PxOrientationEnum>;

class PxOneTablePerProcessTest : public QObject
{
    Q_OBJECT

private slots:
    void librariesDecodeWhatTheProgramInserted();
};

void PxOneTablePerProcessTest::librariesDecodeWhatTheProgramInserted()
{
    PxBinding().enumToStringTable()->insert(QStringLiteral("ring"), PxBindingFoil);
    PxOrientation().enumToStringTable()->insert(QStringLiteral("oblique"),
                                                PxOrientationPortraitPanorama);
    const PxProductTypeDescription product(
        pxElement("<product binding='ring' orientation='oblique'/>"));
    QCOMPARE(product.binding().value(), PxBindingFoil);
    QCOMPARE(product.orientation().value(), PxOrientationPortraitPanorama);
}

QTEST_GUILESS_MAIN(PxOneTablePerProcessTest)
#include "PxOneTablePerProcessTest.moc"
