#pragma once

#include <PxProductTypeList.h>

class PxProductTypeConfigRegistry;
class PxReport;

/** Products below each other, with what tells them apart. */
class PxProductTable
{
public:
    PxProductTable(const PxProductTypeConfigRegistry *registry, const PxProductTypeList &products);

    void addTo(PxReport *report) const;

private:
    const PxProductTypeConfigRegistry *m_registry; // which describes them
    PxProductTypeList m_products;
};
