#include "values/PxPageType.h"

template class PxEnumWrapper<PxPageTypeEnum>;

PxPageType::PxPageType(const QString &keywords)
{
    setValue(keywords);
}

PxPageType::PxPageType(const PxPageType &other) = default;
PxPageType &PxPageType::operator=(const PxPageType &other) = default;
PxPageType::~PxPageType() = default;

void PxPageType::expandTo(const PxPageTypeEnum &value)
{
    *this |= PxPageType(value);
}

void PxPageType::expandTo(const QString &keywords)
{
    *this |= PxPageType(keywords);
}

void PxPageType::fillTable(PxEnumToStringTable<PxPageTypeEnum> *table) const
{
    // The misspelt "calender…" keywords come first, so that they are the ones written back.
    constexpr PxKeyword<PxPageTypeEnum> keywords[] = {
        {"clampcoverfront", PxPageTypeClampCoverFront},
        {"clampcoverback", PxPageTypeClampCoverBack},
        {"foilcoverfront", PxPageTypeFoilCover},
        {"foilcoverback", PxPageTypeFoilCover},
        {"cover", PxPageTypeCover},
        {"foilcover", PxPageTypeFoilCover},
        {"fullcover", PxPageTypeFullCover},
        {"spine", PxPageTypeSpine},
        {"emptypage", PxPageTypeEmptyPage},
        {"empty", PxPageTypeEmptyPage},
        {"normalpage", PxPageTypeNormalPage},
        {"normal", PxPageTypeNormalPage},
        {"content", PxPageTypeNormalPage},
        {"cromolinen", PxPageTypeCromolinen},
        {"leather", PxPageTypeLeather},
        {"artificialleather", PxPageTypeArtificialLeather},
        {"calendercoverback", PxPageTypeCalendarCoverBack},
        {"calendarback", PxPageTypeCalendarCoverBack},
        {"calendercoverfront", PxPageTypeCalendarCoverFront},
        {"calendarfront", PxPageTypeCalendarCoverFront},
        {"normalpages", PxPageTypeNormalPages},
        {"simplexmonthcalendar", PxPageTypeSimplexMonthCalendar},
        {"duplexmonthcalendar", PxPageTypeDuplexMonthCalendar},
        {"simplexyearcalendar", PxPageTypeSimplexYearCalendar},
        {"all", PxPageTypeAll},
    };
    table->insert(keywords);
    table->setDefaultValue(PxPageTypeNone);
}
