#pragma once

#include "geometry/PxBarcode.h"

#include <QList>

class QDomElement;

/** The barcodes of a product, in the order of its file. */
class PXPRODUCTPROPERTIES_EXPORT PxBarcodeList : public QList<PxBarcode>
{
public:
    PxBarcodeList() = default;
    /** Reads the "barcode" children of the "barcodes" element. */
    explicit PxBarcodeList(const QDomElement &barcodes);

    /**
     * The first barcode on this page of a product with this many pages; invalid if there is none.
     */
    PxBarcode barcodeOnPage(int page, int pageCount) const;
};
