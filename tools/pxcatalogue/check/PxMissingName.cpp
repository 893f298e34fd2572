#include "check/PxMissingName.h"

#include "check/PxSpelling.h"

#include <algorithm>

namespace {

bool liesInOtherProduct(const PxSourceElement &element, const PxSourceElement &product)
{
    for (const PxSourceElement *part = &element; part; part = part->parent) {
        if (part->parent == product.parent)
            return part != &product && part->name == product.name;
    }
    return false;
}

} // namespace

bool PxMissingName::isMisspelt(const PxSourceElement &element, const QString &wanted,
                               const QStringList &others)
{
    return std::any_of(element.attributes.begin(), element.attributes.end(),
                       [&](const PxSourceAttribute &attribute) {
                           return PxSpelling::nearest(attribute.name,
                                                      QStringList(wanted) + others) == wanted;
                       });
}

bool PxMissingName::isMisplaced(const PxCheckedProduct &product, const QString &wanted)
{
    bool isFound = false;
    product.file().source().forEachElement([&](const PxSourceElement &element) {
        isFound = isFound || (!PxSpelling::nearest(element.name, {wanted}).isEmpty() &&
                              !liesInOtherProduct(element, product.element()));
    });
    return isFound;
}
