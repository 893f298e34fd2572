#pragma once

#include "commands/PxReportCommand.h"

/** The command "variants": the variants of one product, with their names. */
class PxVariantsCommand : public PxReportCommand
{
public:
    PxCommandUsage usage() const override;
    Answer answer(const PxCommandLine &line) const override;
};
