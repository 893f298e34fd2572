#include "check/source/PxCheckedProduct.h"

#include <algorithm>

PxCheckedProduct::PxCheckedProduct(const PxCheckedFile &file, bool isLegacy)
    : m_file(file)
    , m_element(*file.root()->firstChild("product"))
    , m_type(m_element.value("name"))
    , m_description(m_element.dom)
    , m_pages(file, m_element, m_description.countAbstractPages())
    , m_isLegacy(isLegacy)
{}

bool PxCheckedProduct::isPageRangeMissing() const
{
    const QVector<PxPageEntry> &entries = m_pages.read();
    const bool isAnyRange = std::any_of(entries.begin(), entries.end(),
                                        [](const PxPageEntry &entry) { return entry.isRange(); });
    if (!m_pages.isGiven() || isAnyRange)
        return false;
    const int listed = entries.size() + m_pages.droppedCount();
    const int pageCount = m_description.explicitNumberOfNormalPages();
    switch (m_type.productClass()) {
    case PxProductClassBook:
        return true;
    case PxProductClassCalendar:
        return listed < m_description.binding().calendarPageCount();
    case PxProductClassGift:
    case PxProductClassCard:
    case PxProductClassDecoration:
        return listed < pageCount &&
               m_pages.normalCount() * m_description.explicitNumberOfProducts() != pageCount;
    default:
        return false;
    }
}

bool PxCheckedProduct::isLikeCalendar() const
{
    constexpr auto bindings =
        static_cast<PxBindingEnum>(PxBindingCalendarSimplex | PxBindingCalendarDuplex |
                                   PxBindingCalendarOnePage | PxBindingCalendarAnnualDuplex);
    constexpr auto pages = static_cast<PxPageTypeEnum>(
        PxPageTypeSimplexMonthCalendar | PxPageTypeDuplexMonthCalendar |
        PxPageTypeSimplexYearCalendar | PxPageTypeCalendarCoverFront | PxPageTypeCalendarCoverBack);
    return m_description.binding().matches(bindings) ||
           std::any_of(m_pages.read().begin(), m_pages.read().end(), [&](const PxPageEntry &entry) {
               return entry.type.matches(pages) && !entry.isUnion();
           });
}
