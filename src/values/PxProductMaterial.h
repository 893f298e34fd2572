#pragma once

#include "PxProductPropertiesExport.h"

#include <QMetaType>
#include <QStringList>

class QDebug;

/** The material of a wall decoration, kept as the keyword of the product file. */
class PXPRODUCTPROPERTIES_EXPORT PxProductMaterial
{
public:
    PxProductMaterial() = default;
    /** Any text is kept, even one that is no keyword. */
    PxProductMaterial(const QString &value);
    PxProductMaterial(const PxProductMaterial &other);
    PxProductMaterial &operator=(const PxProductMaterial &other);
    virtual ~PxProductMaterial();

    /** All keywords that have a description. */
    static QStringList keywords();

    /** The keyword exactly as read; empty by default. */
    QString value() const { return m_value; }
    /**
     * The translated description; empty for an unknown keyword. Case and blanks are significant.
     */
    QString visibleDescription() const;

    bool operator==(const PxProductMaterial &other) const { return m_value == other.m_value; }
    bool operator!=(const PxProductMaterial &other) const { return !(*this == other); }

private:
    QString m_value;
};

Q_DECLARE_TYPEINFO(PxProductMaterial, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxProductMaterial)

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxProductMaterial &material);
