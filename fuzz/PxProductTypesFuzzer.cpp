#include "PxFuzzedDirectory.h"

#include <PxProductTypeCatalogue.h>

#include <limits>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const PxProductTypeCatalogue catalogue(
        PxFuzzedDirectory::withFile("producttypes.xml").write(data, size));
    for (int code : {std::numeric_limits<int>::min(), -1, 0, 1, 101}) {
        const PxProductTypeEntry *entry = catalogue.find(code);
        if (entry && !catalogue.find(entry->name))
            qFatal("a row is found by its code only");
    }
    catalogue.find(QString::fromUtf8(reinterpret_cast<const char *>(data), int(size)));
    return 0;
}
