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

QVector<PxOption> PxCommandUsage::allOptions() const
{
    const int refused = hasCatalogues ? PxOption::ofCatalogue().size() : 0;
    return options + PxOption::ofEveryCommand().mid(refused);
}

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

const PxCommand *PxCommand::find(const QString &name)
{
    for (const PxCommand *command : all()) {
        if (name == command->usage().name)
            return command;
    }
    return nullptr;
}

QString PxCommand::purposeOfAll()
{
    return "Shows the products of a catalogue as the product properties library understands\n"
           "their files.";
}

QString PxCommand::exitStatusOfAll()
{
    return "0 done; 1 the answer is \"no\", as when there is no such product or theme, or several "
           "fit; the help of a command names its further reasons; 2 wrong usage, a directory or a "
           "producttypes.xml that cannot be read, or output that cannot be written; 3 an internal "
           "fault of the program.";
}

PxExitStatus PxCommand::fail(const PxProblem &problem)
{
    PxTerminal::printError(problem.text);
    return PxExitStatus::CannotRun;
}
