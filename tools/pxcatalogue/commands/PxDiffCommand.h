#pragma once

#include "commands/PxCommand.h"

/** The command "diff": how two catalogues differ. */
class PxDiffCommand : public PxCommand
{
public:
    PxCommandUsage usage() const override;
    bool dependsOnLocale() const override { return false; }
    PxExitStatus run(const PxCommandLine &line) const override;
};
