#include "commands/PxReportCommand.h"

#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

PxExitStatus PxReportCommand::run(const PxCommandLine &line) const
{
    if (const auto problem = PxCatalogueDirectories::apply(line))
        return fail(*problem);
    PxProductPropertiesInitializer::setupModule();
    const Answer answer = this->answer(line);
    if (answer.wrongUsage)
        return fail(*answer.wrongUsage);
    const auto write = [&](const PxReport &report) {
        if (answer.isJson || line.isSet("json"))
            return PxTerminal::write(report.json());
        return PxTerminal::write(report.text(PxTerminal::columns(PxTerminal::unlimited)));
    };
    if ((answer.report && !write(*answer.report)) ||
        (answer.lines && !PxTerminal::write(*answer.lines)))
        return PxExitStatus::CannotRun;
    if (!answer.no)
        return PxExitStatus::Done;
    PxTerminal::printError(answer.no->text);
    return PxExitStatus::AnswerIsNo;
}
