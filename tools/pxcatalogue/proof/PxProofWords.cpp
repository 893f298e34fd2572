#include "proof/PxProofWords.h"

#include "drawing/PxDrawnWords.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace {

struct Word
{
    std::string_view of;
    const char *german;
};

constexpr Word labels[] = {
    {"Above or below", "Abstand oben oder unten"},
    {"Angle by", "Winkel mal"},
    {"Area", "Fläche"},
    {"Assistant", "Assistent"},
    {"Background", "Hintergrund"},
    {"Backgrounds begin at", "Hintergründe beginnen bei"},
    {"Binding", "Bindung"},
    {"Bleed", "Beschnitt"},
    {"Bleed of the cover", "Beschnitt des Umschlags"},
    {"Borders and shadows", "Rahmen und Schatten"},
    {"Card style", "Wie eine Karte"},
    {"Clamp", "Klemme"},
    {"Clamp takes", "Klemmbereich"},
    {"Class", "Klasse"},
    {"Cliparts", "Cliparts"},
    {"Code", "Nummer"},
    {"Compatible products", "Austauschbare Produkte"},
    {"Content", "Inhalt"},
    {"Content movable", "Inhalt beweglich"},
    {"Content of its own", "Eigener Inhalt"},
    {"Cover", "Umschlag"},
    {"Cover backgrounds", "Hintergründe des Umschlags"},
    {"Description", "Beschreibung"},
    {"Differ in", "Unterschied"},
    {"Editor offers", "Angebot des Editors"},
    {"Editor starts at", "Editor beginnt bei"},
    {"Entries of page list", "Einträge der Seitenliste"},
    {"Expired", "Abgelaufen"},
    {"Fadings", "Masken"},
    {"File", "Datei"},
    {"Fold margin", "Falzbereich"},
    {"Frames", "Rahmen"},
    {"From the back", "Von hinten gezählt"},
    {"Goes to", "Geht auf"},
    {"Group", "Produktgruppe"},
    {"Hole", "Loch"},
    {"Hook", "Haken"},
    {"Icon", "Symbol"},
    {"Icon of a page", "Symbol einer Seite"},
    {"Id", "Kennung"},
    {"Image", "Bild"},
    {"Image effects", "Bildeffekte"},
    {"Image of the logo", "Bild des Logos"},
    {"Images on a page", "Bilder auf einer Seite"},
    {"Its open cover", "Sein Umschlag, offen"},
    {"Its page", "Seine Seite"},
    {"Its spine", "Sein Rücken"},
    {"Key accounts", "Großkunden"},
    {"Largest text height", "Größte Schrifthöhe"},
    {"Layer", "Ebene"},
    {"Layout", "Layout"},
    {"Layouts", "Layouts"},
    {"Logo on the spine", "Logo auf dem Rücken"},
    {"Logo painted", "Mit Logo"},
    {"Maker's logo", "Logo des Herstellers"},
    {"Material", "Material"},
    {"Name", "Name"},
    {"Nearest offered", "Nächste angebotene"},
    {"Normal backgrounds", "Übliche Hintergründe"},
    {"Normal pages", "Innenseiten"},
    {"Number", "Seite"},
    {"Numbers", "Seiten"},
    {"Numbers of the pages", "Nummern der Seiten"},
    {"Of earlier catalogue", "Aus früherem Katalog"},
    {"Offered", "Angeboten"},
    {"Offered with these", "Damit angeboten"},
    {"On top", "Über dem Inhalt"},
    {"One background a page", "Ein Hintergrund je Seite"},
    {"Orientation", "Format"},
    {"Page", "Seite"},
    {"Page counts", "Seitenzahlen"},
    {"Page names", "Seitennamen"},
    {"Page number from side", "Seitenzahl vom Rand"},
    {"Page number type size", "Schriftgröße der Seitenzahl"},
    {"Pages side by side", "Seiten nebeneinander"},
    {"Pages with content", "Seiten mit Inhalt"},
    {"Paper", "Papier"},
    {"Pieces per order", "Stück je Bestellung"},
    {"Place", "Ort"},
    {"Place of the logo", "Ort des Logos"},
    {"Printed", "Bedruckt"},
    {"Printed on one side", "Einseitig bedruckt"},
    {"Products", "Produkte"},
    {"Put together by", "Zusammengebaut von"},
    {"Replaced by", "Ersetzt durch"},
    {"Replaces", "Ersetzt"},
    {"Safety margin", "Sicherheitsabstand"},
    {"Same size", "Gleich groß"},
    {"Shade", "Schatten der Bindung"},
    {"Short name", "Name im Shop"},
    {"Shown with", "Gezeigt mit"},
    {"Side", "Lage"},
    {"Size class", "Größenklasse"},
    {"Size in cm", "Größe in cm"},
    {"Size in inches", "Größe in Zoll"},
    {"Sold with", "Verkauft mit"},
    {"Spiral loops", "Spiralringe"},
    {"Text on the spine", "Text auf dem Rücken"},
    {"Theme", "Thema"},
    {"Total", "Datenformat"},
    {"Type", "Art"},
    {"Type size", "Schriftgröße"},
    {"Until", "Bestellbar bis"},
    {"Usable", "Endformat"},
    {"Valid together", "Passen zusammen"},
    {"Variants", "Varianten"},
    {"Width", "Breite"},
    {"Width by height", "Breite durch Höhe"},
    {"With covers and spine", "Mit Umschlag und Rücken"},
};

constexpr Word headings[] = {
    {"product", "Produkt"},
    {"pages", "Seiten"},
    {"sizes", "Größen"},
    {"pageKinds", "Größe jeder Art von Seite (Beschnitt: oben/unten/links/rechts)"},
    {"spine", "Rücken"},
    {"surroundings", "Umgebungsbilder"},
    {"barcodes", "Barcodes"},
    {"templates", "Standardvorlagen"},
    {"theme", "In diesem Thema"},
    {"design", "Gestaltung"},
    {"variants", "Varianten"},
    {"classification", "Im Shop"},
    {"legacy", "Frühere und spätere Kataloge"},
    {"production", "Produktion"},
    {"extraPages", "Zusätzliche Produktionsseiten"},
    {"contentRedirects", "Inhalt für eine Seite geht auf"},
    {"rotationRedirects", "Seiten, die beim Drehen tauschen"},
    {"themes", "Thema"},
};

constexpr Word keywords[] = {
    {"book", "Buch"},
    {"calendar", "Kalender"},
    {"gift", "Geschenk"},
    {"card", "Karte"},
    {"deko", "Wandbild"},
    {"print", "Abzug"},
    {"portrait", "hoch"},
    {"landscape", "quer"},
    {"quadratic", "quadratisch"},
    {"square", "quadratisch"},
    {"panorama", "Panorama"},
    {"portraitpanorama", "Panorama hoch"},
    {"round", "rund"},
    {"GIFT", "ohne Bindung"},
    {"client", "Kunde"},
    {"factory", "Hersteller"},
    {"grayscale", "Graustufen"},
    {"preserve_alpha_channel", "Transparenz bleibt"},
    {"left", "links"},
    {"right", "rechts"},
    {"middle", "Mitte"},
    {"top", "oben"},
    {"bottom", "unten"},
    {"center", "Mitte"},
    {"fullpage", "ganzer Bogen"},
    {"spine", "Rücken"},
    {"normalpage", "Innenseite"},
    {"emptypage", "Leerseite"},
    {"fullcover", "Umschlag"},
    {"cromolinen", "Leinen"},
    {"leather", "Leder"},
    {"artificialleather", "Kunstleder"},
    {"clampcoverfront", "Klemme vorn"},
    {"clampcoverback", "Klemme hinten"},
    {"foilcoverfront", "Folie"},
    {"calendercoverfront", "Kalender vorn"},
    {"calendercoverback", "Kalender hinten"},
    {"photopaperbook", "Fotobuch"},
    {"notebook", "Notizbuch"},
    {"copybook", "Schulheft"},
    {"collegeblock", "Collegeblock"},
    {"frame", "Rahmen"},
    {"border", "Rand"},
    {"varnish", "Lack"},
    {"foto", "Abzug"},
    {"poster", "Poster"},
    {"fun", "Geschenk"},
    {"background", "Hintergrund"},
    {"clipart", "Clipart"},
    {"content", "Inhalt"},
    {"layout", "Layout"},
    {"passepartout", "Passepartout"},
    {"all", "alle"},
    {"binding", "Bindung"},
    {"paper", "Papier"},
    {"space", "Größenklasse"},
    {"increment", "Schritt der Seitenzahlen"},
};

/** Null if there is none. */
template <std::size_t COUNT>
const char *germanOf(const Word (&words)[COUNT], std::string_view of)
{
    const auto found = std::find_if(std::begin(words), std::end(words),
                                    [of](const Word &word) { return word.of == of; });
    return found == std::end(words) ? nullptr : found->german;
}

bool isGerman()
{
    static const bool ourIsGerman = PxProofWords::language() == "de"; // chosen at the start
    return ourIsGerman;
}

bool isNumber(const QJsonValue &value, PxReportFormat format)
{
    return value.isDouble() || format == PxReportFormat::Size || format == PxReportFormat::Margins;
}

} // namespace

QString PxProofWords::language()
{
    return QCoreApplication::translate("PxDrawing", "de", "code of the language");
}

QString PxProofWords::label(const char *english)
{
    const char *german = isGerman() ? germanOf(labels, english) : nullptr;
    return QString::fromUtf8(german ? german : english);
}

QString PxProofWords::heading(const char *key, const QString &english)
{
    const char *german = isGerman() ? germanOf(headings, key) : nullptr;
    return german ? QString::fromUtf8(german) : english;
}

QString PxProofWords::keyword(const QString &keyword)
{
    const char *german = isGerman() ? germanOf(keywords, keyword.toStdString()) : nullptr;
    return german ? QString::fromUtf8(german) : keyword;
}

QString PxProofWords::value(const QJsonValue &value, PxReportFormat format)
{
    if (value.isBool())
        return value.toBool() ? tr("ja") : tr("nein");
    if (value.isObject() && format == PxReportFormat::Rect)
        return tr("%1 bei x %2, y %3")
            .arg(PxProofWords::value(value, PxReportFormat::Size),
                 PxProofWords::value(value["x"], PxReportFormat::Length),
                 PxProofWords::value(value["y"], PxReportFormat::Length));
    QString text = PxReportValue::text(value, format);
    if (format == PxReportFormat::Name || format == PxReportFormat::CountOrAll)
        return keyword(text);
    return isNumber(value, format) ? text.replace('.', PxDrawnWords::decimalSeparator()) : text;
}
