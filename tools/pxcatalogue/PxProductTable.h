#pragma once

#include <PxProductTypeList.h>

class PxReport;

/** Products below each other, with what tells them apart. */
class PxProductTable
{
public:
    explicit PxProductTable(const PxProductTypeList &products);

    void addTo(PxReport *report) const;

private:
    PxProductTypeList m_products;
};
