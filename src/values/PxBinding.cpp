#include "values/PxBinding.h"

#include <QCoreApplication>

template class PxEnumWrapper<PxBindingEnum>;

namespace {

struct BindingText
{
    PxBindingEnum value;
    const char *text;
};

constexpr const char *unknownBinding = QT_TRANSLATE_NOOP("PxBinding", "unbekannter Bindungstyp");

template <std::size_t COUNT>
const PxLookUpTable<PxBindingEnum, QString> *createTable(const BindingText (&rows)[COUNT])
{
    auto *table = new PxLookUpTable<PxBindingEnum, QString>;
    table->insertTranslated("PxBinding", rows);
    table->setDefaults(static_cast<PxBindingEnum>(0),
                       QCoreApplication::translate("PxBinding", unknownBinding));
    return table;
}

const PxLookUpTable<PxBindingEnum, QString> *initBindingNames()
{
    constexpr BindingText names[] = {
        {PxBindingClamp, QT_TRANSLATE_NOOP("PxBinding", "Leinencover")},
        {PxBindingSoftcover, QT_TRANSLATE_NOOP("PxBinding", "Softcover")},
        {PxBindingHardcover, QT_TRANSLATE_NOOP("PxBinding", "Hardcover")},
        {PxBindingBooklet, QT_TRANSLATE_NOOP("PxBinding", "Heft")},
        {PxBindingFoil, QT_TRANSLATE_NOOP("PxBinding", "Klarsichtfolie")},
        {PxBindingCalendarSimplex, QT_TRANSLATE_NOOP("PxBinding", "Kalender einseitig")},
        {PxBindingCalendarDuplex, QT_TRANSLATE_NOOP("PxBinding", "Kalender doppelseitig")},
        {PxBindingCalendarOnePage, QT_TRANSLATE_NOOP("PxBinding", "1-Seiten-Kalender")},
        {PxBindingCalendarAnnualDuplex, QT_TRANSLATE_NOOP("PxBinding", "2-Seiten-Jahresplaner")},
        {PxBindingCromolinen, QT_TRANSLATE_NOOP("PxBinding", "Premiumleinen")},
        {PxBindingLeather, QT_TRANSLATE_NOOP("PxBinding", "Leder")},
        {PxBindingArtificialLeather, QT_TRANSLATE_NOOP("PxBinding", "Kunstleder")},
    };
    return createTable(names);
}

const PxLookUpTable<PxBindingEnum, QString> *initTooltips()
{
    // clang-format off
    constexpr BindingText toolTips[] = {
        {PxBindingClamp, QT_TRANSLATE_NOOP("PxBinding", "Hochwertiger Leineneinband mit Klemmbindung - Das Cover trägt ein Foto und einen Titel Ihrer Wahl.")},
        {PxBindingSoftcover, QT_TRANSLATE_NOOP("PxBinding", "Individuell gestaltbarer elastischer Einband mit Klebebindung.\nDas Cover ist vollständig gestaltbar.")},
        {PxBindingHardcover, QT_TRANSLATE_NOOP("PxBinding", "Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.\nDas Cover ist vollständig gestaltbar.")},
        {PxBindingFoil, QT_TRANSLATE_NOOP("PxBinding", "Die Ringbindung wird durch eine Klarsichtfolie abgeschlossen,\ndurch die man auf die erste Seite des Booklets sehen kann.")},
        {PxBindingCalendarSimplex, QT_TRANSLATE_NOOP("PxBinding", "Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,\nda die leere Seite zur Wand zeigt, und daher nicht gesehen werden kann.")},
        {PxBindingCalendarDuplex, QT_TRANSLATE_NOOP("PxBinding", "Doppelseitig bedruckte Kalender eignen sich besonders zum auf-den-Tisch-Legen.")},
        {PxBindingCalendarOnePage, QT_TRANSLATE_NOOP("PxBinding", "Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.\nAlles auf einen Blick.")},
        {PxBindingCalendarAnnualDuplex, QT_TRANSLATE_NOOP("PxBinding", "Ein großformatiger Beidseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.\nAlles auf einen Blick.")},
        {PxBindingCromolinen, QT_TRANSLATE_NOOP("PxBinding", "Der hochwertige Premiumleinen-Einband ist in verschiedenen Farben erhältlich.\nDas Cover kann nicht gestaltet werden.")},
        {PxBindingLeather, QT_TRANSLATE_NOOP("PxBinding", "Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.\nDas Cover kann nicht gestaltet werden.")},
        {PxBindingArtificialLeather, QT_TRANSLATE_NOOP("PxBinding", "Der hochwertige Kunstleder-Einband ist in verschiedenen Farben erhältlich.\nDas Cover kann nicht gestaltet werden.")},
        {PxBindingBooklet, QT_TRANSLATE_NOOP("PxBinding", "Individuell gestaltbarer flexibler Einband mit Rückstichbindung.")},
    };
    // clang-format on
    return createTable(toolTips);
}

} // namespace

PxBinding::PxBinding(const QString &keywords)
{
    setValue(keywords);
}

PxBinding::PxBinding(const PxBinding &other) = default;
PxBinding &PxBinding::operator=(const PxBinding &other) = default;
PxBinding::~PxBinding() = default;

PxBinding PxBinding::createFromHumanReadable(const QString &name)
{
    // The translation reads these Latin-1 bytes as UTF-8. That is right for ASCII, and so for our
    // names.
    const QString translated =
        QCoreApplication::translate("PxBinding", name.toLatin1().constData());
    return bindingNames()->findByValue(translated);
}

int PxBinding::calendarPageCount() const
{
    switch (value()) {
    case PxBindingCalendarSimplex:
        return 12;
    case PxBindingCalendarDuplex:
        return 24;
    case PxBindingCalendarAnnualDuplex:
        return 2;
    default:
        return 1;
    }
}

QString PxBinding::humanReadableName() const
{
    return bindingNames()->findByKey(value());
}

QString PxBinding::toolTip() const
{
    return bindingToolTips()->findByKey(value());
}

const PxLookUpTable<PxBindingEnum, QString> *PxBinding::bindingNames()
{
    static const PxLookUpTable<PxBindingEnum, QString> *const ourNames = initBindingNames();
    return ourNames;
}

const PxLookUpTable<PxBindingEnum, QString> *PxBinding::bindingToolTips()
{
    static const PxLookUpTable<PxBindingEnum, QString> *const ourToolTips = initTooltips();
    return ourToolTips;
}

void PxBinding::fillTable(PxEnumToStringTable<PxBindingEnum> *table) const
{
    table->insert(ourKeywords);
    table->setDefaultValue(PxBindingGift);
    table->setDefaultString(QStringLiteral("GIFT"));
}
