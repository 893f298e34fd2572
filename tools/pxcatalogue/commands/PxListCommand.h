#pragma once

#include "commands/PxReportCommand.h"

/** The command "list": a table of the products. */
class PxListCommand : public PxReportCommand
{
public:
    PxCommandUsage usage() const override;

protected:
    Answer answer(const PxCommandLine &line) const override;
};
