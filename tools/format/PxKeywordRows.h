#pragma once

#include "format/PxFormatRows.h"

/** All keyword tables, in the order of the documentation. */
PxRows<PxKeywordSetRow> keywordSetRows();
