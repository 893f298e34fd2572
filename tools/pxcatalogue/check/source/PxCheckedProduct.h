#pragma once

#include "check/source/PxPageEntries.h"

#include <PxProductType.h>
#include <description/PxProductTypeDescription.h>

/** The product of a product file: its element, and what the library makes of it. */
class PxCheckedProduct
{
public:
    /** The file must have a product element and must outlive the product. */
    PxCheckedProduct(const PxCheckedFile &file, bool isLegacy);

    const PxCheckedFile &file() const { return m_file; }
    const PxSourceElement &element() const { return m_element; }
    PxProductType type() const { return m_type; }
    const PxProductTypeDescription &description() const { return m_description; }
    /** The list of its pages. */
    const PxPageEntries &pages() const { return m_pages; }
    /**
     * Whether the list of pages is shorter than the page count because no entry stands for all
     * normal pages. Page numbers say nothing then. False if there is no list.
     */
    bool isPageRangeMissing() const;
    /** Whether the binding is one of a calendar, or a page is. */
    bool isLikeCalendar() const;
    /** Whether the file lies in the directory of the legacy products. */
    bool isLegacy() const { return m_isLegacy; }

private:
    const PxCheckedFile &m_file;
    const PxSourceElement &m_element;
    PxProductType m_type;
    PxProductTypeDescription m_description;
    PxPageEntries m_pages;
    bool m_isLegacy;
};
