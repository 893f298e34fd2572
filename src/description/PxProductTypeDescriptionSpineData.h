#pragma once

#include "PxProductPropertiesExport.h"

#include <QtGlobal>

class QDebug;
class QDomElement;

/** The spine of a book with a certain page count, in the unit of the product files. */
class PXPRODUCTPROPERTIES_EXPORT PxProductTypeDescriptionSpineData
{
public:
    PxProductTypeDescriptionSpineData() = default;
    /** Reads "width" and "maxfontheight" of a "spine" element; each is 0 unless it is a number. */
    explicit PxProductTypeDescriptionSpineData(const QDomElement &spine);

    /** The width; 0 by default. */
    int width() const { return m_width; }
    /** The height of the tallest text that fits on the spine. */
    int maxFontHeight() const { return m_maxFontHeight; }

    /** Widens the spine; the width stays within 0 and the largest int. */
    void considerExtraCoverWidth(int extra);

private:
    int m_width = 0;
    int m_maxFontHeight = 0;
};

Q_DECLARE_TYPEINFO(PxProductTypeDescriptionSpineData, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug,
                                             const PxProductTypeDescriptionSpineData &spine);
