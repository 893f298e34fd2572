#pragma once

#include "PxProductPropertiesExport.h"

/** The entry point of the library. */
class PXPRODUCTPROPERTIES_EXPORT PxProductPropertiesInitializer
{
public:
    virtual ~PxProductPropertiesInitializer();

    /**
     * Reads the product files and connects the library to the platform, which then asks it about
     * products.
     *
     * Applications call this once, at their start and before any query, after they have set the
     * directories and installed the translators. Returns false if the registry was already
     * registered. If no product is on offer, one warning names the directories that were searched.
     */
    static bool setupModule();
    /** Does nothing: the products live as long as the process. */
    static void teardownModule();
};
