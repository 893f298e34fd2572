#pragma once

#include "check/source/PxSourceElement.h"

/** The rectangle that an element gives as x, y, width and height. */
class PxElementRectangle
{
public:
    /** The element stands in a product file, and must outlive this. */
    explicit PxElementRectangle(const PxSourceElement &element) : m_element(element) {}

    /** All that is given can be read: else that is a finding already. */
    bool isPlain() const;
    /** Any of its numbers is given. */
    bool isGiven() const;
    /** Why it has no area, and where that stands. */
    QString fault() const;
    PxSourceRange placeOfFault() const;

private:
    const char *sideWithFault() const;

    const PxSourceElement &m_element;
};
