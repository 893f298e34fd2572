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
     * Reads the "rotationredirect" children: "from" and "to" (pages from -1) and "angleinvert" (1
     * by default). One without a valid "from" and "to" is skipped.
     */
    explicit PxPageRotationRedirectList(const QDomElement &parent);

    /** Those that move content away from this page; empty if there are none. */
    PxPageRotationRedirectList filterBySourcePage(int page) const;
    /** Those that move content to this page; empty if there are none. */
    PxPageRotationRedirectList filterByTargetPage(int page) const;
};
