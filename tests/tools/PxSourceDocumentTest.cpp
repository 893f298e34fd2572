#include <check/source/PxCheckedFile.h>
#include <check/source/PxSourceFault.h>

#include <QTemporaryFile>
#include <QTest>

/** Where things stand: "»" and "«" in the text are around what is looked for. */
class PxSourceDocumentTest : public QObject
{
    Q_OBJECT

private slots:
    void findsValues_data();
    void findsValues();
    void findsFaults_data();
    void findsFaults();
    void findsTexts();
    void staysQuickInLongLines();
};

namespace {

/** Takes the marks out of the text. */
PxSourceRange markedRange(QString *text)
{
    PxSourceRange range;
    range.begin = text->indexOf(QChar(u'»'));
    text->remove(QChar(u'»'));
    range.end = text->indexOf(QChar(u'«'));
    text->remove(QChar(u'«'));
    return range;
}

} // namespace

void PxSourceDocumentTest::findsValues_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *name, const char *text, const char *value) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(value);
    };
    row("plain", "<r><x a=\"»1«\"/></r>", "1");
    row("single quotes", "<r><x b='\"' \n\t a\r\n=\r\n'»>\"/«' c=''/></r>", ">\"/");
    row("entities", "<r>&amp;&#xFC;<x a='»&lt;ü&#x1F600;«'></x></r>", "<ü😀");
    row("line breaks", "<r>\r\n\r\n<x a='»ü\r\n😀\tb«'/>\r\n</r>", "ü 😀 b");
    row("namespaces", "<p:r xmlns:p='u'><x p:a='2' a='»1«'/></p:r>", "1");
    row("behind a document type", "<!DOCTYPE r>\n<!-- <x a='2'/> -->\n<r><x a='»1«'/></r>", "1");
    row("behind other markup",
        "<r><![CDATA[<x a='2'/>]]><?x a='2'?>&gt;<!-- <x> --> ü <x a='»1«'/></r>", "1");
}

void PxSourceDocumentTest::findsValues()
{
    QFETCH(QString, text);
    QFETCH(QString, value);
    const PxSourceRange expected = markedRange(&text);
    QTemporaryFile disk;
    QVERIFY(disk.open());
    disk.write(text.toUtf8());
    disk.close();
    const PxCheckedFile file(disk.fileName());
    QVERIFY(file.root());
    const PxSourceElement *element = file.root()->firstChild("x");
    QVERIFY(element);
    QCOMPARE(element->value("a"), value);
    QCOMPARE(element->rangeOf("a").begin, expected.begin);
    QCOMPARE(element->rangeOf("a").end, expected.end);
    QVERIFY(QStringView(text).mid(element->range.begin).startsWith(QLatin1String("<x ")));
    QCOMPARE(text.at(element->range.end - 1), QChar('>'));
}

void PxSourceDocumentTest::findsFaults_data()
{
    using Fault = PxSourceFault::Kind;
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("fault");
    const auto row = [](const char *text, Fault fault) {
        QTest::newRow(text) << QString::fromUtf8(text) << int(fault);
    };
    row("<r/>", Fault::None);
    row("<r><x ü='1' »ü«='2'/></r>", Fault::AttributeTwice);
    row("<r>\n<x a='&amp;»&uuml;«'/></r>", Fault::EntityUndeclared);
    row("<r>text »&nbsp;« text</r>", Fault::EntityUndeclared);
    row("<r a=»1«/>", Fault::NotWellFormed);
    row("<r><x>»</y>«</x></r>", Fault::EndTagWrong);
    row("<r><x>a»</r>«", Fault::EndTagWrong);
    row("<r><x a»<«/x></r>", Fault::NotWellFormed);
    row("<r><x a=»\"«1>text</x></r>", Fault::NotWellFormed);
    row("<r><x a='1»<«2'/></r>", Fault::NotWellFormed);
    row("<!-- -->\n»<?xml« version='1.0'?><r/>", Fault::NotWellFormed);
    row("<r><x>text»«", Fault::EndMissing);
    row("<r><x>text»<!--« </x></r>", Fault::EndMissing);
    row("<r><x> »<![CDATA[« </x></r>", Fault::EndMissing);
    row("<r/>»x«", Fault::NotWellFormed);
}

void PxSourceDocumentTest::findsFaults()
{
    QFETCH(QString, text);
    QFETCH(int, fault);
    const PxSourceRange expected = markedRange(&text);
    const PxSourceFault found(text);
    QCOMPARE(int(found.kind()), fault);
    if (found.kind() == PxSourceFault::Kind::None)
        return;
    QCOMPARE(found.range().begin, expected.begin);
    QCOMPARE(found.range().end, expected.end);
}

void PxSourceDocumentTest::findsTexts()
{
    QString text = QStringLiteral("<r>\r\n <!-- c --> »ü<x/>&amp;<![CDATA[ ]]>b« \r\n</r>");
    const PxSourceRange expected = markedRange(&text);
    const PxSourceDocument document(text);
    QCOMPARE(document.root()->textRange().begin, expected.begin);
    QCOMPARE(document.root()->textRange().end, expected.end);
    QCOMPARE(document.root()->nodes.at(2).text, QString("&"));
    QCOMPARE(document.root()->nodes.at(3).text, QString(" "));
}

/** One that counted from the start of the line each time would not come back. */
void PxSourceDocumentTest::staysQuickInLongLines()
{
    const PxSourceDocument document("<r>" + QString("<x a='1'/>").repeated(200000) + "</r>");
    int last = 0;
    document.forEachElement(
        [&](const PxSourceElement &element) { last = document.place(element.nameRange).column; });
    QCOMPARE(last, 3 + 199999 * 10 + 2);
}

QTEST_GUILESS_MAIN(PxSourceDocumentTest)
#include "PxSourceDocumentTest.moc"
