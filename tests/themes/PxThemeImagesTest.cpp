#include <PxCatalogueDirectory.h>
#include <PxLogRecorder.h>
#include <PxPictures.h>

#include <themes/PxPictureData.h>
#include <themes/PxThemeImages.h>

#include <QBuffer>
#include <QColorSpace>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

class PxThemeImagesTest : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatQImageShows_data();
    void showsWhatQImageShows();
    void namesTheReason_data();
    void namesTheReason();
    void opensRegularFilesOnly();
    void findsWhatQImageFinds();
    void searchesForFewMissingFiles();
    void noticesEachMissingByte();
    void filesAreCountedOnceAndOnlyIfDecoded();

private:
    QString write(const QByteArray &picture) const;

    PxCatalogueDirectory m_directory;
};

QString PxThemeImagesTest::write(const QByteArray &picture) const
{
    m_directory.write("picture", picture);
    return m_directory.filePath("picture");
}

static QByteArray saved(const char *format, QImage::Format imageFormat = QImage::Format_RGB32)
{
    QImage image(31, 17, imageFormat);
    if (imageFormat == QImage::Format_Indexed8)
        image.setColorTable({0xFF112233, 0x80AABBCC});
    image.fill(1);
    image.setText("Title", QString("wide ").repeated(1000));
    image.setDotsPerMeterX(3000);
    image.setColorSpace(QColorSpace::AdobeRgb);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format))
        qFatal("cannot write %s", format);
    return buffer.data();
}

/** A GIF with an extension, whose screen or frame has a table of colours. */
static QByteArray gifWithColors(int bits, bool isOfFrame)
{
    const QByteArray gif = PxPictures::gif({8, 6}, {8, 6}, 48);
    const QByteArray none(3, '\0');
    const QByteArray colors =
        char(0x80 | bits) + none.left(isOfFrame ? 0 : 2) + QByteArray(3 << (bits + 1), '\x55');
    return gif.left(10) + (isOfFrame ? none : colors) + "!\xFE\3abc" + none.left(1) +
           gif.mid(781, 9) + (isOfFrame ? colors : none.left(1)) + gif.mid(791);
}

// clang-format off
void PxThemeImagesTest::showsWhatQImageShows_data()
{
    using namespace PxPictures;
    QTest::addColumn<QByteArray>("picture");
    QTest::addColumn<QByteArray>("same"); // which QImage shows
    const QByteArray small = png({8, 8});
    const QByteArray chunks = chunk("gAMA", QByteArray("\0\0\xB1\x8F", 4)) + chunk("tRNS", QByteArray("\0\0", 2)) +
                              chunk("oFFs", QByteArray("\0\0\0\7\0\0\0\x9\0", 9)) + chunk("pHYs", QByteArray("\0\0\7\0\0\0\x9\0\1", 9));
    const QByteArray space = chunk("sRGB", QByteArray(1, '\0'));
    const QByteArray blank = jpeg({40, 30});
    const QByteArray format = jpegSegment('\xE0', QByteArray("JFIF\0\1\1\1\0\x22\0\x33\0\0", 14));
    const QByteArray none = blank.left(2) + blank.mid(20); // without a format
    const struct { const char *name; QByteArray picture; QByteArray same = {}; } rows[] = {
        {"PNG", saved("PNG")}, {"PNG with alpha", saved("PNG", QImage::Format_ARGB32)}, {"PNG with a palette", saved("PNG", QImage::Format_Indexed8)},
        {"interlaced PNG", slowPng({9, 5})}, {"PNG with chunks twice", png({8, 8}, chunks + chunks), png({8, 8}, chunks)},
        {"PNG with a chunk of no kind", png({8, 8}, chunk("1abc", "")), small}, {"PNG of most bytes", small + QByteArray(8388608 - small.size(), ' ')},
        {"PNG with a colour space twice", png({8, 8}, space + space), png({8, 8}, space)},
        {"JPEG", saved("JPG")}, {"grey JPEG", saved("JPG", QImage::Format_Grayscale8)}, {"progressive JPEG", jpegWithScans({40, 30}, 20)},
        {"JPEG with comments", withSegments(blank, QByteArray("\xFF\xFF\xFF\xFE\0\4\xFF\xDA", 8) + format + QByteArray("\xFF\xE1\0\2", 4))},
        {"JPEG with 255 formats", withSegments(blank, format.repeated(254))},
        {"JPEG with 256 formats", withSegments(blank, format.repeated(255)), withSegments(none, format)},
        {"JPEG of red, green and blue", withSegments(none, jpegSegment('\xEE', QByteArray("Adobe\0\x64\0\0\0\0\0", 12)))},
        {"GIF with a larger screen", gif({80, 60}, {8, 6}, 48)}, {"GIF without an end", gif({8, 6}, {8, 6}, 48).chopped(1)},
        {"GIF of two frames", gif({8, 6}, {8, 6}, 48).chopped(1) + gif({8, 6}, {9000, 9000}, 48).mid(781)},
        {"BMP", saved("BMP")}, {"BMP from top to bottom", bmp({2, -3}, 24, 0, "abcdef..ghijkl..mnopqr..")},
        {"packed BMP", bmp({4, 2}, 8, 1, QByteArray("\4\1\0\0\4\2\0\1", 8))},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.picture << (row.same.isEmpty() ? row.picture : row.same);
    for (int i = 0; i < 16; ++i) {
        const QByteArray picture = gifWithColors(i / 2, i % 2 == 1);
        QTest::addRow("GIF with colours of its %s, 2^%d", i % 2 ? "frame" : "screen", i / 2 + 1) << picture << picture;
    }
}
// clang-format on

void PxThemeImagesTest::showsWhatQImageShows()
{
    QFETCH(QByteArray, picture);
    QFETCH(QByteArray, same);
    const PxLogRecorder log;
    const QImage expected(write(same));
    const QStringList logged = log.texts();
    const PxThemeImages::Result result = PxThemeImages().find(write(picture));
    QCOMPARE(log.texts().mid(logged.size()), logged); // by the decoder alone
    QCOMPARE(result.fault, QString());
    QVERIFY(!expected.isNull());
    QCOMPARE(result.image, expected);
    QCOMPARE(result.image.format(), expected.format());
    QCOMPARE(result.image.dotsPerMeterX(), expected.dotsPerMeterX());
    QCOMPARE(result.image.offset(), expected.offset());
    QCOMPARE(result.image.colorSpace(), expected.colorSpace());
    QCOMPARE(result.image.textKeys(), QStringList());
}

// clang-format off
void PxThemeImagesTest::namesTheReason_data()
{
    using namespace PxPictures;
    QTest::addColumn<QByteArray>("picture");
    QTest::addColumn<QString>("fault"); // none for what is just within a limit
    const QString size = "is too large: %1 pixels, no more than 16777216 are allowed";
    const QString bytes = "is too large: its pixels take more than 83886080 bytes, for 8 x 8";
    const QString scans = "is too slow: a JPEG of %1 samples, no more than 402653184 together are allowed";
    const QString other = "is a JPEG that is neither baseline nor progressive";
    const QString none = "is no PNG, JPEG, GIF or BMP picture";
    const QByteArray three("\x11\x11\x11");
    const QByteArray wide = bmp({40000, -1000}, 24, 0, "");
    const struct { const char *name; QByteArray picture; QString fault; } rows[] = {
        {"empty", "", none}, {"text", "no picture", none}, {"another format", saved("PPM"), none}, {"icon", ico(png({8, 8})), none},
        {"bytes", png({8, 8}) + QByteArray(8388609 - png({8, 8}).size(), ' '), "is too large: 8388609 bytes, no more than 8388608 are allowed"},
        {"PNG without an IHDR", png({8, 8}).replace("IHDR", "IHDX"), "is damaged"}, {"damaged PNG", png({8, 8}, {}, "no zlib stream"), "is damaged"},
        {"unknown chunk A", png({8, 8}, chunk("Aabc", "")), "is damaged"}, {"unknown chunk Z", png({8, 8}, chunk("Zabc", "")), "is damaged"},
        {"PNG without a column", png({0, 8}, {}, "x"), "is damaged"}, {"PNG without a row", png({8, 0}, {}, "x"), "is damaged"},
        {"largest PNG", png({4096, 4096}, {}, "x"), ""}, {"PNG with a row more", png({4096, 4097}, {}, "x"), size.arg("4096 x 4097")},
        {"PNG beyond 32 bits", png({65536, 65537}, {}, "x"), size.arg("65536 x 65537")},
        {"PNG of most pixels", png({8, 8}, {}, endlessPixels(528346, 992)), ""}, {"PNG with a byte more", png({8, 8}, {}, endlessPixels(528346, 993)), bytes},
        {"baseline JPEG of one scan", emptyJpeg('\xC0', {4096, 4096}, three, 1), ""},
        {"baseline JPEG of two scans", emptyJpeg('\xC1', {4096, 4096}, three, 2), scans.arg("2 scans over 50331648")},
        {"JPEG of fewer scans than are usual", emptyJpeg('\xC2', {4096, 3136}, three, 1), ""},
        {"most scans", emptyJpeg('\xC2', {4096, 4096}, "\x11", 24), ""}, {"a scan more", emptyJpeg('\xC2', {4096, 4096}, "\x11", 25), scans.arg("25 scans over 16777216")},
        {"most small scans", emptyJpeg('\xC2', {8, 8}, "\x11", 3072), ""}, {"a small scan more", emptyJpeg('\xC2', {8, 8}, "\x11", 3073), scans.arg("3073 scans over 131072")},
        {"thin JPEG", emptyJpeg('\xC2', {1, 65500}, "\x41\x21\x11", 110), scans.arg("110 scans over 3668224")},
        {"low JPEG", emptyJpeg('\xC2', {65500, 9}, "\x14\x11\x12", 110), scans.arg("110 scans over 3668224")},
        {"GIF without a frame", QByteArray("GIF89a\x8\0\x8\0\0\0\0;", 14), "is damaged"},
        {"GIF with a large screen", gif({65535, 257}, {8, 8}, 64), size.arg("65535 x 257")},
        {"GIF with a large frame", gif({8, 8}, {4097, 4096}, 64).replace(782, 4, "\2\1\4\3"), size.arg("4355 x 4868")},
        {"endless GIF", gif({8, 8}, {8, 8}, 83886081), bytes},
        {"BMP with a header of 12", QByteArray(wide).replace(14, 8, QByteArray("\x0C\0\0\0\x44\x33\x39\x30", 8)), size.arg("13124 x 12345")},
        {"BMP with a header of 40", wide, size.arg("40000 x 1000")}, {"BMP with a header of 64", QByteArray(wide).replace(14, 1, "\x40"), size.arg("40000 x 1000")},
        {"BMP with a header of 108", QByteArray(wide).replace(14, 1, "\x6C"), size.arg("40000 x 1000")},
        {"BMP with a header of 124", QByteArray(wide).replace(14, 1, "\x7C"), size.arg("40000 x 1000")},
        {"BMP beyond 32 bits", bmp({2147483647, -2147483647 - 1}, 1, 0, ""), size.arg("2147483647 x 2147483648")},
        {"BMP of negative width", bmp({-8, 8}, 24, 0, QByteArray(192, 'x')), "is damaged"}, {"BMP of no known header", "BM" + QByteArray(16, '\0'), "is damaged"},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.picture << row.fault;
    for (int marker = 0xC3; marker <= 0xCF; ++marker) // some are tables
        QTest::addRow("JPEG with %x", marker) << emptyJpeg(char(marker), {8, 8}, three, 1) << (marker % 4 == 0 ? "is damaged" : other);
}
// clang-format on

void PxThemeImagesTest::namesTheReason()
{
    QFETCH(QByteArray, picture);
    QFETCH(QString, fault);
    if (fault.isEmpty()) { // decoding takes long
        QCOMPARE(PxPictureData(picture).fault(), QString());
        return;
    }
    const QString path = write(picture);
    const PxLogRecorder log;
    const PxThemeImages::Result result = PxThemeImages().find(path);
    QCOMPARE(result.fault, fault);
    QVERIFY(result.image.isNull());
    QVERIFY(result.isThere);
    QVERIFY(!result.isCutOff);
    QCOMPARE(log.texts().filter("PxThemeImages"),
             QStringList("PxThemeImages::read \"" + path + "\" " + fault));
    QCOMPARE(log.entries().constLast().level, QtWarningMsg);
}

void PxThemeImagesTest::opensRegularFilesOnly()
{
    const QString pipe = m_directory.filePath("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe), 0600), 0);
    PxThemeImages images;
    const PxLogRecorder log;
    QCOMPARE(images.find(pipe).fault, QString("is no regular file"));
    QCOMPARE(log.texts().size(), 1);
    QCOMPARE(images.find(m_directory.filePath("")).fault, QString("is no regular file"));
    QCOMPARE(images.find(m_directory.filePath("missing")).fault, QString("is not there"));
    QVERIFY(!images.find(m_directory.filePath("missing")).isThere);
    QCOMPARE(images.find("").fault, QString());
    QVERIFY(!images.find("").isThere);
    QCOMPARE(log.texts().size(), 1); // nobody has to give a theme an image
}

void PxThemeImagesTest::findsWhatQImageFinds()
{
    const QStringList found{"plain",       "logo@3x.png", "logo@2x.png",
                            "logo@1x.png", "logo@3y.png", "logo-3x.png",
                            "@4x.png",     "3x.png",      "both.jpg"};
    for (const QString &name : found) // the format follows from the contents
        m_directory.write(qPrintable(name), PxPictures::png({7, 8}));
    m_directory.write("both.png/x", ""); // a folder, which is passed over
    for (const QString &name : found + QStringList{"both", "both.png", "other"}) {
        const QString path = m_directory.filePath(name);
        const QImage image = PxThemeImages().image(path);
        QCOMPARE(image, QImage(path));
        QCOMPARE(image.devicePixelRatio(), QImage(path).devicePixelRatio());
        QCOMPARE(image.isNull(), name == "both.png" || name == "other");
    }
    QCOMPARE(PxThemeImages().image(m_directory.filePath("logo@3x.png")).devicePixelRatio(), 3.0);
}

void PxThemeImagesTest::searchesForFewMissingFiles()
{
    m_directory.write("known.png", saved("PNG"));
    PxThemeImages images;
    const PxLogRecorder log;
    for (int i = 1; i < 2000; ++i)
        images.find(m_directory.filePath(QString::number(i)));
    QVERIFY(!images.image(m_directory.filePath("known")).isNull());
    QCOMPARE(log.texts(), QStringList());
    images.find(m_directory.filePath("last"));
    QCOMPARE(log.texts().filter("too many images are missing").size(), 1);
    QVERIFY(images.image(m_directory.filePath("./known")).isNull());
    QVERIFY(!images.image(m_directory.filePath("known.png")).isNull());
    QCOMPARE(log.texts().size(), 1);
}

void PxThemeImagesTest::noticesEachMissingByte()
{
    using namespace PxPictures;
    // clang-format off
    const struct { const char *name; QByteArray picture; int from; int spare = 0; } rows[] = { // bytes; shorter files are damaged, the last ones not needed
        {"PNG", saved("PNG").chopped(12) + chunk("IEND", "data"), 8}, {"JPEG", saved("JPG"), 2}, {"GIF", gifWithColors(1, false), 6, 1},
        {"JPEG with restarts", emptyJpeg('\xC0', {8, 8}, "\x11", 1).replace("\xFF\xD9", "\xFF\xD0\xFF\xBF\xFF\xFF\xD9"), 2},
        {"JPEG with a segment of no length", QByteArray("\xFF\xD8\xFF\xE0\0\0\xFF\xD9", 8), 2},
        {"BMP without a header", "BM" + QByteArray(16, '\0'), 2}, {"BMP", bmp({3, -3}, 24, 0, QByteArray(36, 'x')), 54},
        {"BMP of full words", bmp({4, 2}, 8, 0, QByteArray(8, 'x')), 54}, {"BMP with bit fields", bmp({3, 2}, 16, 3, QByteArray(16, 'x')), 54},
        {"BMP with a header of 12", "BM" + QByteArray(8, '\0') + QByteArray("\x1A\0\0\0\x0C\0\0\0\3\0\2\0\1\0\x18\0", 16) + QByteArray(24, 'x'), 26},
        {"packed BMP", bmp({64, 2}, 8, 1, QByteArray("\4\1\0\0\4\2\0\1", 8)), 34}, {"packed BMP without an end", bmp({4, 1}, 8, 1, "\4\1\4\2"), 34},
        {"packed BMP of a wrong size", bmp({4, 1}, 8, 1, QByteArray("\4\1\0\1", 4)).replace(3, 1, "\7"), 34},
    };
    // clang-format on
    for (const auto &[name, picture, from, spare] : rows) {
        for (int size = from; size <= picture.size(); ++size)
            QVERIFY2(PxPictureData(picture.left(size)).isCutOff() ==
                         (size < picture.size() - spare),
                     QByteArray(name) + ' ' + QByteArray::number(size));
        const QString path = write(picture.chopped(spare + 1));
        const PxLogRecorder log;
        const PxThemeImages::Result result = PxThemeImages().find(path);
        QCOMPARE(result.fault, QString("is cut off"));
        QVERIFY(result.isCutOff);
        QCOMPARE(log.texts().constLast(), "PxThemeImages::read \"" + path + "\" is cut off");
        QCOMPARE(result.image.size(), QImage(path).size()); // with what is there
    }
}

void PxThemeImagesTest::filesAreCountedOnceAndOnlyIfDecoded()
{
    const QByteArray full = PxPictures::png({2048, 2048});
    m_directory.write("damaged", PxPictures::png({2048, 2048}, {}, "no zlib stream"));
    for (char c = 'a'; c <= 'r'; ++c)
        m_directory.write(QByteArray("full-") + c, full);
    const QString first = m_directory.filePath("full-a");
    const QString linked = m_directory.filePath("linked");
    QCOMPARE(link(QFile::encodeName(first), QFile::encodeName(linked)), 0);
    QVERIFY(QFile::link("full-a", m_directory.filePath("symbolic")));

    PxThemeImages images;
    const PxLogRecorder log;
    for (int i = 0; i < 20; ++i)
        images.find(m_directory.filePath(QString("./").repeated(i) + "damaged"));
    QCOMPARE(log.texts().filter("is damaged").size(), 1);
    for (const char *name : {"full-a", "./full-a", "linked", "symbolic"})
        QCOMPARE(images.image(m_directory.filePath(name)).size(), QSize(2048, 2048));
    for (char c = 'b'; c <= 'p'; ++c)
        QVERIFY(!images.image(m_directory.filePath(QString("full-") + c)).isNull());
    for (char c = 'q'; c <= 'r'; ++c)
        QCOMPARE(images.find(m_directory.filePath(QString("full-") + c)).fault,
                 QString("is too much: all images together have more than 67108864 pixels"));
    QVERIFY(!images.image(linked).isNull());
}

QTEST_GUILESS_MAIN(PxThemeImagesTest)
#include "PxThemeImagesTest.moc"
