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
    const auto write = [&line](const PxReport &report) {
        return line.isSet("json") ? PxTerminal::write(report.json())
                                  : PxTerminal::write(report.text(PxTerminal::columns()));
    };
    if (answer.report && !write(*answer.report))
        return PxExitStatus::CannotRun;
    if (!answer.no)
        return PxExitStatus::Done;
    PxTerminal::printError(answer.no->text);
    return PxExitStatus::AnswerIsNo;
}
