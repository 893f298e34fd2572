#pragma once

#include "PxProductPropertiesExport.h"

#include <QtGlobal>

class QDebug;
class QDomElement;

/** The spine of a book of a certain page count, in the unit of the product files. */
class PXPRODUCTPROPERTIES_EXPORT PxProductTypeDescriptionSpineData
{
public:
    PxProductTypeDescriptionSpineData() = default;
    /** Reads "width" and "maxfontheight" of a "spine" element; 0 for what is no number. */
    explicit PxProductTypeDescriptionSpineData(const QDomElement &spine);

    int width() const { return m_width; }
    /** The height of the largest text that fits on the spine. */
    int maxFontHeight() const { return m_maxFontHeight; }

    /** Makes the spine wider, but never narrower than 0 or wider than an int can tell. */
    void considerExtraCoverWidth(int extra);

private:
    int m_width = 0;
    int m_maxFontHeight = 0;
};

Q_DECLARE_TYPEINFO(PxProductTypeDescriptionSpineData, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug,
                                             const PxProductTypeDescriptionSpineData &spine);
