#pragma once

#include "format/PxFormatRows.h"

// The document element of each kind of file, with everything below it.
extern const PxElementRow productFileRow;
extern const PxElementRow userDefaultsFileRow;
extern const PxElementRow themeFileRow;
extern const PxElementRow productTypesFileRow;
extern const PxElementRow framesFileRow;
