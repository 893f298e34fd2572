#include <PxDirectoryConfig.h>
#include <PxLogRecorder.h>
#include <PxRows.h>
#include <values/PxHumanReadable.h>
#include <values/PxProductMaterial.h>

#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

class PxHumanReadableTest : public QObject
{
    Q_OBJECT

private slots:
    void readsFrameModels();
    void describesMaterials();
};

static int printNames(const QString &directory)
{
    PxDirectoryConfig::instance()->setResourceDirectories({directory});
    const PxLogRecorder log;
    const PxHumanReadable *names = PxHumanReadable::instance();
    QStringList answers{names->frameName("Duene"), names->frameName("Poster Ohne Rahmen")};
    for (int paper = 0; paper <= 4; ++paper)
        answers.append(names->fotoPaperTypeName(static_cast<PxFotoPaperType>(paper)));
    fputs((answers + log.texts()).join('|').toUtf8().constData(), stdout);
    return 0;
}

/** What printNames() answers of a frames.xml: in a process of its own, for it is read only once. */
static QString namesOf(const QByteArray &frames)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath("frames.xml"));
    if (!frames.isEmpty() && file.open(QIODevice::WriteOnly))
        file.write(frames);
    file.close();
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {"--names", directory.path()});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).remove(directory.path());
}

void PxHumanReadableTest::readsFrameModels()
{
    const QByteArray frames = "<frames><frame id='Duene' name='Düne'/>";
    const QString papers = "|Unbekanntes Fotopapier|Glänzend|Matt|Seidenraster|";
    const QString unread = "Duene|Poster Ohne Rahmen" + papers;
    const QString read = "Düne|Poster Ohne Rahmen" + papers;
    const QString warning = "|PxHumanReadable::initTemplateNames ";
    const QString incomplete = warning + "frame without id or name \"\" \"\"";
    QCOMPARE(namesOf(""), unread);
    QCOMPARE(namesOf(frames + "</frames>"), read);
    QCOMPARE(namesOf(frames + "<frame id='Duene'/><frame name='Wald'/></frames>"),
             read + warning + "frame without id or name \"Duene\" \"\"" + warning +
                 "frame without id or name \"\" \"Wald\"");
    QCOMPARE(namesOf("<frames>" + QByteArray("<frame/>").repeated(100) + "</frames>"),
             unread + incomplete.repeated(100));
    QCOMPARE(namesOf("<frames>" + QByteArray("<frame/>").repeated(101) + "</frames>"),
             unread + incomplete.repeated(100) + warning + "1 more frames without id or name");
    QVERIFY(namesOf(frames).startsWith(unread + warning + "could not open \"/frames.xml:1:"));
}

void PxHumanReadableTest::describesMaterials()
{
    const auto describe = [](const char *material) {
        return PxProductMaterial(material).visibleDescription();
    };
    QCOMPARE(describe("Deko-Poster"), QString("Poster-Collage"));
    QCOMPARE(describe("Posterdruck XXL quadratisch"), QString("Posterdruck XXL Quadratisch"));
    QCOMPARE(describe("poster") + describe("Poster "), QString());
    pxCheckComparison("PxProductMaterial", "Leinwand leinwand",
                      [](const QString &keyword) { return PxProductMaterial(keyword); });
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--names") == 0)
        return printNames(QFile::decodeName(argv[2]));
    PxHumanReadableTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "PxHumanReadableTest.moc"
