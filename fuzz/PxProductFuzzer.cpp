#include "PxFuzzedDirectory.h"

#include <PxAskEverything.h>

#include <description/PxProductTypeDescription.h>
#include <description/PxProductTypeDescriptionReader.h>

#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const PxFuzzedDirectory &directory = PxFuzzedDirectory::withFile("product.xml");
    PxProductTypeDescriptionReader reader{QDir(directory.path())};
    const std::unique_ptr<PxProductTypeDescription> description(
        reader.readFile(directory.write(data, size)).second);
    PxArguments arguments;
    arguments.longestList = 1000; // longer ones would take too long
    if (description)
        pxAskEverything(*description, arguments);
    return 0;
}
