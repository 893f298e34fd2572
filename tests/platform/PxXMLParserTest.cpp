#include <PxElement.h>
#include <PxXMLBuilder.h>
#include <PxXMLParser.h>

#include <QTest>

class PxXMLParserTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsEmptyFromMissing();
    void readsNumbers();
    void readsFlags();
    void readsTimes();
    void readsRectanglesAndSizes();
    void buildsElements();
};

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
    qputenv("TZ", "Asia/Kolkata"); // half past: an hour more or less does not make it right
    const auto time = [](const char *text) {
        const auto t = PxXMLParser::dateTimeAttribute(elementWith(text), "a", "202001020304");
        return t.toString("yyyy-MM-dd HH:mm:ss ") + QString::number(t.timeSpec());
    };
    QCOMPARE(time(" 202402291305 "), QString("2024-02-29 13:05:00 0"));
    QCOMPARE(time("2024-02-29T13:05:06"), QString("2024-02-29 13:05:06 0"));
    QCOMPARE(time("2024-02-29"), QString("2024-02-29 00:00:00 0"));
    QCOMPARE(time("2024-02-29T13:05:00Z"), QString("2024-02-29 18:35:00 0"));
    QCOMPARE(time("2024-02-29T13:05:00+02:00"), QString("2024-02-29 16:35:00 0"));
    for (const char *text : {"", "202302291305", "202402292400", "202402291260", "2024022913050",
                             "20240229", "29.02.2024", "soon"})
        QVERIFY2(time(text) == "2020-01-02 03:04:00 0", text);
    QVERIFY(!PxXMLParser::dateTimeAttribute(elementWith("x"), "a", "y").isValid());
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
