#pragma once

#include "PxProductType.h"

#include <QList>

using PxProductTypeList = QList<PxProductType>;
