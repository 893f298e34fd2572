#pragma once

#include "commands/PxCommand.h"

/** Writes the catalogue as a folder of pages for a browser. */
class PxProofCommand : public PxCommand
{
public:
    PxCommandUsage usage() const override;
    bool needsFonts(const PxCommandLine &line) const override; ///< it has images
    bool showsWarnings() const override { return false; } ///< pages have the findings of the check
    bool dependsOnLocale() const override { return false; }
    PxExitStatus run(const PxCommandLine &line) const override;
};
