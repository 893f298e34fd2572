#pragma once

#include "check/findings/PxCheckTag.h"
#include "format/PxFormatRows.h"

// The table of tags, in one part for each subject.
PxRows<PxCheckTag> fileTagRows();
PxRows<PxCheckTag> formatTagRows();
PxRows<PxCheckTag> productTagRows();
PxRows<PxCheckTag> layoutTagRows();
PxRows<PxCheckTag> designTagRows();
PxRows<PxCheckTag> catalogueTagRows();
PxRows<PxCheckTag> themeTagRows();
