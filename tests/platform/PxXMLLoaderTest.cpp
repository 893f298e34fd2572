#include <PxElement.h>
#include <PxXMLBuilder.h>
#include <PxXMLLoader.h>
#include <PxXMLPlainReader.h>
#include <PxXMLScratch.h>
#include <PxXMLStrictReader.h>

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCodec>
#include <QThread>

#include <atomic>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>

class PxXMLLoaderTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void buildsTheTreeOfSetContent();
    void decodes();
    void refusesMalformedTextAndKeepsTheLimits_data();
    void refusesMalformedTextAndKeepsTheLimits();
    void opensRegularFilesOnly();
    void waitsForNoPipe();
    void elementOutlivesItsDocument();
    // Whatever the plain reader reads, the strict one reads as the same tree.
    void plainReaderLeavesWhatIsOdd();
    void plainReaderReadsUpToItsLimits();
    void sharesTextsWithinAThread();
    void readersAgreeAboutMutations();

private:
    QFileInfo write(const QByteArray &xml) const;
    QString path(const char *name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
    QList<QByteArray> m_samples;
};

namespace {

QByteArray nested(int depth, const QByteArray &content = QByteArray())
{
    return QByteArray("<a>").repeated(depth) + content + QByteArray("</a>").repeated(depth);
}

QByteArray tagWithAttributes(int count)
{
    QByteArray tag = "<a";
    for (int i = 0; i < count; ++i)
        tag += " a" + QByteArray::number(i) + (i % 2 ? " = '<!--\"'" : "=\">'\"");
    return tag.replace("<!--", "--") + "/>";
}

/** A root with an attribute, a text, a CDATA section, a comment and an instruction, and more. */
QByteArray withNodes(int count)
{
    return "<r a=''>text<![CDATA[<]]><!----><?p?>" + QByteArray("<b/>").repeated(count - 6) +
           "</r>";
}

QDomDocument plain(const QByteArray &xml)
{
    PxXMLTextPool texts;
    return PxXMLPlainReader({xml.constData(), std::size_t(xml.size())}, texts).read();
}

/** Empty when the readers agree. */
QString difference(const QByteArray &xml)
{
    const QDomDocument document = plain(xml);
    if (document.isNull())
        return QString();
    PxXMLStrictReader strict(xml);
    const PxXMLFault fault = strict.read();
    if (fault.kind != PxXMLFault::Kind::None)
        return "refused: " + fault.message;
    if (pxTree(document) != pxTree(strict.document()))
        return pxTree(document) + " is not " + pxTree(strict.document());
    return document.toString() == strict.document().toString() ? "" : "written otherwise";
}

/** One to four small damages, of the kinds that editing, copying and transmitting do. */
QByteArray mutated(QByteArray xml, std::mt19937 &random)
{
    // clang-format off
    static const QList<QByteArray> pieces{
        "<", ">", "/", "&", ";", "\"", "'", "=", "\r\n", "\t", "]]>", "--", "<!--", "-->",
        "<?", "?>", "&amp;", "&#65;", "&lt;", "&x;", " a='1'", " a=1", "<b/>", "</product>",
        "<![CDATA[", "<p:q/>", " xml:a=''", "\xC3\xA4", "\xEF\xBB\xBF", "\xEF\xBF\xBE",
        "\xED\xA0\x80", "\xC2\xA0"};
    // clang-format on
    const auto below = [&random](int end) { return int(random() % unsigned(qMax(1, end))); };
    for (int count = 1 + below(4); count > 0; --count) {
        const int length = below(4) ? below(4) : below(xml.size() / 2);
        const QByteArray with[] = {"", pieces[below(pieces.size())],
                                   QByteArray(1, char(below(256))),
                                   xml.mid(below(xml.size()), length)};
        xml.replace(below(xml.size()), below(2) * length, with[below(4)]);
    }
    return xml;
}

} // namespace

void PxXMLLoaderTest::initTestCase()
{
    QVERIFY(QDir(m_directory.path()).mkdir("directory"));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")), 0600), 0);
    QVERIFY(QFile::link(path("pipe"), path("link to pipe")));
    QVERIFY(QFile::link(path("nowhere"), path("dead link")));
    QDirIterator it(PX_SAMPLE_DIRECTORY, {"*.xml"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_samples.append(file.readAll());
    }
    std::sort(m_samples.begin(), m_samples.end());
}

QFileInfo PxXMLLoaderTest::write(const QByteArray &xml) const
{
    QFile file(path("file.xml"));
    if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size())
        qFatal("cannot write the file of this test");
    return QFileInfo(file.fileName());
}

void PxXMLLoaderTest::buildsTheTreeOfSetContent()
{
    // clang-format off
    QList<QByteArray> texts{
        "<?xml version=\"1.0\" encoding='utf-8' standalone = 'no' ?>\n<!DOCTYPE a><a/>",
        "<?xml version='1.0' standalone='yes'?><!DOCTYPE a PUBLIC \"-//x\" \"it's\"><a/>",
        "<?xml version='1.0'?><!--1--><?p d ?><!DOCTYPE a SYSTEM 'x[y>z'>\n<!--2--><a/><!-- standalone --><?q?>\n",
        "<a> x&amp;y &#32;<b> \n\t</b><c>&#32;&#10;</c>]]&gt;<d>&#160;</d>z<!-- c -->\xC3\xA4<?p?>&#x41; </a>",
        "<a> <![CDATA[<b c=\"&d;]] >]]> <![CDATA[]]>x<![CDATA[ ]]><![CDATA[y]]></a>",
        "<a b='' c = \"it's &lt;>&#10;\"\nd='&quot;&apos;&amp;'/>",
        "<p:a xmlns:p='u' p:b='1' q:c='2'><q:d/></p:a>",
        "<a b='" + QByteArray("01234567&amp;").repeated(9000) + "'>" + QByteArray("01&lt;\xE2\x82\xAC").repeated(9000) + "</a>",
    };
    // clang-format on
    texts += m_samples;
    for (const QByteArray &xml : qAsConst(texts)) {
        QDomDocument expected;
        QVERIFY(expected.setContent(xml, false));
        QString error = "an earlier one";
        const QDomDocument document = PxXMLLoader::loadDocument(write(xml), &error);
        QCOMPARE(error, QString());
        QCOMPARE(pxTree(document), pxTree(expected));
    }
    // As no tree of setContent() has it.
    const QDomDocument better =
        PxXMLLoader::loadDocument(write("<!DOCTYPE x:a><a b='1\n2'>&#x1F600;\r\n</a>"));
    QCOMPARE(better.documentElement().text(), QString::fromUtf8("\xF0\x9F\x98\x80\n"));
    QCOMPARE(better.documentElement().attribute("b"), QString("1 2"));
    QCOMPARE(better.doctype().name(), QString("a"));
}

void PxXMLLoaderTest::decodes()
{
    // clang-format off
    constexpr struct { const char *encoding; bool hasMark; const char *declared; } rows[] = {
        {"UTF-8", true, ""},
        {"UTF-8", false, "Utf8"},
        {"UTF-16LE", true, "UTF-16"},
        {"UTF-16BE", true, ""},
        {"UTF-16BE", false, "utf-16"},
        {"UTF-32LE", true, ""},
        {"UTF-16LE", false, ""},
        {"ISO-8859-1", false, "iso-8859-1"},
    };
    // clang-format on
    for (const auto &row : rows) {
        // What codecs put in the place of invalid bytes is a character like any other, too.
        const QChar letter =
            qstrncmp(row.encoding, "UTF-", 4) == 0 ? QChar(QChar::ReplacementCharacter) : 0xF6;
        QString xml =
            *row.declared ? QString("<?xml version='1.0' encoding='%1'?>").arg(row.declared) : "";
        xml = (row.hasMark ? QString(QChar::ByteOrderMark) : "") + xml + "\n<a b='\u00E4\"'>" +
              letter + "</a>";
        QTextCodec::ConverterState noMarkOfItsOwn(QTextCodec::IgnoreHeader);
        const QByteArray bytes = QTextCodec::codecForName(row.encoding)
                                     ->fromUnicode(xml.constData(), xml.size(), &noMarkOfItsOwn);
        const QDomElement element = PxXMLLoader::loadDocumentElement(write(bytes));
        QCOMPARE(element.attribute("b") + element.text(), QString("\u00E4\"") + letter);
    }
    const QDomElement lineEnds =
        PxXMLLoader::loadDocumentElement(write("<a b='1\r\n2\t3&#13;'>x\r\ny&#13;</a>"));
    QCOMPARE(lineEnds.attribute("b") + '|' + lineEnds.text(), QString("1 2 3\r|x\ny\r"));
}

void PxXMLLoaderTest::refusesMalformedTextAndKeepsTheLimits_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("error"); // empty just inside a limit
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("encoding");
    constexpr auto NotWellFormed = PxXMLFault::Kind::NotWellFormed;
    constexpr auto Encoding = PxXMLFault::Kind::Encoding;
    constexpr auto Limit = PxXMLFault::Kind::Limit;
    const QByteArray latin = "<?xml version='1.0' encoding='latin1'?>\n";
    // clang-format off
    const struct { const char *name; QByteArray xml; QString error; PxXMLFault::Kind kind = NotWellFormed; const char *encoding = "UTF-8"; } rows[] = {
        {"latin", latin + "<a b='\xE4'/>", "", {}, "ISO-8859-1"},
        {"UTF-16", QByteArray("\xFF\xFE<\0a\0/\0>\0", 10), "", {}, "UTF-16LE"},
        {"cut off in UTF-16", QByteArray("<\0", 2), "1:1: Premature end of document.", NotWellFormed, "UTF-16LE"},
        {"crossed tags in latin", latin + "<a>\xE4</b>", "2:8: Opening and ending tag mismatch.", NotWellFormed, "ISO-8859-1"},
        {"line break in what is told", "<!DOCTYPE a PUBLIC \"x\n{y}\" \"s\"><a/>", "2:4: x {y} is an invalid PUBLIC identifier."},
        {"another encoding than the mark", "\xEF\xBB\xBF" + latin + "<a/>", "1:31: the text is UTF-8, but declares the encoding \"latin1\"", Encoding},
        {"UTF-16 with another declaration", QTextCodec::codecForName("UTF-16LE")->fromUnicode(QChar(QChar::ByteOrderMark) + QString("<?xml version='1.0' encoding='UTF-8'?><a/>")), "1:1: the text is UTF-16LE, but declares the encoding \"UTF-8\"", Encoding, "UTF-16LE"},
        {"wider than it is", "<?xml version='1.0' encoding='utf-16'?><a/>", "1:31: the file declares the encoding \"utf-16\", but is not in it", Encoding, ""},
        {"unknown encoding", "<?xml version='1.0' encoding='klingon'?><a/>", "1:31: the file declares the encoding \"klingon\", which is not known", Encoding, ""},
        {"empty", "", "1:1: Premature end of document."},
        {"cut off", "<a>\n<b>", "2:3: Premature end of document."},
        {"crossed tags", "<a>\n <b></a></b>", "2:8: Opening and ending tag mismatch."},
        {"attribute twice", "<a b='1' b='2'/>", "1:16: Attribute 'b' redefined."},
        {"quote missing", "<a b=\"1>\n" + QByteArray("<c d=\"\"/>").repeated(999), "2:1: Unexpected '<'."},
        {"zero byte", QByteArray("<a>\0</a>", 8), "1:4: Unexpected ''."},
        {"zero in the name of an attribute", QByteArray("<a>\n<b c\0=''/></a>", 18), "2:10: the name of an attribute has a control character"},
        {"control character there", "<a b\xC2\x85='' c=''/>", "1:15: the name of an attribute has a control character"},
        {"control character in a document type", "<!DOCTYPE a\x1F\n SYSTEM 'x'><a/>", "2:12: the document type declaration has a control character"},
        {"control character in its prefix", "<!DOCTYPE  a\x01:b SYSTEM 'x'><a/>", "1:27: the document type declaration has a control character"},
        {"no character in a document type", "<!DOCTYPE a\xEF\xBF\xBE><a/>", "1:13: the document type declaration has a control character"},
        {"control character in its identifier", "<!DOCTYPE a SYSTEM 'x\xC2\x85'><a/>", "1:24: the document type declaration has a control character"},
        {"tab and line break there", "<!DOCTYPE\ta\n SYSTEM 'x\r\n'><a/>", ""},
        {"broken UTF-8", "<a>\n\xF0\x9F\x98\x80\xC3(</a>", "2:3: the text is no valid UTF-8", Encoding},
        {"broken UTF-8 behind the first character", "<\xFF", "1:2: the text is no valid UTF-8", Encoding},
        {"broken UTF-8 behind all line ends", "<a>\r\r\n\n\xFF</a>", "4:1: the text is no valid UTF-8", Encoding},
        {"cut UTF-8", "<a/>\n\xC3", "2:1: the text is no valid UTF-8", Encoding},
        {"broken GB18030", "<?xml version='1.0' encoding='gb18030'?>\n<a>\xFF</a>", "2:4: the text is no valid GB18030", Encoding, "GB18030"},
        {"undeclared entity", "<a>&b;</a>", "1:6: Entity 'b' not declared."},
        {"entity in an attribute", "<!DOCTYPE a SYSTEM 'x'><a>\n<b c='&lt;&d;'/>", "2:11: no entities are allowed in an attribute but those of XML itself; a plain '&' is written &amp;"},
        {"external entity", "<!DOCTYPE a SYSTEM '/etc/passwd'><a>&b;</a>", "1:39: the entity b is declared outside the file, which is not allowed", Limit},
        {"internal subset", "<!-- [ -->\n<!DOCTYPE a SYSTEM '[' [<!ENTITY b 'c'>]><a>&b;</a>", "2:24: the document type declaration has an internal subset, none is allowed", Limit},
        {"internal subset behind CR", "<!-- -->\r<!DOCTYPE a []><a/>", "2:13: the document type declaration has an internal subset, none is allowed", Limit},
        {"internal subset in UTF-16", QTextCodec::codecForName("UTF-16LE")->fromUnicode("<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>"), "1:13: the document type declaration has an internal subset, none is allowed", Limit, "UTF-16LE"},
        {"depth", nested(256), ""},
        {"too deep", nested(257), "1:771: the element is nested 257 deep, no more than 256 are allowed", Limit},
        {"far too deep", nested(200000), "1:771: the element is nested 257 deep, no more than 256 are allowed", Limit},
        {"attributes", tagWithAttributes(256), ""},
        {"too many", tagWithAttributes(257), "1:2843: the tag has attribute 257, no more than 256 are allowed", Limit},
        {"far too many", tagWithAttributes(100000), "1:2843: the tag has attribute 257, no more than 256 are allowed", Limit},
        {"too many behind a comment", "<!--><'--><c/>" + tagWithAttributes(257), "1:2857: the tag has attribute 257, no more than 256 are allowed", Limit},
        {"internal subset behind a comment", "<!---><!DOCTYPE '--><!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>", "1:33: the document type declaration has an internal subset, none is allowed", Limit},
        {"nodes", withNodes(200000), ""},
        {"a node more", withNodes(200001), "1:800017: this is node 200001 of the file, no more than 200000 are allowed", Limit},
        {"size", "<a>" + QByteArray(8388608 - 7, 'x') + "</a>", ""},
        {"a byte more", "<a>" + QByteArray(8388608 - 6, 'x') + "</a>", "0:0: the file has 8388609 bytes, no more than 8388608 are allowed", Limit, ""},
        // Slow for a reader that is not careful.
        {"references", "<a>" + QByteArray("&amp;").repeated(300000) + "</a>", ""},
        {"open comments", "<a>" + QByteArray("<!--").repeated(390000), "1:12: Expected '>', but got '<'."},
    };
    // clang-format on
    for (const auto &row : rows) {
        const auto kind = row.error.isEmpty() ? PxXMLFault::Kind::None : row.kind;
        QTest::newRow(row.name) << row.xml << row.error << int(kind) << row.encoding;
    }
}

void PxXMLLoaderTest::refusesMalformedTextAndKeepsTheLimits()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, error);
    const QFileInfo file = write(xml);
    PxXMLFault fault{PxXMLFault::Kind::Unreadable, "an earlier one", 7, 7, "klingon"};
    QString message = "an earlier one";
    QCOMPARE(PxXMLLoader::loadDocument(file, fault).isNull(), !error.isEmpty());
    QCOMPARE(PxXMLLoader::loadDocument(file, &message).isNull(), !error.isEmpty());
    QTEST(int(fault.kind), "kind");
    QTEST(fault.encoding, "encoding");
    const QString place = QString("%1:%2: ").arg(fault.line).arg(fault.column);
    QCOMPARE(place + fault.message, error.isEmpty() ? "0:0: " : error);
    QCOMPARE(message, error.isEmpty() ? error : path("file.xml:") + error);
}

void PxXMLLoaderTest::opensRegularFilesOnly()
{
    const QString missing(":0:0: there is no such file");
    const QString irregular(":0:0: this is no regular file");
    const QList<QPair<QString, QString>> rows{{"", ":0:0: no file name is given"},
                                              {path("missing.xml"), missing},
                                              {path("dead link"), missing},
                                              {path("directory"), irregular},
                                              {path("link to pipe"), irregular}};
    for (const auto &[file, error] : rows) {
        QString message;
        QVERIFY(PxXMLLoader::loadDocumentElement(QFileInfo(file), &message).isNull());
        QCOMPARE(message, file + error);
        PxXMLFault fault;
        QVERIFY(PxXMLLoader::loadDocumentElement(QFileInfo(file), fault).isNull());
        QVERIFY(fault.kind == PxXMLFault::Kind::Unreadable && fault.encoding.isEmpty());
    }
    QFile::remove(path("file.xml"));
    const QFileInfo remembered(path("file.xml"));
    QVERIFY(!remembered.exists()); // and keeps that in mind, while the file comes into being
    write("<a/>");
    QVERIFY(!PxXMLLoader::loadDocumentElement(remembered).isNull());

    rlimit files{};
    getrlimit(RLIMIT_NOFILE, &files);
    const rlimit none{0, files.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    QString message;
    PxXMLLoader::loadDocument(remembered, &message);
    setrlimit(RLIMIT_NOFILE, &files);
    QCOMPARE(message, path("file.xml:0:0: the file cannot be opened: Too many open files"));
}

/** That has come into the place of a file since it was found; one that waits never ends. */
void PxXMLLoaderTest::waitsForNoPipe()
{
    write("<a/>");
    const QByteArray file = QFile::encodeName(path("file.xml"));
    const QByteArray pipe = QFile::encodeName(path("pipe"));
    std::atomic_bool isDone{false};
    const std::unique_ptr<QThread> swapping(QThread::create([&] {
        while (!isDone)
            renameat2(AT_FDCWD, file, AT_FDCWD, pipe, RENAME_EXCHANGE);
    }));
    swapping->start();
    int read = 0;
    for (int i = 0; i < 20000; ++i)
        read += PxXMLLoader::loadDocument(QFileInfo(path("file.xml"))).isNull() ? 0 : 1;
    isDone = true;
    swapping->wait();
    QVERIFY(read > 0);
    QVERIFY(read < 20000);
    QFile::remove(path("file.xml"));
    QFile::remove(path("pipe"));
    QCOMPARE(mkfifo(pipe, 0600), 0);
}

void PxXMLLoaderTest::elementOutlivesItsDocument()
{
    QDomElement element = PxXMLLoader::loadDocumentElement(
        write("<?xml version='1.0'?><!--1--><!DOCTYPE a><a b='1'><c/>x</a><!--2--><?p?>"));
    for (const QDomNode &around : {element.previousSibling(), element.nextSibling(),
                                   element.parentNode(), QDomNode(element.ownerDocument())})
        QVERIFY(around.isNull());
    QCOMPARE(element.elementsByTagName("c").size(), 1);

    element.setAttribute("b", "2");
    PxXMLBuilder::buildDomElement(element, "d", "y");
    element.removeChild(element.firstChild());
    const QDomNode copy = element.cloneNode();
    element = QDomElement();
    QCOMPARE(pxXml(copy.toElement()), QString("<a b=\"2\">x<d>y</d></a>"));
}

void PxXMLLoaderTest::plainReaderLeavesWhatIsOdd()
{
    // clang-format off
    const QList<QByteArray> whole{
        "", " ", "x", "<", "<>", "</a>", "<a", "<a/", "<a b", "<a b=", "<a b='", "<a b=''", "<a>", "<a></a", "<a></b>", "<a></a>x", "<a/><a/>", "x<a/>",
        "<a/>&amp;", "<a/>\n<!--x-->\n", "<!--x--><a/>", "<a/><?p?>", " <?xml version='1.0'?><a/>", "\n<a/>", "<?xml version=\"1.0\"?><a/>",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<a/>", "<?xml version=\"1.0\" encoding=\"utf-8\" ?><a/>", "<?xml version=\"1.0\" encoding=\"Latin1\"?><a/>",
        "<?xml version='1.0' standalone='yes'?><a/>", "<?xml version=\"1.1\"?><a/>", "<?xml version=\"1.0\"?>", "<?xml?><a/>", "<?xml version=\"1.0\"?><?xml version=\"1.0\"?><a/>",
        "<!DOCTYPE a><a/>", "<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>", "\xEF\xBB\xBF<a/>", "\xEF\xBB\xBF\xEF\xBB\xBF<a/>", "<a/>\xEF\xBB\xBF", "\xFF\xFE<\0a\0/\0>\0",
        "<a b=/>", "<a b=></a>", "<a b=x1x/>", "<a b='1'c='2'/>", "<a b='1' b='1'/>", "<a b = \n'1' />", "<a b='\"' c=\"'\"/>", "<a 1='1'/>", "<a.b-c_d/>", "<-a/>", "<.a/>", "<1/>", "<_/>", "<a b/>",
        "<p:a xmlns:p='u'/>", "<a xmlns='u'/>", "<:a/>", "<a:/>", "<\xC3\xA4/>", "<a \xC3\xA4='1'/>", "<a>\n</a\n>", "<a/ >", "< a/>", "</ a>", "<a></ a>", "<a b='<'/>", "<a b='>'/>",
        "<a><b></a></b>", "<a/>\0", "<!---><a/>", "<!----><a/>", "<!--a--b--><a/>", "<!--a---><a/>", "<!-- & \xC3\xA4 --><a/>", "<!--\r\n\t--><a/>", "<!--", "<!-- --", "<a xml='1'/>", "<xml/>",
    };
    const QList<QByteArray> content{
        "&lt;&gt;&amp;&quot;&apos;", "&amp;lt;", "&", "&;", "&amp", "&AMP;", "&lt ;", "&b;", "&#65;", "&#x41;", "&#0;", "&#10;", "&nbsp;", "a\rb", "a\r\nb", "\t\n", " x ", "x\ty\nz",
        "]]>", "]]", "x]]&gt;", "<![CDATA[x]]>", "<![CDATA[", "<?p x?>", "\xC2\xA0", "\xE3\x80\x80", "\xE2\x80\xA8", "\xC2\x85", "&#160;", "x\xC2\xA0", "\xEF\xBB\xBF", "x\xEF\xBB\xBFy", "\xEF\xBB\xBF ",
        "\xC3", "\xC3(", "\xFF", "\xC0\xAF", "\xC0\x80", "\xED\xA0\x80", "\xED\xA0\x80\xED\xB0\x80", "\xF4\x90\x80\x80", "\xF0\x9F\x98\x80", "\xEF\xBF\xBD", "\xEF\xBF\xBE", "\xEF\xBF\xBF", "\xEF\xB7\x90",
        "\xF0\x9F\xBF\xBE", "\x01", "\x08", "\x0B", "\x0C", "\x1F", "\x7F", "\xC2\x80", "\xC2\x9F", QByteArray("\0", 1), "--", "-->", "&\xC3\xA4;", "&lt;\xC2\xA0&gt;",
    };
    // clang-format on
    QList<QByteArray> texts = whole + m_samples;
    for (const QByteArray &c : content)
        texts << "<a>" + c + "</a>"
              << "<a>x" + c + "<b/>" + c + "</a>"
              << "<a b='" + c + "'/>"
              << "<a>x<!--" + c + "--></a>" << c + "<a/>"
              << "<a/>" + c << "<a" + c + "/>";
    for (const QByteArray &xml : qAsConst(texts))
        QVERIFY2(difference(xml).isEmpty(),
                 xml.toPercentEncoding("<>='/") + qPrintable(difference(xml)));
}

void PxXMLLoaderTest::plainReaderReadsUpToItsLimits()
{
    // clang-format off
    const struct { QByteArray xml; bool isRead; } rows[] = {
        {"<a.z-Z_9>\xC2\xA0</a.z-Z_9>", true}, {"<a b=\"'\" >x&gt;<b/></a >", true}, {tagWithAttributes(64), true}, {tagWithAttributes(65), false},
        {nested(256), true}, {nested(257), false}, {"<r c=''>" + QByteArray("<b/>").repeated(19998) + "</r>", true}, {"<r c=''>" + QByteArray("<b/>").repeated(19999) + "</r>", false}};
    // clang-format on
    for (const auto &row : rows)
        QVERIFY2(plain(row.xml).isNull() != row.isRead, row.xml.left(80));
    for (const QByteArray &sample : qAsConst(m_samples))
        QVERIFY2(!plain(sample).isNull(), sample);
}

void PxXMLLoaderTest::sharesTextsWithinAThread()
{
    const auto isShared = [](int length) {
        PxXMLTextPool pool;
        const std::string text(std::size_t(length), 'x');
        const QString first = pool.text(text);
        return pool.text(text).constData() == first.constData();
    };
    QVERIFY(isShared(55));
    QVERIFY(!isShared(56));

    std::vector<PxXMLScratch::Loan> loans;
    QStringList texts;
    const auto hasText = [&texts](const PxXMLScratch::Loan &scratch) {
        const QChar *own = scratch->texts().text("recurring").constData();
        return std::any_of(texts.begin(), texts.end(),
                           [own](const QString &text) { return text.constData() == own; });
    };
    for (int i = 0; i < 17; ++i) {
        loans.push_back(PxXMLScratch::lend());
        texts.append(loans.back()->texts().text("recurring"));
    }
    loans.clear();
    bool hasForeignText = true;
    std::thread([&] { hasForeignText = hasText(PxXMLScratch::lend()); }).join();
    QVERIFY(!hasForeignText);
    for (int i = 0; i < 17; ++i)
        loans.push_back(PxXMLScratch::lend());
    QCOMPARE(int(std::count_if(loans.begin(), loans.end(), hasText)), 15); // and one of the other thread
}

void PxXMLLoaderTest::readersAgreeAboutMutations()
{
    std::mt19937 random(1); // the same ones in every run
    int readCount = 0;
    for (int i = 0; i < 2000; ++i) {
        const QByteArray sample = m_samples[int(random() % unsigned(m_samples.size()))];
        const QByteArray xml = mutated(sample, random);
        const QString found = difference(xml); // once: QVERIFY2 always makes its text
        QVERIFY2(found.isEmpty(), xml + qPrintable(found));
        readCount += plain(xml).isNull() ? 0 : 1;
    }
    QVERIFY2(readCount > 150, "hardly anything was compared");
}

QTEST_GUILESS_MAIN(PxXMLLoaderTest)
#include "PxXMLLoaderTest.moc"
