#include "PxProgramRun.h"
#include "PxSampleCopy.h"

#include <QTest>

/** What an author reads about one mistake, where the place and the tag do not say enough. */
class PxCheckTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatBecomesOfIt_data();
    void tellsWhatBecomesOfIt();

private:
    PxSampleCopy m_sample;
};

void PxCheckTextsTest::tellsWhatBecomesOfIt_data()
{
    QTest::addColumn<QString>("old");
    QTest::addColumn<QString>("mistake");
    QTest::addColumn<QString>("text");
    const QString pages = "<pages>normalpage</pages>";
    const QString noPage = "now: the product has 1 page, and no cover";
    QTest::newRow("no page is left")
        << pages << "<pages>normalpag</pages>" << noPage + " hint: did you mean \"normalpage\"?";
    QTest::newRow("no page at all") << pages << "<pages/>" << noPage;
    QTest::newRow("some pages are left") << pages << "<pages>x,normalpage</pages>"
                                         << "now: it is left out, and the pages behind it move up";
    QTest::newRow("the last page") << pages << "<pages>normalpage,x</pages>"
                                   << "now: it is left out 59 files";
    QTest::newRow("all normal pages") << "normalpages"
                                      << "normalpags"
                                      << "the book has 5 pages, whatever page count is ordered "
                                         "hint: did you mean \"normalpages\"?";
    QTest::newRow("another separator") << pages << "<pages>normalpage/emptypage</pages>"
                                       << "hint: separate pages with commas";
    QTest::newRow("several where one counts")
        << "paper=\"unbekanntes Papier\""
        << "paper=\"indigo;glossy\""
        << "now: read as indigo hint: keep the one that is meant";
    const auto withContent = [&](const QString &list) {
        return pages + "<pageswithcontent>" + list + "</pageswithcontent>";
    };
    QTest::newRow("numbers without commas")
        << pages << withContent("1;2;3")
        << "now: the list holds no number then, which means: every page "
           "hint: separate with commas: \"1,2,3\"";
    QTest::newRow("some numbers are left")
        << pages << withContent("0,x") << "now: it is left out: 1 of 2 parts are read";

    const QString margin = "safetymargin=\"30\"";
    QTest::newRow("millimetres")
        << margin << "safetymargin=\"3,5 mm\""
        << "hint: lengths are in tenths of a millimetre: \"35\" for 3,5 mm";
    QTest::newRow("a fraction of a length")
        << margin << "safetymargin=\"30,5\""
        << "hint: lengths are in tenths of a millimetre: \"305\" for 30,5 mm";
    QTest::newRow("a fraction of a count")
        << margin << margin + " numOfSpirals=\"1,5\""
        << "is no whole number [integer-malformed] now: 0 is used 59 files";
    QTest::newRow("a number that means none")
        << margin << margin + " defaultSellingPages=\"26 Seiten\""
        << "now: -1 is used, which means none";

    QTest::newRow("an empty default") << "legacy="
                                      << "legcy="
                                      << "now: \"legacy\" is missing: there is none";
    QTest::newRow("of another element") << "<usablesize "
                                        << "<usablesize safetymargin=\"3\" "
                                        << "now: it is passed over hint: it is read on";
    const auto allowing = [&](const QString &comment) { return "<!--" + comment + "-->" + pages; };
    QTest::newRow("two tags") << pages << allowing("check: allow pages-missing,size-missing")
                              << "now: the comment silences nothing "
                                 "hint: write a comment for each tag";
    QTest::newRow("nearly allowed") << pages << allowing("Check alow: pages-missing")
                                    << "hint: write \"check: allow pages-missing\"";

    QTest::newRow("a page count out of step")
        << "<spine pages=\"26\""
        << "<spine pages=\"27\""
        << "the spine for 26 pages is 0 wide hint: did you mean \"26\"?";

    QTest::newRow("a blank before a path") << "image=\"images/"
                                           << "image=\" images/"
                                           << "hint: did you mean \"images/mug-handle.png\"?";

    // What a parser says in its own words.
    const QString plain = "write \"&amp;\" for \"&\" itself";
    QTest::newRow("ampersand in a text") << "color:black"
                                         << "black & white" << plain;
    QTest::newRow("ampersand in a value") << "legacy="
                                          << "paper2=\"A&B\" legacy=" << plain;
    QTest::newRow("less than") << "color:black"
                               << "a < b"
                               << "cup2.xml:23:18: error: a \"<\" that begins no tag";
    QTest::newRow("no quotes") << margin << "safetymargin=30"
                               << "hint: put it between quotes";
    QTest::newRow("other quotes") << margin << "safetymargin=„30“"
                                  << "a quotation mark that XML does not know";
    QTest::newRow("no value") << margin << "safetymargin"
                              << "5:12: error: an attribute without";
    QTest::newRow("no end quote") << margin << "safetymargin=\"30"
                                  << "hint: add the blank, or the quote that is missing before";
    QTest::newRow("dashes in a comment")
        << pages << allowing(" a -- b ") << "29:12: error: \"--\" within a comment";
    QTest::newRow("no end of a comment") << pages << pages + "<!-- a"
                                         << "29:30: error: this comment has no end";
}

void PxCheckTextsTest::tellsWhatBecomesOfIt()
{
    QFETCH(QString, old);
    QFETCH(QString, mistake);
    QFETCH(QString, text);
    const bool isOfBook = old.startsWith("<spine ") || old == "normalpages";
    const QString file = isOfBook ? "products/book_mini.xml" : "products/cup2.xml";
    m_sample.replace(file, old, mistake);
    const PxProgramRun run(PX_CATALOGUE_PROGRAM, {"check", m_sample.path()},
                           {{"PX_RESOURCE_DIRS", QString()}});
    m_sample.restore(file);
    QVERIFY2(run.text().contains(text), qPrintable(run.text()));
    QCOMPARE(run.output().filter("now: ").size(), 1);
}

QTEST_GUILESS_MAIN(PxCheckTextsTest)
#include "PxCheckTextsTest.moc"
