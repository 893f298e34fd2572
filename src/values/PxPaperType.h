#pragma once

#include "PxProductPropertiesExport.h"

#include <PxEnumWrapper.h>
#include <PxLookUpTable.h>

#include <QMetaType>
#include <QString>

/** Papers; a set of flags. */
enum PxPaperTypeEnum : int {
    PxPaperTypeUnknown = 0,          ///< none, or one that has no name here
    PxPaperTypeIndigo = 1,           ///< digital print
    PxPaperTypeGlossy = 2,           ///< digital print, varnished
    PxPaperTypeIndigoMatt = 4,       ///< digital print on heavy matt paper
    PxPaperTypeFotoPaper = 8,        ///< photo paper, matt
    PxPaperTypeFotoPaperGlossy = 16, ///< photo paper, glossy
};
extern template class PXPRODUCTPROPERTIES_EXPORT PxEnumWrapper<PxPaperTypeEnum>;

/** What a product is printed on. */
class PXPRODUCTPROPERTIES_EXPORT PxPaperType : public PxEnumWrapper<PxPaperTypeEnum>
{
public:
    PxPaperType() = default;
    /** Any value is kept, even one without an enumerator. */
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
