#pragma once

#include "writing/PxJsonLine.h"

#include <functional>
#include <optional>

/**
 * Returns the next line, or nothing after the last one. Each line is made when the one before is
 * written, so that together they may be larger than the memory.
 */
using PxJsonLines = std::function<std::optional<PxJsonLine>()>;
