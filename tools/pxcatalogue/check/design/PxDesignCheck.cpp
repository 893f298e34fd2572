#include "check/design/PxDesignCheck.h"

#include "check/design/PxBackgroundCategoryCheck.h"
#include "check/design/PxClassificationCheck.h"
#include "check/design/PxDefaultsCheck.h"
#include "check/design/PxUserDefaultsCheck.h"
#include "check/design/PxVariantCheck.h"

void PxDesignCheck::checkProduct(const PxCheckedProduct &product, PxFindings *findings)
{
    m_productNames.insert(product.element().value(QStringLiteral("name")));
    PxDefaultsCheck(product.file(), product.element(), m_themeIds).run(findings);
    PxVariantCheck(product).run(findings);
    PxBackgroundCategoryCheck(product).run(findings);
    PxClassificationCheck(product).run(findings);
}

void PxDesignCheck::checkUserDefaults(const PxCheckedFile &file, PxFindings *findings)
{
    const PxUserDefaultsCheck check(file, m_productNames);
    check.checkName(findings);
    if (check.checkStart(findings))
        PxDefaultsCheck(file, *file.root(), m_themeIds).run(findings);
}
