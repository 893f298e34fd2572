#include "check/PxLayoutCheck.h"

#include "check/PxBarcodeCheck.h"
#include "check/PxNumberListCheck.h"
#include "check/PxProductPages.h"
#include "check/PxRedirectCheck.h"
#include "check/PxSurroundingCheck.h"

void PxLayoutCheck::run(PxFindings *findings) const
{
    const PxProductPages pages(m_product, m_pages);
    PxRedirectCheck(m_product).run(findings);
    PxSurroundingCheck(m_product, pages).run(findings);
    PxBarcodeCheck(m_product, pages).run(findings);
    PxNumberListCheck(m_product, pages).run(findings);
}
