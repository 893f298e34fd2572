#include "why/PxWhyProduct.h"

#include "drawing/PxPageCounts.h"
#include "drawing/PxProductFile.h"
#include "report/PxCatalogueProducts.h"

static PxShownProduct shownProduct(const PxProductTypeConfigRegistry *registry,
                                   const PxProductType &type, const QString &themeId, int pageCount)
{
    // No theme applies to a product of an earlier catalogue.
    PxShownProduct shown{registry, type, PxCatalogueProducts::isCurrent(type) ? themeId : ""};
    shown.file = PxProductFile::pathOf(type, shown.isLegacy());
    shown.isPageCountAsked = pageCount > 0;
    shown.pageCount = shown.isPageCountAsked
                          ? pageCount
                          : PxPageCounts::standard(*shown.product, shown.offeredPageCounts);
    return shown;
}

PxWhyProduct::PxWhyProduct(const PxProductTypeConfigRegistry *registry, const PxProductType &type,
                           const QString &themeId, int pageCount)
    : m_shown(shownProduct(registry, type, themeId, pageCount))
    , m_files(m_shown)
    , m_origins(m_shown, m_files)
{
    if (m_shown.themeId != themeId)
        m_files.theme = PxOriginFile::theme(themeId); // to say why it does not apply
}

bool PxWhyProduct::isCurrent() const
{
    return PxCatalogueProducts::isCurrent(type());
}

bool PxWhyProduct::isDescribed() const
{
    return isCurrent() || PxCatalogueProducts::isLegacy(type());
}
