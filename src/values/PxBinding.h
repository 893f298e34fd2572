#pragma once

#include "PxProductPropertiesExport.h"

#include <PxEnumWrapper.h>
#include <PxLookUpTable.h>

#include <QMetaType>
#include <QString>

enum PxBindingEnum : int {
    PxBindingHardcover = 1,
    PxBindingSoftcover = 2,
    PxBindingCromolinen = 4,
    PxBindingLeather = 8,
    PxBindingArtificialLeather = 16,
    PxBindingClamp = 32,
    PxBindingBooklet = 64,
    PxBindingFoil = 128,
    PxBindingCalendarSimplex = 256,
    PxBindingCalendarDuplex = 512,
    PxBindingCalendarOnePage = 1024,
    PxBindingCalendarAnnualDuplex = 2048,
    PxBindingGift = 4096,
    // The annual duplex planner is one, because applications lay out its pages like those of the
    // other two.
    PxBindingAllSimplex =
        PxBindingCalendarSimplex | PxBindingCalendarOnePage | PxBindingCalendarAnnualDuplex,
    PxBindingAllFullCover = PxBindingHardcover | PxBindingSoftcover | PxBindingBooklet,
};
extern template class PXPRODUCTPROPERTIES_EXPORT PxEnumWrapper<PxBindingEnum>;

/** How the pages of a product are held together; products without binding are "GIFT". */
class PXPRODUCTPROPERTIES_EXPORT PxBinding : public PxEnumWrapper<PxBindingEnum>
{
public:
    PxBinding() = default;
    PxBinding(PxBindingEnum value) : PxEnumWrapper(value) {}
    /** From a keyword list; each word that is not a keyword adds GIFT. */
    PxBinding(const QString &keywords);
    PxBinding(const PxBinding &other);
    PxBinding &operator=(const PxBinding &other);
    ~PxBinding() override;

    /**
     * The binding with this display name, in German or translated; value 0 for any other text.
     *
     * Only names in ASCII are found; all German names are in ASCII.
     */
    static PxBinding createFromHumanReadable(const QString &name);

    bool isSimplex() const { return matches(PxBindingAllSimplex); }
    /** Hardcover, softcover or booklet. */
    bool isFullCover() const { return matches(PxBindingAllFullCover); }
    bool isClampCover() const { return matches(PxBindingClamp); }
    /** How many pages a calendar of this binding has: 12, 24 or 2; 1 for any other binding. */
    int calendarPageCount() const;

    /** The translated display name; "unbekannter Bindungstyp" for a value without a name. */
    QString humanReadableName() const;
    /**
     * The translated tool tip, with line breaks; "unbekannter Bindungstyp" for a value without one.
     */
    QString toolTip() const;

    /** The display tables, translated on the first call. Never null, never freed. */
    static const PxLookUpTable<PxBindingEnum, QString> *bindingNames();
    static const PxLookUpTable<PxBindingEnum, QString> *bindingToolTips();

    /** As files usually spell them. The first one of a value is the one that is written back. */
    static constexpr PxKeyword<PxBindingEnum> ourKeywords[] = {
        {"HARDCOVER", PxBindingHardcover},
        {"SOFTCOVER", PxBindingSoftcover},
        {"CROMOLINEN", PxBindingCromolinen},
        {"LEATHER", PxBindingLeather},
        {"ARTIFICIALLEATHER", PxBindingArtificialLeather},
        {"CLAMP", PxBindingClamp},
        {"CLAMPCOVER", PxBindingClamp},
        {"BOOKLET", PxBindingBooklet},
        {"FOIL", PxBindingFoil},
        {"CALENDAR_SIMPLEX", PxBindingCalendarSimplex},
        {"CALENDAR_DUPLEX", PxBindingCalendarDuplex},
        {"CALENDAR_ONE_PAGE", PxBindingCalendarOnePage},
        {"CALENDAR_ANNUAL_SIMPLEX", PxBindingCalendarOnePage},
        {"CALENDAR_ANNUAL_DUPLEX", PxBindingCalendarAnnualDuplex},
        {"GIFT", PxBindingGift},
    };
    void fillTable(PxEnumToStringTable<PxBindingEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(PxBinding, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxBinding)
