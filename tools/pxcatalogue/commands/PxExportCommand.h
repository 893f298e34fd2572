#pragma once

#include "commands/PxCommand.h"

/** The command "export": the whole catalogue as JSON Lines. */
class PxExportCommand : public PxCommand
{
public:
    PxCommandUsage usage() const override;
    bool dependsOnLocale() const override { return false; }
    PxExitStatus run(const PxCommandLine &line) const override;
};
