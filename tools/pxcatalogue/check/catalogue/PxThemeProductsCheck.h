#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

#include <QMap>
#include <QRect>
#include <QSet>

/** Compares what themes say of products with the product files. */
class PxThemeProductsCheck
{
public:
    explicit PxThemeProductsCheck(const PxReporter &report) : m_report(report) {}

    void addThemes(const PxCheckedFile &file);
    /** A size in another unit is reported for the product itself. */
    void addProduct(const PxCheckedProduct &product, bool isInOtherUnit);

    /** After all files have been added. */
    void run() const;

private:
    struct Named
    {
        PxProductType type;
        PxPlace place;
    };
    struct Logo
    {
        PxProductType type;
        PxPlace left;
        PxPlace top;
        QRect rect;
    };

    void addLogos(const PxCheckedFile &file, const PxSourceElement &logos,
                  const QSet<int> &products);
    void checkLogo(const Logo &logo) const;

    const PxReporter m_report;
    QVector<Named> m_named;
    QVector<Logo> m_logos;
    QMap<PxProductType, QRect> m_sheets; ///< around all pages of a product, with their bleed
    QSet<int> m_current;                 ///< codes of the products
    QSet<int> m_legacy;
};
