#include "PxFuzzedDirectory.h"

#include <PxAskEverything.h>

#include <description/PxProductTypeDescription.h>

#include <QDomDocument>

// Only the default templates of the product depend on the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    PxFuzzedDirectory::withFile("CUP2.xml").write(data, size);
    QDomDocument product;
    product.setContent(QByteArrayLiteral("<product name='CUP2'/>"));
    const PxProductTypeDescription description(product.documentElement());
    PxArguments arguments;
    arguments.pages = {};
    arguments.pageCounts = {};
    pxAskEverything(description, arguments);
    return 0;
}
