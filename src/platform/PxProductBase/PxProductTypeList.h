#pragma once

#include "PxProductType.h"

#include <QList>

/** Product types in an order that the function says which returns them. */
using PxProductTypeList = QList<PxProductType>;
