#include "report/PxShownProduct.h"

#include <QRect>

int PxShownProduct::indexOf(const PxSurroundingDescription &surrounding)
{
    const QRect rect = surrounding.imageRect();
    const SurroundingKey key(int(surrounding.surroundingType()),
                             int(surrounding.pageTypes().value()), int(surrounding.alignments()),
                             surrounding.pageNr(), surrounding.paintOnTop(),
                             surrounding.hasBindingShade(), surrounding.image(), rect.left(),
                             rect.top(), rect.right(), rect.bottom());
    const auto found = indexOfSurrounding.constFind(key);
    if (found != indexOfSurrounding.constEnd())
        return *found;
    const int index = surroundings.size();
    surroundings.append({surrounding, {}});
    indexOfSurrounding.insert(key, index);
    return index;
}
