#pragma once

#include "drawing/PxDrawnStyle.h"
#include "drawing/PxSheetRoom.h"

#include <QString>
#include <QVector>

struct PxLegendRow
{
    PxDrawnItem item;
    QString key; ///< the letter on the sheet; empty for none
    QString text;
};

/** A row for each thing that occurs on the sheet and is shown, in the order of PxDrawnItem. */
QVector<PxLegendRow> pxLegendRows(const PxSheetRoom &room);

/** The distance of the safe area from the trimmed edges in words; empty if there is none. */
QString pxSafetyMargins(const PxDrawnSheet &sheet);
/** What is printed, with bleed. */
QSize pxTotalSize(const PxDrawnSheet &sheet);
