#include "description/PxProductPropertiesInitializer.h"

#include "description/PxPageOrganizationCalculatorProductConfig.h"
#include "description/PxProductTypeConfigRegistry.h"

#include <PxPageOrganizationManager.h>
#include <PxProductCheckerRegistry.h>

PxProductPropertiesInitializer::~PxProductPropertiesInitializer() = default;

bool PxProductPropertiesInitializer::setupModule()
{
    PxPageOrganizationManager::instance()->addCalculator(
        new PxPageOrganizationCalculatorProductConfig);
    return PxProductCheckerRegistry::instance()->registerChecker(
        PxProductTypeConfigRegistry::instance());
}

void PxProductPropertiesInitializer::teardownModule() {}
