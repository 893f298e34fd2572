<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>PxBinding</name>
    <message>
        <source>unbekannter Bindungstyp</source>
        <translation>unknown type of binding</translation>
    </message>
    <message>
        <source>Leinencover</source>
        <translation>Linen cover</translation>
    </message>
    <message>
        <source>Softcover</source>
        <translation>Softcover</translation>
    </message>
    <message>
        <source>Hardcover</source>
        <translation>Hardcover</translation>
    </message>
    <message>
        <source>Heft</source>
        <translation>Booklet</translation>
    </message>
    <message>
        <source>Klarsichtfolie</source>
        <translation>Clear film</translation>
    </message>
    <message>
        <source>Kalender einseitig</source>
        <translation>Calendar, single-sided</translation>
    </message>
    <message>
        <source>Kalender doppelseitig</source>
        <translation>Calendar, double-sided</translation>
    </message>
    <message>
        <source>1-Seiten-Kalender</source>
        <translation>One-page calendar</translation>
    </message>
    <message>
        <source>2-Seiten-Jahresplaner</source>
        <translation>Two-page year planner</translation>
    </message>
    <message>
        <source>Premiumleinen</source>
        <translation>Premium linen</translation>
    </message>
    <message>
        <source>Leder</source>
        <translation>Leather</translation>
    </message>
    <message>
        <source>Kunstleder</source>
        <translation>Imitation leather</translation>
    </message>
    <message>
        <source>Hochwertiger Leineneinband mit Klemmbindung - Das Cover trägt ein Foto und einen Titel Ihrer Wahl.</source>
        <translation>High-quality linen cover with clamp binding - the cover bears a photo and a title of your choice.</translation>
    </message>
    <message>
        <source>Individuell gestaltbarer elastischer Einband mit Klebebindung.
Das Cover ist vollständig gestaltbar.</source>
        <translation>Flexible cover of your own design, perfect bound.
The whole cover can be designed.</translation>
    </message>
    <message>
        <source>Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.
Das Cover ist vollständig gestaltbar.</source>
        <translation>Sturdy hard cover of your own design, perfect bound.
The whole cover can be designed.</translation>
    </message>
    <message>
        <source>Die Ringbindung wird durch eine Klarsichtfolie abgeschlossen,
durch die man auf die erste Seite des Booklets sehen kann.</source>
        <translation>The ring binding is closed by a clear film,
through which the first page of the booklet can be seen.</translation>
    </message>
    <message>
        <source>Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,
da die leere Seite zur Wand zeigt, und daher nicht gesehen werden kann.</source>
        <translation>Single-sided calendars are best for hanging up,
as the blank side faces the wall and cannot be seen.</translation>
    </message>
    <message>
        <source>Doppelseitig bedruckte Kalender eignen sich besonders zum auf-den-Tisch-Legen.</source>
        <translation>Double-sided calendars are best for lying on a desk.</translation>
    </message>
    <message>
        <source>Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.
Alles auf einen Blick.</source>
        <translation>A large single-sided calendar shows the whole year.
Everything at a glance.</translation>
    </message>
    <message>
        <source>Ein großformatiger Beidseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.
Alles auf einen Blick.</source>
        <translation>A large double-sided calendar shows the whole year.
Everything at a glance.</translation>
    </message>
    <message>
        <source>Der hochwertige Premiumleinen-Einband ist in verschiedenen Farben erhältlich.
Das Cover kann nicht gestaltet werden.</source>
        <translation>The high-quality premium linen cover comes in several colours.
The cover cannot be designed.</translation>
    </message>
    <message>
        <source>Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.
Das Cover kann nicht gestaltet werden.</source>
        <translation>The high-quality leather cover comes in several colours.
The cover cannot be designed.</translation>
    </message>
    <message>
        <source>Der hochwertige Kunstleder-Einband ist in verschiedenen Farben erhältlich.
Das Cover kann nicht gestaltet werden.</source>
        <translation>The high-quality imitation leather cover comes in several colours.
The cover cannot be designed.</translation>
    </message>
    <message>
        <source>Individuell gestaltbarer flexibler Einband mit Rückstichbindung.</source>
        <translation>Flexible cover of your own design, saddle stitched.</translation>
    </message>
</context>
<context>
    <name>PxHumanReadable</name>
    <message>
        <source>Leinwand Ohne Rahmen</source>
        <translation>Canvas without frame</translation>
    </message>
    <message>
        <source>Poster Ohne Rahmen</source>
        <translation>Poster without frame</translation>
    </message>
    <message>
        <source>Unbekanntes Fotopapier</source>
        <translation>Unknown photo paper</translation>
    </message>
    <message>
        <source>Glänzend</source>
        <translation>Glossy</translation>
    </message>
    <message>
        <source>Matt</source>
        <translation>Matt</translation>
    </message>
    <message>
        <source>Seidenraster</source>
        <translation>Silk grain</translation>
    </message>
</context>
<context>
    <name>PxPaperType</name>
    <message>
        <source>Digitaldruck</source>
        <translation>Digital print</translation>
    </message>
    <message>
        <source>Digitaldruck mit Hochglanz-Veredelung</source>
        <translation>Digital print with high-gloss finish</translation>
    </message>
    <message>
        <source>Digitaldruck Premium-Matt</source>
        <translation>Digital print premium matt</translation>
    </message>
    <message>
        <source>Fotopapier matt</source>
        <translation>Photo paper matt</translation>
    </message>
    <message>
        <source>Fotopapier glänzend</source>
        <translation>Photo paper glossy</translation>
    </message>
    <message>
        <source>unbekannter Papiertyp</source>
        <translation>unknown type of paper</translation>
    </message>
</context>
<context>
    <name>PxProductMaterial</name>
    <message>
        <source>Poster-Collage</source>
        <translation>Poster collage</translation>
    </message>
    <message>
        <source>Fotoleinwand</source>
        <translation>Photo canvas</translation>
    </message>
    <message>
        <source>Poster auf Alu-Dibond</source>
        <translation>Poster on aluminium composite</translation>
    </message>
    <message>
        <source>Poster hinter Acryl-Glas</source>
        <translation>Poster behind acrylic glass</translation>
    </message>
    <message>
        <source>Poster auf Alu-Dibond (Direktdruck)</source>
        <translation>Poster on aluminium composite (direct print)</translation>
    </message>
    <message>
        <source>Poster hinter Acryl-Glas (Direktdruck)</source>
        <translation>Poster behind acrylic glass (direct print)</translation>
    </message>
    <message>
        <source>Posterdruck XXL</source>
        <translation>Poster print XXL</translation>
    </message>
    <message>
        <source>Posterdruck XXL Quadratisch</source>
        <translation>Poster print XXL square</translation>
    </message>
    <message>
        <source>Posterdruck XXL Panorama</source>
        <translation>Poster print XXL panorama</translation>
    </message>
    <message>
        <source>Poster auf Hartschaum (Direktdruck)</source>
        <translation>Poster on rigid foam (direct print)</translation>
    </message>
    <message>
        <source>Gallery Print</source>
        <translation>Gallery print</translation>
    </message>
</context>
<context>
    <name>PxProductVariantIdentifiers</name>
    <message>
        <source>Schwarz</source>
        <comment>Farbe für Tasse mit Innenfarbe</comment>
        <translation>Black</translation>
    </message>
    <message>
        <source>Blau</source>
        <comment>Farbe für Tasse mit Innenfarbe</comment>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Grün</source>
        <comment>Farbe für Tasse mit Innenfarbe</comment>
        <translation>Green</translation>
    </message>
    <message>
        <source>Gelb</source>
        <comment>Farbe für Tasse mit Innenfarbe</comment>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Rot</source>
        <comment>Farbe für Tasse mit Innenfarbe</comment>
        <translation>Red</translation>
    </message>
    <message>
        <source>Schwarz</source>
        <comment>Farbe für Messenger-Bag</comment>
        <translation>Black</translation>
    </message>
    <message>
        <source>Maus</source>
        <comment>Art des Tierchenanhängers</comment>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>Äffchen</source>
        <comment>Art des Tierchenanhängers</comment>
        <translation>Little monkey</translation>
    </message>
    <message>
        <source>Teddy</source>
        <comment>Art des Tierchenanhängers</comment>
        <translation>Teddy</translation>
    </message>
    <message>
        <source>Hund</source>
        <comment>Art des Tierchenanhängers</comment>
        <translation>Dog</translation>
    </message>
    <message>
        <source>liniert</source>
        <comment>Inlay des Collegeblocks</comment>
        <translation>ruled</translation>
    </message>
    <message>
        <source>kariert</source>
        <comment>Inlay des Collegeblocks</comment>
        <translation>squared</translation>
    </message>
    <message>
        <source>liniert</source>
        <comment>Inlay des Notitzbuchs</comment>
        <translation>ruled</translation>
    </message>
    <message>
        <source>kariert</source>
        <comment>Inlay des Notitzbuchs</comment>
        <translation>squared</translation>
    </message>
    <message>
        <source>blanko</source>
        <comment>Inlay des Notitzbuchs</comment>
        <translation>plain</translation>
    </message>
    <message>
        <source>Innenfarbe</source>
        <translation>Inside colour</translation>
    </message>
    <message>
        <source>Farbe</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Lineatur</source>
        <translation>Ruling</translation>
    </message>
    <message>
        <source>Schriftfarbe</source>
        <translation>Lettering colour</translation>
    </message>
</context>
<context>
    <name>PxSpaceMagnitude</name>
    <message>
        <source>Mini</source>
        <translation>Mini</translation>
    </message>
    <message>
        <source>Klein</source>
        <translation>Small</translation>
    </message>
    <message>
        <source>Compact</source>
        <translation>Compact</translation>
    </message>
    <message>
        <source>A5</source>
        <translation>A5</translation>
    </message>
    <message>
        <source>Quadratisch</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>XL</source>
        <translation>XL</translation>
    </message>
    <message>
        <source>XXL</source>
        <translation>XXL</translation>
    </message>
    <message>
        <source>Undefiniert</source>
        <translation>Undefined</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>cm</source>
        <comment>Abkürzung für Zentimeter</comment>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>Abkürzung für Zoll/Inch</comment>
        <translation>in</translation>
    </message>
    <message>
        <source>Bestellung vom %1</source>
        <translation>Order of %1</translation>
    </message>
    <message>
        <source>Masken</source>
        <translation>Masks</translation>
    </message>
    <message>
        <source>Rahmen</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>Alles anzeigen...</source>
        <translation>Show all...</translation>
    </message>
</context>
</TS>
