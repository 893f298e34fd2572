#pragma once

#include "geometry/PxSurroundingDescription.h"

#include <QList>

class QDomElement;

/** The surroundings of a product, in the order of its file. */
class PXPRODUCTPROPERTIES_EXPORT PxSurroundingDescriptionList
    : public QList<PxSurroundingDescription>
{
public:
    PxSurroundingDescriptionList() = default;
    /** Reads the "surrounding" children of every "surroundings" child of the product element. */
    explicit PxSurroundingDescriptionList(const QDomElement &product);

    /** The first one that suits the page; invalid if there is none. */
    PxSurroundingDescription findDescription(const PxSurroundingKey &key) const;
    /** Whether the image of one of them shows the shade of the fold. */
    bool hasSurroundingWithBindingShade() const;
};
