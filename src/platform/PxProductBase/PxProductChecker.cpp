#include "PxProductChecker.h"

PxProductChecker::~PxProductChecker() = default;
