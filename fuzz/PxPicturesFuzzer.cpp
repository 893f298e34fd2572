#include "PxFuzzedDirectory.h"

#include <themes/PxPictureData.h>
#include <themes/PxThemeImages.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const PxFuzzedDirectory &file = PxFuzzedDirectory::withFile("picture");
    const QString path = file.write(data, size).filePath();
    const PxThemeImages::Result result = PxThemeImages().find(path);
    if (result.image.isNull() && result.fault.isEmpty())
        qFatal("no reason");
    if (!result.image.isNull() && !result.fault.isEmpty() && !result.isCutOff)
        qFatal("shown in spite of its fault");
    if (qint64(result.image.width()) * result.image.height() > PxPictureData::maximumPixels)
        qFatal("larger than it was measured");
    return 0;
}
