#include "PxFuzzedDirectory.h"

#include <PxAskEverything.h>

#include <description/PxProductTypeDescription.h>

#include <QDomDocument>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    PxFuzzedDirectory::withFile("CUP2.xml").write(data, size);
    QDomDocument product;
    product.setContent(QByteArrayLiteral("<product name='CUP2'/>"));
    pxAskEverything(PxProductTypeDescription(product.documentElement()));
    return 0;
}
