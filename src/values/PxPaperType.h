#pragma once

#include "PxProductPropertiesExport.h"

#include <PxEnumWrapper.h>
#include <PxLookUpTable.h>

#include <QMetaType>
#include <QString>

enum PxPaperTypeEnum : int {
    PxPaperTypeUnknown = 0,
    PxPaperTypeIndigo = 1,
    PxPaperTypeGlossy = 2,
    PxPaperTypeIndigoMatt = 4,
    PxPaperTypeFotoPaper = 8,
    PxPaperTypeFotoPaperGlossy = 16,
};
extern template class PXPRODUCTPROPERTIES_EXPORT PxEnumWrapper<PxPaperTypeEnum>;

/** What a product is printed on. */
class PXPRODUCTPROPERTIES_EXPORT PxPaperType : public PxEnumWrapper<PxPaperTypeEnum>
{
public:
    PxPaperType() = default;
    PxPaperType(PxPaperTypeEnum value) : PxEnumWrapper(value) {}
    /** From a keyword list; each word that is not a keyword adds "indigo". */
    PxPaperType(const QString &keywords);
    PxPaperType(const PxPaperType &other);
    PxPaperType &operator=(const PxPaperType &other);
    ~PxPaperType() override;

    /** The paper with this display name, in German or translated; "indigo" for any other text. */
    static PxPaperType createFromHumanReadable(const QString &name);

    /** The translated display name; "unbekannter Papiertyp" for a value without a name. */
    QString humanReadableName() const;

    /** The display table, translated on the first call. Never null, never freed. */
    static const PxLookUpTable<PxPaperType, QString> *paperTypeNames();

    /** As files usually spell them. The first one of a value is the one that is written back. */
    static constexpr PxKeyword<PxPaperTypeEnum> ourKeywords[] = {
        {"unbekanntes Papier", PxPaperTypeUnknown},
        {"indigo", PxPaperTypeIndigo},
        {"glossy", PxPaperTypeGlossy},
        {"indigo-matt", PxPaperTypeIndigoMatt},
        {"fotopaper", PxPaperTypeFotoPaper},
        {"fotopaper-glossy", PxPaperTypeFotoPaperGlossy},
    };
    void fillTable(PxEnumToStringTable<PxPaperTypeEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(PxPaperType, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxPaperType)
