#include "PxFuzzedDirectory.h"

#include <PxAskEverything.h>

#include <themes/PxThemeFactory.h>

#include <QDir>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const PxFuzzedDirectory &file = PxFuzzedDirectory::withFile("themes.xml");
    file.write(data, size);
    QDir directory(file.path());
    PxThemeFactory factory;
    PxThemeList themes = factory.loadThemeList(directory);
    for (const PxTheme &theme : qAsConst(themes))
        pxAskEverything(theme);
    themes.appendUnique(factory.findThemes(themes.asCommaSeparatedIDList()));
    themes.normalize();
    factory.findThemesWhichAcceptNormalBackgrounds().filter(1000, true);
    return 0;
}
