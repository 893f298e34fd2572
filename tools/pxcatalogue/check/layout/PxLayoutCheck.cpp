#include "check/layout/PxLayoutCheck.h"

#include "check/layout/PxBarcodeCheck.h"
#include "check/layout/PxNumberListCheck.h"
#include "check/layout/PxProductPages.h"
#include "check/layout/PxRedirectCheck.h"
#include "check/layout/PxSurroundingCheck.h"

void PxLayoutCheck::run(PxFindings *findings) const
{
    const PxProductPages pages(m_product, m_pages);
    PxRedirectCheck(m_product).run(findings);
    PxSurroundingCheck(m_product, pages).run(findings);
    PxBarcodeCheck(m_product, pages).run(findings);
    PxNumberListCheck(m_product, pages).run(findings);
}
