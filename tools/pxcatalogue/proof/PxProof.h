#pragma once

#include "writing/PxProblem.h"

#include <optional>

class PxProofFolder;
struct PxProofCatalogue;

/** Writes a catalogue as pages for a browser. */
class PxProof
{
public:
    static std::optional<PxProblem> write(const PxProofCatalogue &catalogue,
                                          const PxProofFolder &folder);
};
