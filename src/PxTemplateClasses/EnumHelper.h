#pragma once

/**
 * The enumerations that the library shares with the rest of the application, each with its keyword
 * map. The maps are keyed by upper-cased keywords, filled during static initialisation, only read
 * afterwards and never destroyed: static destructors may still ask for them.
 */
#include "PxAssemblyWay.h"
#include "PxImageFXs.h"
#include "PxPageAlignment.h"
#include "PxPageNamingStyle.h"
#include "PxProductGroupEnum.h"
#include "PxSurroundingType.h"
#include "PxTemplateTarget.h"
