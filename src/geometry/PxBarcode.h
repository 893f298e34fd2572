#pragma once

#include "PxProductPropertiesExport.h"

#include <QRect>
#include <QString>

class QDebug;

/** Where production prints its barcode. */
class PXPRODUCTPROPERTIES_EXPORT PxBarcode
{
public:
    /** An invalid barcode: null rectangle, page 0. */
    PxBarcode() = default;
    /** Everything is kept as it is, even an inverted rectangle. */
    PxBarcode(const QRect &rect, int pageNr, bool reverseOrder, const QString &imageName);

    /** Whether the rectangle is not inverted. */
    bool isValid() const;

    /** The place on the page, in the unit of the product files. */
    QRect rect() const { return m_rect; }
    /** The page: from the front, where 0 is the first one, or from the back if reverseOrder(). */
    int pageNr() const { return m_pageNr; }
    /** Whether pageNr() counts from the back, where 1 is the last page; false by default. */
    bool reverseOrder() const { return m_reverseOrder; }
    /** The placeholder image that the editor shows. */
    QString imageName() const { return m_imageName; }

    /** Whether the barcode is on this page of a product with this many pages. */
    bool isOnPage(int page, int pageCount) const;

private:
    QRect m_rect;
    int m_pageNr = 0;
    bool m_reverseOrder = false;
    QString m_imageName;
};

Q_DECLARE_TYPEINFO(PxBarcode, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxBarcode &barcode);
