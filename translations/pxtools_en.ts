<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>PxDrawing</name>
    <message>
        <source>Endformat %1, Datenformat %2.</source>
        <translation>Trim size %1, total size %2.</translation>
    </message>
    <message>
        <source>Sicherheitsabstand: %1.</source>
        <translation>Safety margin: %1.</translation>
    </message>
    <message>
        <source>Blätter: %1.</source>
        <translation>Sheets: %1.</translation>
    </message>
    <message>
        <source>de</source>
        <comment>code of the language</comment>
        <translation>en</translation>
    </message>
</context>
<context>
    <name>PxDrawnLayer</name>
    <message>
        <source>Hintergrund</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Flächen</source>
        <translation>Areas</translation>
    </message>
    <message>
        <source>Umgebung</source>
        <translation>Surroundings</translation>
    </message>
    <message>
        <source>Spirale, Haken, Loch</source>
        <translation>Spiral, hook, hole</translation>
    </message>
    <message>
        <source>Barcodes</source>
        <translation>Barcodes</translation>
    </message>
    <message>
        <source>Seitenzahlen</source>
        <translation>Page numbers</translation>
    </message>
    <message>
        <source>Falz und Klemmbereich</source>
        <translation>Fold and clamp</translation>
    </message>
    <message>
        <source>Rücken</source>
        <translation>Spine</translation>
    </message>
    <message>
        <source>Sicherer Bereich</source>
        <translation>Safe area</translation>
    </message>
    <message>
        <source>Datenformat</source>
        <translation>Total size</translation>
    </message>
    <message>
        <source>Endformat</source>
        <translation>Trim size</translation>
    </message>
    <message>
        <source>Schneid- und Falzmarken</source>
        <translation>Crop and fold marks</translation>
    </message>
    <message>
        <source>Maße</source>
        <translation>Dimensions</translation>
    </message>
    <message>
        <source>Beschriftung</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Legende</source>
        <translation>Legend</translation>
    </message>
    <message>
        <source>Schriftfeld</source>
        <translation>Title block</translation>
    </message>
</context>
<context>
    <name>PxDrawnWords</name>
    <message>
        <source>Datenformat</source>
        <translation>Total size</translation>
    </message>
    <message>
        <source>Beschnittzugabe</source>
        <translation>Bleed</translation>
    </message>
    <message>
        <source>Endformat</source>
        <translation>Trim size</translation>
    </message>
    <message>
        <source>Sicherer Bereich</source>
        <translation>Safe area</translation>
    </message>
    <message>
        <source>Runder Zuschnitt</source>
        <translation>Round cut</translation>
    </message>
    <message>
        <source>Rückenkante</source>
        <translation>Spine edge</translation>
    </message>
    <message>
        <source>Schrift auf dem Rücken</source>
        <translation>Text on the spine</translation>
    </message>
    <message>
        <source>Falz</source>
        <translation>Fold</translation>
    </message>
    <message>
        <source>Falzbereich</source>
        <translation>Fold margin</translation>
    </message>
    <message>
        <source>Klemmbereich</source>
        <translation>Clamp</translation>
    </message>
    <message>
        <source>Bild über dem Inhalt</source>
        <translation>Image above the content</translation>
    </message>
    <message>
        <source>Bild unter dem Inhalt</source>
        <translation>Image below the content</translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation>Barcode</translation>
    </message>
    <message>
        <source>Seitenzahl</source>
        <translation>Page number</translation>
    </message>
    <message>
        <source>Spirale</source>
        <translation>Spiral</translation>
    </message>
    <message>
        <source>Aufhänger</source>
        <translation>Hook</translation>
    </message>
    <message>
        <source>Loch</source>
        <translation>Hole</translation>
    </message>
    <message>
        <source>Schneid- und Falzmarken</source>
        <translation>Crop and fold marks</translation>
    </message>
    <message>
        <source>Rückseite</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Rücken</source>
        <translation>Spine</translation>
    </message>
    <message>
        <source>Vorderseite</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>Linke Seite</source>
        <translation>Left page</translation>
    </message>
    <message>
        <source>Rechte Seite</source>
        <translation>Right page</translation>
    </message>
    <message>
        <source>Seite</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Vorderer Klemmdeckel</source>
        <translation>Front clamp cover</translation>
    </message>
    <message>
        <source>Hinterer Klemmdeckel</source>
        <translation>Back clamp cover</translation>
    </message>
    <message>
        <source>Foliendeckel</source>
        <translation>Film cover</translation>
    </message>
    <message>
        <source>Leerseite</source>
        <translation>Empty page</translation>
    </message>
    <message>
        <source>Deckblatt</source>
        <translation>Front of the calendar</translation>
    </message>
    <message>
        <source>Rückblatt</source>
        <translation>Back of the calendar</translation>
    </message>
    <message>
        <source>Leineneinband</source>
        <translation>Linen cover</translation>
    </message>
    <message>
        <source>Ledereinband</source>
        <translation>Leather cover</translation>
    </message>
    <message>
        <source>Kunstledereinband</source>
        <translation>Imitation leather cover</translation>
    </message>
    <message>
        <source>Welche Seitenzahlen angeboten werden, steht in keiner Datei.</source>
        <translation>No file says which page counts are offered.</translation>
    </message>
    <message>
        <source>Die Beschnittzugabe ist negativ: Das Datenformat liegt innerhalb des Endformats.</source>
        <translation>The bleed is negative: the total size lies within the trim size.</translation>
    </message>
    <message>
        <source>Die Seite hat nicht an jedem Rand Beschnittzugabe: Beim Schneiden kann ein weißer Rand bleiben.</source>
        <translation>The page has no bleed at one of its edges: the cut may leave a white edge.</translation>
    </message>
    <message>
        <source>Der Sicherheitsabstand lässt keinen sicheren Bereich übrig.</source>
        <translation>The safety margin leaves no safe area.</translation>
    </message>
    <message>
        <source>Der Rücken hat keine Breite.</source>
        <translation>The spine has no width.</translation>
    </message>
    <message>
        <source>Die Seiten sind verschieden hoch; sie stehen mittig nebeneinander.</source>
        <translation>The pages differ in height; they are centred beside each other.</translation>
    </message>
    <message>
        <source>Ein Falz- oder Klemmbereich ist so breit wie die Seite oder breiter.</source>
        <translation>A fold margin or clamp is as wide as the page or wider.</translation>
    </message>
    <message>
        <source>Ein Bild, ein Barcode, eine Schrift oder eine Seitenzahl ragt über das Datenformat oder den Rücken hinaus.</source>
        <translation>An image, a barcode, a text or a page number reaches beyond the total size or the spine.</translation>
    </message>
    <message>
        <source>Ein Bild, ein Barcode oder eine Seitenzahl liegt weiter außen, als hier Platz ist: Gezeichnet ist höchstens ein Teil; wo es liegt, sagt die Legende.</source>
        <translation>An image, a barcode or a page number lies farther out than there is room for: at most a part is drawn; the legend says where it lies.</translation>
    </message>
    <message>
        <source>Ein Bild oder Barcode hat keine Fläche und ist nicht gezeichnet.</source>
        <translation>An image or barcode has no area and is not drawn.</translation>
    </message>
    <message>
        <source>Die Spirale hat mehr Schlaufen, als gezeichnet sind.</source>
        <translation>The spiral has more loops than are drawn.</translation>
    </message>
    <message>
        <source>Die Seiten liegen übereinander; sie sind einzeln gezeichnet.</source>
        <translation>The pages lie above each other; they are drawn one by one.</translation>
    </message>
    <message>
        <source>Das Thema wird für dieses Produkt nicht angeboten.</source>
        <translation>The theme is not offered for this product.</translation>
    </message>
    <message>
        <source>Zum Thema gehört ein Logo; auf welcher Seite es gedruckt wird, steht in keiner Datei.</source>
        <translation>The theme has a logo; no file says on which page it is printed.</translation>
    </message>
    <message>
        <source>,</source>
        <comment>decimal separator</comment>
        <translation>.</translation>
    </message>
    <message>
        <source>Seite %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>Seiten %1</source>
        <translation>Pages %1</translation>
    </message>
    <message>
        <source>1 Seite</source>
        <translation>1 page</translation>
    </message>
    <message>
        <source>%1 Seiten</source>
        <translation>%1 pages</translation>
    </message>
    <message>
        <source>Doppelseite</source>
        <translation>Spread</translation>
    </message>
    <message>
        <source>Umschlag</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>%1, Seite %2</source>
        <translation>%1, page %2</translation>
    </message>
    <message>
        <source>%1, Seiten %2</source>
        <translation>%1, pages %2</translation>
    </message>
</context>
<context>
    <name>PxLegendRows</name>
    <message>
        <source>oben %1, unten %2, außen %3, innen %4 mm</source>
        <translation>top %1, bottom %2, outer %3, inner %4 mm</translation>
    </message>
    <message>
        <source>oben %1, unten %2, links %3, rechts %4 mm</source>
        <translation>top %1, bottom %2, left %3, right %4 mm</translation>
    </message>
    <message>
        <source>%1, an der Innenkante keine</source>
        <translation>%1, none at the inner edge</translation>
    </message>
    <message>
        <source>%1, je Seite %2</source>
        <translation>%1, each page %2</translation>
    </message>
    <message>
        <source>%1 innerhalb des Endformats</source>
        <translation>%1 within the trim size</translation>
    </message>
    <message>
        <source>%1 Schlaufen, schematisch</source>
        <translation>%1 loops, schematic</translation>
    </message>
    <message>
        <source>schematisch</source>
        <translation>schematic</translation>
    </message>
    <message>
        <source>höchstens %1 hoch</source>
        <translation>at most %1 high</translation>
    </message>
    <message>
        <source>Stoß der Deckel</source>
        <translation>Joint of the covers</translation>
    </message>
    <message>
        <source>Schneidmarken</source>
        <translation>Crop marks</translation>
    </message>
    <message>
        <source>x %1, y %2, %3 × %4 mm</source>
        <translation>x %1, y %2, %3 × %4 mm</translation>
    </message>
    <message>
        <source>, Seite von hinten gezählt</source>
        <translation>, page counted from the back</translation>
    </message>
</context>
<context>
    <name>PxPageLabel</name>
    <message>
        <source>wird nicht gedruckt</source>
        <translation>not printed</translation>
    </message>
    <message>
        <source>nimmt keine Inhalte auf</source>
        <translation>takes no content</translation>
    </message>
</context>
<context>
    <name>PxProof</name>
    <message>
        <source>Katalog</source>
        <translation>Catalogue</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>new</translation>
    </message>
    <message>
        <source>hieß %1</source>
        <translation>was %1</translation>
    </message>
    <message>
        <source>Änderungen, die Kunden bemerken: %1</source>
        <translation>changes that customers notice: %1</translation>
    </message>
    <message>
        <source>Änderungen nur für die Produktion: %1</source>
        <translation>changes for production only: %1</translation>
    </message>
    <message>
        <source>nicht mehr da</source>
        <translation>no longer there</translation>
    </message>
    <message>
        <source>Nichts hat sich geändert.</source>
        <translation>Nothing has changed.</translation>
    </message>
    <message>
        <source>Im früheren Katalog gibt es das nicht.</source>
        <translation>The earlier catalogue does not have this.</translation>
    </message>
    <message>
        <source>Hieß im früheren Katalog %1.</source>
        <translation>In the earlier catalogue it was called %1.</translation>
    </message>
    <message>
        <source>kleinste</source>
        <translation>smallest</translation>
    </message>
    <message>
        <source>übliche</source>
        <translation>usual</translation>
    </message>
    <message>
        <source>größte</source>
        <translation>largest</translation>
    </message>
    <message>
        <source>Was Kunden bemerken</source>
        <translation>What customers notice</translation>
    </message>
    <message>
        <source>Was nur die Produktion bemerkt</source>
        <translation>What only production notices</translation>
    </message>
    <message>
        <source>Produkte</source>
        <translation>Products</translation>
    </message>
    <message>
        <source>Frühere Produkte</source>
        <translation>Earlier products</translation>
    </message>
    <message>
        <source>Themen</source>
        <translation>Themes</translation>
    </message>
    <message>
        <source>Seitenzahl</source>
        <translation>Page count</translation>
    </message>
    <message>
        <source>Ebenen</source>
        <translation>Layers</translation>
    </message>
    <message>
        <source>Auf Papier steht eine Auswahl. Die Seite am Bildschirm zeigt alles, auch woher die Werte kommen.</source>
        <translation>This sheet has a selection. The page on the screen shows all, also where values come from.</translation>
    </message>
    <message>
        <source>Mit %1 Seiten</source>
        <translation>With %1 pages</translation>
    </message>
    <message>
        <source>Keine Befunde.</source>
        <translation>No findings.</translation>
    </message>
    <message>
        <source>Bild</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Produkt</source>
        <translation>Product</translation>
    </message>
    <message>
        <source>Name im Shop</source>
        <translation>Name in the shop</translation>
    </message>
    <message>
        <source>Klasse</source>
        <translation>Class</translation>
    </message>
    <message>
        <source>Bindung</source>
        <translation>Binding</translation>
    </message>
    <message>
        <source>Papier</source>
        <translation>Paper</translation>
    </message>
    <message>
        <source>Größe in mm</source>
        <translation>Size in mm</translation>
    </message>
    <message>
        <source>Seiten</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Befunde</source>
        <translation>Findings</translation>
    </message>
    <message>
        <source>Thema</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Produktgruppe</source>
        <translation>Product group</translation>
    </message>
    <message>
        <source>Bestellbar bis</source>
        <translation>Can be ordered until</translation>
    </message>
    <message>
        <source>Alle zeigen</source>
        <translation>Show all</translation>
    </message>
    <message>
        <source>alle</source>
        <translation>all</translation>
    </message>
    <message>
        <source>Produkte suchen</source>
        <translation>Search the products</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Breite ab mm</source>
        <translation>Width from mm</translation>
    </message>
    <message>
        <source>Breite bis mm</source>
        <translation>Width to mm</translation>
    </message>
    <message>
        <source>Höhe ab mm</source>
        <translation>Height from mm</translation>
    </message>
    <message>
        <source>Höhe bis mm</source>
        <translation>Height to mm</translation>
    </message>
    <message>
        <source>%1 bei x %2, y %3</source>
        <translation>%1 at x %2, y %3</translation>
    </message>
    <message>
        <source>Tabelle der Produkte</source>
        <translation>Table of the products</translation>
    </message>
    <message>
        <source>Themen suchen</source>
        <translation>Search the themes</translation>
    </message>
    <message>
        <source>Tabelle der Themen</source>
        <translation>Table of the themes</translation>
    </message>
    <message>
        <source>Änderungen</source>
        <translation>Changes</translation>
    </message>
    <message>
        <source>Befunde in anderen Dateien</source>
        <translation>Findings in other files</translation>
    </message>
    <message>
        <source>Zum Inhalt</source>
        <translation>Skip to the contents</translation>
    </message>
    <message>
        <source>(gleich: %1)</source>
        <translation>(the same: %1)</translation>
    </message>
    <message>
        <source>Weitere: %1</source>
        <translation>Others: %1</translation>
    </message>
    <message>
        <source>Zeichnungen</source>
        <translation>Drawings</translation>
    </message>
    <message>
        <source>Rücken</source>
        <translation>Spine</translation>
    </message>
    <message>
        <source>Alle Werte</source>
        <translation>All values</translation>
    </message>
    <message>
        <source>Seiten und Vorlagen in Themen</source>
        <translation>Pages and templates in themes</translation>
    </message>
    <message>
        <source>Varianten</source>
        <translation>Variants</translation>
    </message>
    <message>
        <source>Austauschbar mit</source>
        <translation>Interchangeable with</translation>
    </message>
    <message>
        <source>Diese Seite</source>
        <translation>This page</translation>
    </message>
    <message>
        <source>Aus einem früheren Katalog</source>
        <translation>From an earlier catalogue</translation>
    </message>
    <message>
        <source>Herkunft</source>
        <translation>Where it comes from</translation>
    </message>
    <message>
        <source>Zeile %1</source>
        <translation>Row %1</translation>
    </message>
    <message>
        <source>ja</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>nein</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Breite des Rückens nach Seitenzahl</source>
        <translation>Width of the spine by page count</translation>
    </message>
    <message>
        <source>Breite mm</source>
        <translation>Width in mm</translation>
    </message>
    <message>
        <source>%1 von %2</source>
        <comment>hits</comment>
        <translation>%1 of %2</translation>
    </message>
</context>
<context>
    <name>PxSheetLabels</name>
    <message>
        <source>Rücken: %1</source>
        <translation>Spine: %1</translation>
    </message>
    <message>
        <source>, Schrift bis %1</source>
        <translation>, text up to %1</translation>
    </message>
    <message>
        <source>, mit Logo</source>
        <translation>, with logo</translation>
    </message>
</context>
<context>
    <name>PxSheetTitle</name>
    <message>
        <source>Blatt %1 von %2</source>
        <translation>Sheet %1 of %2</translation>
    </message>
    <message>
        <source>%1 von %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Produkt</source>
        <translation>Product</translation>
    </message>
    <message>
        <source>Zeichnung</source>
        <translation>Drawing</translation>
    </message>
    <message>
        <source>Seiten, ab 0 gezählt</source>
        <translation>Pages, counted from 0</translation>
    </message>
    <message>
        <source>Umfang</source>
        <translation>Page count</translation>
    </message>
    <message>
        <source>Bindung und Papier</source>
        <translation>Binding and paper</translation>
    </message>
    <message>
        <source>Thema</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>Datei</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Maßstab, Längen in mm</source>
        <translation>Scale, lengths in mm</translation>
    </message>
</context>
</TS>
