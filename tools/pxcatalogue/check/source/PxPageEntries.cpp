#include "check/source/PxPageEntries.h"

#include "check/source/PxSourceParts.h"

#include <algorithm>

bool PxPageEntry::isRange(const PxPageType &type)
{
    constexpr int ranges = PxPageTypeNormalPages | PxPageTypeSimplexMonthCalendar |
                           PxPageTypeDuplexMonthCalendar | PxPageTypeSimplexYearCalendar;
    return type.matches(static_cast<PxPageTypeEnum>(ranges));
}

PxPageEntries::PxPageEntries(const PxCheckedFile &file, const PxSourceElement &product, int maximum)
{
    const PxSourceElement *pages = product.firstChild("pages");
    m_isGiven = pages != nullptr;
    if (!pages)
        return;
    const PxSourceList list = PxSourceParts::ofText(file, *pages);
    for (const PxSourcePart &part : list.parts.mid(0, maximum))
        m_read.append({part.text.trimmed(), PxPageType(part.text), part.range});
    m_droppedCount = list.count - m_read.size();
    if (m_droppedCount > 0)
        m_firstDropped = list.parts.at(m_read.size()).range;
}

bool PxPageEntries::hasPage() const
{
    return std::any_of(m_read.begin(), m_read.end(),
                       [](const PxPageEntry &entry) { return !entry.type.isNull(); });
}

bool PxPageEntries::isSound() const
{
    return std::none_of(m_read.begin(), m_read.end(),
                        [](const PxPageEntry &entry) { return entry.type.isNull(); });
}

qint64 PxPageEntries::normalCount() const
{
    return std::count_if(m_read.begin(), m_read.end(), [](const PxPageEntry &entry) {
        return entry.type.matches(PxPageTypeNormalPage);
    });
}

const PxPageEntry *PxPageEntries::spine() const
{
    const auto found = std::find_if(m_read.begin(), m_read.end(), [](const PxPageEntry &entry) {
        return entry.type.hasValue(PxPageTypeSpine);
    });
    return found == m_read.end() ? nullptr : found;
}
