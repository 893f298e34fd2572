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
    /** Everything is kept as it is. */
    PxPageRotationRedirect(int sourcePageNr, int targetPageNr, int angleInvert);

    /** The page from which content goes; 0 by default. */
    int sourcePageNr() const { return m_sourcePageNr; }
    /** The page to which it goes; 0 by default. */
    int targetPageNr() const { return m_targetPageNr; }
    /** How the editor turns it: the number of the file; 0 by default. */
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
