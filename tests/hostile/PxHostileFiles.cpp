#include "PxHostileFiles.h"

#include <PxCollidingNames.h>
#include <PxPictures.h>
#include <format/PxFormat.h>

#include <QSize>
#include <QTextCodec>

namespace PxHostileFiles {

static QByteArray product(const QByteArray &name, const QByteArray &attributes,
                          const QByteArray &children)
{
    return "<d><product name='" + name + "' " + attributes +
           "><usablesize width='2100' height='2970'/>" + children + "</product></d>";
}

#ifdef PX_HOSTILE_SHARE
constexpr int share = PX_HOSTILE_SHARE;
#elif defined(PX_SANITIZED)
constexpr int share = 4; // they take their time
#else
constexpr int share = 1;
#endif

constexpr int readableNodes = 200000; // of one file, in the editions of the platform
constexpr int readableSize = 8 * 1024 * 1024;

/** As often as the loader lets a file have nodes, or as 2 MB hold it: far beyond a real file. */
static QByteArray asMany(const QByteArray &text, int nodes)
{
#ifdef PX_HOSTILE_SHARE
    const int bySize = 2000000 / share / text.size();
#else
    const int bySize = 2000000 / text.size(); // a share of it would be below the limits
#endif
    const int byNodes = nodes > 0 ? readableNodes / share / nodes - 20 : bySize;
    return text.repeated(qMin(bySize, byNodes));
}

static QByteArray encoded(const char *codec, const QByteArray &utf8)
{
    return QTextCodec::codecForName(codec)->fromUnicode(QString::fromUtf8(utf8));
}

QByteArrayList collidingNames(int count)
{
    QByteArrayList names;
    for (const QString &name : pxCollidingNames(count / share))
        names.append(name.toLatin1());
    return names;
}

QList<File> unreadable()
{
    const QByteArray good =
        product("BOOK", "binding='HARDCOVER'", "<classification group='Größe'/>");
    const QByteArray begin = "<d><product name='BOOK'>";
    const QByteArray end = "</product></d>";
    const QByteArray entities = "<!DOCTYPE d [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;'>"
                                "<!ENTITY c '&b;&b;&b;&b;'><!ENTITY d '&c;&c;&c;&c;'>]>";
    QByteArray manyAttributes;
    for (int i = 0; i < 100000; ++i)
        manyAttributes += " a" + QByteArray::number(i) + "=''";
    const QByteArray latin = "<?xml version='1.0' encoding='ISO-8859-1'?>";
    const QByteArray utf16 = encoded("UTF-16", good);
    // clang-format off
    return {
        {"empty", ""}, {"blank", QByteArray(100000, ' ')}, {"zeros", QByteArray(100000, '\0')},
        {"text", "This is no XML.\n"}, {"page", "<!DOCTYPE html><html><br><img src=x></html>"},
        {"archive", QByteArray("PK\3\4\0\0\xFF\xFE\0\1", 10).repeated(1000)},
        {"cut-late", good.chopped(1)}, {"without-beginning", good.mid(10)}, {"twice", good + good},
        {"latin-1", encoded("ISO-8859-1", good)}, {"unknown-encoding", "<?xml version='1.0' encoding='klingon'?>" + good},
        {"utf-16-odd", utf16.chopped(1)}, {"utf-16-cut", utf16.left(utf16.size() / 4 * 2)}, {"utf-16-as-utf-8", utf16.mid(2).replace('\0', '\1')},
        {"utf-8-as-latin-1", "\xEF\xBB\xBF" + latin + good}, {"mark-only", "\xEF\xBB\xBF"}, {"mark-of-utf-16", "\xFF\xFE"},
        {"overlong", begin + "\xC0\xBC" + end}, {"surrogate", begin + "\xED\xA0\x80" + end}, {"cut-character", begin + "\xC3" + end},
        {"beyond-unicode", begin + "\xF4\x90\x80\x80" + end}, {"control-character", begin + "\x01" + end}, {"zero", begin + QByteArray(1, '\0') + end},
        {"zero-reference", begin + "&#0;" + end}, {"huge-reference", begin + "&#" + QByteArray(100000, '9') + ";" + end},
        {"entity", begin + "&wrong;" + end}, {"entity-bomb", entities + begin + "&d;&d;&d;" + end}, {"entity-in-attribute", entities + "<d a='&d;'/>"},
        {"endless-entity", "<!DOCTYPE d [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><d>&a;</d>"},
        {"external-entity", "<!DOCTYPE d [<!ENTITY a SYSTEM 'file:///etc/passwd'>]><d>&a;</d>"}, {"external-subset", "<!DOCTYPE d SYSTEM 'file:///etc/passwd'><d>&a;</d>"},
        {"parameter-entity", "<!DOCTYPE d [<!ENTITY % a SYSTEM 'http://localhost/'>%a;]><d/>"}, {"attribute-defaults", "<!DOCTYPE d [<!ATTLIST d a CDATA 'x'>]><d/>"},
        {"deep", QByteArray("<a>").repeated(257) + QByteArray("</a>").repeated(257)}, {"bottomless", asMany("<a>", 0)}, {"deep-comments", asMany("<!--", 0)},
        {"many-elements", "<d>" + asMany("<a/>", 0) + "</d>"}, {"many-texts", "<d>" + asMany("<a>x</a>", 0) + "</d>"}, {"many-sections", "<d>" + QByteArray("<![CDATA[x]]>").repeated(readableNodes) + "</d>"},
        {"many-attributes", "<d" + manyAttributes + "/>"}, {"attributes-all-over", "<d>" + asMany("<a b='' c='' d='' e=''/>", 0) + "</d>"}, {"same-attribute", "<d" + asMany(" a=''", 0) + "/>"},
        {"attributes-behind-comment", "<!--><d '--><d" + manyAttributes + "/>"}, {"no-section-end", "<d><![CDATA[" + asMany("]]", 0)}, {"no-instruction-end", "<d><?" + asMany("a?", 0)}, {"no-comment-end", "<d><!--" + asMany("-", 0)},
        {"no-name-end", "<" + asMany("d", 0)}, {"too-large", good + QByteArray(readableSize, ' ')},
    };
    // clang-format on
}

/** Every number of a product file is this text, wherever the file format has one. */
static QByteArray productOfNumbers(const QByteArray &name, const QByteArray &number)
{
    QByteArray attributes;
    for (const PxAttributeRow &row : PxFormat::find(PxFileKind::Product, "product")->attributes) {
        if (row.type == PxValueType::Integer || row.type == PxValueType::Length)
            attributes += QByteArray(row.name) + "='N' ";
    }
    QByteArray xml = product(
        name, attributes + "binding='HARDCOVER' orientation='portrait'",
        "<spines><spine pages='N' width='N' maxfontheight='N'/><spine pages='-N' width='N'/>"
        "<spine pages='0' width='N'/><spine pages='26' width='N'/></spines>"
        "<surroundings><surrounding pageNr='N' x='N' y='N' width='N' height='N' "
        "hasbindingshade='true'/></surroundings>"
        "<rotationredirects><rotationredirect from='N' to='N' angleinvert='N'/>"
        "</rotationredirects><contentredirects><contentredirect from='N' to='N'/>"
        "<contentredirect from='0-N' to='N'/><contentredirect from='N-N' to='0'/>"
        "</contentredirects><barcodes><barcode x='N' y='N' width='N' height='N' pageNr='N' "
        "reverseOrder='true'/><barcode x='-N' y='N' width='9' height='N' pageNr='N'/></barcodes>"
        "<productionnumbering>N,N,-N,N</productionnumbering>"
        "<pageswithcontent>N,-N,0</pageswithcontent><extra_production_pages><item>"
        "<target_pages>N,N</target_pages><pdf layer='N'/></item></extra_production_pages>"
        "<pageNumberConfig><margin verticalMargin='N' horizontalMargin='N'/>"
        "<font fontSize='N'/></pageNumberConfig><pages>fullcover,spine,normalpages</pages>");
    // The names of elements and attributes have no such letter, alone between these.
    for (const char *before : {"'", "-", ",", ">"}) {
        for (const char *after : {"'", "-", ",", "<"})
            xml.replace(QByteArray(before) + 'N' + after, before + number + after);
    }
    return xml.replace("width='2100' height='2970'", number == "2147483647"
                                                         ? "width='2147483647' height='2147483647'"
                                                         : "width='2100' height='2970'");
}

QList<File> wild()
{
    QByteArray categories;
    for (int i = 0; i < 100000; ++i)
        categories += "C" + QByteArray::number(i) + ",";
    const QByteArray colliding = collidingNames(180000).join(',');
    QByteArray spines;
    for (int i = 0; i < 18000; ++i)
        spines += "<spine pages='" + QByteArray::number(18000 - i) + "' width='9'/>";
    const QByteArray deep = QByteArray("<a>").repeated(250) + QByteArray("1,").repeated(200000) +
                            QByteArray("</a>").repeated(250);
    QList<File> files;
    for (const char *number :
         {"2147483647", "-2147483648", "2147483648", "-2147483649", "99999999999999999999", "-1",
          "0", "00000000000000000001", "1e9", "0x10", "24,5", "\xD9\xA1", ""})
        files.append({"NUMBERS" + QByteArray::number(files.size()), number});
    for (File &file : files)
        file.content = productOfNumbers(file.name, file.content);
    // clang-format off
    const struct { const char *name; QByteArray attributes; QByteArray children; } rows[] = {
        {"KEYWORDS", "space='" + asMany("600cm2,", 0) + "'", ""},
        {"WRONGKEYWORDS", "space='" + asMany("A4,", 0) + "' binding='" + QByteArray(5000000 / share, ',') + "'", ""},
        {"PAGES", "", "<pages>" + asMany("normalpages,", 0) + "</pages>"},
        {"NUMBERING", "", "<productionnumbering>" + asMany("7,", 0) + "</productionnumbering>"},
        {"CONTENT", "", "<pageswithcontent>" + asMany("7,", 0) + "</pageswithcontent>"},
        {"TARGETS", "", "<extra_production_pages><item><target_pages>" + asMany("7,", 0) + "</target_pages></item></extra_production_pages>"},
        {"ITEMS", "", "<extra_production_pages>" + asMany("<item><target_pages>7</target_pages><pdf/></item>", 4) + "</extra_production_pages>"},
        {"CATEGORIES", "coverBackgroundCategories='" + categories + "'", ""},
        {"COLLIDINGCATEGORIES", "coverBackgroundCategories='" + colliding + "'", ""},
        {"COLLIDINGTHEMES", "", "<defaults><defaults theme='" + colliding + "'/></defaults>"},
        {"REDIRECTS", "", "<contentredirects>" + asMany("<contentredirect from='0-2147483647' to='2147483647'/>", 3) + "</contentredirects>"},
        {"BROKENREDIRECTS", "", "<contentredirects>" + asMany("<contentredirect from='-' to='1'/>", 3) + "</contentredirects>"},
        {"ROTATIONS", "", "<rotationredirects>" + asMany("<rotationredirect from='1' to='1'/>", 3) + "</rotationredirects>"},
        {"BARCODES", "", "<barcodes>" + asMany("<barcode pageNr='999'/>", 2) + "</barcodes>"},
        {"SURROUNDINGS", "", "<surroundings>" + asMany("<surrounding pageType='none'/>", 2) + "</surroundings>"},
        {"SURROUNDINGLISTS", "", asMany("<surroundings/>", 1)},
        {"SPINES", "", "<spines>" + spines + "</spines>"},
        {"WRONGPAGETYPES", "", "<defaults>" + asMany("<defaults pageType='x,x,x,x,x,x,x,x'/>", 2) + "</defaults>"},
        {"WRONGSURROUNDINGS", "", "<surroundings>" + asMany("<surrounding pageType='x,x,x,x,x,x,x,x,x,x'/>", 2) + "</surroundings>"},
        {"DEFAULTS", "", "<defaults>" + asMany("<defaults background='\xC3\xA4'/>", 2) + "</defaults>"},
        {"THEMES", "", "<defaults><defaults theme='" + categories + "' templates='" + QByteArray("ä,").repeated(100000) + "'/></defaults>"},
        {"SAMETHEME", "", "<defaults><defaults pageType='" + asMany("normalpage,", 0) + "'/></defaults>"},
        {"VARIANTS", "", "<variants>" + asMany("<v>x</v>", 2) + "</variants>"},
        {"DEEPTEXT", "", "<productionnumbering>" + deep + "</productionnumbering>"},
        {"DEEPPAGES", "", "<pages>" + deep + "</pages>"},
        {"REFERENCES", "paper='" + asMany("&lt;", 0) + "'", ""},
        {"UMLAUTS", "", "<defaults><defaults background='" + asMany("ä", 0) + "'/></defaults>"},
        {"../OUTSIDE", "", ""}, {"/ETC/PASSWD", "", ""}, {"..", "", ""}, {"A/../../OUTSIDE", "", ""},
    };
    // clang-format on
    for (const auto &row : rows)
        files.append({row.name, product(row.name, row.attributes, row.children)});
    return files;
}

QList<File> wildThemes()
{
    const QByteArray images = "<logo booktype='CUP2' filename='products/pipe.xml'/>"
                              "<logo booktype='CUP2' filename='../../../../etc/passwd'/>";
    const auto theme = [](const QByteArray &attributes, const QByteArray &children) {
        return "<themes><theme id='wild' " + attributes + '>' + children + "</theme></themes>";
    };
    QByteArray sameId; // and all else but how many commas each category has
    for (int i = 0; i < 20000 / share; ++i)
        sameId += "<theme id='a'><defaultcategories frame='" + QByteArray(i % 150, ',') +
                  "' layout='" + QByteArray(i / 150, ',') + "' fading='" +
                  QByteArray(300 - i % 150 - i / 150, ',') + "'/></theme>";
    // clang-format off
    return {
        {"THEMES", "<themes>" + asMany("<theme/>", 1) + "</themes>"},
        {"IDS", "<themes>" + asMany("<theme id='&lt;&lt;&lt;'/>", 2) + "</themes>"},
        {"SAMEID", "<themes>" + sameId + "</themes>"},
        {"COLLIDINGIDS", "<themes><theme id='" + collidingNames(40000).join("'/><theme id='") + "'/></themes>"},
        {"COMMENTS", "<themes>" + asMany("<!---->", 1) + "</themes>"},
        {"KEYACCOUNTS", theme("", "<keyaccounts>" + asMany("<k>99999999999999999999</k>", 2) + "</keyaccounts>")},
        {"PRODUCTS", theme("", "<products>" + asMany("<product>BOOK</product>", 2) + "</products>")},
        {"LOGOS", theme("", "<logos>" + asMany("<logo filename='n' width='2147483647' x='-2147483648'/>", 4) + "</logos>")},
        {"COLLIDINGIMAGES", theme("", "<logos><logo filename='" + collidingNames(40000).join("'/><logo filename='") + "'/></logos>")},
        {"IMAGES", theme("thumbnail='../../../../etc/passwd'", "<logos>" + images + "</logos>")},
        {"DESCRIPTION", theme("", "<description>" + asMany("ä", 0) + "</description>")},
        {"DEEPDESCRIPTION", theme("", "<description>" + QByteArray("<a>").repeated(250) + QByteArray("ä").repeated(200000) + QByteArray("</a>").repeated(250) + "</description>")},
        {"CATEGORIES", theme("", "<defaultcategories background='" + asMany("ä,", 0) + "'/>")},
        {"EXPIRY", theme("expiry='" + asMany("9", 0) + "' producttype='" + asMany("book,", 0) + "'", "")},
    };
    // clang-format on
}

QList<File> pictures()
{
    using namespace PxPictures;
    const QSize small(8, 8);
    const QSize large(2048, 2048);
    const QSize larger(4096, 4096);
    constexpr int bytes = readableSize / share - 2000;
    const QByteArray packed = qCompress(QByteArray(7900000, 'a'), 9).mid(4);
    const auto chunks = [](const QByteArray &one) { return one.repeated(bytes / one.size()); };
    const QByteArray iccSegment = QByteArray("\xFF\xE2\0\x10ICC_PROFILE\0\1\1", 18);
    // clang-format off
    return {
        {"slow.png", slowPng(large)}, {"slower.png", slowPng(larger / (share > 1 ? 2 : 1))}, {"endless.png", png(small, {}, endlessPixels(bytes))},
        {"claims.png", png({65535, 65535}, {}, "x")}, {"wide.png", png({4194304, 1})}, {"high.png", png({1, 4194304})},
        {"texts.png", png(small, chunks(chunk("zTXt", QByteArray("k\0\0", 3) + packed)))},
        {"unicode-texts.png", png(small, chunks(chunk("iTXt", QByteArray("k\0\1\0\0\0", 6) + packed)))},
        {"profile.png", png(small, chunk("iCCP", QByteArray("k\0\0", 3) + packed))},
        {"warnings.png", png(small, chunks(chunk("gAMA", QByteArray("\0\0\xB1\x8F", 4))))}, {"empty-chunks.png", png(small, chunks(chunk("IDAT", "")))},
        {"scans.jpg", jpegWithScans(larger, 6500)}, {"small-scans.jpg", jpegWithScans(small, 500000)}, {"most-scans.jpg", jpegWithScans(large, 54)}, {"small-most-scans.jpg", jpegWithScans(small, 3062)}, {"large-scans.jpg", jpegWithScans(larger / (share > 1 ? 2 : 1), 0)}, {"large.bmp", bmp(larger, 8, 1, chunks("\xFF\1"))}, {"large.png", png(larger)},
        {"claims.jpg", QByteArray(jpeg(small)).replace(QByteArray("\x08\0\x08\0\x08", 5), "\x08\xFF\xF0\xFF\xF0")},
        {"comments.jpg", withSegments(jpeg(small), chunks(QByteArray("\xFF\xFE\0\2", 4)))}, {"profiles.jpg", withSegments(jpeg(small), chunks(iccSegment))},
        {"garbage.jpg", withSegments(jpeg(small), chunks("x"))}, {"marks.jpg", withSegments(jpeg(small), chunks("\xFF"))},
        {"endless.gif", gif(small, small, 2000000000)}, {"full.gif", gif(large, large, 4194304)}, {"twice.gif", gif(small, small, 83000000)},
        {"screen.gif", gif({65535, 65535}, small, 64)}, {"frame.gif", gif(small, {65535, 65535}, 64)},
        {"cut.bmp", bmp(larger, 32, 0, "x")}, {"high.bmp", bmp({1, -16777216}, 1, 0, "x")}, {"beyond.bmp", bmp({2147483647, -2147483647 - 1}, 1, 0, "x")},
        {"runs.bmp", bmp(large, 8, 1, chunks("\xFF\1"))}, {"ones.bmp", bmp(large, 4, 2, chunks("\1\1"))}, {"steps.bmp", bmp(large, 8, 1, chunks(QByteArray("\0\2\0\0", 4)))},
        {"ends.bmp", bmp({1, 4194304}, 8, 1, chunks(QByteArray("\0\0", 2)))}, {"odd.bmp", bmp({-1, 1}, 1, 3, chunks("x"))}, {"bits.bmp", bmp({1000, 1000}, 65535, 9, chunks("x"))},
        {"icon.png", ico(png({20000, 20000}, {}, endlessPixels(bytes / 4)))},
    };
    // clang-format on
}

} // namespace PxHostileFiles
