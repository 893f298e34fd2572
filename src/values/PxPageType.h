#pragma once

#include "PxProductPropertiesExport.h"

#include <PxEnumWrapper.h>

#include <QMetaType>
#include <QString>

enum PxPageTypeEnum : int {
    PxPageTypeNone = 0,
    PxPageTypeSpine = 0x1,
    PxPageTypeClampCoverFront = 0x2,
    PxPageTypeClampCoverBack = 0x4,
    PxPageTypeFoilCover = 0x8, // front and back alike
    PxPageTypeNormalPage = 0x10,
    PxPageTypeEmptyPage = 0x20,
    PxPageTypeFullCover = 0x40,
    PxPageTypeCalendarCoverFront = 0x100,
    PxPageTypeCalendarCoverBack = 0x200,
    PxPageTypeCromolinen = 0x400,
    PxPageTypeLeather = 0x800,
    PxPageTypeArtificialLeather = 0x10000,
    PxPageTypeDuplexMonthCalendar = 0x20000,
    PxPageTypeSimplexYearCalendar = 0x40000,
    PxPageTypeNormalPages = 0x80000,
    PxPageTypeSimplexMonthCalendar = 0x100000,
    PxPageTypeCover = PxPageTypeSpine | PxPageTypeClampCoverFront | PxPageTypeClampCoverBack |
                      PxPageTypeFoilCover | PxPageTypeFullCover | PxPageTypeCalendarCoverFront |
                      PxPageTypeCalendarCoverBack | PxPageTypeCromolinen | PxPageTypeLeather |
                      PxPageTypeArtificialLeather,
    // Excludes the four types that mean a range of pages: no single page has such a type.
    PxPageTypeAll = PxPageTypeCover | PxPageTypeNormalPage | PxPageTypeEmptyPage,
};
extern template class PXPRODUCTPROPERTIES_EXPORT PxEnumWrapper<PxPageTypeEnum>;

/** The kind of a page, or a set of kinds; value 0 is no page. */
class PXPRODUCTPROPERTIES_EXPORT PxPageType : public PxEnumWrapper<PxPageTypeEnum>
{
public:
    PxPageType() = default;
    PxPageType(PxPageTypeEnum value) : PxEnumWrapper(value) {}
    /** From a keyword list; other words add nothing. */
    PxPageType(const QString &keywords);
    PxPageType(const PxPageType &other);
    PxPageType &operator=(const PxPageType &other);
    ~PxPageType() override;

    /** Adds the bits of the value, or of the keyword list. */
    void expandTo(const PxPageTypeEnum &value);
    void expandTo(const QString &keywords);

    /**
     * As files usually spell them. The first one of a value is the one that is written back: of
     * "calender…" and "calendar…" the misspelt one.
     */
    static constexpr PxKeyword<PxPageTypeEnum> ourKeywords[] = {
        {"spine", PxPageTypeSpine},
        {"clampcoverfront", PxPageTypeClampCoverFront},
        {"clampcoverback", PxPageTypeClampCoverBack},
        {"foilcoverfront", PxPageTypeFoilCover},
        {"foilcoverback", PxPageTypeFoilCover},
        {"foilcover", PxPageTypeFoilCover},
        {"normalpage", PxPageTypeNormalPage},
        {"normal", PxPageTypeNormalPage},
        {"content", PxPageTypeNormalPage},
        {"emptypage", PxPageTypeEmptyPage},
        {"empty", PxPageTypeEmptyPage},
        {"fullcover", PxPageTypeFullCover},
        {"calendercoverfront", PxPageTypeCalendarCoverFront},
        {"calendarfront", PxPageTypeCalendarCoverFront},
        {"calendercoverback", PxPageTypeCalendarCoverBack},
        {"calendarback", PxPageTypeCalendarCoverBack},
        {"cromolinen", PxPageTypeCromolinen},
        {"leather", PxPageTypeLeather},
        {"artificialleather", PxPageTypeArtificialLeather},
        {"duplexmonthcalendar", PxPageTypeDuplexMonthCalendar},
        {"simplexyearcalendar", PxPageTypeSimplexYearCalendar},
        {"normalpages", PxPageTypeNormalPages},
        {"simplexmonthcalendar", PxPageTypeSimplexMonthCalendar},
        {"cover", PxPageTypeCover},
        {"all", PxPageTypeAll},
    };
    void fillTable(PxEnumToStringTable<PxPageTypeEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(PxPageType, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxPageType)
