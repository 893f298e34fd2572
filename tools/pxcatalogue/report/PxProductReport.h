#pragma once

#include "report/PxReport.h"

#include <PxProductType.h>

class PxProductTypeConfigRegistry;

/** Everything that the library answers about one product of a certain page count. */
class PxProductReport
{
public:
    /** The largest page count that is shown: pages are shown one by one. */
    static constexpr int maximumPageCount = 9999;

    /**
     * A product of this registry, the current one or the legacy one.
     *
     * With `pageCount` 0 the product has as many pages as it is sold with; any other number with
     * which it is not offered causes a warning. With a theme, which is for current products only,
     * it is designed in that.
     */
    static PxReport of(const PxProductTypeConfigRegistry *registry, const PxProductType &type,
                       int pageCount, const QString &themeId);
};
