#include "PxXMLTextPool.h"

#include <QHashFunctions>

#include <algorithm>

QString PxXMLTextPool::text(std::string_view utf8)
{
    if (utf8.empty())
        return QLatin1String("");
    Slot &slot = m_slots[std::hash<std::string_view>{}(utf8) % m_slots.size()];
    if (std::string_view(slot.utf8.data(), slot.size) == utf8)
        return slot.text;
    const QString text = QString::fromUtf8(utf8.data(), int(utf8.size()));
    if (utf8.size() <= slot.utf8.size()) { // longer ones seldom recur
        std::copy(utf8.begin(), utf8.end(), slot.utf8.begin());
        slot.size = static_cast<unsigned char>(utf8.size());
        slot.text = text;
    }
    return text;
}
