#pragma once

#include "commands/PxReportCommand.h"

/** The command "compatible": the products that are interchangeable with a given one. */
class PxCompatibleCommand : public PxReportCommand
{
public:
    PxCommandUsage usage() const override;
    Answer answer(const PxCommandLine &line) const override;
};
