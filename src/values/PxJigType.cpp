#include "values/PxJigType.h"

template class PxEnumWrapper<PxJigTypeEnum>;

PxJigType::PxJigType(const QString &keywords)
{
    setValue(keywords);
}

PxJigType::PxJigType(const PxJigType &other) = default;
PxJigType &PxJigType::operator=(const PxJigType &other) = default;
PxJigType::~PxJigType() = default;

void PxJigType::fillTable(PxEnumToStringTable<PxJigTypeEnum> *table) const
{
    constexpr PxKeyword<PxJigTypeEnum> keywords[] = {
        {"background", PxJigTypeBackground},
        {"backgrounds", PxJigTypeBackground},
        {"Hintergrund", PxJigTypeBackground},
        {"content", PxJigTypeContent},
        {"contents", PxJigTypeContent},
        {"clipart", PxJigTypeClipart},
        {"cliparts", PxJigTypeClipart},
        {"layout", PxJigTypeLayout},
        {"Layouts", PxJigTypeLayout},
        {"passepartout", PxJigTypePassepartout},
        {"fading", PxJigTypePassepartout},
        {"masks", PxJigTypePassepartout},
        {"style", PxJigTypeStyle},
        {"styles", PxJigTypeStyle},
        {"frame", PxJigTypeFrame},
        {"Rahmen", PxJigTypeFrame},
    };
    table->insert(keywords);
}
