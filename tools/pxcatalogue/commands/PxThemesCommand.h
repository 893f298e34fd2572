#pragma once

#include "commands/PxReportCommand.h"

/** The command "themes": a table of the design themes. */
class PxThemesCommand : public PxReportCommand
{
public:
    PxCommandUsage usage() const override;
    Answer answer(const PxCommandLine &line) const override;
};
