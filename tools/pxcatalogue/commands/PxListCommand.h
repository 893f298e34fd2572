#pragma once

#include "commands/PxReportCommand.h"

/** The command "list": a table of the products. */
class PxListCommand : public PxReportCommand
{
public:
    PxCommandUsage usage() const override;
    Answer answer(const PxCommandLine &line) const override;
};
