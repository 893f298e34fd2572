// Writes a catalogue for measurements: generate DIRECTORY [PRODUCTS [THEMES]].
#include "PxCatalogueGenerator.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int productCount = arguments.value(2, QStringLiteral("1000")).toInt();
    const int themeCount = arguments.value(3, QStringLiteral("100")).toInt();
    if (arguments.size() < 2 || productCount <= 0 || themeCount < 0) {
        fputs("usage: generate DIRECTORY [PRODUCTS [THEMES]]\n", stderr);
        return 2;
    }
    if (PxCatalogueGenerator().generate(QDir(arguments[1]), productCount, themeCount))
        return 0;
    fprintf(stderr, "generate: cannot write to \"%s\"\n", qPrintable(arguments[1]));
    return 2;
}
