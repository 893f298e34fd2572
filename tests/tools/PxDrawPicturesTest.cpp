#include "PxProgramRun.h"

#include <QDomDocument>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

/** Looks at drawings: at the PNG, and at the SVG as another program shows it. */
class PxDrawPicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showsTheCover_data();
    void showsTheCover();
    void looksTheSameInBoth_data();
    void looksTheSameInBoth();

private:
    /** The first sheets of the product in both formats, with half a pixel for each unit. */
    void draw(const QStringList &options, QImage *png, QImage *svg, QRect *canvas) const;

    const QTemporaryDir m_directory;
    QImage m_coverAsPng;
    QImage m_coverAsSvg;
    QRect m_canvas;
};

namespace {

constexpr int dpi = 127;
constexpr int unitsPerPixel = 2;

QRect rectOf(const QString &box)
{
    const QStringList parts = box.split(' ');
    return {parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt(),
            parts.value(3).toInt()};
}

/** What is transparent is white in the end. */
QImage onWhite(const QImage &image)
{
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

int difference(QRgb one, QRgb other)
{
    return qMax(qMax(qAbs(qRed(one) - qRed(other)), qAbs(qGreen(one) - qGreen(other))),
                qAbs(qBlue(one) - qBlue(other)));
}

/** Whether a pixel of this colour is at most so many pixels away. */
bool hasColour(const QImage &image, const QPoint &at, const QColor &colour, int away)
{
    for (int y = at.y() - away; y <= at.y() + away; ++y) {
        for (int x = at.x() - away; x <= at.x() + away; ++x) {
            if (image.valid(x, y) && difference(image.pixel(x, y), colour.rgb()) <= 24)
                return true;
        }
    }
    return false;
}

} // namespace

void PxDrawPicturesTest::draw(const QStringList &options, QImage *png, QImage *svg,
                              QRect *canvas) const
{
    const QString name = m_directory.filePath("drawing");
    for (const QStringList &output :
         {QStringList{name + ".svg"}, QStringList{name + ".png", "--dpi", QString::number(dpi)}}) {
        const PxProgramRun run(PX_CATALOGUE_PROGRAM,
                               QStringList{"draw"} + options + QStringList{"--output"} + output);
        QCOMPARE(run.status(), 0);
    }
    const QString resolution = QString::number(dpi);
    QCOMPARE(PxProgramRun(PX_RSVG_CONVERT, {"-d", resolution, "-p", resolution, "-o",
                                            name + "-shown.png", name + ".svg"})
                 .status(),
             0);
    QVERIFY(png->load(name + ".png"));
    QVERIFY(svg->load(name + "-shown.png"));
    QVERIFY(!png->hasAlphaChannel());
    *svg = onWhite(*svg);
    QFile file(name + ".svg");
    QDomDocument document;
    QVERIFY(file.open(QIODevice::ReadOnly) && document.setContent(&file));
    *canvas = rectOf(document.documentElement().firstChildElement("g").attribute("data-canvas"));
}

void PxDrawPicturesTest::initTestCase()
{
    draw({"BOOK_A4_PORTRAIT", "--pages", "26", "--sheet", "cover", "--layers", "all,-surroundings"},
         &m_coverAsPng, &m_coverAsSvg, &m_canvas);
}

void PxDrawPicturesTest::showsTheCover_data()
{
    QTest::addColumn<QPoint>("place"); // on the sheet
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<int>("away");
    const QColor white = Qt::white;
    const QColor cut = Qt::black;
    const QColor bleed("#fbe3e1");
    const QColor spine("#dce9f7");
    QTest::newRow("left cut") << QPoint(0, 1000) << cut << 1;
    QTest::newRow("right cut") << QPoint(4414, 1000) << cut << 1;
    QTest::newRow("upper cut") << QPoint(1000, 0) << cut << 1;
    QTest::newRow("lower cut") << QPoint(1000, 3030) << cut << 1;
    QTest::newRow("no cut at the joint") << QPoint(2160 + 47, 700) << spine << 1;
    QTest::newRow("left total size") << QPoint(-150, 1000) << QColor("#c62828") << 1;
    QTest::newRow("lower total size") << QPoint(1000, 3180) << QColor("#c62828") << 1;
    QTest::newRow("spine edge") << QPoint(2160, -75) << QColor("#1257a8") << 1;
    QTest::newRow("inside") << QPoint(500, 1200) << white << 1;
    QTest::newRow("safe area") << QPoint(50, 1515) << QColor("#1b7a2b") << 1;
    QTest::newRow("between bleed and safe area") << QPoint(25, 1515) << white << 1;
    QTest::newRow("beyond the sheet") << QPoint(-200, 2900) << white << 1;
    QTest::newRow("quiet zone of the barcode") << QPoint(900 + 4, 2830 + 4) << white << 1;
    QTest::newRow("edge of the barcode") << QPoint(900, 2830 + 55) << QColor("#424242") << 1;
    QTest::newRow("hatch") << QPoint(-75, 1200) << QColor("#e79c97") << 30;
    QTest::newRow("bleed") << QPoint(-75, 1200) << bleed << 1;
}

void PxDrawPicturesTest::showsTheCover()
{
    QFETCH(QPoint, place);
    QFETCH(QColor, colour);
    QFETCH(int, away);
    const QPoint pixel = (place - m_canvas.topLeft()) / unitsPerPixel;
    QVERIFY(hasColour(m_coverAsPng, pixel, colour, away));
    QVERIFY(hasColour(m_coverAsSvg, pixel, colour, away));
}

void PxDrawPicturesTest::looksTheSameInBoth_data()
{
    QTest::addColumn<QString>("layers");
    QTest::newRow("BOOK_MINI") << "-dimensions,-labels,-legend,-title";
    QTest::newRow("STICKER_ROUND_SET") << "-dimensions,-labels,-legend,-title";
    QTest::newRow("CALENDAR_WALL_A4") << "fittings";
}

/** But for letters, which each program draws in its own way. */
void PxDrawPicturesTest::looksTheSameInBoth()
{
    QFETCH(QString, layers);
    QImage png;
    QImage svg;
    QRect canvas;
    draw({QTest::currentDataTag(), "--sheet", "0", "--layers", layers}, &png, &svg, &canvas);
    const QSize larger = svg.size() - png.size(); // they round sizes in different ways
    QVERIFY(qAbs(larger.width()) <= 1 && qAbs(larger.height()) <= 1);
    int painted = 0;
    int differing = 0;
    for (int y = 0; y < png.height(); ++y) {
        for (int x = 0; x < png.width(); ++x) {
            painted += difference(svg.pixel(x, y), qRgb(255, 255, 255)) > 0;
            differing += difference(svg.pixel(x, y), png.pixel(x, y)) > 64;
        }
    }
    QVERIFY(painted > 1000);
    QVERIFY2(differing * 100 < painted, // the edges of lines differ a little
             qPrintable(QString("%1 of %2 pixels").arg(differing).arg(painted)));
}

QTEST_GUILESS_MAIN(PxDrawPicturesTest)
#include "PxDrawPicturesTest.moc"
