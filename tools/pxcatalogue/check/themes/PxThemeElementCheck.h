#pragma once

#include "check/findings/PxReporter.h"
#include "check/rules/PxElementReading.h"
#include "check/source/PxCheckedFile.h"
#include "check/words/PxListedProductTypes.h"

#include <PxProductTypeList.h>

#include <QDateTime>

/** Checks one theme: when, to whom and for which products it is offered, and its logos. */
class PxThemeElementCheck
{
public:
    /** Theme and types must outlive the check. */
    PxThemeElementCheck(const PxSourceElement &theme, PxListedProductTypes &types,
                        const PxReporter &report);

    void run();

private:
    void checkExpiry() const;
    void checkKeyAccounts() const;
    void checkProducts() const;
    void addUnknownProducts(const QVector<const PxSourceElement *> &unknown) const;
    void addOnlyUnknownProducts(const PxSourceElement &products,
                                const QVector<const PxSourceElement *> &unknown) const;
    void checkMissingProducts(const PxSourceElement *products) const;
    void checkLogoProduct(const PxSourceElement &logo) const;
    PxProductTypeList namedProducts() const;
    void checkLogoPlace(const PxSourceElement &logo) const;
    PxMissingPart missingChild(const PxSourceElement *child, const char *name) const;

    const PxSourceElement &m_theme;
    PxListedProductTypes &m_types;
    const PxReporter m_report;
    QDateTime m_expiry; ///< invalid when it is missing or unreadable
    bool m_isExpired;
    const PxProductTypeList m_products; ///< as namedProducts(), sorted
};
