#pragma once

#include "report/PxReport.h"

#include <PxProductType.h>

#include <QString>

class PxProductTypeConfigRegistry;
class PxTheme;
struct PxShownProduct;

/** Everything that the library knows about one product with a certain page count. */
class PxProductReport
{
public:
    /** The largest page count that can be shown, because each page is asked for separately. */
    static constexpr int maximumPageCount = 9999;

    /**
     * The product as `registry`, the current or the legacy one, describes it.
     *
     * A `pageCount` of 0 means the one with which the product is sold; too large a one is lowered.
     * `themeId` must be empty for legacy products.
     */
    static PxShownProduct shown(const PxProductTypeConfigRegistry *registry,
                                const PxProductType &type, int pageCount, const QString &themeId);
    /** Tells a user who asked for this `pageCount` if it is lowered, or not offered. */
    static void warnOfPageCount(const PxShownProduct &shown, int pageCount);
    static PxReport of(const PxShownProduct &shown);
    /** The pages with content and the default templates alone, in a theme. */
    static PxReport ofTheme(const PxShownProduct &shown, const PxTheme &theme);
};
