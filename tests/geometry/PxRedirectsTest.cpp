#include <PxElement.h>
#include <PxLogRecorder.h>
#include <geometry/PxContentDropRedirectList.h>
#include <geometry/PxPageRotationRedirectList.h>

#include <QTest>

class PxRedirectsTest : public QObject
{
    Q_OBJECT

private slots:
    void readsRotationRedirects();
    void readsContentRedirects();
    void reportsUnreadableContentRedirects();
};

void PxRedirectsTest::readsRotationRedirects()
{
    const PxPageRotationRedirectList list(
        pxElement("<r><rotationredirect from='1'/><rotationredirect to='1'/>"
                  "<rotationredirect from='-2' to='1'/><rotationredirect from='1' to='x'/>"
                  "<rotationredirect from='1' to='-1'/>"
                  "<rotationredirect from='-1' to='4' angleinvert='-7'/></r>"));
    const PxPageRotationRedirect first(1, -1, 1);
    const PxPageRotationRedirect second(-1, 4, -7);
    QCOMPARE(list, (QList<PxPageRotationRedirect>{first, second}));
    QCOMPARE(list.filterBySourcePage(-1), QList<PxPageRotationRedirect>{second});
    QCOMPARE(list.filterByTargetPage(-1), QList<PxPageRotationRedirect>{first});
}

void PxRedirectsTest::readsContentRedirects()
{
    const PxLogRecorder log;
    const PxContentDropRedirectList list(
        pxElement("<r><contentredirect from='2-4' to='10'/><contentredirect from='3' to='0'/>"
                  "<contentredirect from='10' to='11'/><contentredirect from='7-5' to='12'/></r>"));
    QList<int> targets;
    for (int page = 1; page <= 6; ++page)
        targets.append(list.targetPage(page));
    QCOMPARE(targets, QList<int>({1, 10, 0, 10, 5, 6}));
    // So many pages have no place in the memory one by one.
    const PxContentDropRedirectList all(
        pxElement("<r><contentredirect from='0-2147483647' to='1'/></r>"));
    QCOMPARE(all.targetPage(2147483647), 1);
    QCOMPARE(all.targetPage(-1), -1);
    QCOMPARE(log.texts(), QStringList());
}

void PxRedirectsTest::reportsUnreadableContentRedirects()
{
    const QStringList unreadable{"from='x' to='10'", "from='3-' to='10'", "from='-3' to='10'",
                                 "from='3-2147483648' to='10'", "from='3'"};
    for (const QString &attributes : unreadable) {
        const PxLogRecorder log;
        const PxContentDropRedirectList list(pxElement("<r><contentredirect " + attributes +
                                                       "/><contentredirect from='5' to='6'/></r>"));
        QCOMPARE(log.texts(),
                 QStringList("PxContentDropRedirectList::PxContentDropRedirectList parse error"));
        QCOMPARE(log.entries().constFirst().level, QtWarningMsg);
        QCOMPARE(log.entries().constFirst().file, QString("PxContentDropRedirectList"));
        QCOMPARE(list.targetPage(3), 3);
        QCOMPARE(list.targetPage(5), 6);
    }
}

QTEST_GUILESS_MAIN(PxRedirectsTest)
#include "PxRedirectsTest.moc"
