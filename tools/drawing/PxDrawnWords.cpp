#include "drawing/PxDrawnWords.h"

#include <QCoreApplication>
#include <QStringList>

#include <iterator>

namespace {

constexpr const char *itemNames[] = {
    // in the order of PxDrawnItem
    QT_TRANSLATE_NOOP("PxDrawnWords", "Datenformat"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Beschnittzugabe"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Endformat"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Sicherer Bereich"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Runder Zuschnitt"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Rückenkante"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Schrift auf dem Rücken"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Falz"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Falzbereich"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Klemmbereich"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Bild über dem Inhalt"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Bild unter dem Inhalt"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Barcode"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Seitenzahl"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Spirale"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Aufhänger"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Loch"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Schneid- und Falzmarken"),
};

constexpr const char *roles[] = {
    // in the order of PxDrawnPage::Role
    QT_TRANSLATE_NOOP("PxDrawnWords", "Rückseite"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Rücken"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Vorderseite"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Linke Seite"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Rechte Seite"),
    QT_TRANSLATE_NOOP("PxDrawnWords", "Seite"),
};

constexpr struct
{
    PxPageTypeEnum type;
    const char *text;
} kindsOfPages[] = {
    {PxPageTypeClampCoverFront, QT_TRANSLATE_NOOP("PxDrawnWords", "Vorderer Klemmdeckel")},
    {PxPageTypeClampCoverBack, QT_TRANSLATE_NOOP("PxDrawnWords", "Hinterer Klemmdeckel")},
    {PxPageTypeFoilCover, QT_TRANSLATE_NOOP("PxDrawnWords", "Foliendeckel")},
    {PxPageTypeEmptyPage, QT_TRANSLATE_NOOP("PxDrawnWords", "Leerseite")},
    {PxPageTypeCalendarCoverFront, QT_TRANSLATE_NOOP("PxDrawnWords", "Deckblatt")},
    {PxPageTypeCalendarCoverBack, QT_TRANSLATE_NOOP("PxDrawnWords", "Rückblatt")},
    {PxPageTypeCromolinen, QT_TRANSLATE_NOOP("PxDrawnWords", "Leineneinband")},
    {PxPageTypeLeather, QT_TRANSLATE_NOOP("PxDrawnWords", "Ledereinband")},
    {PxPageTypeArtificialLeather, QT_TRANSLATE_NOOP("PxDrawnWords", "Kunstledereinband")},
};

constexpr struct
{
    const char *key;
    const char *text;
} notes[] = {
    // in the order of PxDrawnNote
    {"count-unknown",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Welche Seitenzahlen angeboten werden, steht in keiner "
                                       "Datei.")},
    {"bleed-negative",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Die Beschnittzugabe ist negativ: Das Datenformat liegt "
                                       "innerhalb des Endformats.")},
    {"bleed-one-sided",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Die Seite hat nicht an jedem Rand Beschnittzugabe: Beim "
                                       "Schneiden kann ein weißer Rand bleiben.")},
    {"safe-empty",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Der Sicherheitsabstand lässt keinen sicheren Bereich "
                                       "übrig.")},
    {"spine-zero", QT_TRANSLATE_NOOP("PxDrawnWords", "Der Rücken hat keine Breite.")},
    {"heights-differ",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Die Seiten sind verschieden hoch; sie stehen mittig "
                                       "nebeneinander.")},
    {"margin-too-wide",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Ein Falz- oder Klemmbereich ist so breit wie die Seite "
                                       "oder breiter.")},
    {"item-outside",
     QT_TRANSLATE_NOOP("PxDrawnWords",
                       "Ein Bild, ein Barcode, eine Schrift oder eine Seitenzahl ragt "
                       "über das Datenformat oder den Rücken hinaus.")},
    {"item-cut", QT_TRANSLATE_NOOP("PxDrawnWords",
                                   "Ein Bild, ein Barcode oder eine Seitenzahl liegt weiter außen, "
                                   "als hier Platz ist: Gezeichnet ist höchstens ein Teil; "
                                   "wo es liegt, sagt die Legende.")},
    {"item-empty",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Ein Bild oder Barcode hat keine Fläche und ist nicht "
                                       "gezeichnet.")},
    {"spiral-shortened",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Die Spirale hat mehr Schlaufen, als gezeichnet sind.")},
    {"vertical-spine",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Die Seiten liegen übereinander; sie sind einzeln "
                                       "gezeichnet.")},
    {"theme-invalid",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Das Thema wird für dieses Produkt nicht angeboten.")},
    {"theme-logo",
     QT_TRANSLATE_NOOP("PxDrawnWords", "Zum Thema gehört ein Logo; auf welcher Seite es gedruckt "
                                       "wird, steht in keiner Datei.")},
};
static_assert(std::size(itemNames) == std::size_t(PxDrawnItem::Marks) + 1);
static_assert(std::size(roles) == std::size_t(PxDrawnPage::Role::Page) + 1);
static_assert(std::size(notes) == std::size_t(PxDrawnNote::ThemeLogo) + 1);

QString translated(const char *text)
{
    return QCoreApplication::translate("PxDrawnWords", text);
}

/** Characters that end a line: blanks take their places. */
bool isLineBreak(ushort unit)
{
    return unit == '\n' || unit == '\r' || unit == 0x2028 || unit == 0x2029;
}

/** Also those that no XML file may contain. */
bool isControl(ushort unit)
{
    return unit < 0x20 || (unit >= 0x7F && unit <= 0x9F) || (unit >= 0x200B && unit <= 0x200F) ||
           (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069) ||
           unit == 0xFEFF || unit >= 0xFFFE;
}

bool isHalf(const QString &text, int index)
{
    const QChar unit = text[index];
    if (unit.isHighSurrogate())
        return index + 1 == text.size() || !text[index + 1].isLowSurrogate();
    return unit.isLowSurrogate() && (index == 0 || !text[index - 1].isHighSurrogate());
}

/** How many numbers from `start` follow each other in steps of `step`. */
int runLength(const QVector<int> &numbers, int start, int step)
{
    int length = 1;
    while (start + length < numbers.size() &&
           qint64(numbers[start + length]) - numbers[start + length - 1] == step)
        ++length;
    return length;
}

} // namespace

QString PxDrawnWords::visible(const QString &text)
{
    QString visible = text;
    visible.replace("\r\n", " ");
    for (int i = 0; i < visible.size(); ++i) {
        const ushort unit = visible[i].unicode();
        if (isLineBreak(unit))
            visible[i] = ' ';
        else if (isControl(unit) || isHalf(visible, i))
            visible[i] = QChar::ReplacementCharacter;
    }
    return visible;
}

QString PxDrawnWords::decimalSeparator()
{
    return QCoreApplication::translate("PxDrawnWords", ",", "decimal separator");
}

QString PxDrawnWords::number(qint64 length)
{
    const qint64 size = qAbs(length);
    QString text = QString::number(size / 10);
    if (length < 0)
        text.prepend(QChar(0x2212));
    if (size % 10 != 0) {
        text += decimalSeparator();
        text += QChar('0' + int(size % 10));
    }
    return text;
}

QString PxDrawnWords::length(qint64 length)
{
    return number(length) + " mm";
}

QString PxDrawnWords::size(const QSize &size)
{
    return number(size.width()) + QStringLiteral(" × ") + length(size.height());
}

QString PxDrawnWords::pageNumbers(const QVector<int> &pages)
{
    QStringList parts;
    for (int i = 0; i < pages.size();) {
        const int step = i + 1 < pages.size() ? pages[i + 1] - pages[i] : 1;
        const int length = runLength(pages, i, step);
        const QString first = QString::number(pages[i]);
        if (step == 1 && length > 1) {
            parts.append(first + '-' + QString::number(pages[i + length - 1]));
            i += length;
        } else if (length > 3) {
            parts.append(first);
            parts.append(QString::number(pages[i + 1]) + QStringLiteral(" … ") +
                         QString::number(pages[i + length - 1]));
            i += length;
        } else {
            parts.append(first);
            ++i;
        }
    }
    return parts.join(QStringLiteral(", "));
}

QString PxDrawnWords::pages(const QVector<int> &pages)
{
    if (pages.isEmpty())
        return QString();
    const QString text = pages.size() == 1
                             ? QCoreApplication::translate("PxDrawnWords", "Seite %1")
                             : QCoreApplication::translate("PxDrawnWords", "Seiten %1");
    return text.arg(pageNumbers(pages));
}

QString PxDrawnWords::pageCount(int count)
{
    if (count == 1)
        return QCoreApplication::translate("PxDrawnWords", "1 Seite");
    return QCoreApplication::translate("PxDrawnWords", "%1 Seiten").arg(count);
}

QString PxDrawnWords::heading(const PxDrawnSheet &sheet)
{
    QString kind;
    if (sheet.kind == PxDrawnSheet::Kind::Spread)
        kind = QCoreApplication::translate("PxDrawnWords", "Doppelseite");
    else if (sheet.kind == PxDrawnSheet::Kind::Cover)
        kind = QCoreApplication::translate("PxDrawnWords", "Umschlag");
    else if (!sheet.pages.isEmpty() && sheet.pages.constFirst().role == PxDrawnPage::Role::Spine)
        kind = role(sheet.pages.constFirst());
    else if (!sheet.pages.isEmpty())
        kind = kindOfPage(sheet.pages.constFirst());
    if (sheet.standsFor.isEmpty())
        return kind.isEmpty() && !sheet.pages.isEmpty() ? role(sheet.pages.constFirst()) : kind;
    if (kind.isEmpty())
        return pages(sheet.standsFor);
    const QString text = sheet.standsFor.size() == 1
                             ? QCoreApplication::translate("PxDrawnWords", "%1, Seite %2")
                             : QCoreApplication::translate("PxDrawnWords", "%1, Seiten %2");
    return text.arg(kind, pageNumbers(sheet.standsFor));
}

QString PxDrawnWords::role(const PxDrawnPage &page)
{
    return translated(roles[std::size_t(page.role)]);
}

QString PxDrawnWords::kindOfPage(const PxDrawnPage &page)
{
    for (const auto &row : kindsOfPages) {
        if (page.context.isPageType(row.type))
            return translated(row.text);
    }
    return {};
}

QVector<int> PxDrawnWords::pagesLike(const PxDrawnSheet &sheet, int indexOfPage)
{
    // All sheets of one look have as many pages, which follow each other.
    QVector<int> pages;
    for (int i = indexOfPage; i < sheet.standsFor.size(); i += sheet.pages.size())
        pages.append(sheet.standsFor[i]);
    return pages;
}

QString PxDrawnWords::item(PxDrawnItem item)
{
    return translated(itemNames[std::size_t(item)]);
}

QByteArray PxDrawnWords::keyOfNote(PxDrawnNote note)
{
    return notes[std::size_t(note)].key;
}

QString PxDrawnWords::note(PxDrawnNote note)
{
    return translated(notes[std::size_t(note)].text);
}
