#pragma once

#include <QJsonValue>
#include <QList>

class PxPageCountOrganization;
class PxProductType;
class PxProductTypeConfigRegistry;
class PxProductTypeDescription;

/** For which page counts a product is offered, and for which one it is shown. */
class PxOfferedPageCounts
{
public:
    /** The largest page count that is shown: pages are shown one by one. */
    static constexpr int maximumShown = 9999;

    PxOfferedPageCounts(const PxProductTypeConfigRegistry *registry, const PxProductType &type);

    bool contains(int pageCount) const;
    /** The next smaller one and the next larger one, as far as there are any. */
    QList<int> nearest(int pageCount) const;
    /** `wanted`, or when that is 0 the product's own; lowered, with a warning, when it is too
     * large. */
    int shown(int wanted) const;
    /** Null when the smallest page count is above the largest: then none is offered. */
    QJsonValue toJson() const;

private:
    PxOfferedPageCounts(const PxProductTypeDescription *description,
                        const PxPageCountOrganization &organization);

    int standard() const;

    const PxProductTypeDescription *m_description;
    int m_minimum;
    int m_maximum;
    int m_increment; // below 1 for none
};
