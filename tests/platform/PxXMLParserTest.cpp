#include <PxElement.h>
#include <PxXMLBuilder.h>
#include <PxXMLParser.h>

#include <QTest>

class PxXMLParserTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tellsEmptyFromMissing();
    void readsNumbers();
    void readsFlags();
    void readsTimes();
    void readsTimesOfAZone();
    void readsRectanglesAndSizes();
    void buildsElements();
};

static const QByteArrayList zones{"Europe/Berlin", "America/Sao_Paulo", "UTC"};

void PxXMLParserTest::initTestCase()
{
    if (!zones.contains(qgetenv("TZ")))
        qputenv("TZ", "UTC");
}

static QDomElement elementWith(const QString &value)
{
    QDomElement element = pxElement("<e/>");
    element.setAttribute("a", value);
    return element;
}

void PxXMLParserTest::tellsEmptyFromMissing()
{
    const QDomElement element = pxElement("<e empty='' blank=' '/>");
    QCOMPARE(PxXMLParser::attribute(element, "empty", "default", true), QString());
    QCOMPARE(PxXMLParser::attribute(element, "empty", "default", false), QString("default"));
    QCOMPARE(PxXMLParser::attribute(element, "blank", "default", false), QString(" "));
    QCOMPARE(PxXMLParser::attribute(element, "missing", "default", true), QString("default"));
}

void PxXMLParserTest::readsNumbers()
{
    const auto number = [](const char *text) {
        return PxXMLParser::intAttribute(elementWith(text), "a", 5);
    };
    QCOMPARE(number(" \t-12\n"), -12);
    QCOMPARE(number("+007"), 7);
    QCOMPARE(number("2147483647"), 2147483647);
    QCOMPARE(number("-2147483648"), -2147483647 - 1);
    QCOMPARE(PxXMLParser::intAttribute(elementWith("1"), "missing", 5), 5);
    for (const char *text : {"", " ", "2147483648", "-2147483649", "0x10", "1.0", "1e3", "1,000",
                             "1 2", "12mm", "- 1", "\u0661\u0662", "99999999999999999999"})
        QVERIFY2(number(text) == 5, text);
}

void PxXMLParserTest::readsFlags()
{
    // Whether the flag is read with the default true, and with false.
    const auto flag = [](const char *text, bool withTrue, bool withFalse) {
        const QDomElement element = elementWith(text);
        QVERIFY2(PxXMLParser::boolAttribute(element, "a", true) == withTrue, text);
        QVERIFY2(PxXMLParser::boolAttribute(element, "a", false) == withFalse, text);
    };
    for (const char *text : {"true", "1", "yes", " ON "})
        flag(text, true, true);
    for (const char *text : {"False", "0", "no", "off"})
        flag(text, false, false);
    for (const char *text : {"", "2", "-1", "y", "truely"})
        flag(text, true, false);
}

void PxXMLParserTest::readsTimes()
{
    const auto time = [](const char *text) {
        const auto t = PxXMLParser::dateTimeAttribute(elementWith(text), "a", "202001020304");
        return t.toString("yyyy-MM-dd HH:mm:ss ") + QString::number(t.timeSpec());
    };
    QCOMPARE(time(" 202402291305 "), QString("2024-02-29 13:05:00 0"));
    QCOMPARE(time("2024-02-29T13:05:06"), QString("2024-02-29 13:05:06 0"));
    QCOMPARE(time("2024-02-29"), QString("2024-02-29 00:00:00 0"));
    QCOMPARE(time("2024-02-29T13:05"), QString("2024-02-29 13:05:00 0"));
    QCOMPARE(time("2024-02-29T13:05:06,789"), QString("2024-02-29 13:05:06 0"));
    QCOMPARE(time("2024-02-28T24:00"), QString("2024-02-29 00:00:00 0"));
    // clang-format off
    for (const char *text : {"", "202302291305", "202402292400", "202402291260", "2024022913050",
        "20240229", "29.02.2024", "soon", "2024-02-29T13:05:00garbage",
        "2024-02-29T13:05:00Zoo", "2024-02-29x", "2024-02-29T", "2024-02-29T13",
        "2024-02-29T1305", "2024-02-29T13:05+0200", "2024-02-29T13:05:",
        "2024-02-29T13:05:00.", "2024-02-29 13:05", "2024-2-29", "2024-02-30",
        "2024-02-29T25:00", "+2024-02-29", "٢٠٢٤-02-29", "2024 1 2 3 4"})
        // clang-format on
        QVERIFY2(time(text) == "2020-01-02 03:04:00 0", text);
    QVERIFY(!PxXMLParser::dateTimeAttribute(elementWith("x"), "a", "y").isValid());
}

/** The library asks for the zone once: each zone has a process of its own. */
void PxXMLParserTest::readsTimesOfAZone()
{
    constexpr struct
    {
        const char *text;
        const char *inUtc[3]; // of a reader in Berlin, in Sao Paulo, in UTC
    } rows[] = {
        {"202402291305", {"2024-02-29 12:05", "2024-02-29 16:05", "2024-02-29 13:05"}},
        {"2024-07-01T13:05", {"2024-07-01 11:05", "2024-07-01 16:05", "2024-07-01 13:05"}},
        {"2024-02-29T13:05+05:30", {"2024-02-29 07:35", "2024-02-29 07:35", "2024-02-29 07:35"}},
        {"2024-02-29T13:05:00-02", {"2024-02-29 15:05", "2024-02-29 15:05", "2024-02-29 15:05"}},
        {"2024-02-29T13:05Z", {"2024-02-29 13:05", "2024-02-29 13:05", "2024-02-29 13:05"}},
        // Skipped in Berlin, from two to three o'clock.
        {"203003310230", {"2030-03-31 01:30", "2030-03-31 05:30", "2030-03-31 02:30"}},
        {"2030-03-31T02:00", {"2030-03-31 01:00", "2030-03-31 05:00", "2030-03-31 02:00"}},
        {"2030-03-31T03:00", {"2030-03-31 01:00", "2030-03-31 06:00", "2030-03-31 03:00"}},
        {"2030-03-31T10:00", {"2030-03-31 08:00", "2030-03-31 13:00", "2030-03-31 10:00"}},
        {"2030-10-27T03:00", {"2030-10-27 02:00", "2030-10-27 06:00", "2030-10-27 03:00"}},
        // Skipped in Sao Paulo, from midnight to one o'clock.
        {"2018-11-04", {"2018-11-03 23:00", "2018-11-04 03:00", "2018-11-04 00:00"}},
        {"201811040045", {"2018-11-03 23:45", "2018-11-04 03:45", "2018-11-04 00:45"}},
        {"201811040100", {"2018-11-04 00:00", "2018-11-04 03:00", "2018-11-04 01:00"}},
    };
    const int zone = zones.indexOf(qgetenv("TZ"));
    for (const auto &[text, inUtc] : rows) {
        for (const char *before : {"2030-01-01", "2030-07-01"}) { // which is not remembered
            PxXMLParser::dateTimeAttribute(elementWith(before), "a", QString());
            const QDateTime time = PxXMLParser::dateTimeAttribute(elementWith(text), "a", {});
            QCOMPARE(time.timeSpec(), Qt::LocalTime);
            QVERIFY2(time.toUTC().toString("yyyy-MM-dd HH:mm") == inUtc[zone], text);
        }
    }
}

void PxXMLParserTest::readsRectanglesAndSizes()
{
    const auto rect = [](const QString &attributes) {
        const QDomElement element = pxElement("<e " + attributes + "/>");
        const QRect r = PxXMLParser::readRect(element);
        return PxXMLParser::readRect(element.attributes()) == r ? r : QRect(0, 0, 9, 9);
    };
    QCOMPARE(rect("x='1' y='-2' width='30' height='40'"), QRect(1, -2, 30, 40));
    QCOMPARE(rect("x='left' width='3' height='4'"), QRect(0, 0, 3, 4));
    QCOMPARE(rect("x='1' y='2' height='4'"), QRect());
    QCOMPARE(rect("x='1' y='2' width='3' height='4mm'"), QRect());
    QCOMPARE(rect("x='1' y='2' width='-3' height='0'"), QRect(1, 2, -3, 0));
    // As far as the last place, and no further.
    QCOMPARE(rect("x='2147483647' width='1' height='1'"),
             QRect(QPoint(2147483647, 0), QPoint(2147483647, 0)));
    const int first = -2147483647 - 1;
    QCOMPARE(rect("x='-2147483648' width='1' height='1'"),
             QRect(QPoint(first, 0), QPoint(first, 0)));
    QCOMPARE(rect("x='0' width='-2147483647' height='1'"), QRect(QPoint(0, 0), QPoint(first, 0)));
    QCOMPARE(rect("x='2147483647' width='2' height='1'"), QRect());
    QCOMPARE(rect("y='2147483000' width='1' height='1000'"), QRect());
    QCOMPARE(rect("x='-2147483648' width='0' height='1'"), QRect());
    QCOMPARE(rect("x='9' width='-2147483648' height='1'"), QRect());

    QCOMPARE(PxXMLParser::readSize(pxElement("<e width=' 3' height='4'/>")), QSize(3, 4));
    QCOMPARE(PxXMLParser::readSize(pxElement("<e width='3cm' height='4'/>")), QSize(-1, 4));
    QCOMPARE(PxXMLParser::readSize(pxElement("<e width='3'/>")), QSize(3, -1));
}

void PxXMLParserTest::buildsElements()
{
    QDomDocument document;
    QVERIFY(document.setContent(QString("<p><first/></p>")));
    QDomElement parent = document.documentElement();
    QDomElement child = PxXMLBuilder::buildDomElement(parent, "child", "a < b");
    PxXMLBuilder::buildDomElement(child, "empty", QString());
    QCOMPARE(pxXml(parent), QString("<p><first/><child>a &lt; b<empty/></child></p>"));
    QDomElement nowhere;
    QVERIFY(PxXMLBuilder::buildDomElement(nowhere, "child", "text").isNull());
}

QTEST_GUILESS_MAIN(PxXMLParserTest)
#include "PxXMLParserTest.moc"
