#pragma once

#include <QStringList>

/** The families of the texts; the first one that a machine has is used. */
inline QStringList pxDrawnFontFamilies()
{
    return {"Arial", "Helvetica", "sans-serif"};
}
