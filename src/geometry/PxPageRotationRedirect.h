#pragma once

#include "PxProductPropertiesExport.h"

#include <QtGlobal>

class QDebug;

/**
 * The page to which the content of a page goes, and how it is turned, when the product is rotated.
 *
 * Page numbers and angle are those of the product file.
 */
class PXPRODUCTPROPERTIES_EXPORT PxPageRotationRedirect
{
public:
    PxPageRotationRedirect() = default;
    PxPageRotationRedirect(int sourcePageNr, int targetPageNr, int angleInvert);

    int sourcePageNr() const { return m_sourcePageNr; }
    int targetPageNr() const { return m_targetPageNr; }
    int angleInvert() const { return m_angleInvert; }

    bool operator==(const PxPageRotationRedirect &other) const;
    bool operator!=(const PxPageRotationRedirect &other) const { return !(*this == other); }

private:
    int m_sourcePageNr = 0;
    int m_targetPageNr = 0;
    int m_angleInvert = 0;
};

Q_DECLARE_TYPEINFO(PxPageRotationRedirect, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxPageRotationRedirect &redirect);
