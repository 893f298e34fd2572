// Writes a catalogue for measurements: PxGenerate DIRECTORY [PRODUCTS [THEMES [rich]]].
#include "PxCatalogueGenerator.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const bool isRich = arguments.value(4) == QLatin1String("rich");
    PxCatalogueShape shape = isRich ? PxCatalogueShape::rich() : PxCatalogueShape();
    shape.products = arguments.value(2, QStringLiteral("1000")).toInt();
    shape.themes = arguments.value(3, QStringLiteral("100")).toInt();
    if (arguments.size() < 2 || shape.products <= 0 || shape.themes < 0) {
        fputs("usage: PxGenerate DIRECTORY [PRODUCTS [THEMES [rich]]]\n", stderr);
        return 2;
    }
    if (PxCatalogueGenerator(shape).generate(QDir(arguments[1])))
        return 0;
    fprintf(stderr, "generate: cannot write to \"%s\"\n", qPrintable(arguments[1]));
    return 2;
}
