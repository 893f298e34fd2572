#pragma once

#include "commands/PxCommand.h"

/** The command "check": finds the files, runs the checks and prints what they found. */
class PxCheckCommand : public PxCommand
{
public:
    PxCommandUsage usage() const override;
    /** No: the findings say the same, with the place. */
    bool showsWarnings() const override { return false; }
    PxExitStatus run(const PxCommandLine &line) const override;
};
