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
    void keepsThePixelRatioInAName();
    void keepsTheLimits_data();
    void keepsTheLimits();
    void namesTheReason_data();
    void namesTheReason();
    void opensRegularFilesOnly();
    void searchesForFewMissingFiles();
    void noticesEachMissingByte_data();
    void noticesEachMissingByte();
    void showsWhatIsThereOfACutOffPicture();
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

void PxThemeImagesTest::showsWhatQImageShows_data()
{
    using namespace PxPictures;
    QTest::addColumn<QByteArray>("picture");
    QTest::addColumn<QByteArray>("same"); // which QImage shows
    const auto row = [](const char *name, const QByteArray &picture, const QByteArray &same = {}) {
        QTest::newRow(name) << picture << (same.isEmpty() ? picture : same);
    };
    row("PNG", saved("PNG"));
    row("PNG with alpha", saved("PNG", QImage::Format_ARGB32));
    row("PNG with a palette", saved("PNG", QImage::Format_Indexed8));
    row("interlaced PNG", slowPng({9, 5}));
    const QByteArray chunks = chunk("gAMA", QByteArray("\0\0\xB1\x8F", 4)) +
                              chunk("tRNS", QByteArray("\0\0", 2)) +
                              chunk("oFFs", QByteArray("\0\0\0\7\0\0\0\x9\0", 9)) +
                              chunk("pHYs", QByteArray("\0\0\7\0\0\0\x9\0\1", 9));
    row("PNG with chunks twice", png({8, 8}, chunks + chunks), png({8, 8}, chunks));
    const QByteArray space = chunk("sRGB", QByteArray(1, '\0'));
    row("PNG with a chunk of no kind", png({8, 8}, chunk("1abc", "")), png({8, 8}));
    row("PNG of most bytes", png({8, 8}) + QByteArray(8388608 - png({8, 8}).size(), ' '));
    row("PNG with a colour space twice", png({8, 8}, space + space), png({8, 8}, space));
    row("JPEG", saved("JPG"));
    row("grey JPEG", saved("JPG", QImage::Format_Grayscale8));
    row("progressive JPEG", jpegWithScans({40, 30}, 20));
    const QByteArray blank = jpeg({40, 30});
    const QByteArray format = jpegSegment('\xE0', QByteArray("JFIF\0\1\1\1\0\x22\0\x33\0\0", 14));
    row("JPEG with comments", withSegments(blank, QByteArray("\xFF\xFF\xFF\xFE\0\4\xFF\xDA", 8) +
                                                      format + QByteArray("\xFF\xE1\0\2", 4)));
    row("JPEG with 255 formats", withSegments(blank, format.repeated(254)));
    row("JPEG with 256 formats", withSegments(blank, format.repeated(255)),
        withSegments(blank.left(2) + blank.mid(20), format));
    row("JPEG of red, green and blue",
        withSegments(QByteArray(blank).replace("JFIF", "none"),
                     jpegSegment('\xEE', QByteArray("Adobe\0\x64\0\0\0\0\0", 12))));
    row("GIF with a larger screen", gif({80, 60}, {8, 6}, 48));
    row("GIF without an end", gif({8, 6}, {8, 6}, 48).chopped(1));
    row("GIF of two frames",
        gif({8, 6}, {8, 6}, 48).chopped(1) + gif({8, 6}, {9000, 9000}, 48).mid(781));
    for (int bits = 0; bits < 8; ++bits) {
        row(QByteArray("GIF with colours 2^") + char('1' + bits), gifWithColors(bits, false));
        row(QByteArray("GIF with colours of its frame 2^") + char('1' + bits),
            gifWithColors(bits, true));
    }
    row("BMP", saved("BMP"));
    row("BMP from top to bottom", bmp({2, -3}, 24, 0, "abcdef..ghijkl..mnopqr.."));
    row("packed BMP", bmp({4, 2}, 8, 1, QByteArray("\4\1\0\0\4\2\0\1", 8)));
}

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

void PxThemeImagesTest::keepsThePixelRatioInAName()
{
    for (const char *name : {"logo@3x.png", "logo@2x.png", "logo@1x.png", "logo@3y.png",
                             "logo-3x.png", "@4x.png", "3x.png"}) {
        m_directory.write(name, saved("PNG"));
        const QString path = m_directory.filePath(name);
        QVERIFY2(PxThemeImages().image(path).devicePixelRatio() == QImage(path).devicePixelRatio(),
                 name);
    }
    QCOMPARE(QImage(m_directory.filePath("logo@3x.png")).devicePixelRatio(), 3.0);
}

void PxThemeImagesTest::keepsTheLimits_data()
{
    using namespace PxPictures;
    QTest::addColumn<QByteArray>("picture");
    QTest::addColumn<QString>("fault"); // none for what is just allowed, or not decided here
    const auto row = [](const char *name, const QByteArray &picture, const QString &fault = {}) {
        QTest::newRow(name) << picture << fault;
    };
    const QString size = "is too large: %1 pixels, no more than 16777216 are allowed";
    const QString bytes = "is too large: its pixels take more than 83886080 bytes, for 8 x 8";
    const QString scans = "is too slow: a JPEG of %1 samples, no more than 402653184 together are "
                          "allowed";
    const QString kind = "is a JPEG that is neither baseline nor progressive";

    row("PNG without a column", png({0, 8}, {}, "x"), "is damaged");
    row("PNG without a row", png({8, 0}, {}, "x"), "is damaged");
    row("largest PNG", png({4096, 4096}, {}, "x"));
    row("PNG with a row more", png({4096, 4097}, {}, "x"), size.arg("4096 x 4097"));
    row("PNG beyond 32 bits", png({65536, 65537}, {}, "x"), size.arg("65536 x 65537"));
    row("PNG of most bytes", png({8, 8}, {}, endlessPixels(528346, 992)));
    row("PNG with a byte more", png({8, 8}, {}, endlessPixels(528346, 993)), bytes);

    const QByteArray three("\x11\x11\x11");
    row("baseline JPEG of one scan", emptyJpeg('\xC0', {4096, 4096}, three, 1));
    row("baseline JPEG of two scans", emptyJpeg('\xC1', {4096, 4096}, three, 2),
        scans.arg("2 scans over 50331648"));
    row("JPEG of fewer scans than are usual", emptyJpeg('\xC2', {4096, 3136}, three, 1));
    row("most scans", emptyJpeg('\xC2', {4096, 4096}, "\x11", 24));
    row("a scan more", emptyJpeg('\xC2', {4096, 4096}, "\x11", 25),
        scans.arg("25 scans over 16777216"));
    row("most small scans", emptyJpeg('\xC2', {8, 8}, "\x11", 3072));
    row("a small scan more", emptyJpeg('\xC2', {8, 8}, "\x11", 3073),
        scans.arg("3073 scans over 131072"));
    row("thin JPEG", emptyJpeg('\xC2', {1, 65500}, "\x41\x21\x11", 110),
        scans.arg("110 scans over 3668224"));
    row("low JPEG", emptyJpeg('\xC2', {65500, 9}, "\x14\x11\x12", 110),
        scans.arg("110 scans over 3668224"));
    for (int marker = 0xC3; marker <= 0xCF; ++marker) {
        const bool isTable = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
        row("JPEG of kind " + QByteArray::number(marker, 16),
            emptyJpeg(char(marker), {8, 8}, three, 1), isTable ? "is damaged" : kind);
    }

    row("GIF without a frame", QByteArray("GIF89a\x8\0\x8\0\0\0\0;", 14), "is damaged");
    row("GIF with a large screen", gif({65535, 257}, {8, 8}, 64), size.arg("65535 x 257"));
    row("GIF with a large frame",
        gif({8, 8}, {4097, 4096}, 64).replace(782, 4, QByteArray("\2\1\4\3", 4)),
        size.arg("4355 x 4868"));
    row("endless GIF", gif({8, 8}, {8, 8}, 83886081), bytes);

    for (const char header : {40, 64, 108, 124})
        row("BMP with a header of " + QByteArray::number(header),
            bmp({40000, -1000}, 24, 0, "").replace(14, 1, QByteArray(1, header)),
            size.arg("40000 x 1000"));
    row("BMP with a header of 12",
        bmp({12345 * 65536 + 12345, -1}, 24, 0, "")
            .replace(14, 6, QByteArray("\x0C\0\0\0\x44\x33", 6)),
        size.arg("13124 x 12345"));
    row("BMP beyond 32 bits", bmp({2147483647, -2147483647 - 1}, 1, 0, ""),
        size.arg("2147483647 x 2147483648"));
    row("BMP of negative width", bmp({-8, 8}, 24, 0, QByteArray(192, 'x')), "is damaged");
    row("BMP with another header", "BM" + QByteArray(16, '\0'), "is damaged");
    row("BMP without a header", "BM" + QByteArray(15, '\0'), "is cut off");
}

void PxThemeImagesTest::keepsTheLimits()
{
    QFETCH(QByteArray, picture);
    QTEST(PxPictureData(picture).fault(), "fault");
}

void PxThemeImagesTest::namesTheReason_data()
{
    using namespace PxPictures;
    QTest::addColumn<QByteArray>("picture");
    QTest::addColumn<QString>("fault");
    const QString kind = "is no PNG, JPEG, GIF or BMP picture";
    QTest::newRow("empty") << QByteArray() << kind;
    QTest::newRow("text") << QByteArray("no picture") << kind;
    QTest::newRow("another format") << saved("PPM") << kind;
    QTest::newRow("icon") << ico(png({8, 8})) << kind;
    QTest::newRow("bytes") << png({8, 8}).append(QByteArray(8388608 + 1 - png({8, 8}).size(), ' '))
                           << "is too large: 8388609 bytes, no more than 8388608 are allowed";
    QTest::newRow("pixels")
        << png({4096, 4097}, {}, "x")
        << "is too large: 4096 x 4097 pixels, no more than 16777216 are allowed";
    QTest::newRow("PNG without size") << png({8, 8}).replace("IHDR", "IHDX") << "is damaged";
    QTest::newRow("damaged PNG") << png({8, 8}, {}, "no zlib stream") << "is damaged";
    for (const char *unknown : {"Aabc", "Zabc"})
        QTest::newRow(unknown) << png({8, 8}, chunk(unknown, "")) << "is damaged";
}

void PxThemeImagesTest::namesTheReason()
{
    QFETCH(QByteArray, picture);
    QFETCH(QString, fault);
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
    QCOMPARE(images.find("/dev/zero").fault, QString("is no regular file"));
    QCOMPARE(log.texts().size(), 2);
    QCOMPARE(images.find(m_directory.filePath("")).fault, QString("is no regular file"));
    QCOMPARE(images.find(m_directory.filePath("missing")).fault, QString("is not there"));
    QVERIFY(!images.find(m_directory.filePath("missing")).isThere);
    QCOMPARE(images.find("").fault, QString());
    QVERIFY(!images.find("").isThere);
    QCOMPARE(log.texts().size(), 2); // nobody has to give a theme an image
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

void PxThemeImagesTest::noticesEachMissingByte_data()
{
    using namespace PxPictures;
    QTest::addColumn<QByteArray>("picture"); // complete
    QTest::addColumn<int>("from");           // so many bytes, shorter ones are damaged
    QTest::addColumn<int>("spare");          // bytes at its end that nobody misses
    QTest::newRow("PNG") << saved("PNG").chopped(12) + chunk("IEND", "data") << 8 << 0;
    QTest::newRow("JPEG") << saved("JPG") << 2 << 0;
    QTest::newRow("JPEG with restarts")
        << emptyJpeg('\xC0', {8, 8}, "\x11", 1).replace("\xFF\xD9", "\xFF\xD0\xFF\xBF\xFF\xFF\xD9")
        << 2 << 0;
    QTest::newRow("JPEG with a segment of no length")
        << QByteArray("\xFF\xD8\xFF\xE0\0\0\xFF\xD9", 8) << 2 << 0;
    QTest::newRow("GIF") << gifWithColors(1, false) << 6 << 1;
    QTest::newRow("BMP") << bmp({3, -3}, 24, 0, QByteArray(36, 'x')) << 54 << 0;
    QTest::newRow("BMP of full words") << bmp({4, 2}, 8, 0, QByteArray(8, 'x')) << 54 << 0;
    QTest::newRow("BMP with bit fields") << bmp({3, 2}, 16, 3, QByteArray(16, 'x')) << 54 << 0;
    QTest::newRow("BMP with a header of 12")
        << "BM" + QByteArray(8, '\0') + QByteArray("\x1A\0\0\0\x0C\0\0\0\3\0\2\0\1\0\x18\0", 16) +
               QByteArray(24, 'x')
        << 26 << 0;
    QTest::newRow("packed BMP") << bmp({64, 2}, 8, 1, QByteArray("\4\1\0\0\4\2\0\1", 8)) << 34 << 0;
    QTest::newRow("packed BMP without an end") << bmp({4, 1}, 8, 1, "\4\1\4\2") << 34 << 0;
    QTest::newRow("packed BMP of a wrong size")
        << bmp({4, 1}, 8, 1, QByteArray("\4\1\0\1", 4)).replace(3, 1, "\7") << 34 << 0;
}

void PxThemeImagesTest::noticesEachMissingByte()
{
    QFETCH(QByteArray, picture);
    QFETCH(int, from);
    QFETCH(int, spare);
    for (int size = from; size <= picture.size(); ++size)
        QVERIFY2(PxPictureData(picture.left(size)).isCutOff() == (size < picture.size() - spare),
                 QByteArray::number(size));
}

void PxThemeImagesTest::showsWhatIsThereOfACutOffPicture()
{
    const struct
    {
        QByteArray picture;
        bool isShown;
    } rows[] = {{saved("PNG").chopped(1), true},  {saved("PNG").left(100), false},
                {saved("PNG").left(14), false},   {saved("JPG").chopped(3), true},
                {saved("JPG").left(30), false},   {gifWithColors(7, false).chopped(3), true},
                {saved("BMP").chopped(50), true}, {saved("BMP").left(14), false}};
    for (const auto &row : rows) {
        const QString path = write(row.picture);
        const PxLogRecorder log;
        const PxThemeImages::Result result = PxThemeImages().find(path);
        QCOMPARE(result.fault, QString("is cut off"));
        QVERIFY(result.isCutOff);
        QCOMPARE(!result.image.isNull(), row.isShown);
        QCOMPARE(log.texts().constLast(), "PxThemeImages::read \"" + path + "\" is cut off");
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
