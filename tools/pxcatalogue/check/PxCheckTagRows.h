#pragma once

#include "check/PxCheckTag.h"

/** The rows of one subject. */
struct PxCheckTagRows
{
    const PxCheckTag *first;
    int count;
};

// One table, in parts by subject; each in the file of its name.
PxCheckTagRows fileTagRows();
PxCheckTagRows vocabularyTagRows();
PxCheckTagRows productTagRows();
PxCheckTagRows layoutTagRows();
PxCheckTagRows designTagRows();
PxCheckTagRows catalogueTagRows();
PxCheckTagRows themeTagRows();
