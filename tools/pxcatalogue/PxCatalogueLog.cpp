#include "PxCatalogueLog.h"

#include "PxTerminal.h"

#include <QByteArray>
#include <QString>

namespace {

bool ourIsVerbose = false;

/** The reader of product files says at debug level only why it refused a file. */
bool isReasonOfRefusal(const QMessageLogContext &context)
{
    return QByteArray(context.function).contains("PxProductTypeDescriptionReader::readFile");
}

void print(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    if (level != QtDebugMsg)
        PxTerminal::printError(QLatin1String("warning: ") + text);
    else if (isReasonOfRefusal(context))
        PxTerminal::printError(QLatin1String("warning: the reason: ") + text);
    else if (ourIsVerbose)
        PxTerminal::printError(QLatin1String("debug: ") + text);
}

} // namespace

void PxCatalogueLog::install(bool isVerbose)
{
    ourIsVerbose = isVerbose;
    qInstallMessageHandler(print);
}
