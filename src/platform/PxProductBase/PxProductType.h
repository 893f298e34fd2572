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
 * A small value. Its texts are in the product-type catalogue and shared by all copies. The
 * catalogue is read when the first type is created, in any thread; a message handler must not
 * create one while the catalogue logs.
 */
class PXPRODUCTBASE_EXPORT PxProductType
{
public:
    /** The unknown type 0. */
    PxProductType() = default;
    /**
     * The type with this code. A code that the catalogue lacks gives an invalid type, which keeps
     * the code.
     */
    PxProductType(int code);
    /** The type with this name, trimmed and in any case; the unknown type 0 for any other name. */
    PxProductType(const QString &name);

    /** Whether the catalogue has this type. */
    bool isValid() const { return m_entry != nullptr; }

    /** The code; 0 by default. */
    PxProductTypeEnum type() const { return m_type; }
    /** The class in the catalogue; unknown for an invalid type. */
    PxProductClass productClass() const { return m_productClass; }
    /** Shares at least one bit. */
    bool isProductClass(PxProductClass classes) const { return (m_productClass & classes) != 0; }
    ///@{
    /** Whether the product is of this class; false for an invalid type. */
    bool isBook() const { return isProductClass(PxProductClassBook); }
    bool isCalendar() const { return isProductClass(PxProductClassCalendar); }
    bool isGift() const { return isProductClass(PxProductClassGift); }
    bool isCard() const { return isProductClass(PxProductClassCard); }
    bool isDeko() const { return isProductClass(PxProductClassDecoration); }
    ///@}

    /** The name as the catalogue spells it; empty for an invalid type. */
    QString productName() const;
    /** A shorter name, for places with little space; empty for an invalid type. */
    QString shortProductName() const;

    bool operator==(const PxProductType &other) const { return m_type == other.m_type; }
    bool operator!=(const PxProductType &other) const { return m_type != other.m_type; }
    /** Compares the codes. */
    bool operator<(const PxProductType &other) const { return m_type < other.m_type; }

private:
    void take(const PxProductTypeEntry *entry);

    PxProductTypeEnum m_type = PxProductTypeUnknown;
    PxProductClass m_productClass = PxProductClassUnknown;
    const PxProductTypeEntry *m_entry = nullptr; // owned by the catalogue, which is never destroyed
};

Q_DECLARE_TYPEINFO(PxProductType, Q_MOVABLE_TYPE);

/** Equal for equal types. */
inline uint qHash(const PxProductType &type, uint seed = 0)
{
    return ::qHash(int(type.type()), seed);
}

Q_DECLARE_METATYPE(PxProductType)

PXPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const PxProductType &type);
