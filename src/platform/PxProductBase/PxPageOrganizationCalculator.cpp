#include "PxPageOrganizationCalculator.h"

PxPageOrganizationCalculator::~PxPageOrganizationCalculator() = default;
