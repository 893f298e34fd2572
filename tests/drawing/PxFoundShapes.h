#pragma once

#include "drawing/PxSheetGeometry.h"

#include <QRectF>
#include <QString>
#include <QVector>

/** A shape of a sheet, where it lies on the sheet. */
struct PxFoundShape
{
    int page = -1; ///< the number of the panel around it; -1 for none
    QString role;
    QRectF rect; ///< around all its points
    PxDrawnShape shape;

    QString attribute(const char *name) const;
};

/** The shapes of this class in the geometry of a sheet, from the lowest. */
QVector<PxFoundShape> pxFindShapes(const PxDrawnSheet &sheet, std::string_view className,
                                   double annotation = 10);
/** How many points all shapes of the sheet have together. */
int pxCountPoints(const PxDrawnSheet &sheet);
