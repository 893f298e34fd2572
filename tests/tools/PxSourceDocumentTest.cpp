#include <check/source/PxCheckedFile.h>
#include <check/source/PxSourceFault.h>

#include <QTemporaryFile>
#include <QTest>
#include <QXmlStreamReader>

/** Where things stand: "»" and "«" in the text are around what is looked for. */
class PxSourceDocumentTest : public QObject
{
    Q_OBJECT

private slots:
    void findsValues_data();
    void findsValues();
    void findsFaults_data();
    void findsFaults();
    void hasWordsOfItsOwn();
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

// clang-format off
constexpr struct { const char *text; const char *message; } malformed[] = {
    // Around the document element
    {"<!-- -->\n»<?xml« version='1.0'?><r/>", "the declaration of XML is not at the beginning of the file"},
    {"<r/>\n»x« y", "text behind the end of \"r\""},
    {"»x« <r/>", "text before the document element"},
    {"<r/>\n<»s«>", "\"s\" is a second document element, behind \"r\""},
    {"<r/>»<![CDATA[«x]]>", "a CDATA section outside the document element"},
    {"<r>»<!DOCTYPE« r></r>", "a document type behind the beginning of \"r\""},
    {"<!DOCTYPE r>»<!DOCTYPE« r><r/>", "a second document type"},
    {"<!DOCTYPE r »F«OO><r/>", "\"F\" is not allowed here in the document type"},
    {"»<!«doctype r><r/>", "\"<!\" begins no comment"},

    // The declaration
    {"»<?xml«?><r/>", "the declaration of XML does not begin with a version"},
    {"»<?xml« encoding='UTF-8'?><r/>", "the declaration of XML does not begin with a version"},
    {"<?xml version='»2.0«'?><r/>", "the version of XML is \"2.0\", which is not known"},
    {"<?xml version='1.0' encoding='»utf 8«'?><r/>", "\"utf 8\" is no name of an encoding"},
    {"<?xml version='1.0' standalone='»ja«'?><r/>", "\"ja\" is neither \"yes\" nor \"no\""},
    {"<?xml version='1.0' standalone='no' »encoding«='UTF-8'?><r/>", "the encoding must stand before \"standalone\""},
    {"<?xml version='1.0'»>«<r/>", "\">\" is not allowed here in the declaration of XML"},
    {"»<?XML« version='1.0'?><r/>", "\"<?XML\" is no declaration of XML"},

    // In tags
    {"<r a=»1«/>", "the value of an attribute has no quotes"},
    {"<r a=»=«'1'/>", "a second \"=\""},
    {"<r »a«/>", "an attribute without a value"},
    {"<r a='1'»,« b='2'/>", "\",\" between attributes"},
    {"<r a='1' »;«b='2'/>", "\";\" between attributes"},
    {"<r »1«a='1'/>", "\"1\" begins no name"},
    {"<r »\"«a\"/>", "a quote where no value begins"},
    {"<r »a:b:«c='1'/>", "a second \":\" in a name"},
    {"<r »/« >", "a \"/\" that does not end the tag"},
    {"<r a='1'»\u00A0«b='2'/>", "the no-break space U+00A0 in a tag"},
    {"<r»\u00A0«/>", "the no-break space U+00A0 in a tag"},
    {"<r a='1'»\u200B«b='2'/>", "the character U+200B in a tag"},
    {"<r a»\u0001«b='1'/>", "the control character U+0001"},
    {"<r a='»\u0001«'/>", "the control character U+0001"},
    {"<r»€«/>", "\"€\" in a name"},
    {"<r><x a»<«/x></r>", "the tag of \"x\" has no \">\" before this"},
    {"<r><x a=»\"«1>text</x></r>", "the quote that begins here has no end"},
    {"<r><x a='1»<«2'/></r>", "\"<\" in the value of an attribute"},
    {"<r></r »x«>", "the end tag has more than a name"},
    {"<r>»</« r>", "an end tag without a name"},

    // In texts and other markup
    {"<r>a »]]>« b</r>", "\"]]>\" in a text"},
    {"<r>a »&#0;« b</r>", "\"&#0;\" names no character"},
    {"<r>a »&#xD800;« b</r>", "\"&#xD800;\" names no character"},
    {"<r>a »&;« b</r>", "\"&;\" names no character"},
    {"<r>»\u0001«</r>", "the control character U+0001"},
    {"<r>»\uFFFF«</r>", "the character U+FFFF"},
    {"<r>»<!«- a --></r>", "\"<!\" begins no comment"},
    {"<r>»<?« x?></r>", "\"<?\" without a name"},

    {"<r>\r»<<<<<<<« mine\r<x/>\r=======\r<y/>\r>>>>>>> theirs\r</r>", "a line that marks a conflict of two versions of the file"},
    {"<r\n a='1'\n»=======«\n b='2'/>", "a line that marks a conflict of two versions of the file"},
    {"<r/>\n»>>>>>>>« theirs", "a line that marks a conflict of two versions of the file"},
    {"<r><!--\n=======\n »--« --></r>", "\"--\" within a comment"},
};
// clang-format on

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
    QTest::addColumn<QString>("message");
    // clang-format off
    const auto row = [](const char *text, Fault fault, const char *message) {
        QTest::newRow(text) << QString::fromUtf8(text) << int(fault) << QString::fromUtf8(message);
    };
    row("<r/>", Fault::None, "");
    row("<r><x ü='1' »ü«='2'/></r>", Fault::AttributeTwice, "attribute \"ü\" is given twice");
    row("<r>\n<x a='&amp;»&uuml;«'/></r>", Fault::EntityUndeclared, "the entity \"&uuml;\" is not defined");
    row("<r>text »&nbsp;« text</r>", Fault::EntityUndeclared, "the entity \"&nbsp;\" is not defined");
    row("<r><x>»</y>«</x></r>", Fault::EndTagWrong, "no element \"y\" is open here");
    row("<r><x>a»</r>«", Fault::EndTagWrong, "expected \"</x>\" here");
    row("<r/>\n»</x>«", Fault::EndTagWrong, "no element \"x\" is open here");
    row("<r><x>text»«", Fault::EndMissing, "the file ends too early");
    row("<r><x>text»<!--« </x></r>", Fault::EndMissing, "this comment has no end");
    row("<r><x> »<![CDATA[« </x></r>", Fault::EndMissing, "this CDATA section has no end");
    row("»«", Fault::EndMissing, "the file is empty");
    row("»«\n \n", Fault::EndMissing, "the file has nothing but blanks");
    row("<!-- -->»«", Fault::EndMissing, "the file ends before its first element");
    // clang-format on
    for (const auto &fault : malformed)
        row(fault.text, Fault::NotWellFormed, fault.message);
}

void PxSourceDocumentTest::findsFaults()
{
    QFETCH(QString, text);
    QFETCH(int, fault);
    const PxSourceRange expected = markedRange(&text);
    const PxSourceFault found(text);
    QTEST(found.message(), "message");
    QCOMPARE(int(found.kind()), fault);
    if (found.kind() == PxSourceFault::Kind::None)
        return;
    QCOMPARE(found.range().begin, expected.begin);
    QCOMPARE(found.range().end, expected.end);
}

/** Puts each mark into each place of a text, and takes each part out of it. */
void PxSourceDocumentTest::hasWordsOfItsOwn()
{
    const QString text =
        "<?xml version='1.0' encoding='UTF-8'?>\n<!DOCTYPE r SYSTEM 'u'>\n"
        "<r a='1' b=\"&lt;\">t&#65;<!-- c --><?p d?><x c='2'/><![CDATA[e]]>\n</r>\n";
    QStringList broken;
    for (int i = 0; i <= text.size(); ++i) {
        for (const char *mark :
             {"<",   ">", "&", ";", "\"", "'",      "/",      "=", "-",   "!",   "?",
              "]]>", ",", "1", " ", ":",  "\u00A0", "\u0001", "€", "<s>", "</r>"})
            broken.append(QString(text).insert(i, QString::fromUtf8(mark)));
        for (int length : {1, 2, 5, 9})
            broken.append(QString(text).remove(i, length));
        broken.append(text.left(i));
    }
    for (const QString &candidate : qAsConst(broken)) {
        QXmlStreamReader reader(candidate);
        reader.setNamespaceProcessing(false);
        while (!reader.atEnd())
            reader.readNext();
        if (!reader.hasError())
            continue;
        const PxSourceFault fault(candidate);
        const QString message = fault.message() + '.';
        QVERIFY2(message.size() > 1 &&
                     message.compare(reader.errorString(), Qt::CaseInsensitive) != 0,
                 qPrintable(candidate));
        QVERIFY2(fault.range().begin >= 0 && fault.range().end <= candidate.size() &&
                     (fault.unclosed() || !fault.hint().isEmpty()),
                 qPrintable(candidate + message));
    }
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
