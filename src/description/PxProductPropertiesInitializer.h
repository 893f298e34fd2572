#pragma once

#include "PxProductPropertiesExport.h"

/** The entry point of the library. */
class PXPRODUCTPROPERTIES_EXPORT PxProductPropertiesInitializer
{
public:
    virtual ~PxProductPropertiesInitializer();

    /**
     * Reads the product files and makes the library answer the platform's questions about products.
     *
     * The application calls it once, at its start and before any query, with the directories set
     * and the translators installed. False when the registry was already registered. Without a
     * product on offer, one warning names the directories that were searched.
     */
    static bool setupModule();
    /** Nothing: the products live as long as the process. */
    static void teardownModule();
};
