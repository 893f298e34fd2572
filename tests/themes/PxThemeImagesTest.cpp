#include <PxCatalogueDirectory.h>
#include <PxLogRecorder.h>
#include <PxPictures.h>

#include <themes/PxThemeImages.h>

#include <QBuffer>
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
    void namesTheReason_data();
    void namesTheReason();
    void opensRegularFilesOnly();
    void cutOffPicturesAreNamed_data();
    void cutOffPicturesAreNamed();
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
        image.setColorTable({0xFF112233, 0xFFAABBCC});
    image.fill(1);
    image.setText("Title", QString("wide ").repeated(1000));
    image.setDotsPerMeterX(3000);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format))
        qFatal("cannot write %s", format);
    return buffer.data();
}

void PxThemeImagesTest::showsWhatQImageShows_data()
{
    QTest::addColumn<QByteArray>("picture");
    QTest::newRow("PNG") << saved("PNG");
    QTest::newRow("PNG with alpha") << saved("PNG", QImage::Format_ARGB32);
    QTest::newRow("PNG with a palette") << saved("PNG", QImage::Format_Indexed8);
    QTest::newRow("interlaced PNG") << PxPictures::slowPng({9, 5});
    QTest::newRow("JPEG") << saved("JPG");
    QTest::newRow("grey JPEG") << saved("JPG", QImage::Format_Grayscale8);
    QTest::newRow("progressive JPEG") << PxPictures::jpegWithScans({40, 30}, 20);
    QTest::newRow("JPEG with comments") << PxPictures::withSegments(
        PxPictures::jpeg({40, 30}), QByteArray("\xFF\xFF\xFF\xFE\0\4\xFF\xDA\xFF\xE1\0\2", 12));
    QTest::newRow("GIF") << PxPictures::gif({8, 6}, {8, 6}, 48);
    QTest::newRow("GIF with a larger screen") << PxPictures::gif({80, 60}, {8, 6}, 48);
    QTest::newRow("GIF without an end") << PxPictures::gif({8, 6}, {8, 6}, 48).chopped(1);
    QTest::newRow("BMP") << saved("BMP");
    QTest::newRow("BMP from top to bottom")
        << PxPictures::bmp({2, -3}, 24, 0, "abcdef..ghijkl..mnopqr..");
    QTest::newRow("packed BMP") << PxPictures::bmp({4, 2}, 8, 1, QByteArray("\4\1\0\0\4\2\0\1", 8));
}

void PxThemeImagesTest::showsWhatQImageShows()
{
    QFETCH(QByteArray, picture);
    const QString path = write(picture);
    const PxThemeImages::Result result = PxThemeImages().find(path);
    const QImage expected(path);
    QCOMPARE(result.fault, QString());
    QVERIFY(!expected.isNull());
    QCOMPARE(result.image, expected);
    QCOMPARE(result.image.format(), expected.format());
    QCOMPARE(result.image.dotsPerMeterX(), expected.dotsPerMeterX());
}

void PxThemeImagesTest::keepsThePixelRatioInAName()
{
    m_directory.write("logo@3x.png", saved("PNG"));
    const QString path = m_directory.filePath("logo@3x.png");
    QCOMPARE(PxThemeImages().image(path).devicePixelRatio(), QImage(path).devicePixelRatio());
    QCOMPARE(QImage(path).devicePixelRatio(), 3.0);
}

void PxThemeImagesTest::namesTheReason_data()
{
    using namespace PxPictures;
    QTest::addColumn<QByteArray>("picture");
    QTest::addColumn<QString>("fault");
    const QString size = "is too large: %1 pixels, no more than 16777216 are allowed";
    const QString bytes = "is too large: its pixels take more than 83886080 bytes, for %1";
    const QString kind = "is no PNG, JPEG, GIF or BMP picture";
    QTest::newRow("empty") << QByteArray() << kind;
    QTest::newRow("text") << QByteArray("no picture") << kind;
    QTest::newRow("another format") << saved("PPM") << kind;
    QTest::newRow("icon") << ico(png({8, 8})) << kind;
    QTest::newRow("bytes") << png({8, 8}).append(QByteArray(8 << 20, ' '))
                           << "is too large: 8388677 bytes, no more than 8388608 are allowed";
    QTest::newRow("large PNG") << png({65536, 65537}, {}, "x") << size.arg("65536 x 65537");
    QTest::newRow("one row more") << png({4096, 4097}) << size.arg("4096 x 4097");
    QTest::newRow("endless PNG") << png({8, 8}, {}, endlessPixels(700000)) << bytes.arg("8 x 8");
    QTest::newRow("large JPEG") << jpeg({5000, 3400}) << size.arg("5000 x 3400");
    const QString scans = "is too slow: a JPEG of %1 samples, no more than 402653184 together are "
                          "allowed";
    QTest::newRow("slow JPEG") << jpegWithScans({2048, 2048}, 55)
                               << scans.arg("65 scans over 6291456");
    QTest::newRow("slow small JPEG")
        << jpegWithScans({8, 8}, 3063) << scans.arg("3073 scans over 131072");
    const QByteArray thin("\x08\xFF\xDC\0\1\3\1\x41\0\2\x41\1\3\x11\1", 15); // four blocks a row
    QTest::newRow("thin JPEG")
        << jpegWithScans({8, 8}, 80)
               .replace(QByteArray("\x08\0\x08\0\x08\3\1\x22\0\2\x11\1\3\x11\1", 15), thin)
        << scans.arg("90 scans over 4716288");
    QTest::newRow("arithmetic JPEG") << jpeg({8, 8}).replace("\xFF\xC2", "\xFF\xCA")
                                     << "is a JPEG that is neither baseline nor progressive";
    QTest::newRow("GIF with a large screen")
        << gif({65535, 257}, {8, 8}, 64) << size.arg("65535 x 257");
    QTest::newRow("GIF with a large frame")
        << gif({8, 8}, {4097, 4096}, 64) << size.arg("4097 x 4096");
    QTest::newRow("endless GIF") << gif({8, 8}, {8, 8}, 83886081) << bytes.arg("8 x 8");
    QTest::newRow("large BMP") << bmp({40000, -1000}, 24, 0, "") << size.arg("40000 x 1000");
    QTest::newRow("BMP beyond 32 bits")
        << bmp({2147483647, -2147483647 - 1}, 1, 0, "") << size.arg("2147483647 x 2147483648");
    QTest::newRow("BMP of negative width")
        << bmp({-8, 8}, 24, 0, QByteArray(192, 'x')) << "is damaged";
    QTest::newRow("PNG without size") << png({8, 8}).replace("IHDR", "IHDX") << "is damaged";
    QTest::newRow("damaged PNG") << png({8, 8}, {}, "no zlib stream") << "is damaged";
}

void PxThemeImagesTest::namesTheReason()
{
    QFETCH(QByteArray, picture);
    QFETCH(QString, fault);
    const QString path = write(picture);
    const PxLogRecorder log;
    const PxThemeImages::Result result = PxThemeImages().find(path);
    QCOMPARE(result.fault, fault);
    QVERIFY(result.image.isNull() && result.isThere && !result.isCutOff);
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
    QCOMPARE(log.texts().size(), 2); // nobody has to give a theme an image
}

void PxThemeImagesTest::cutOffPicturesAreNamed_data()
{
    QTest::addColumn<QByteArray>("picture");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("PNG") << saved("PNG").chopped(1) << true;
    QTest::newRow("PNG without all pixels") << saved("PNG").chopped(40) << false;
    QTest::newRow("PNG without size") << saved("PNG").left(14) << false;
    QTest::newRow("JPEG") << saved("JPG").chopped(3) << true;
    QTest::newRow("JPEG without pixels") << saved("JPG").left(30) << false;
    QTest::newRow("GIF") << PxPictures::gif({8, 8}, {8, 8}, 64).chopped(3) << true;
    QTest::newRow("BMP") << saved("BMP").chopped(50) << true;
    QTest::newRow("packed BMP") << PxPictures::bmp({4, 2}, 8, 1, "\4\1").chopped(1) << true;
}

void PxThemeImagesTest::cutOffPicturesAreNamed()
{
    QFETCH(QByteArray, picture);
    QFETCH(bool, isShown);
    const QString path = write(picture);
    const PxLogRecorder log;
    const PxThemeImages::Result result = PxThemeImages().find(path);
    QCOMPARE(result.fault, QString("is cut off"));
    QVERIFY(result.isCutOff);
    QCOMPARE(!result.image.isNull(), isShown);
    QCOMPARE(log.texts().constLast(), "PxThemeImages::read \"" + path + "\" is cut off");
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
