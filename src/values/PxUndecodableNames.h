#pragma once

#include "PxProductPropertiesExport.h"

class QString;

/**
 * XML files whose names are not valid in the encoding of the locale; old archives may leave such
 * files.
 *
 * QDir does not list them and no QString can name them, so they would be ignored silently.
 */
namespace PxUndecodableNames {

/** The number of such files directly in a directory. */
PXPRODUCTPROPERTIES_EXPORT int count(const QString &directory);

/** Logs one warning if there are any. */
void warn(const QString &directory);

} // namespace PxUndecodableNames
