#pragma once

#include "check/PxSourceElement.h"

/** A number that an element gives, or fails to give. */
class PxIntAttribute
{
public:
    /** The attribute as the library reads it; `number()` is `absent` when there is none. */
    PxIntAttribute(const PxSourceElement &element, const QString &name, int absent = 0);

    bool isGiven() const { return m_isGiven; }
    /** Is given, but as something that is no number. */
    bool isUnreadable() const { return m_isGiven && !m_isNumber; }
    bool isNumber() const { return m_isNumber; }
    int number() const { return m_number; }

private:
    bool m_isGiven;
    bool m_isNumber;
    int m_number;
};
