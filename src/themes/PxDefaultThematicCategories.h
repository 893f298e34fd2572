#pragma once

#include "themes/PxThematicCategory.h"
#include "values/PxJigType.h"

#include <QHash>

/** For each kind of design element, the category that is shown first. */
using PxDefaultThematicCategories = QHash<PxJigType, PxThematicCategory>;
