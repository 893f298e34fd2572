#pragma once

#include "PxProductPropertiesExport.h"

#include <QVector>

class QDomElement;

/** Where content really goes that is dropped on a page. */
class PXPRODUCTPROPERTIES_EXPORT PxContentDropRedirectList
{
public:
    PxContentDropRedirectList() = default;
    /**
     * Reads the "contentredirect" children: "from" (a page such as "3" or a range such as "3-7")
     * and "to". A range that ends before it begins is nothing; an unreadable element is left out
     * with a warning.
     */
    explicit PxContentDropRedirectList(const QDomElement &parent);

    /** The page that takes the content; `page` itself when it is not redirected. */
    int targetPage(int page) const;

private:
    struct Range
    {
        int first;
        int last;
        int target;
    };

    // Ranges, not pages: a file may redirect two thousand million pages at once.
    QVector<Range> m_ranges;
};
