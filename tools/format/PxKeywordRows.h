#pragma once

#include "format/PxVocabularyRows.h"

/** All keyword tables, in the order of the documentation. */
PxRows<PxKeywordSetRow> keywordSetRows();
