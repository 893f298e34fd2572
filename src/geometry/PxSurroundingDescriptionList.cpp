#include "geometry/PxSurroundingDescriptionList.h"

#include <QDomElement>
#include <QString>

#include <algorithm>

PxSurroundingDescriptionList::PxSurroundingDescriptionList(const QDomElement &product)
{
    const QString listTag = QStringLiteral("surroundings");
    const QString tag = QStringLiteral("surrounding");
    int undecodable = 0; // page types of all elements together
    for (QDomElement list = product.firstChildElement(listTag); !list.isNull();
         list = list.nextSiblingElement(listTag)) {
        for (QDomElement e = list.firstChildElement(tag); !e.isNull();
             e = e.nextSiblingElement(tag))
            append(PxSurroundingDescription(e, &undecodable));
    }
    PxPageType().enumToStringTable()->reportMoreUndecodable(undecodable);
}

PxSurroundingDescription PxSurroundingDescriptionList::findDescription(
    const PxSurroundingKey &key) const
{
    const auto found =
        std::find_if(begin(), end(), [&key](const PxSurroundingDescription &description) {
            return description.isSuitable(key);
        });
    return found == end() ? PxSurroundingDescription() : *found;
}

bool PxSurroundingDescriptionList::hasSurroundingWithBindingShade() const
{
    return std::any_of(begin(), end(), [](const PxSurroundingDescription &description) {
        return description.hasBindingShade();
    });
}
