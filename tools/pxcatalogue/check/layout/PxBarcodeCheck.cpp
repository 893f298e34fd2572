#include "check/layout/PxBarcodeCheck.h"

#include "check/PxCheckLimits.h"
#include "check/layout/PxPlacedImage.h"
#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"

#include <algorithm>

namespace {

bool isPageNrPlain(const PxSourceElement &barcode)
{
    const PxElementReading reading(barcode);
    return reading.hasOnlyKnown() && reading.isReadable("pageNr") &&
           reading.isReadable("reverseOrder");
}

} // namespace

PxBarcodeCheck::PxBarcodeCheck(const PxCheckedProduct &product, const PxProductPages &pages,
                               bool isInOtherUnit, PxImageNames &images, const PxReporter &report)
    : m_product(product)
    , m_pages(pages)
    , m_isInOtherUnit(isInOtherUnit)
    , m_images(images)
    , m_report(report)
{
    const auto *list = product.element().firstChild("barcodes");
    if (!list)
        return;
    m_elements = list->childrenNamed("barcode");
    m_barcodes = PxBarcodeList(list->dom);
}

void PxBarcodeCheck::run()
{
    for (int i = 0; i < qMin(m_elements.size(), PxCheckLimits::barcodes); ++i) {
        PxPlacedImage(*m_elements[i]).checkFile(m_barcodes[i].imageName(), m_images, m_report);
        const bool hasRect = checkRect(i);
        if (!m_pages.isKnown() || !isPageNrPlain(*m_elements[i]))
            continue;
        const QVector<Place> all = places(i);
        if (checkReach(i, all) && hasRect)
            checkInside(i, all);
    }
}

/** Whether there is a rectangle that can be read. */
bool PxBarcodeCheck::checkRect(int index) const
{
    const PxSourceElement &element = *m_elements[index];
    const PxPlacedImage image(element);
    if (!image.isRectanglePlain())
        return false;
    if (m_barcodes[index].isValid())
        return isPageNrPlain(element);
    m_report.add(PxTag::BarcodeEmpty, image.placeOfFault(), image.fault())
        .now("there is no barcode on that page");
    return false;
}

/** The pages that the barcode is on, with each page count. */
QVector<PxBarcodeCheck::Place> PxBarcodeCheck::places(int index) const
{
    QVector<Place> places;
    const PxBarcode &barcode = m_barcodes[index];
    for (const PxProductPages::Layout &layout : m_pages.layouts()) {
        const int count = layout.pages.size();
        const qint64 page =
            barcode.reverseOrder() ? qint64(count) - barcode.pageNr() : qint64(barcode.pageNr());
        if (page >= 0 && page < count && barcode.isOnPage(int(page), count))
            places.append({int(page), layout.pages.at(int(page)), layout.normalPageCount, count});
    }
    return places;
}

/** An earlier barcode that the library uses on all pages of this one; -1 if there is none. */
int PxBarcodeCheck::shadowOf(int index, const QVector<Place> &places) const
{
    for (int i = 0; i < index; ++i) {
        if (std::all_of(places.begin(), places.end(), [&](const Place &place) {
                return m_barcodes[i].isOnPage(place.page, place.pageCount);
            }))
            return i;
    }
    return -1;
}

/** Whether some page may use the barcode. */
bool PxBarcodeCheck::checkReach(int index, const QVector<Place> &places) const
{
    constexpr PxTag tag = PxTag::BarcodeUnreachable;
    const PxSourceElement &element = *m_elements[index];
    const PxBarcode &barcode = m_barcodes[index];
    if (places.isEmpty()) {
        const bool isBehindLast = barcode.reverseOrder() && barcode.pageNr() == 0;
        m_report
            .add(tag, element.rangeOf("pageNr"), "the product has no page %1%2", barcode.pageNr(),
                 barcode.reverseOrder() ? QLatin1String(" from the back") : QLatin1String())
            .now("this barcode is on no page")
            .hint(isBehindLast ? "from the back the last page is 1"
                               : QString("its pages are 0 to %1").arg(m_pages.lastPage()));
        return false;
    }
    const int shadow = shadowOf(index, places);
    if (shadow < 0 || !isPageNrPlain(*m_elements[shadow]))
        return true;
    m_report.add(tag, element.nameRange, "a second barcode for page %1", places.constFirst().page)
        .now("the one in %1 is used", m_report.place(m_elements[shadow]->nameRange));
    return false;
}

void PxBarcodeCheck::checkInside(int index, const QVector<Place> &places) const
{
    const QRect rect = m_barcodes[index].rect();
    if (m_isInOtherUnit ||
        m_product.description().usablePrintSize(PxPageTypeNormalPage, 1).isEmpty())
        return;
    for (const Place &place : places) {
        const QSize size =
            m_product.description().usablePrintSize(place.pageType, place.normalPageCount);
        if (size.isEmpty() || QRect(QPoint(0, 0), size).contains(rect))
            continue;
        const bool isBeside = rect.left() < 0 || rect.right() >= size.width();
        const char *start = isBeside ? "x" : "y";
        const int from = isBeside ? rect.left() : rect.top();
        const qint64 to = qint64(from) + (isBeside ? rect.width() : rect.height());
        m_report
            .add(PxTag::BarcodeOutside, m_elements[index]->rangeOf(start),
                 "the barcode reaches from %1 = %2 to %3, page %4 from 0 to %5", start, from, to,
                 place.page, isBeside ? size.width() : size.height())
            .now("the rectangle is used as it is");
        return;
    }
}
