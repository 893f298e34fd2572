#include "geometry/PxBarcodeList.h"

#include <PxXMLParser.h>

#include <QDomElement>
#include <QString>

#include <algorithm>

namespace {

PxBarcode readBarcode(const QDomElement &barcode)
{
    return PxBarcode(
        PxXMLParser::readRect(barcode),
        PxXMLParser::intAttribute(barcode, QStringLiteral("pageNr"), 0),
        PxXMLParser::boolAttribute(barcode, QStringLiteral("reverseOrder"), false),
        barcode.attribute(QStringLiteral("image"), QStringLiteral("dummy-barcode.png")));
}

} // namespace

PxBarcodeList::PxBarcodeList(const QDomElement &barcodes)
{
    const QString tag = QStringLiteral("barcode");
    for (QDomElement e = barcodes.firstChildElement(tag); !e.isNull();
         e = e.nextSiblingElement(tag))
        append(readBarcode(e));
}

PxBarcode PxBarcodeList::barcodeOnPage(int page, int pageCount) const
{
    const auto found = std::find_if(begin(), end(), [=](const PxBarcode &barcode) {
        return barcode.isOnPage(page, pageCount);
    });
    return found == end() ? PxBarcode() : *found;
}
