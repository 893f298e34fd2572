#include "report/PxReplacedProduct.h"

#include "report/PxCatalogueProducts.h"

namespace {

const PxLegacyProductTypeConfig &sizes()
{
    return *PxLegacyProductTypeConfig::instance();
}

} // namespace

PxReplacedProduct::PxReplacedProduct(const PxProductTypeDescription &product)
    : m_type(product.legacyProduct())
    , m_isKnown(PxCatalogueProducts::isLegacy(m_type))
{
    // No page of a cover belongs to a range, so that every page count has the same.
    for (const PxPageType &pageType : sizes().description(m_type)->pageTypes(1)) {
        if (pageType.matches(PxPageTypeCover))
            m_cover.append(pageType);
    }
}

QSize PxReplacedProduct::page() const
{
    return known(sizes().usablePrintSize(m_type, PxPageTypeNormalPage, 1));
}

int PxReplacedProduct::spineWidth(int pageCount) const
{
    return sizes().description(m_type)->spineWidth(pageCount);
}

QSize PxReplacedProduct::spine(int pageCount) const
{
    return known(sizes().usablePrintSize(m_type, PxPageTypeSpine, pageCount));
}

QSize PxReplacedProduct::cover(int pageCount) const
{
    return known(sizes().usableSize(m_type, pageCount, m_cover));
}

QSize PxReplacedProduct::known(const QSizeF &size) const
{
    return m_isKnown && !size.isEmpty() ? size.toSize() : QSize();
}
