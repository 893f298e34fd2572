#include <PxElement.h>
#include <PxXMLPlainReader.h>
#include <PxXMLStrictReader.h>
#include <PxXMLTextPool.h>

#include <QDirIterator>
#include <QTest>

#include <random>

/** Whatever the plain reader reads, the strict one reads as the same tree. */
class PxXMLPlainReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void readsTheSampleCatalogue();
    void leavesWhatIsOddToTheStrictReader();
    void readsWhatIsPlain();
    void sharesTextsWithinAThread();
    void agreesAboutMutations();

private:
    QList<QByteArray> m_samples;
};

namespace {

QDomDocument plain(const QByteArray &xml)
{
    return PxXMLPlainReader({xml.constData(), std::size_t(xml.size())}).read();
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

void PxXMLPlainReaderTest::initTestCase()
{
    QDirIterator it(PX_SAMPLE_DIRECTORY, {"*.xml"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_samples.append(file.readAll());
    }
    std::sort(m_samples.begin(), m_samples.end());
}

void PxXMLPlainReaderTest::readsTheSampleCatalogue()
{
    for (const QByteArray &xml : qAsConst(m_samples)) {
        QVERIFY2(!plain(xml).isNull(), xml);
        QCOMPARE(difference(xml), QString());
    }
}

void PxXMLPlainReaderTest::leavesWhatIsOddToTheStrictReader()
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
    QList<QByteArray> texts = whole;
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

void PxXMLPlainReaderTest::readsWhatIsPlain()
{
    const auto tag = [](int attributes) {
        QByteArray xml = "<a";
        for (int i = 0; i < attributes; ++i)
            xml += " b" + QByteArray::number(i) + "='&lt;'";
        return xml + "/>";
    };
    const auto nested = [](int depth, int siblings) {
        return QByteArray("<a>").repeated(depth) + QByteArray("<b/>").repeated(siblings) +
               QByteArray("</a>").repeated(depth);
    };
    // clang-format off
    const struct { QByteArray xml; bool isRead; } rows[] = {
        {"<a.z-Z_9>\xC2\xA0</a.z-Z_9>", true}, {"<a b=\"'\" >x&gt;<b/></a >", true}, {tag(64), true}, {tag(65), false},
        {nested(256, 0), true}, {nested(257, 0), false}, {nested(1, 19999), true}, {nested(1, 20000), false}};
    // clang-format on
    for (const auto &row : rows)
        QVERIFY2(plain(row.xml).isNull() != row.isRead, row.xml.left(80));
}

void PxXMLPlainReaderTest::sharesTextsWithinAThread()
{
    const auto isShared = [](int length) {
        const PxXMLTextPool::Loan pool = PxXMLTextPool::lend();
        const std::string text(std::size_t(length), 'x');
        const QString first = pool->text(text);
        return pool->text(text).constData() == first.constData();
    };
    QVERIFY(isShared(64));
    QVERIFY(!isShared(65));

    std::vector<PxXMLTextPool::Loan> loans;
    QStringList texts;
    const auto hasText = [&texts](const PxXMLTextPool::Loan &pool) {
        const QChar *own = pool->text("recurring").constData();
        return std::any_of(texts.begin(), texts.end(),
                           [own](const QString &text) { return text.constData() == own; });
    };
    for (int i = 0; i < 17; ++i) {
        loans.push_back(PxXMLTextPool::lend());
        texts.append(loans.back()->text("recurring"));
    }
    loans.clear();
    bool hasForeignText = true;
    std::thread([&] { hasForeignText = hasText(PxXMLTextPool::lend()); }).join();
    QVERIFY(!hasForeignText);
    for (int i = 0; i < 17; ++i)
        loans.push_back(PxXMLTextPool::lend());
    QCOMPARE(int(std::count_if(loans.begin(), loans.end(), hasText)), 16); // so many are kept
}

void PxXMLPlainReaderTest::agreesAboutMutations()
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

QTEST_GUILESS_MAIN(PxXMLPlainReaderTest)
#include "PxXMLPlainReaderTest.moc"
