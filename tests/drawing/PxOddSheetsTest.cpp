#include <QTest>
class PxOddSheetsTest : public QObject
{
    Q_OBJECT
};
QTEST_GUILESS_MAIN(PxOddSheetsTest)
#include "PxOddSheetsTest.moc"
