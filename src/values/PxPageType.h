#pragma once

#include "PxProductPropertiesExport.h"

#include <PxEnumWrapper.h>

#include <QMetaType>
#include <QString>

/** Kinds of pages, and unions of them; a set of flags. */
enum PxPageTypeEnum : int {
    PxPageTypeNone = 0,                      ///< no page
    PxPageTypeSpine = 0x1,                   ///< the spine
    PxPageTypeClampCoverFront = 0x2,         ///< front of a clamp folder
    PxPageTypeClampCoverBack = 0x4,          ///< back of a clamp folder
    PxPageTypeFoilCover = 0x8,               ///< clear foil, front and back alike
    PxPageTypeNormalPage = 0x10,             ///< page with content
    PxPageTypeEmptyPage = 0x20,              ///< blank page
    PxPageTypeFullCover = 0x40,              ///< half of a printed cover
    PxPageTypeCalendarCoverFront = 0x100,    ///< front of a calendar
    PxPageTypeCalendarCoverBack = 0x200,     ///< back of a calendar
    PxPageTypeCromolinen = 0x400,            ///< half of a linen cover
    PxPageTypeLeather = 0x800,               ///< half of a leather cover
    PxPageTypeArtificialLeather = 0x10000,   ///< half of an imitation leather cover
    PxPageTypeDuplexMonthCalendar = 0x20000, ///< a range: the pages of a month calendar, both sides
    PxPageTypeSimplexYearCalendar = 0x40000, ///< a range: the page of a year calendar
    PxPageTypeNormalPages = 0x80000,         ///< a range: all normal pages
    PxPageTypeSimplexMonthCalendar = 0x100000, ///< a range: the pages of a month calendar, one side
    /** The spine and every cover. */
    PxPageTypeCover = PxPageTypeSpine | PxPageTypeClampCoverFront | PxPageTypeClampCoverBack |
                      PxPageTypeFoilCover | PxPageTypeFullCover | PxPageTypeCalendarCoverFront |
                      PxPageTypeCalendarCoverBack | PxPageTypeCromolinen | PxPageTypeLeather |
                      PxPageTypeArtificialLeather,
    /**
     * Every type of a single page: without the four types that mean a range of pages, which no
     * page has.
     */
    PxPageTypeAll = PxPageTypeCover | PxPageTypeNormalPage | PxPageTypeEmptyPage,
};
extern template class PXPRODUCTPROPERTIES_EXPORT PxEnumWrapper<PxPageTypeEnum>;

/** The kind of a page, or a set of kinds; value 0 is no page. */
class PXPRODUCTPROPERTIES_EXPORT PxPageType : public PxEnumWrapper<PxPageTypeEnum>
{
public:
    PxPageType() = default;
    /** Any value is kept, even one without an enumerator. */
    PxPageType(PxPageTypeEnum value) : PxEnumWrapper(value) {}
    /** From a keyword list; other words add nothing. */
    PxPageType(const QString &keywords);
    PxPageType(const PxPageType &other);
    PxPageType &operator=(const PxPageType &other);
    ~PxPageType() override;

    /** Adds the bits of the value. */
    void expandTo(const PxPageTypeEnum &value);
    /** Adds the bits of a comma-separated keyword list; other words add nothing. */
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
