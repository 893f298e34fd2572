#include "PxFoundShapes.h"

#include "drawing/PxDrawnProductReader.h"
#include "drawing/PxDrawnWords.h"
#include "drawing/PxSharedSheets.h"

#include <PxProductProperties.h>

#include <QTest>

/** Holds the sheets of the sample catalogue against what the library answers about each page. */
class PxSampleSheetsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyPageIsOnOneSheet_data() { addProducts(); }
    void everyPageIsOnOneSheet();
    void pagesHaveTheirSizes_data() { addProducts(); }
    void pagesHaveTheirSizes();
    void bleedIsHatched_data() { addProducts(); }
    void bleedIsHatched();
    void itemsHaveTheirPlaces_data() { addProducts(); }
    void itemsHaveTheirPlaces();
    void drawsTheBook();
    void sharesSheetsBetweenPageCounts();
    void drawsFittings();
    void knowsTheFile();
    void knowsTheTheme();
    void namesTheNearestPageCounts();

private:
    static void addProducts();
    static const PxProductTypeConfigRegistry *registryOf(const PxProductType &type);
    static PxDrawnProduct drawn(const char *name, int pageCount = 0, const QString &theme = "")
    {
        const PxProductType type(name);
        return PxDrawnProductReader(registryOf(type)).read(type, pageCount, theme);
    }
};

const PxProductTypeConfigRegistry *PxSampleSheetsTest::registryOf(const PxProductType &type)
{
    const auto *registry = PxProductTypeConfigRegistry::instance();
    return registry->exists(type) ? registry : PxProductTypeConfigRegistry::legacyInstance();
}

void PxSampleSheetsTest::initTestCase()
{
    PxDirectoryConfig::instance()->setResourceDirectories({PX_SAMPLE_DIRECTORY});
    PxDirectoryConfig::instance()->setThemesDirectory(PX_SAMPLE_DIRECTORY "/themes");
    PxDirectoryConfig::instance()->setUserDefaultsPath(PX_SAMPLE_DIRECTORY "/defaults");
}

/** All products with the smallest, the default and the largest page count. */
void PxSampleSheetsTest::addProducts()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("pageCount");
    int products = 0;
    for (const auto *registry :
         {PxProductTypeConfigRegistry::instance(), PxProductTypeConfigRegistry::legacyInstance()}) {
        for (const PxProductType &type : registry->products()) {
            QList<int> counts = registry->offeredPageCounts(type);
            ++products;
            if (counts.isEmpty())
                counts = {1};
            for (const int count : QSet<int>{0, counts.first(), counts.last()})
                QTest::addRow("%s %d", qPrintable(type.productName()), count)
                    << type.productName() << count;
        }
    }
    QCOMPARE(products, 52);
}

void PxSampleSheetsTest::everyPageIsOnOneSheet()
{
    QFETCH(const QString, product);
    QFETCH(const int, pageCount);
    const PxProductType type(product);
    const auto *library = registryOf(type)->description(type);
    const PxDrawnProduct drawn = PxDrawnProductReader(registryOf(type)).read(type, pageCount, "");
    QCOMPARE(drawn.problem, QString());
    QVERIFY(drawn.pageCount == pageCount || pageCount == 0);
    const PxPageTypeList pages = library->pageTypes(drawn.pageCount);
    QCOMPARE(drawn.listedPages, pages.size());

    QVector<int> all;
    int lastFirst = -1;
    for (const PxDrawnSheet &sheet : drawn.sheets) {
        QVERIFY(sheet.standsFor.first() > lastFirst);
        QCOMPARE(sheet.index, &sheet - &drawn.sheets.first());
        lastFirst = sheet.standsFor.first();
        all += sheet.standsFor;
        for (int i = 0; i < sheet.standsFor.size(); ++i) {
            const PxDrawnPage &page = sheet.pages[i % sheet.pages.size()];
            const int number = sheet.standsFor[i];
            const PxPageContext context(pages[number], library->pageAlignment(number));
            const auto surrounding = library->findSurrounding(PxSurroundingKey(context, number));
            const PxBarcode barcode = library->barcodeOnPage(number, pages.size());
            QVERIFY(page.context == context);
            QCOMPARE(page.surrounding.image(), surrounding.image());
            QCOMPARE(page.surrounding.imageRect(), surrounding.imageRect());
            QCOMPARE(page.barcode.rect(), barcode.rect());
            QCOMPARE(page.barcode.imageName(), barcode.imageName());
            QCOMPARE(page.takesContent, library->contentAllowedOnPage(number));
        }
    }
    std::sort(all.begin(), all.end());
    QCOMPARE(all.size(), pages.size());
    for (int number = 0; number < all.size(); ++number)
        QCOMPARE(all[number], number);
}

void PxSampleSheetsTest::pagesHaveTheirSizes()
{
    QFETCH(const QString, product);
    QFETCH(const int, pageCount);
    const PxProductType type(product);
    const auto *library = registryOf(type)->description(type);
    const PxDrawnProduct drawn = PxDrawnProductReader(registryOf(type)).read(type, pageCount, "");
    for (const PxDrawnSheet &sheet : drawn.sheets) {
        const QVector<PxFoundShape> trims = pxFindShapes(sheet, "trim");
        const QVector<PxFoundShape> totals = pxFindShapes(sheet, "total");
        const QVector<PxFoundShape> safe = pxFindShapes(sheet, "safe");
        QCOMPARE(trims.size(), sheet.pages.size());
        double x = 0;
        QRectF bleed;
        int safeCount = 0;
        for (int i = 0; i < sheet.pages.size(); ++i) {
            const PxDrawnPage &page = sheet.pages[i];
            const PxPageSizeSpec size =
                library->sizeSpec(PxPageSizeKey(page.context, drawn.pageCount));
            const PxMargins margins = library->safetyMargins();
            QCOMPARE(trims[i].page, page.number);
            QCOMPARE(trims[i].rect.size(), QSizeF(size.usableSize()));
            QCOMPARE(trims[i].rect.x(), x);
            QCOMPARE(totals[i].rect.size(), QSizeF(size.totalSize()));
            QCOMPARE(totals[i].rect.topLeft(),
                     trims[i].rect.topLeft() - size.topLeftOffsetOfUsablePrintArea());
            if (page.role != PxDrawnPage::Role::Spine && !margins.allNull())
                QCOMPARE(safe[safeCount++].rect,
                         trims[i].rect.adjusted(margins.left(), margins.top(), -margins.right(),
                                                -margins.bottom()));
            x = trims[i].rect.right();
            bleed |= totals[i].rect;
        }
        QCOMPARE(safe.size(), safeCount);
        QCOMPARE(QRectF(sheet.trim), QRectF(0, 0, x, sheet.trim.height()));
        QCOMPARE(QRectF(sheet.total), bleed);
        QCOMPARE(pxFindShapes(sheet, "cut")[0].rect, QRectF(sheet.trim));
        const auto edge = pxFindShapes(sheet, "bleed-edge");
        QCOMPARE(edge.isEmpty(), sheet.total == sheet.trim);
        QCOMPARE(edge.isEmpty() ? QRectF(sheet.trim) : edge[0].rect, QRectF(sheet.total));
        // Nothing is marked on what is printed.
        const QVector<PxFoundShape> marks = pxFindShapes(sheet, "crop-marks");
        for (const PxDrawnStep &step : marks[0].shape.steps)
            QVERIFY(!sheet.total.contains(step.to.toPoint()));
    }
}

void PxSampleSheetsTest::bleedIsHatched()
{
    QFETCH(const QString, product);
    QFETCH(const int, pageCount);
    const auto areaOf = [](const QVector<PxFoundShape> &shapes, int page) {
        double area = 0;
        for (const PxFoundShape &shape : shapes)
            area += shape.page == page ? shape.rect.width() * shape.rect.height() : 0;
        return area;
    };
    for (const PxDrawnSheet &sheet : drawn(qPrintable(product), pageCount).sheets) {
        const auto areas = pxFindShapes(sheet, "bleed-area");
        const auto totals = pxFindShapes(sheet, "total");
        const auto trims = pxFindShapes(sheet, "trim");
        for (const PxFoundShape &total : totals)
            QCOMPARE(areaOf(areas, total.page),
                     areaOf(totals, total.page) - areaOf(trims, total.page));
        for (const PxFoundShape &area : areas) {
            QVERIFY(QRectF(sheet.total).contains(area.rect));
            QVERIFY(!QRectF(sheet.trim).intersects(area.rect));
        }
        for (const PxFoundShape &hatch : pxFindShapes(sheet, "hatch")) {
            const auto &steps = hatch.shape.steps;
            for (int i = 0; i < steps.size(); i += 2) {
                const QLineF line(steps[i].to, steps[i + 1].to);
                QVERIFY(qAbs(line.angle() - 45) < 0.001);
                const QPointF center = line.center();
                QVERIFY(std::any_of(areas.begin(), areas.end(), [&](const PxFoundShape &area) {
                    return area.page == hatch.page && area.shape.rect.contains(center);
                }));
            }
        }
    }
}

void PxSampleSheetsTest::itemsHaveTheirPlaces()
{
    QFETCH(const QString, product);
    QFETCH(const int, pageCount);
    const PxProductType type(product);
    const auto *library = registryOf(type)->description(type);
    const PxDrawnProduct drawn = PxDrawnProductReader(registryOf(type)).read(type, pageCount, "");
    for (const PxDrawnSheet &sheet : drawn.sheets) {
        QVector<PxFoundShape> surroundings = pxFindShapes(sheet, "surrounding");
        QVector<PxFoundShape> barcodes = pxFindShapes(sheet, "barcode");
        for (const PxDrawnPage &page : sheet.pages) {
            const auto surrounding =
                library->findSurrounding(PxSurroundingKey(page.context, page.number));
            const PxBarcode barcode = library->barcodeOnPage(page.number, drawn.listedPages);
            if (surrounding.isValid()) {
                const PxFoundShape found = surroundings.takeFirst();
                QCOMPARE(found.page, page.number);
                QCOMPARE(found.rect,
                         QRectF(surrounding.imageRect()).translated(page.trim.topLeft()));
                QCOMPARE(found.attribute("data-image"), surrounding.image());
                QCOMPARE(found.attribute("data-paint") == "above", surrounding.paintOnTop());
            }
            if (barcode.isValid()) {
                const PxFoundShape found = barcodes.takeFirst();
                QCOMPARE(found.page, page.number);
                QCOMPARE(found.rect, QRectF(barcode.rect()).translated(page.trim.topLeft()));
                QCOMPARE(found.attribute("data-counted") == "back", barcode.reverseOrder());
            }
        }
        QVERIFY(surroundings.isEmpty() && barcodes.isEmpty());
    }
}

void PxSampleSheetsTest::drawsTheBook()
{
    const PxDrawnProduct book = drawn("BOOK_A4_PORTRAIT");
    QCOMPARE(book.pageCount, 26);
    QCOMPARE(book.className, QString("book"));
    QCOMPARE(book.sheets.size(), 4);
    const PxDrawnSheet &cover = book.sheets[0];
    QCOMPARE(cover.kind, PxDrawnSheet::Kind::Cover);
    QVERIFY(cover.isCover && !book.sheets[1].isCover);
    QCOMPARE(cover.trim, QRect(0, 0, 4414, 3030));
    QCOMPARE(cover.total, QRect(-150, -150, 4714, 3330));

    // The widths in the file, and the 20 that the library adds to a spine.
    const auto edges = pxFindShapes(cover, "spine-edge");
    QCOMPARE(edges.size(), 2);
    QCOMPARE(edges[0].rect, QRectF(2160, -150, 0, 3330));
    QCOMPARE(edges[1].rect, QRectF(2254, -150, 0, 3330));
    QCOMPARE(pxFindShapes(cover, "spine-text")[0].rect, QRectF(2183, 50, 48, 2930));
    // Marks are 5 annotation millimetres long, and 1 away from what is printed.
    QCOMPARE(pxFindShapes(cover, "crop-marks")[0].rect, QRectF(-210, -210, 4834, 3450));
    QCOMPARE(pxFindShapes(cover, "crop-marks", 40)[0].rect, QRectF(-390, -390, 5194, 3810));
    QCOMPARE(pxFindShapes(cover, "fold-marks")[0].rect, QRectF(2160, -210, 94, 3450));
    QCOMPARE(pxFindShapes(cover, "fold").size(), 0);
    QCOMPARE(pxFindShapes(cover, "fold-margin").size(), 0);
    const auto surroundings = pxFindShapes(cover, "surrounding");
    QCOMPARE(surroundings[0].attribute("data-key"), QString("A"));
    QCOMPARE(surroundings[0].attribute("data-types"), QString("book"));
    QCOMPARE(surroundings[0].role, QString("back"));
    QCOMPARE(surroundings[1].attribute("data-key"), QString("A"));
    QCOMPARE(surroundings[1].role, QString("front"));
    const auto barcode = pxFindShapes(cover, "barcode")[0];
    QCOMPARE(barcode.attribute("data-key"), QString("B"));
    QCOMPARE(barcode.shape.rect, QRectF(900, 2830, 320, 110));

    const PxDrawnSheet &spread = book.sheets[2];
    QCOMPARE(spread.kind, PxDrawnSheet::Kind::Spread);
    QCOMPARE(spread.standsFor.first(), 5);
    QCOMPARE(spread.standsFor.last(), 28);
    QCOMPARE(pxFindShapes(spread, "fold")[0].rect, QRectF(2100, 0, 0, 2970));
    const auto margins = pxFindShapes(spread, "fold-margin");
    QCOMPARE(margins[0].rect, QRectF(2100 - 112, 0, 112, 2970));
    QCOMPARE(margins[1].rect, QRectF(2100, 0, 112, 2970));
    QCOMPARE(margins[1].attribute("data-width"), QString("112"));
    const auto numbers = pxFindShapes(spread, "page-number");
    QCOMPARE(numbers[0].rect.center(), QPointF(80, 2910));
    QCOMPARE(numbers[1].rect.center(), QPointF(4200 - 80, 2910));
    QCOMPARE(numbers[1].attribute("data-position"), QString("2020 2910"));
    QVERIFY(!book.sheets[1].pages[0].isPrinted && book.sheets[1].pages[1].isPrinted);
    QCOMPARE(pxFindShapes(book.sheets[1], "page-number").size(), 1);
}

void PxSampleSheetsTest::sharesSheetsBetweenPageCounts()
{
    QStringList found;
    for (const PxSharedSheet &shared :
         pxSharedSheets({drawn("BOOK_A4_PORTRAIT", 26), drawn("BOOK_A4_PORTRAIT", 28)})) {
        QStringList uses;
        for (const PxSharedSheet::Use &use : shared.uses)
            uses.append(QString::number(use.pageCount) + ": " + PxDrawnWords::pages(use.pages));
        found.append(PxDrawnWords::heading(shared.sheet) + " (" + uses.join("; ") + ')');
    }
    // The spines differ. Numbers are drawn where they do not depend on the page count.
    QCOMPARE(found, QStringList({"Umschlag, Seiten 0-2 (26: Seiten 0-2)",
                                 "Umschlag, Seiten 0-2 (28: Seiten 0-2)",
                                 "Doppelseite, Seiten 3-4 (26: Seiten 3-4; 28: Seiten 3-4)",
                                 "Doppelseite (26: Seiten 5-28; 28: Seiten 5-30)",
                                 "Doppelseite (26: Seiten 29-30; 28: Seiten 31-32)"}));
}

void PxSampleSheetsTest::drawsFittings()
{
    // At the joint of a spread, at the upper edge of a lower page, at the lower one of an upper.
    const auto spiral = [](const PxDrawnSheet &sheet) {
        const auto spirals = pxFindShapes(sheet, "spiral");
        return spirals.size() == 1 ? spirals[0].rect.center() : QPointF(-1, -1);
    };
    QCOMPARE(spiral(drawn("BOOK_FOIL_SMALL").sheets[1]).x(), 1400.0);
    const PxDrawnProduct desk = drawn("CALENDAR_DESK_A5");
    QVERIFY(qAbs(spiral(desk.sheets[0]).y() - 1480) < 10);
    QVERIFY(qAbs(spiral(desk.sheets[1]).y()) < 10);
    QVERIFY(desk.sheets[0].isCover && !desk.sheets[1].isCover && desk.sheets[3].isCover);
    QVERIFY(qAbs(spiral(drawn("ADDRESSBOOK_A6").sheets[1]).x()) < 10);
    const PxDrawnProduct wall = drawn("CALENDAR_WALL_A4");
    QCOMPARE(pxFindShapes(wall.sheets[1], "spiral")[0].attribute("data-loops"), QString("34"));
    QCOMPARE(pxFindShapes(wall.sheets[1], "hook").size(), 1);
    QCOMPARE(pxFindShapes(wall.sheets[1], "hole").size(), 0);
    QCOMPARE(pxFindShapes(drawn("CALENDAR_KITCHEN").sheets[1], "hole").size(), 1);

    const PxDrawnSheet sticker = drawn("STICKER_ROUND_SET").sheets[0];
    QCOMPARE(pxFindShapes(sticker, "round-cut")[0].rect, QRectF(0, 0, 400, 400));
    QCOMPARE(pxFindShapes(sticker, "round-safe")[0].rect, pxFindShapes(sticker, "safe")[0].rect);
    QCOMPARE(pxFindShapes(wall.sheets[0], "round-cut").size(), 0);
    const auto clamps = pxFindShapes(drawn("BOOK_CLAMP_A4_LANDSCAPE").sheets[2], "clamp");
    QCOMPARE(clamps[0].rect, QRectF(2970 - 180, 0, 180, 2100));
    QCOMPARE(clamps[1].rect, QRectF(2970, 0, 180, 2100));
}

void PxSampleSheetsTest::knowsTheFile()
{
    QCOMPARE(drawn("CUP2").file, QString("products/cup2.xml"));
    QCOMPARE(drawn("CUP1").file, QString("products/legacy/cup1.xml"));
}

void PxSampleSheetsTest::knowsTheTheme()
{
    const PxDrawnProduct plain = drawn("BOOK_A4_PORTRAIT");
    QCOMPARE(plain.sheets[0].pages[2].layoutTemplate, QString());
    const PxDrawnProduct book = drawn("BOOK_A4_PORTRAIT", 0, "hochzeit");
    QCOMPARE(book.sheets[0].pages[2].layoutTemplate, QString("Titelbild oval"));
    QCOMPARE(book.sheets[0].pages[2].backgroundTemplate, QString("Rosenblueten"));
    QVERIFY(!book.theme.isEmpty());
    int invalid = 0;
    int logos = 0;
    for (const QString &theme : PxThemeFactory::instance()->themeNames()) {
        for (const char *name : {"BOOK_A4_PORTRAIT", "CALENDAR_WALL_A4", "CUP2"}) {
            const PxProductContext context(PxProductType(name), theme);
            const PxDrawnProduct product = drawn(name, 0, theme);
            const auto notes = product.sheets[0].notes;
            QCOMPARE(notes.contains(PxDrawnNote::ThemeInvalid), !context.isValid());
            QCOMPARE(notes.contains(PxDrawnNote::ThemeLogo), context.mustPaintVemoLogo());
            QVERIFY(product.sheets.size() == 1 || product.sheets[1].notes.isEmpty());
            invalid += !context.isValid();
            logos += context.mustPaintVemoLogo();
        }
    }
    QVERIFY(invalid > 0 && logos > 0);
}

void PxSampleSheetsTest::namesTheNearestPageCounts()
{
    QCOMPARE(drawn("BOOK_A4_PORTRAIT", 27).problem,
             QString("BOOK_A4_PORTRAIT is not offered with 27 pages, the nearest are 26 and 28"));
    QCOMPARE(drawn("BOOK_A4_PORTRAIT", 2147483647).problem,
             QString("BOOK_A4_PORTRAIT is not offered with 2147483647 pages, the nearest is 154"));
    QCOMPARE(drawn("CUP2", 2).problem,
             QString("CUP2 is not offered with 2 pages, the nearest is 1"));
    QVERIFY(drawn("CUP2", 2).sheets.isEmpty());
}

QTEST_GUILESS_MAIN(PxSampleSheetsTest)
#include "PxSampleSheetsTest.moc"
