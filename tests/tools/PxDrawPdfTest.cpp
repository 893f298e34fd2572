#include "PxProgramRun.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/** Reads PDF files with another program. */
class PxDrawPdfTest : public QObject
{
    Q_OBJECT

private slots:
    void hasAPageForEachSheet_data();
    void hasAPageForEachSheet();
    void hasTextAsText();

private:
    const QTemporaryDir m_directory;
    const QString m_file = m_directory.filePath("drawing.pdf");
};

namespace {

struct Rect
{
    double left;
    double top;
    double right;
    double bottom;
};

Rect rectOf(const QDomElement &element, const char *attribute)
{
    const QStringList box = element.attribute(attribute).split(' ');
    const double x = box.value(0).toDouble();
    const double y = box.value(1).toDouble();
    return {x, y, x + box.value(2).toDouble(), y + box.value(3).toDouble()};
}

/** A box of a page: from its lower left corner, in tenths of a millimetre. */
Rect boxOf(const QString &pages, int page, const char *name)
{
    const QRegularExpression line(
        QString("Page +%1 %2: +([\\d.-]+) +([\\d.-]+) +([\\d.-]+) +([\\d.-]+)")
            .arg(page)
            .arg(name));
    const QRegularExpressionMatch match = line.match(pages);
    const auto number = [&match](int i) { return match.captured(i).toDouble() * 254 / 72; };
    return {number(1), number(2), number(3), number(4)};
}

} // namespace

void PxDrawPdfTest::hasAPageForEachSheet_data()
{
    QTest::addColumn<QString>("product");
    for (const char *product : {"BOOK_A4_PORTRAIT", "CALENDAR_WALL_A4", "CUP2", "GALLERY_30X90"})
        QTest::newRow(product) << product;
}

void PxDrawPdfTest::hasAPageForEachSheet()
{
    QFETCH(QString, product);
    const PxProgramRun svg(PX_CATALOGUE_PROGRAM, {"draw", product});
    QCOMPARE(svg.status(), 0);
    QDomDocument document;
    QVERIFY(document.setContent(svg.printed()));
    const PxProgramRun pdf(PX_CATALOGUE_PROGRAM, {"draw", product, "--output", m_file});
    QCOMPARE(pdf.errors(), QStringList());
    const QString pages =
        PxProgramRun(PX_PDFINFO, {"-box", "-f", "1", "-l", "99", m_file}).printed();
    QVERIFY(!pages.contains("Date"));
    QVERIFY(pages.contains(product));

    int page = 0;
    for (QDomElement sheet = document.documentElement().firstChildElement("g"); !sheet.isNull();
         sheet = sheet.nextSiblingElement("g")) {
        ++page;
        const Rect canvas = rectOf(sheet, "data-canvas");
        const struct
        {
            const char *name;
            Rect rect;
        } boxes[] = {{"MediaBox", canvas},
                     {"BleedBox", rectOf(sheet, "data-total")},
                     {"TrimBox", rectOf(sheet, "data-trim")}};
        for (const auto &[name, rect] : boxes) {
            const Rect box = boxOf(pages, page, name);
            const auto is = [](double one, double other) { return qAbs(one - other) <= 0.1; };
            QVERIFY2(is(box.left, rect.left - canvas.left) &&
                         is(box.right, rect.right - canvas.left) &&
                         is(box.bottom, canvas.bottom - rect.top) &&
                         is(box.top, canvas.bottom - rect.bottom),
                     qPrintable(QString("%1 of page %2\n%3").arg(name).arg(page).arg(pages)));
        }
    }
    QVERIFY(page > 0);
    QVERIFY(pages.contains(QRegularExpression(QString("Pages: +%1\n").arg(page))));
}

/** The files are as small as they are because of that, and can be searched. */
void PxDrawPdfTest::hasTextAsText()
{
    const PxProgramRun pdf(PX_CATALOGUE_PROGRAM,
                           {"draw", "BOOK_A4_PORTRAIT", "--lang", "de", "--output", m_file});
    QCOMPARE(pdf.status(), 0);
    const QString text = PxProgramRun(PX_PDFTOTEXT, {m_file, "-"}).printed();
    for (const char *word : {"BOOK_A4_PORTRAIT", "products/book_a4_portrait.xml", "Rückenkante"})
        QVERIFY2(text.contains(word), qPrintable(text));
}

QTEST_GUILESS_MAIN(PxDrawPdfTest)
#include "PxDrawPdfTest.moc"
