#pragma once

#include "commands/PxCommand.h"

/** The command "draw": a product as drawings of its sheets, at true scale. */
class PxDrawCommand : public PxCommand
{
public:
    PxCommandUsage usage() const override;
    bool needsFonts(const PxCommandLine &line) const override;
    PxExitStatus run(const PxCommandLine &line) const override;
};
