#pragma once

#include "check/findings/PxCheckTag.h"
#include "format/PxFormatRows.h"

// One table, in parts by subject; each in the file of its name.
PxRows<PxCheckTag> fileTagRows();
PxRows<PxCheckTag> formatTagRows();
PxRows<PxCheckTag> productTagRows();
PxRows<PxCheckTag> layoutTagRows();
PxRows<PxCheckTag> designTagRows();
PxRows<PxCheckTag> catalogueTagRows();
PxRows<PxCheckTag> themeTagRows();
