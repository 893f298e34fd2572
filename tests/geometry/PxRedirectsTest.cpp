#include <PxElement.h>
#include <PxLogRecorder.h>
#include <PxRows.h>
#include <geometry/PxContentDropRedirectList.h>
#include <geometry/PxPageRotationRedirectList.h>

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
    pxCheckComparison("PxPageRotationRedirect", "0,0,0 1,0,0 0,1,0 0,0,1",
                      [](const QList<int> &n) { return PxPageRotationRedirect(n[0], n[1], n[2]); });
    QVERIFY(PxPageRotationRedirect() == PxPageRotationRedirect(0, 0, 0));
}

void PxRedirectsTest::readsContentRedirects()
{
    const PxLogRecorder log;
    const PxContentDropRedirectList list(
        pxElement("<r><contentredirect from='2-4' to='10'/><contentredirect from='3' to='0'/>"
                  "<contentredirect from='10' to='11'/><contentredirect from='7-5' to='12'/></r>"));
    pxCheckAnswers("target", "1=1 2=10 3=0 4=10 5=5 6=6",
                   [&list](const QList<int> &page) { return list.targetPage(page[0]); });
    // So many pages have no place in the memory one by one.
    const PxContentDropRedirectList all(
        pxElement("<r><contentredirect from='0-2147483647' to='1'/></r>"));
    QCOMPARE(all.targetPage(2147483647), 1);
    QCOMPARE(all.targetPage(-1), -1);
    QCOMPARE(log.texts(), QStringList());
}

void PxRedirectsTest::reportsUnreadableContentRedirects()
{
    const auto messages = [](const QStringList &pages, int times) {
        const PxLogRecorder log;
        const QString element("<contentredirect from='%1' to='%2'/>");
        const QString unreadable = element.arg(pages[0], pages[1]).repeated(times);
        const PxContentDropRedirectList list(
            pxElement("<r>" + unreadable + element.arg(5).arg(6) + "</r>"));
        return list.targetPage(5) == 6 ? log.entries() : QList<PxLogRecorder::Entry>();
    };
    pxCheckAnswers("from;to", "x;10=1 3-;10=1 -3;10=1 3-2147483648;10=1 3;=1 3;-1=1 3;0=0 0;3=0",
                   [&](const QStringList &pages) { return messages(pages, 1).size(); });
    QCOMPARE(messages({"x", "1"}, 100).size(), 100);
    const QList<PxLogRecorder::Entry> log = messages({"x", "1"}, 101);
    QCOMPARE(log.size(), 101);
    const QString text("PxContentDropRedirectList::PxContentDropRedirectList ");
    QCOMPARE(log.constFirst().text, text + "parse error");
    QCOMPARE(log.constFirst().level, QtWarningMsg);
    QCOMPARE(log.constFirst().file, QString("PxContentDropRedirectList"));
    QCOMPARE(log.constFirst().category, QString("default"));
    QCOMPARE(log.constLast().text, text + "1 more parse errors");
    QCOMPARE(log.constLast().category, QString("px.productproperties"));
}

QTEST_GUILESS_MAIN(PxRedirectsTest)
#include "PxRedirectsTest.moc"
