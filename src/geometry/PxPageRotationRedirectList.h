#pragma once

#include "geometry/PxPageRotationRedirect.h"

#include <QList>

class QDomElement;

/** The rotation redirects of a product, in the order of its file. */
class PXPRODUCTPROPERTIES_EXPORT PxPageRotationRedirectList : public QList<PxPageRotationRedirect>
{
public:
    PxPageRotationRedirectList() = default;
    /**
     * Reads the "rotationredirect" children: "from", "to" (pages from -1) and "angleinvert" (1).
     * One without a usable "from" and "to" is left out.
     */
    explicit PxPageRotationRedirectList(const QDomElement &parent);

    PxPageRotationRedirectList filterBySourcePage(int page) const;
    PxPageRotationRedirectList filterByTargetPage(int page) const;
};
