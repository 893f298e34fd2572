// Shows what the product files of a catalogue say, as the library understands them.
#include "app/PxCatalogue.h"

#include "writing/PxTerminal.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    PxTerminal::prepare();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("pxcatalogue"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PX_CATALOGUE_VERSION));
    return PxCatalogue(QCoreApplication::arguments()).run();
}
