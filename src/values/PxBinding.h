#pragma once

#include "PxProductPropertiesExport.h"

#include <PxEnumWrapper.h>
#include <PxLookUpTable.h>

#include <QMetaType>
#include <QString>

/** Bindings, and unions of them that the library asks for; a set of flags. */
enum PxBindingEnum : int {
    PxBindingHardcover = 1,               ///< printed hard cover
    PxBindingSoftcover = 2,               ///< printed soft cover
    PxBindingCromolinen = 4,              ///< linen cover, not printed
    PxBindingLeather = 8,                 ///< leather cover, not printed
    PxBindingArtificialLeather = 16,      ///< imitation leather, not printed
    PxBindingClamp = 32,                  ///< linen folder with clamp
    PxBindingBooklet = 64,                ///< stapled
    PxBindingFoil = 128,                  ///< rings and clear foil
    PxBindingCalendarSimplex = 256,       ///< month calendar, printed on one side
    PxBindingCalendarDuplex = 512,        ///< month calendar, printed on both sides
    PxBindingCalendarOnePage = 1024,      ///< year on one page
    PxBindingCalendarAnnualDuplex = 2048, ///< year on two pages
    PxBindingGift = 4096,                 ///< no binding: gifts, cards, decorations, prints
    /**
     * Bindings that are laid out as printed on one side. The annual duplex planner is one, because
     * applications lay out its pages like those of the other two.
     */
    PxBindingAllSimplex =
        PxBindingCalendarSimplex | PxBindingCalendarOnePage | PxBindingCalendarAnnualDuplex,
    /** Bindings whose cover is printed as a whole. */
    PxBindingAllFullCover = PxBindingHardcover | PxBindingSoftcover | PxBindingBooklet,
};
extern template class PXPRODUCTPROPERTIES_EXPORT PxEnumWrapper<PxBindingEnum>;

/** How the pages of a product are held together; products without binding are "GIFT". */
class PXPRODUCTPROPERTIES_EXPORT PxBinding : public PxEnumWrapper<PxBindingEnum>
{
public:
    PxBinding() = default;
    /** Any value is kept, even one without an enumerator. */
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

    /** Whether a product of this binding is printed on one side. */
    bool isSimplex() const { return matches(PxBindingAllSimplex); }
    /** Hardcover, softcover or booklet. */
    bool isFullCover() const { return matches(PxBindingAllFullCover); }
    /** Whether the pages are held by a clamp. */
    bool isClampCover() const { return matches(PxBindingClamp); }
    /** How many pages a calendar of this binding has: 12, 24 or 2; 1 for any other binding. */
    int calendarPageCount() const;

    /** The translated display name; "unbekannter Bindungstyp" for a value without a name. */
    QString humanReadableName() const;
    /**
     * The translated tool tip, with line breaks; "unbekannter Bindungstyp" for a value without one.
     */
    QString toolTip() const;

    /** The display names, translated on the first call. Never null, never freed. */
    static const PxLookUpTable<PxBindingEnum, QString> *bindingNames();
    /** The same for the tool tips. */
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
