#pragma once

#include "PxProductBaseExport.h"

#include <PxProductGroupEnum.h>

#include <QString>

class QDebug;

/** The group under which the shop offers a product. */
class PXPRODUCTBASE_EXPORT PxProductGroup
{
public:
    /** The unknown group 0. */
    PxProductGroup() = default;
    /** Any value is kept, even one without an enumerator. */
    PxProductGroup(PxProductGroupEnum group) : m_value(group) {}
    /** By keyword, trimmed and in any case; the unknown group 0 for any other text. */
    PxProductGroup(const QString &keyword);

    /** Whether the group is not 0. */
    bool isValid() const { return m_value != PxProductGroupUnknown; }
    /** The group as a number. */
    PxProductGroupEnum value() const { return m_value; }

    bool operator==(const PxProductGroup &other) const { return m_value == other.m_value; }
    bool operator!=(const PxProductGroup &other) const { return m_value != other.m_value; }
    /** Compares the numbers. */
    bool operator<(const PxProductGroup &other) const { return m_value < other.m_value; }

private:
    PxProductGroupEnum m_value = PxProductGroupUnknown;
};

Q_DECLARE_TYPEINFO(PxProductGroup, Q_MOVABLE_TYPE);

PXPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const PxProductGroup &group);
