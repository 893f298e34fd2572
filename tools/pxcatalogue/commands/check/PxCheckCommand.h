#pragma once

#include "commands/PxCommand.h"

/** The command "check": finds the files, runs the checks and prints what they found. */
class PxCheckCommand : public PxCommand
{
public:
    PxCommandUsage usage() const override;
    /** What the library complains about the checks find, too, and say better. */
    bool showsWarnings() const override { return false; }
    PxExitStatus run(const PxCommandLine &line) const override;
};
