#include "PxFuzzedDirectory.h"

#include <description/PxProductTypeDescription.h>

#include <QDomDocument>

// Only the default templates of the product depend on the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    PxFuzzedDirectory::withFile("CUP2.xml").write(data, size);
    QDomDocument product;
    product.setContent(QByteArrayLiteral("<product name='CUP2'/>"));
    const PxProductTypeDescription description(product.documentElement());
    for (const char *theme : {"normal", "hochzeit", ""}) {
        for (const PxPageTypeEnum pageType :
             {PxPageTypeNone, PxPageTypeNormalPage, PxPageTypeAll}) {
            const PxPageContext page(pageType, PxPageAlignmentLeft);
            for (const DefaultTemplateType type :
                 {DefaultTemplateTypeLayout, DefaultTemplateTypeBackground})
                description.findDefaultTemplate({QLatin1String(theme), page, type}, true, true);
        }
    }
    return 0;
}
