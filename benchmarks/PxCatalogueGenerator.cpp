#include "PxCatalogueGenerator.h"

#include <QFile>

namespace {

constexpr struct
{
    const char *name;
    const char *binding;
    const char *pages;
} kinds[] = {
    {"book", "HARDCOVER", "fullcover,spine,fullcover,emptypage,normalpages,emptypage"},
    {"calendar", "CALENDAR_SIMPLEX", "calendarfront,simplexmonthcalendar,calendarback"},
    {"gift", "GIFT", "normalpage"},
    {"book", "SOFTCOVER", "fullcover,spine,fullcover,normalpages"},
    {"card", "GIFT", "normalpage,normalpage"},
    {"deko", "GIFT", "normalpage"},
};
constexpr const char *papers[] = {"indigo", "glossy", "indigo-matt", "fotopaper"};
constexpr const char *templateNames[] = {"1 Bild mittig", "2 Bilder übereinander",
                                         "Raster Süd",    "Titelbild groß",
                                         "Leer",          "4 Bilder mit Rand"};
constexpr const char *backgrounds[] = {"Weiß", "Leinen beige", "Schiefer dunkel", "Rosenblüten"};
constexpr const char *themes[] = {"normal", "theme-1", "theme-2", "theme-3", "theme-4"};

const auto &kindOf(int number)
{
    return kinds[number % int(std::size(kinds))];
}

bool isBook(int number)
{
    return qstrcmp(kindOf(number).name, "book") == 0;
}

QString productName(int number)
{
    return QStringLiteral("PRODUCT_%1").arg(number, 5, 10, QLatin1Char('0'));
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/** Writes a file; `write(xml)` writes what is below the declaration, which names the codec if any.
 */
template <typename Write>
bool writeFile(const QString &path, const char *codec, Write write)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    if (codec) {
        xml.setCodec(codec);
        xml.writeStartDocument();
    }
    write(xml);
    xml.writeEndDocument();
    return !xml.hasError();
}

} // namespace

bool PxCatalogueGenerator::generate(const QDir &directory)
{
    m_random.seed(std::mt19937::default_seed);
    if (!directory.mkpath(QStringLiteral("products/legacy")) ||
        !directory.mkpath(QStringLiteral("themes")) ||
        !directory.mkpath(QStringLiteral("defaults")))
        return false;
    bool isWritten = true;
    const auto write = [&](const QString &name, const char *codec, auto content) {
        isWritten = writeFile(directory.filePath(name), codec, content) && isWritten;
    };
    write(QStringLiteral("producttypes.xml"), "UTF-8",
          [&](QXmlStreamWriter &xml) { writeProductTypes(xml); });
    for (int i = 0; i < m_shape.products; ++i)
        write(QStringLiteral("products/%1.xml").arg(productName(i).toLower()),
              i % 50 == 7 ? "ISO-8859-1" : "UTF-8",
              [&](QXmlStreamWriter &xml) { writeProduct(xml, i); });
    for (int i = 0; i < m_shape.themes; i += m_shape.themesPerFile)
        write(QStringLiteral("themes/themes-%1.xml").arg(i), "UTF-8",
              [&](QXmlStreamWriter &xml) { writeThemes(xml, i); });
    for (int i = 0; i < m_shape.userDefaults; ++i)
        write(QStringLiteral("defaults/%1.xml").arg(productName(i)), nullptr,
              [&](QXmlStreamWriter &xml) { writeUserDefaults(xml); });
    return isWritten;
}

void PxCatalogueGenerator::writeProductTypes(QXmlStreamWriter &xml)
{
    xml.writeStartElement(QStringLiteral("producttypes"));
    for (int i = 0; i < m_shape.products + m_shape.moreTypes; ++i) {
        xml.writeEmptyElement(QStringLiteral("producttype"));
        xml.writeAttribute(QStringLiteral("code"), QString::number(i + 1));
        xml.writeAttribute(QStringLiteral("name"), productName(i));
        xml.writeAttribute(QStringLiteral("class"), QLatin1String(kindOf(i).name));
        xml.writeAttribute(QStringLiteral("shortname"), QStringLiteral("Produkt %1").arg(i));
    }
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeProduct(QXmlStreamWriter &xml, int number)
{
    const bool isBound = isBook(number);
    xml.writeStartElement(QStringLiteral("productdescription"));
    if (number % 3 == 1)
        xml.writeComment(QStringLiteral(" Bleibt im Sortiment, bis das neue Papier geprüft ist. "));
    xml.writeStartElement(QStringLiteral("product"));
    writeAttributes(xml, number);
    const int width = random(1000, 4000);
    xml.writeEmptyElement(QStringLiteral("usablesize"));
    xml.writeAttribute(QStringLiteral("width"), QString::number(width));
    xml.writeAttribute(QStringLiteral("height"), QString::number(width + random(-500, 900)));
    xml.writeTextElement(QStringLiteral("pages"), QLatin1String(kindOf(number).pages));
    if (isBound)
        writeSpines(xml);
    writeSurroundings(xml, isBound);
    writeDefaults(xml, isBound);
    if (number % 2 == 0)
        writeRedirects(xml);
    writeBarcodes(xml);
    if (!isBound)
        writeVariants(xml);
    writeExtraPages(xml);
    xml.writeTextElement(QStringLiteral("productionnumbering"), QStringLiteral("3,2,1,4"));
    xml.writeEndElement();
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeAttributes(QXmlStreamWriter &xml, int number)
{
    const auto attribute = [&xml](const char *name, const QString &value) {
        xml.writeAttribute(QLatin1String(name), value);
    };
    attribute("name", productName(number));
    attribute("binding", QLatin1String(kindOf(number).binding));
    attribute("paper", QLatin1String(papers[random(0, 3)]));
    attribute("assemblyWay", QStringLiteral("factory"));
    attribute("bleedmargin", QString::number(random(20, 40)));
    attribute("bleedmargincover", QString::number(random(100, 200)));
    attribute("safetymargin", QString::number(random(30, 60)));
    attribute("coverextrahorizontal", QString::number(random(40, 90)));
    attribute("coverextravertical", QString::number(random(40, 90)));
    attribute("numOfNormalPages", QString::number(random(1, 4)));
    attribute("pageNamingStyle",
              isBook(number) ? QStringLiteral("BOOK") : QStringLiteral("MEMORY"));
    attribute("hasAssistant", QStringLiteral("true"));
    attribute("canHaveFading", QStringLiteral("false"));
    attribute("coverBackgroundCategories", text("Einfarbig,Leinen,Blüten"));
}

void PxCatalogueGenerator::writeSpines(QXmlStreamWriter &xml)
{
    const int count = random(20, 60) + m_shape.moreSpines;
    const int increment = random(1, 2) * 2;
    xml.writeStartElement(QStringLiteral("spines"));
    for (int i = 0; i < count; ++i) {
        xml.writeEmptyElement(QStringLiteral("spine"));
        xml.writeAttribute(QStringLiteral("pages"), QString::number(26 + i * increment));
        xml.writeAttribute(QStringLiteral("width"), QString::number(70 + i * 2));
        xml.writeAttribute(QStringLiteral("maxfontheight"), QString::number(40 + i));
    }
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeSurroundings(QXmlStreamWriter &xml, bool isBook)
{
    xml.writeStartElement(QStringLiteral("surroundings"));
    for (int i = isBook ? random(1, 4) : 1; i > 0; --i) {
        xml.writeEmptyElement(QStringLiteral("surrounding"));
        xml.writeAttribute(QStringLiteral("type"),
                           isBook ? QStringLiteral("BOOK") : QStringLiteral("GIFT"));
        xml.writeAttribute(QStringLiteral("pageType"), QStringLiteral("normalpage"));
        if (isBook)
            xml.writeAttribute(QStringLiteral("pageNr"), QString::number(i + 4));
        xml.writeAttribute(QStringLiteral("width"), QString::number(random(50, 200)));
        xml.writeAttribute(QStringLiteral("height"), QString::number(random(900, 3000)));
    }
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeDefaults(QXmlStreamWriter &xml, bool isBook)
{
    constexpr const char *pageTypes[] = {"normalpage", "fullcover,spine", "emptypage"};
    constexpr int themeCount = int(std::size(themes));
    const int count = (isBook ? random(12, 24) : random(8, 10)) + m_shape.moreTemplates;
    xml.writeStartElement(QStringLiteral("defaults"));
    for (int i = 0; i < count; ++i) {
        xml.writeEmptyElement(QStringLiteral("defaults"));
        xml.writeAttribute(QStringLiteral("theme"), QLatin1String(themes[i % themeCount]));
        xml.writeAttribute(QStringLiteral("pageType"),
                           QLatin1String(pageTypes[i / themeCount / 2 % std::size(pageTypes)]));
        xml.writeAttribute(QStringLiteral("alignment"), i / themeCount % 2 == 0
                                                            ? QStringLiteral("left")
                                                            : QStringLiteral("right,middle"));
        xml.writeAttribute(QStringLiteral("layout"), text(templateNames[random(0, 5)]));
        xml.writeAttribute(QStringLiteral("background"), text(backgrounds[random(0, 3)]));
    }
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeRedirects(QXmlStreamWriter &xml)
{
    xml.writeStartElement(QStringLiteral("rotationredirects"));
    for (int i = 0; i < 2; ++i) {
        xml.writeEmptyElement(QStringLiteral("rotationredirect"));
        xml.writeAttribute(QStringLiteral("from"), QString::number(i * 2));
        xml.writeAttribute(QStringLiteral("to"), QString::number(2 - i * 2));
        xml.writeAttribute(QStringLiteral("angleinvert"), QStringLiteral("-1"));
    }
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("contentredirects"));
    xml.writeEmptyElement(QStringLiteral("contentredirect"));
    xml.writeAttribute(QStringLiteral("from"), QStringLiteral("0-3"));
    xml.writeAttribute(QStringLiteral("to"), QStringLiteral("4"));
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeBarcodes(QXmlStreamWriter &xml)
{
    xml.writeStartElement(QStringLiteral("barcodes"));
    xml.writeEmptyElement(QStringLiteral("barcode"));
    xml.writeAttribute(QStringLiteral("pageNr"), QStringLiteral("1"));
    xml.writeAttribute(QStringLiteral("reverseOrder"), QStringLiteral("true"));
    for (const char *name : {"x", "y", "width", "height"})
        xml.writeAttribute(QLatin1String(name), QString::number(random(10, 300)));
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeVariants(QXmlStreamWriter &xml)
{
    xml.writeStartElement(QStringLiteral("variants"));
    xml.writeAttribute(QStringLiteral("type"), QStringLiteral("Lineatur"));
    for (const char *ruling : {"ruling:blank", "ruling:lined", "ruling:chequered"})
        xml.writeTextElement(QStringLiteral("variant"), QLatin1String(ruling));
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeExtraPages(QXmlStreamWriter &xml)
{
    xml.writeStartElement(QStringLiteral("extra_production_pages"));
    xml.writeStartElement(QStringLiteral("item"));
    xml.writeTextElement(QStringLiteral("target_pages"), QStringLiteral("0"));
    xml.writeEmptyElement(QStringLiteral("pdf"));
    xml.writeAttribute(QStringLiteral("filename"),
                       QStringLiteral("extra/lack_%1.pdf").arg(random(1, 20)));
    xml.writeAttribute(QStringLiteral("type"), QStringLiteral("varnish"));
    xml.writeEndElement();
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeUserDefaults(QXmlStreamWriter &xml)
{
    xml.writeStartElement(QStringLiteral("user"));
    writeDefaults(xml, false);
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeThemes(QXmlStreamWriter &xml, int first)
{
    xml.writeStartElement(QStringLiteral("themes"));
    for (int i = first; i < first + m_shape.themesPerFile && i < m_shape.themes; ++i)
        writeTheme(xml, i);
    xml.writeEndElement();
}

void PxCatalogueGenerator::writeTheme(QXmlStreamWriter &xml, int number)
{
    xml.writeStartElement(QStringLiteral("theme"));
    xml.writeAttribute(QStringLiteral("id"), number == 0 ? QStringLiteral("normal")
                                                         : QStringLiteral("theme-%1").arg(number));
    xml.writeAttribute(QStringLiteral("producttype"), QStringLiteral("book"));
    xml.writeAttribute(QStringLiteral("expiry"), QStringLiteral("299912312359"));
    xml.writeTextElement(QStringLiteral("description"), text("Große Reise %1").arg(number));
    xml.writeStartElement(QStringLiteral("keyaccounts"));
    for (int i = random(1, 6); i > 0; --i)
        xml.writeTextElement(QStringLiteral("keyaccount"), QString::number(i * 1000));
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("products"));
    for (int i = random(0, 30); i > 0; --i)
        xml.writeTextElement(QStringLiteral("product"),
                             productName(random(0, m_shape.products - 1)));
    xml.writeEndElement();
    xml.writeEmptyElement(QStringLiteral("spinetext"));
    xml.writeAttribute(QStringLiteral("use"), QStringLiteral("true"));
    xml.writeEmptyElement(QStringLiteral("defaultcategories"));
    for (const char *name : {"background", "clipart", "fading", "content", "frame", "layout"})
        xml.writeAttribute(QLatin1String(name), QStringLiteral("Kategorie %1").arg(random(1, 9)));
    xml.writeEndElement();
}

int PxCatalogueGenerator::random(int smallest, int largest)
{
    return smallest + int(m_random() % std::mt19937::result_type(largest - smallest + 1));
}
