#pragma once

#include "commands/PxCommand.h"

/** Says whether a product is offered, allowed, compatible …, and which rule decides. */
class PxWhyCommand : public PxCommand
{
public:
    PxCommandUsage usage() const override;
    PxExitStatus run(const PxCommandLine &line) const override;
};
