#include "commands/PxCommand.h"

#include "commands/PxCompatibleCommand.h"
#include "commands/PxDiffCommand.h"
#include "commands/PxDrawCommand.h"
#include "commands/PxExportCommand.h"
#include "commands/PxListCommand.h"
#include "commands/PxProofCommand.h"
#include "commands/PxShowCommand.h"
#include "commands/PxThemesCommand.h"
#include "commands/PxVariantsCommand.h"
#include "commands/PxWhyCommand.h"
#include "commands/check/PxCheckCommand.h"
#include "writing/PxTerminal.h"

namespace {

template <typename COMMAND>
const PxCommand *command()
{
    static const COMMAND ourCommand;
    return &ourCommand;
}

} // namespace

PxCommand::~PxCommand() = default;

QVector<const PxCommand *> PxCommand::all()
{
    return {
        command<PxListCommand>(),  command<PxShowCommand>(),       command<PxWhyCommand>(),
        command<PxDrawCommand>(),  command<PxCompatibleCommand>(), command<PxThemesCommand>(),
        command<PxCheckCommand>(), command<PxVariantsCommand>(),   command<PxExportCommand>(),
        command<PxDiffCommand>(),  command<PxProofCommand>(),
    };
}

PxExitStatus PxCommand::fail(const PxProblem &problem)
{
    PxTerminal::printError(problem.text);
    return PxExitStatus::CannotRun;
}
