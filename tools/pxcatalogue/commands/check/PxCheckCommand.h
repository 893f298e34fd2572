#pragma once

#include "commands/PxCommand.h"

/** The command "check": finds the files, runs the checks and prints the findings. */
class PxCheckCommand : public PxCommand
{
public:
    PxCommandUsage usage() const override;
    /** No: findings say the same, with the place in the file. */
    bool showsWarnings() const override { return false; }
    PxExitStatus run(const PxCommandLine &line) const override;
};
