#pragma once

#include <PxProductProperties.h>

#include <QSize>

/** The older product that a product replaces, with its sizes. */
class PxReplacedProduct
{
public:
    explicit PxReplacedProduct(const PxProductTypeDescription &product);

    /** Empty if there is none. */
    QString name() const { return m_type.productName(); }
    /** Its other sizes with two page counts are the same if the spines are as wide. */
    int spineWidth(int pageCount) const;
    // Invalid if it has no such size
    QSize page() const;
    QSize spine(int pageCount) const;
    /** The open cover, with its spine. */
    QSize cover(int pageCount) const;

private:
    QSize known(const QSizeF &size) const;

    PxProductType m_type;
    bool m_isKnown; // whether a file describes it: otherwise it has no sizes
    QList<PxPageType> m_cover;
};
