#pragma once

#include "PxProductPropertiesExport.h"

#include <PxEnumWrapper.h>

#include <QMetaType>
#include <QString>

/** Kinds of design elements; a set of flags. */
enum PxJigTypeEnum : int {
    PxJigTypeBackground = 1,    ///< backgrounds of pages
    PxJigTypeClipart = 2,       ///< small pictures to be placed on a page
    PxJigTypeContent = 4,       ///< ready-made contents
    PxJigTypeLayout = 8,        ///< layouts: where pictures and texts are on a page
    PxJigTypePassepartout = 16, ///< masks, also called fadings
    PxJigTypeStyle = 32,        ///< styles
    PxJigTypeFrame = 128,       ///< frames around pictures
};
extern template class PXPRODUCTPROPERTIES_EXPORT PxEnumWrapper<PxJigTypeEnum>;

/** The kind of design element that a folder of cliparts or templates holds. */
class PXPRODUCTPROPERTIES_EXPORT PxJigType : public PxEnumWrapper<PxJigTypeEnum>
{
public:
    PxJigType() = default;
    /** Any value is kept, even one without an enumerator. */
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
