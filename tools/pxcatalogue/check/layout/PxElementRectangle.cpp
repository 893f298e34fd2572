#include "check/layout/PxElementRectangle.h"

#include "check/rules/PxElementReading.h"

#include <algorithm>
#include <iterator>

namespace {

const QString names[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"),
                         QStringLiteral("height")};

} // namespace

bool PxElementRectangle::isPlain() const
{
    const PxElementReading reading(m_element);
    return std::all_of(std::begin(names), std::end(names), [&](const QString &name) {
        return reading.isReadable(name) && !reading.isMisspelt(name);
    });
}

bool PxElementRectangle::isGiven() const
{
    return std::any_of(std::begin(names), std::end(names),
                       [this](const QString &name) { return m_element.attribute(name); });
}

QString PxElementRectangle::fault() const
{
    const QString side = sideWithFault();
    if (side.isEmpty())
        return QStringLiteral("the rectangle leaves what can be counted");
    const PxSourceAttribute *attribute = m_element.attribute(side);
    return attribute ? QStringLiteral("the %1 is %2").arg(side, attribute->value)
                     : QStringLiteral("\"%1\" is missing").arg(side);
}

PxSourceRange PxElementRectangle::placeOfFault() const
{
    return m_element.rangeOf(sideWithFault());
}

/** The first one that is missing or not above 0; empty when both are well. */
QString PxElementRectangle::sideWithFault() const
{
    for (const QString &name : {QStringLiteral("width"), QStringLiteral("height")}) {
        if (m_element.value(name).toLongLong() <= 0)
            return name;
    }
    return QString();
}
