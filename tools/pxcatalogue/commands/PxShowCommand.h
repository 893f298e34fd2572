#pragma once

#include "commands/PxReportCommand.h"

/** The command "show": everything that is known about one product. */
class PxShowCommand : public PxReportCommand
{
public:
    PxCommandUsage usage() const override;
    Answer answer(const PxCommandLine &line) const override;
};
