#pragma once

#include "themes/PxThematicCategory.h"
#include "values/PxJigType.h"

#include <QHash>

/** The category that is shown first for each kind of design element. */
using PxDefaultThematicCategories = QHash<PxJigType, PxThematicCategory>;
