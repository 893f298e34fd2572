#include <PxElement.h>
#include <PxXMLBuilder.h>
#include <PxXMLParser.h>

#include <QTest>

#include <limits>

class PxXMLParserTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsEmptyFromMissing();
    void readsNumbers_data();
    void readsNumbers();
    void readsFlags_data();
    void readsFlags();
    void readsTimes_data();
    void readsTimes();
    void readsRectangles_data();
    void readsRectangles();
    void readsSizesSideBySide();
    void buildsElements();
};

namespace {

QDomElement elementWith(const QString &value)
{
    QDomElement element = pxElement("<e/>");
    element.setAttribute("a", value);
    return element;
}

} // namespace

void PxXMLParserTest::tellsEmptyFromMissing()
{
    const QDomElement element = pxElement("<e empty='' blank=' '/>");
    QCOMPARE(PxXMLParser::attribute(element, "empty", "default", true), QString());
    QCOMPARE(PxXMLParser::attribute(element, "empty", "default", false), QString("default"));
    QCOMPARE(PxXMLParser::attribute(element, "blank", "default", false), QString(" "));
    QCOMPARE(PxXMLParser::attribute(element, "missing", "default", true), QString("default"));
}

void PxXMLParserTest::readsNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("white space around") << " \t-12\n" << -12;
    QTest::newRow("plus and zeros") << "+007" << 7;
    QTest::newRow("largest") << "2147483647" << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << "-2147483648" << std::numeric_limits<int>::min();
    for (const char *text : {"", " ", "2147483648", "-2147483649", "0x10", "1.0", "1e3", "1,000",
                             "1 2", "12mm", "- 1", "\u0661\u0662", "99999999999999999999"})
        QTest::newRow(text) << QString::fromUtf8(text) << 5;
}

void PxXMLParserTest::readsNumbers()
{
    QFETCH(QString, text);
    QTEST(PxXMLParser::intAttribute(elementWith(text), "a", 5), "number");
    QCOMPARE(PxXMLParser::intAttribute(elementWith(text), "missing", 5), 5);
}

void PxXMLParserTest::readsFlags_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("withTrue");
    QTest::addColumn<bool>("withFalse");
    for (const char *text : {"true", "1", "yes", " ON "})
        QTest::newRow(text) << text << true << true;
    for (const char *text : {"False", "0", "no", "off"})
        QTest::newRow(text) << text << false << false;
    for (const char *text : {"", "2", "-1", "y", "truely"})
        QTest::newRow(text) << text << true << false;
}

void PxXMLParserTest::readsFlags()
{
    QFETCH(QString, text);
    QTEST(PxXMLParser::boolAttribute(elementWith(text), "a", true), "withTrue");
    QTEST(PxXMLParser::boolAttribute(elementWith(text), "a", false), "withFalse");
}

void PxXMLParserTest::readsTimes_data()
{
    qputenv("TZ", "Asia/Kolkata"); // half past: an hour more or less does not make it right
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("time");
    // clang-format off
    constexpr struct { const char *text; const char *time; } rows[] = {
        {" 202402291305 ", "2024-02-29 13:05:00"},
        {"2024-02-29T13:05:06", "2024-02-29 13:05:06"},
        {"2024-02-29", "2024-02-29 00:00:00"},
        {"2024-02-29T13:05:00Z", "2024-02-29 18:35:00"},
        {"2024-02-29T13:05:00+02:00", "2024-02-29 16:35:00"},
    };
    // clang-format on
    for (const auto &row : rows)
        QTest::newRow(row.text) << row.text << row.time;
    for (const char *text : {"", "202302291305", "2024022913050", "20240229", "29.02.2024", "soon"})
        QTest::newRow(text) << text << "2020-01-02 03:04:00";
}

void PxXMLParserTest::readsTimes()
{
    QFETCH(QString, text);
    const QDateTime time = PxXMLParser::dateTimeAttribute(elementWith(text), "a", "202001020304");
    QTEST(time.toString("yyyy-MM-dd HH:mm:ss"), "time");
    QCOMPARE(time.timeSpec(), Qt::LocalTime);
    QVERIFY(!PxXMLParser::dateTimeAttribute(elementWith("x"), "a", "y").isValid());
}

void PxXMLParserTest::readsRectangles_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QRect>("rect");
    // clang-format off
    const struct { const char *name; const char *attributes; QRect rect; } rows[] = {
        {"all", "x='1' y='-2' width='30' height='40'", QRect(1, -2, 30, 40)},
        {"place missing or broken", "x='left' width='3' height='4'", QRect(0, 0, 3, 4)},
        {"no width", "x='1' y='2' height='4'", QRect()},
        {"broken height", "x='1' y='2' width='3' height='4mm'", QRect()},
        {"negative size", "x='1' y='2' width='-3' height='0'", QRect(1, 2, -3, 0)},
        {"last place", "x='2147483647' width='1' height='1'", QRect(QPoint(2147483647, 0), QPoint(2147483647, 0))},
        {"right edge too far", "x='2147483647' width='2' height='1'", QRect()},
        {"bottom edge too far", "y='2147483000' width='1' height='1000'", QRect()},
        {"right edge before the first", "x='-2147483648' width='0' height='1'", QRect()},
        {"width without a width", "x='9' width='-2147483648' height='1'", QRect()},
    };
    // clang-format on
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.attributes << row.rect;
}

void PxXMLParserTest::readsRectangles()
{
    QFETCH(QString, attributes);
    const QDomElement element = pxElement("<e " + attributes + "/>");
    QTEST(PxXMLParser::readRect(element), "rect");
    QTEST(PxXMLParser::readRect(element.attributes()), "rect");
}

void PxXMLParserTest::readsSizesSideBySide()
{
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
