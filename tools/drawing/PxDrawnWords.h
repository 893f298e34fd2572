#pragma once

#include "drawing/PxDrawnProduct.h"
#include "drawing/PxDrawnStyle.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QVector>

/**
 * What drawings say, in the language of the installed translation: German without one.
 *
 * Numbers follow that language too, not the locale of the system.
 */
namespace PxDrawnWords {

/**
 * A text of unknown origin as it may be shown: in one line, with U+FFFD for each character that
 * controls something, such as the direction of what follows.
 */
QString visible(const QString &text);

/** "," */
QString decimalSeparator();
/** A length in millimetres, without unit: "9,4". */
QString number(qint64 length);
/** A length with its unit: "9,4 mm". */
QString length(qint64 length);
/** "210 × 297 mm" */
QString size(const QSize &size);
/** Ascending page numbers: "0-2, 5, 7 … 27". */
QString pageNumbers(const QVector<int> &pages);
/** "Seite 5", "Seiten 5-28", empty for none */
QString pages(const QVector<int> &pages);
/** "26 Seiten" */
QString pageCount(int count);

/** What kind of sheet it is, and for which pages it stands, if any: "Umschlag, Seiten 0-2". */
QString heading(const PxDrawnSheet &sheet);
/** "Linke Seite" */
QString role(const PxDrawnPage &page);
/** What kind of page it is; empty where that is plain. */
QString kindOfPage(const PxDrawnPage &page);
/** The numbers of all pages for which one on the sheet stands. */
QVector<int> pagesLike(const PxDrawnSheet &sheet, int indexOfPage);

/** How the legend calls an item: "Endformat". */
QString item(PxDrawnItem item);

/** The name of a note for programs: "spine-zero". */
QByteArray keyOfNote(PxDrawnNote note);
QString note(PxDrawnNote note);

} // namespace PxDrawnWords
