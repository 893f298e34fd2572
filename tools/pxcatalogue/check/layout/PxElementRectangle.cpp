#include "check/layout/PxElementRectangle.h"

#include "check/rules/PxElementReading.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *names[] = {"x", "y", "width", "height"};

} // namespace

bool PxElementRectangle::isPlain() const
{
    const PxElementReading reading(m_element);
    return std::all_of(std::begin(names), std::end(names), [&](const char *name) {
        return reading.isReadable(name) && !reading.isMisspelt(name);
    });
}

bool PxElementRectangle::isGiven() const
{
    return std::any_of(std::begin(names), std::end(names),
                       [this](const char *name) { return m_element.attribute(name); });
}

QString PxElementRectangle::fault() const
{
    const char *side = sideWithFault();
    if (!side)
        return "the rectangle leaves what can be counted";
    const PxSourceAttribute *attribute = m_element.attribute(side);
    return attribute ? QString("the %1 is %2").arg(side, attribute->value)
                     : QString("\"%1\" is missing").arg(side);
}

PxSourceRange PxElementRectangle::placeOfFault() const
{
    const char *side = sideWithFault();
    return side ? m_element.rangeOf(side) : m_element.nameRange;
}

/** The first one that is missing or not above 0; null when both are well. */
const char *PxElementRectangle::sideWithFault() const
{
    for (const char *name : {"width", "height"}) {
        if (m_element.value(name).toLongLong() <= 0)
            return name;
    }
    return nullptr;
}
