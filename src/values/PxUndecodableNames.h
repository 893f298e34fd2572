#pragma once

#include "PxProductPropertiesExport.h"

class QString;

/**
 * XML files whose names are no text in the encoding of the locale, as an old archive leaves them.
 *
 * QDir lists none of them, and no path leads to one, so that they would vanish without a word.
 */
namespace PxUndecodableNames {

/** How many there are directly in a directory. */
PXPRODUCTPROPERTIES_EXPORT int count(const QString &directory);

/** Logs one warning if there are any. */
void warn(const QString &directory);

} // namespace PxUndecodableNames
