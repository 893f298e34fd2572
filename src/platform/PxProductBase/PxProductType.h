#pragma once

#include "PxProductBaseExport.h"
#include "PxProductClass.h"
#include "PxProductTypeEnum.h"

#include <QHash>
#include <QMetaType>
#include <QString>

class QDebug;

struct PxProductTypeEntry;

/**
 * One kind of product that can be ordered: the key of every question about products.
 *
 * A small value: its texts are in the catalogue, copies share them. The catalogue is read when the
 * first type is made, from any thread; a message handler must not make one while that logs.
 */
class PXPRODUCTBASE_EXPORT PxProductType
{
public:
    /** The unknown type 0. */
    PxProductType() = default;
    /** The type of this code; a code that the catalogue lacks is kept, but gives an invalid type.
     */
    PxProductType(int code);
    /** The type of this name, trimmed and in any case; the unknown type 0 for any other name. */
    PxProductType(const QString &name);

    /** Is known to the catalogue. */
    bool isValid() const { return m_entry != nullptr; }

    PxProductTypeEnum type() const { return m_type; }
    PxProductClass productClass() const { return m_productClass; }
    /** Shares at least one bit. */
    bool isProductClass(PxProductClass classes) const { return (m_productClass & classes) != 0; }
    bool isBook() const { return isProductClass(PxProductClassBook); }
    bool isCalendar() const { return isProductClass(PxProductClassCalendar); }
    bool isGift() const { return isProductClass(PxProductClassGift); }
    bool isCard() const { return isProductClass(PxProductClassCard); }
    bool isDeko() const { return isProductClass(PxProductClassDecoration); }

    /** As the catalogue spells it; empty for an invalid type. */
    QString productName() const;
    /** The name where space is short; empty for an invalid type. */
    QString shortProductName() const;

    bool operator==(const PxProductType &other) const { return m_type == other.m_type; }
    bool operator!=(const PxProductType &other) const { return m_type != other.m_type; }
    bool operator<(const PxProductType &other) const { return m_type < other.m_type; }

private:
    void take(const PxProductTypeEntry *entry);

    PxProductTypeEnum m_type = PxProductTypeUnknown;
    PxProductClass m_productClass = PxProductClassUnknown;
    const PxProductTypeEntry *m_entry = nullptr; // the catalogue's, which is never destroyed
};

Q_DECLARE_TYPEINFO(PxProductType, Q_MOVABLE_TYPE);

inline uint qHash(const PxProductType &type, uint seed = 0)
{
    return ::qHash(int(type.type()), seed);
}

Q_DECLARE_METATYPE(PxProductType)

PXPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const PxProductType &type);
