#pragma once

#include "format/PxFormatRows.h"

// The document elements with everything below them; each kind is defined in the file of its name.
extern const PxElementRow productFileRow;
extern const PxElementRow userDefaultsFileRow;
extern const PxElementRow themeFileRow;
extern const PxElementRow productTypesFileRow;
extern const PxElementRow framesFileRow;
