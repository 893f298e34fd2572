#pragma once

/**
 * The enumerations that the library shares with the rest of the application, each with its keyword
 * map. The keys of the maps are upper-cased keywords. The maps are filled during static
 * initialisation, then only read, and never destroyed, so that static destructors can use them.
 */
#include "PxAssemblyWay.h"
#include "PxImageFXs.h"
#include "PxPageAlignment.h"
#include "PxPageNamingStyle.h"
#include "PxProductGroupEnum.h"
#include "PxSurroundingType.h"
#include "PxTemplateTarget.h"
