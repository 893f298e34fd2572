#pragma once

#include "report/PxReport.h"

#include <PxProductType.h>

#include <QString>

class PxProductTypeConfigRegistry;

/** Everything that the library answers about one product of a certain page count. */
class PxProductReport
{
public:
    /** The largest page count that is shown: pages are shown one by one. */
    static constexpr int maximumPageCount = 9999;

    /**
     * The product as this registry describes it, which is the current one or the legacy one.
     *
     * A `pageCount` of 0 means the one with which the product is sold; any other number that is not
     * offered causes a warning. A theme is for current products only; its id may be empty.
     */
    static PxReport of(const PxProductTypeConfigRegistry *registry, const PxProductType &type,
                       int pageCount, const QString &themeId);
};
