#include "app/PxCatalogueLog.h"

#include "commands/PxExitStatus.h"
#include "writing/PxTerminal.h"

#include <QString>

#include <cstdlib>

namespace {

auto ourShown = PxCatalogueLog::Shown::Warnings;

/**
 * Whether a debug message explains a warning: the library writes such a message right after the
 * warning, from the same source file, to say why it refused a file.
 */
bool isReason(QtMsgType level, const QMessageLogContext &context)
{
    static thread_local const char *ourSourceOfWarning = nullptr;
    const bool isReason =
        level == QtDebugMsg && ourSourceOfWarning && qstrcmp(context.file, ourSourceOfWarning) == 0;
    ourSourceOfWarning = level == QtWarningMsg ? context.file : nullptr;
    return isReason;
}

void print(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    if (level == QtFatalMsg) {
        PxTerminal::printError("internal fault: " + text);
        std::_Exit(int(PxExitStatus::InternalFault)); // Qt would call abort()
    }
    if (ourShown == PxCatalogueLog::Shown::Nothing)
        return;
    if (isReason(level, context) || level != QtDebugMsg)
        PxTerminal::printError("warning: " + text);
    else if (ourShown == PxCatalogueLog::Shown::Everything)
        PxTerminal::printError("debug: " + text);
}

} // namespace

void PxCatalogueLog::install(Shown shown)
{
    ourShown = shown;
    qInstallMessageHandler(print);
}
