#include "geometry/PxBarcode.h"

#include <QDebug>

PxBarcode::PxBarcode(const QRect &rect, int pageNr, bool reverseOrder, const QString &imageName)
    : m_rect(rect)
    , m_pageNr(pageNr)
    , m_reverseOrder(reverseOrder)
    , m_imageName(imageName)
{}

bool PxBarcode::isValid() const
{
    return m_rect.left() <= m_rect.right() && m_rect.top() <= m_rect.bottom();
}

bool PxBarcode::isOnPage(int page, int pageCount) const
{
    if (m_reverseOrder)
        return qint64(pageCount) - m_pageNr == page;
    return m_pageNr == page;
}

QDebug operator<<(QDebug debug, const PxBarcode &barcode)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxBarcode(" << barcode.rect() << ", page " << barcode.pageNr()
                           << (barcode.reverseOrder() ? " from the back, " : ", ")
                           << barcode.imageName() << ')';
}
