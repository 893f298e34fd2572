#pragma once

#include "PxProductPropertiesExport.h"

#include <PxEnumWrapper.h>
#include <PxLookUpTable.h>

#include <QMetaType>
#include <QString>

/** Size classes; a set of flags. */
enum PxSpaceMagnitudeEnum : int {
    PxSpaceMagnitudeUnknown = 0, ///< no class
    PxSpaceMagnitude150 = 1,     ///< Mini
    PxSpaceMagnitude200 = 2,     ///< small
    PxSpaceMagnitude280 = 4,     ///< Compact
    PxSpaceMagnitude310 = 8,     ///< A5
    PxSpaceMagnitude400 = 16,    ///< square
    PxSpaceMagnitude600 = 32,    ///< A4
    PxSpaceMagnitude900 = 64,    ///< XL
    PxSpaceMagnitude1200 = 128,  ///< XXL
    /** All but Mini and XL. */
    PxSpaceMagnitudeNormal = PxSpaceMagnitude200 | PxSpaceMagnitude280 | PxSpaceMagnitude310 |
                             PxSpaceMagnitude400 | PxSpaceMagnitude600 | PxSpaceMagnitude1200,
    /** every class */
    PxSpaceMagnitudeAny = PxSpaceMagnitudeNormal | PxSpaceMagnitude150 | PxSpaceMagnitude900,
};
extern template class PXPRODUCTPROPERTIES_EXPORT PxEnumWrapper<PxSpaceMagnitudeEnum>;

/** The size class of the printable area of a page; the enumerators name square centimetres. */
class PXPRODUCTPROPERTIES_EXPORT PxSpaceMagnitude : public PxEnumWrapper<PxSpaceMagnitudeEnum>
{
public:
    PxSpaceMagnitude() = default;
    /** Any value is kept, even one without an enumerator. */
    PxSpaceMagnitude(PxSpaceMagnitudeEnum value) : PxEnumWrapper(value) {}
    /** From a keyword list; each word that is not a keyword adds every size. */
    PxSpaceMagnitude(const QString &keywords);
    PxSpaceMagnitude(const PxSpaceMagnitude &other);
    PxSpaceMagnitude &operator=(const PxSpaceMagnitude &other);
    ~PxSpaceMagnitude() override;

    /** The size with this display name, in German or translated; value 0 for any other text. */
    static PxSpaceMagnitude createFromHumanReadable(const QString &name);

    /** How many images look good on a page of this size; 1 unless the value is a single size. */
    int maxReasonableImagesPerPage() const;
    /** The translated display name; "Undefiniert" for a value without a name. */
    QString humanReadableName() const;

    /** The display table, translated on the first call. Never null, never freed. */
    static const PxLookUpTable<PxSpaceMagnitude, QString> *names();

    /** As files usually spell them. The first one of a value is the one that is written back. */
    static constexpr PxKeyword<PxSpaceMagnitudeEnum> ourKeywords[] = {
        {"150cm2", PxSpaceMagnitude150},   {"200cm2", PxSpaceMagnitude200},
        {"280cm2", PxSpaceMagnitude280},   {"310cm2", PxSpaceMagnitude310},
        {"400cm2", PxSpaceMagnitude400},   {"600cm2", PxSpaceMagnitude600},
        {"900cm2", PxSpaceMagnitude900},   {"xl", PxSpaceMagnitude900},
        {"1200cm2", PxSpaceMagnitude1200}, {"normal", PxSpaceMagnitudeNormal},
    };
    void fillTable(PxEnumToStringTable<PxSpaceMagnitudeEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(PxSpaceMagnitude, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxSpaceMagnitude)
