#pragma once

#include "PxProductPropertiesExport.h"

#include <PxEnumWrapper.h>

#include <QMetaType>
#include <QString>

enum PxJigTypeEnum : int {
    PxJigTypeBackground = 1,
    PxJigTypeClipart = 2,
    PxJigTypeContent = 4,
    PxJigTypeLayout = 8,
    PxJigTypePassepartout = 16,
    PxJigTypeStyle = 32,
    PxJigTypeFrame = 128,
};
extern template class PXPRODUCTPROPERTIES_EXPORT PxEnumWrapper<PxJigTypeEnum>;

/** The kind of design element that a folder of cliparts or templates holds. */
class PXPRODUCTPROPERTIES_EXPORT PxJigType : public PxEnumWrapper<PxJigTypeEnum>
{
public:
    PxJigType() = default;
    PxJigType(PxJigTypeEnum value) : PxEnumWrapper(value) {}
    /** From a keyword list; other words add nothing. */
    PxJigType(const QString &keywords);
    PxJigType(const PxJigType &other);
    PxJigType &operator=(const PxJigType &other);
    ~PxJigType() override;

    void fillTable(PxEnumToStringTable<PxJigTypeEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(PxJigType, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxJigType)
