#pragma once

#include "commands/PxReportCommand.h"

/** The command "show": everything that is known about one product. */
class PxShowCommand : public PxReportCommand
{
public:
    PxCommandUsage usage() const override;

protected:
    Answer answer(const PxCommandLine &line) const override;
};
