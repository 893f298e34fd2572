#pragma once

#include "PxProductPropertiesExport.h"

#include <QVector>

class QDomElement;

/** For content that is dropped on a page, the page to which it really goes. */
class PXPRODUCTPROPERTIES_EXPORT PxContentDropRedirectList
{
public:
    PxContentDropRedirectList() = default;
    /**
     * Reads the "contentredirect" children: "from" (a page such as "3" or a range such as "3-7")
     * and "to". A range that ends before it begins has no effect; an unreadable element is skipped
     * with a warning.
     */
    explicit PxContentDropRedirectList(const QDomElement &parent);

    /** The page that receives the content; `page` itself if it is not redirected. */
    int targetPage(int page) const;

private:
    struct Range
    {
        int first;
        int last;
        int target;
    };

    // Ranges, not pages: one element may redirect two thousand million pages.
    QVector<Range> m_ranges;
};
