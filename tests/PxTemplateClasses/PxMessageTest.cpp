#include <PxElement.h>
#include <PxLogRecorder.h>
#include <PxMessage.h>
#include <PxOrientation.h>
#include <geometry/PxContentDropRedirectList.h>

#include <QLoggingCategory>
#include <QSize>
#include <QTest>

#include <thread>

using Streaming = void (*)(QDebug &);
Q_DECLARE_METATYPE(Streaming)

class PxMessageTest : public QObject
{
    Q_OBJECT

private slots:
    void textIsThatOfQt_data();
    void textIsThatOfQt();
    void placeIsThatOfQt();
    void isKeptFromAllLibraries();
    void isKeptByTheInnermostKeeper();
    void isKeptInTheSameThreadOnly();
    void rulesOfTheCategoryApply();
};

/** All that a message handler is given. */
static QStringList shown(const PxLogRecorder &log)
{
    QStringList texts;
    for (const PxLogRecorder::Entry &entry : log.entries())
        texts.append(QString("%1 %2:%3 %4 %5 [%6]")
                         .arg(QString::number(entry.level), entry.file, QString::number(entry.line),
                              entry.function, entry.category, entry.text));
    return texts;
}

static void write(const QVector<PxMessage> &messages)
{
    for (const PxMessage &message : messages)
        message.log();
}

void PxMessageTest::textIsThatOfQt_data()
{
    QTest::addColumn<Streaming>("stream");
    const auto row = [](const char *name, Streaming stream) { QTest::newRow(name) << stream; };
    row("nothing", [](QDebug &) {});
    row("empty texts", [](QDebug &d) { d << "" << QString() << ""; });
    row("text of C", [](QDebug &d) { d << "a \"b\" %d %1 \\"; });
    row("umlauts", [](QDebug &d) { d << "Buchrücken" << QString("Übergröße €"); });
    row("quoted", [](QDebug &d) { d << QString("a \"b\"\n\t\x01") << QLatin1String("c"); });
    row("blank at the end", [](QDebug &d) { d << "a "; });
    row("only blanks", [](QDebug &d) { d << "  "; });
    row("nospace", [](QDebug &d) { d.nospace() << "a" << 1 << " b "; });
    row("nospace at the end", [](QDebug &d) { (d << "a").nospace() << "b "; });
    row("space at the end", [](QDebug &d) { (d.nospace() << "a ").space(); });
    row("noquote", [](QDebug &d) { d.noquote() << QString("a \"b\"") << QString("%1"); });
    row("quoted again", [](QDebug &d) { d.noquote().quote() << QString("a"); });
    row("numbers", [](QDebug &d) { d << -1 << 2U << 0.1 << 1e300 << 'c' << true << 1LL; });
    row("manipulators", [](QDebug &d) { d << Qt::hex << 255 << Qt::endl << 16; });
    row("list", [](QDebug &d) { d << QStringList({"a", "b "}) << QList<int>() << 1; });
    row("list, noquote", [](QDebug &d) { d.noquote() << QStringList({"a", "b"}); });
    row("values of Qt and of the library", [](QDebug &d) {
        d << QSize(1, 2) << PxOrientation(PxOrientationPortrait) << QByteArray("\xff");
    });
    row("lone surrogates", [](QDebug &d) {
        const QString text = "a" + QString(QChar(0xd83d)) + "b" + QString(QChar(0xde00));
        d << text;
        d.noquote() << text;
    });
    row("null character", [](QDebug &d) { d.noquote() << QString(QChar()) << "a"; });
}

void PxMessageTest::textIsThatOfQt()
{
    QFETCH(Streaming, stream);
    const PxLogRecorder log;
    {
        QDebug debug = QMessageLogger("file", 7, "function").debug();
        stream(debug);
    }
    stream(PxMessageLogger("file", 7, "function").debug());
    QVector<PxMessage> kept;
    {
        const PxMessageKeeper keeper(&kept);
        stream(PxMessageLogger("file", 7, "function").debug());
    }
    write(kept);
    const QStringList written = shown(log);
    QCOMPARE(written.size(), 3);
    QCOMPARE(written.at(1), written.at(0));
    QCOMPARE(written.at(2), written.at(0));
}

void PxMessageTest::placeIsThatOfQt()
{
    const PxLogRecorder log;
    QVector<PxMessage> kept;
    const QLoggingCategory &ours = *pxLoggingCategory();
    // clang-format off
    qWarning(ours) << 1; pxWarning() << 1; { const PxMessageKeeper keeper(&kept); pxWarning() << 1; }
    qDebug(ours) << 2; pxDebug() << 2; { const PxMessageKeeper keeper(&kept); pxDebug() << 2; }
    // clang-format on
    write(kept);
    const QStringList written = shown(log);
    QCOMPARE(written.size(), 6);
    const QString warning = written.at(0); // Qt's
    const QString debug = written.at(2);
    QVERIFY2(warning.contains("PxMessageTest.cpp:"), qPrintable(warning));
    QCOMPARE(written, QStringList({warning, warning, debug, debug, warning, debug}));
}

void PxMessageTest::isKeptFromAllLibraries()
{
    const PxLogRecorder log;
    const auto read = [] {
        const PxOrientation orientation("portrait,foo"); // of the platform
        const PxContentDropRedirectList list(pxElement("<r><contentredirect from='x'/></r>"));
        return orientation.value() == PxOrientationPortrait && list.targetPage(3) == 3;
    };
    QVERIFY(read());
    const QStringList expected = shown(log);
    QCOMPARE(expected.size(), 2);
    QVector<PxMessage> kept;
    {
        const PxMessageKeeper keeper(&kept);
        QVERIFY(read());
    }
    QCOMPARE(log.texts().size(), 2);
    write(kept);
    QCOMPARE(shown(log), expected + expected);
}

void PxMessageTest::isKeptByTheInnermostKeeper()
{
    const PxLogRecorder log;
    QVector<PxMessage> outer;
    QVector<PxMessage> inner;
    {
        const PxMessageKeeper outerKeeper(&outer);
        pxDebug() << 1;
        {
            const PxMessageKeeper innerKeeper(&inner);
            pxDebug() << 2;
        }
        pxDebug() << 3;
        QCOMPARE(inner.size(), 1);
        write(inner); // kept, as if it were logged now
    }
    QCOMPARE(log.texts(), QStringList());
    pxDebug() << 4;
    write(outer);
    QCOMPARE(log.texts(), QStringList({"4", "1", "3", "2"}));
}

void PxMessageTest::isKeptInTheSameThreadOnly()
{
    const PxLogRecorder log;
    QVector<PxMessage> kept;
    const PxMessageKeeper keeper(&kept);
    pxDebug() << "ours";
    std::thread([] { pxDebug() << "theirs"; }).join();
    QCOMPARE(log.texts(), QStringList("theirs"));
    QCOMPARE(kept.size(), 1);
}

void PxMessageTest::rulesOfTheCategoryApply()
{
    const auto logAll = [] {
        PxMessageLogger("file", 7, "function").debug() << 1;
        PxMessageLogger("file", 7, "function").warning() << 2;
        pxDebug() << 3;
        pxWarning() << 4;
    };
    const PxLogRecorder log;
    QVector<PxMessage> kept;
    {
        const PxMessageKeeper keeper(&kept);
        logAll();
    }
    QLoggingCategory::setFilterRules("default.debug=false");
    logAll();
    write(kept);
    QCOMPARE(log.texts(), QStringList({"2", "3", "4", "2", "3", "4"}));
    QLoggingCategory::setFilterRules("px.productproperties=false");
    logAll();
    write(kept);
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(log.texts().mid(6), QStringList({"1", "2", "1", "2"}));
}

QTEST_GUILESS_MAIN(PxMessageTest)
#include "PxMessageTest.moc"
