#pragma once

#include "writing/PxJsonLine.h"

#include <PxProductTypeList.h>
#include <themes/PxThemeList.h>

#include <optional>

/**
 * The whole catalogue, object by object: a header, the product types, the products, those of
 * earlier catalogues, and the themes, each sorted by name.
 *
 * The same files give the same objects, whatever the day and the order in which they were read.
 */
class PxCatalogueExport
{
public:
    PxCatalogueExport();

    /**
     * Makes what the library reads the same for every user on every machine. Call it before the
     * library reads anything; `hasDefaults` says that the user's default templates are asked for.
     */
    static void becomeIndependentOfUser(bool hasDefaults);

    /** The next object; nothing after the last one. */
    std::optional<PxJsonLine> next();

private:
    void addHeader(PxJsonLine *line) const;
    void addObject(int index, PxJsonLine *line) const;

    PxProductTypeList m_types;
    PxProductTypeList m_products;
    PxProductTypeList m_legacyProducts;
    PxThemeList m_themes;
    int m_next = -1; // -1 for the header
};
