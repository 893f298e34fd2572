#include "PxCatalogueLog.h"

#include "PxTerminal.h"

#include <QString>

#include <cstdlib>

namespace {

auto ourShown = PxCatalogueLog::Shown::Warnings;

/** The library says at debug level only why it refused a file. */
bool isReasonOfRefusal(const QMessageLogContext &context)
{
    return qstrcmp(context.function, "pxLogReason") == 0;
}

void print(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    if (level == QtFatalMsg) {
        PxTerminal::printError(QLatin1String("internal fault: ") + text);
        std::_Exit(3); // Qt would abort, which says less
    }
    if (ourShown == PxCatalogueLog::Shown::Nothing)
        return;
    if (level != QtDebugMsg)
        PxTerminal::printError(QLatin1String("warning: ") + text);
    else if (isReasonOfRefusal(context))
        PxTerminal::printError(QLatin1String("warning: the reason: ") + text);
    else if (ourShown == PxCatalogueLog::Shown::Everything)
        PxTerminal::printError(QLatin1String("debug: ") + text);
}

} // namespace

void PxCatalogueLog::install(Shown shown)
{
    ourShown = shown;
    qInstallMessageHandler(print);
}
