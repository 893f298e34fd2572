// What the library says about its files goes into a log of its own, what it says for developers is
// dropped, and messages of anyone else go where they went before.
#include <PxProductProperties.h>

#include <QCoreApplication>
#include <QTextStream>

static QtMessageHandler ourPreviousHandler;

/** The sources of the library, and no others of this program, have names that begin with "Px". */
static bool isOfTheLibrary(const QMessageLogContext &context)
{
    const QString source = QString::fromUtf8(context.file).section(QLatin1Char('/'), -1);
    return source.startsWith(QLatin1String("Px"));
}

static void handle(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    if (level == QtFatalMsg || !isOfTheLibrary(context))
        ourPreviousHandler(level, context, text);
    else if (level != QtDebugMsg)
        QTextStream(stdout) << "catalogue: " << text << '\n';
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    ourPreviousHandler = qInstallMessageHandler(handle);
    PxProductPropertiesInitializer::setupModule(); // reads the product files
    qInfo("The catalogue has been read.");
}
