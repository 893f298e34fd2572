#include "values/PxProductMaterial.h"

#include <PxLookUpTable.h>

#include <QCoreApplication>
#include <QDebug>

namespace {

// clang-format off
constexpr struct { const char *value; const char *text; } descriptions[] = {
    {"Poster", QT_TRANSLATE_NOOP("PxProductMaterial", "Poster-Collage")},
    {"Deko-Poster", QT_TRANSLATE_NOOP("PxProductMaterial", "Poster-Collage")},
    {"Leinwand", QT_TRANSLATE_NOOP("PxProductMaterial", "Fotoleinwand")},
    {"Poster auf Alu-Dibond", QT_TRANSLATE_NOOP("PxProductMaterial", "Poster auf Alu-Dibond")},
    {"Poster hinter Acryl-Glas", QT_TRANSLATE_NOOP("PxProductMaterial", "Poster hinter Acryl-Glas")},
    {"Poster auf Alu-Dibond digital", QT_TRANSLATE_NOOP("PxProductMaterial", "Poster auf Alu-Dibond (Direktdruck)")},
    {"Poster hinter Acryl-Glas digital", QT_TRANSLATE_NOOP("PxProductMaterial", "Poster hinter Acryl-Glas (Direktdruck)")},
    {"Posterdruck XXL", QT_TRANSLATE_NOOP("PxProductMaterial", "Posterdruck XXL")},
    {"Posterdruck XXL quadratisch", QT_TRANSLATE_NOOP("PxProductMaterial", "Posterdruck XXL Quadratisch")},
    {"Posterdruck XXL Panorama", QT_TRANSLATE_NOOP("PxProductMaterial", "Posterdruck XXL Panorama")},
    {"Poster auf Hartschaumplatte digital", QT_TRANSLATE_NOOP("PxProductMaterial", "Poster auf Hartschaum (Direktdruck)")},
    {"Gallery Print digital", QT_TRANSLATE_NOOP("PxProductMaterial", "Gallery Print")},
};
// clang-format on

} // namespace

PxProductMaterial::PxProductMaterial(const QString &value) : m_value(value) {}
PxProductMaterial::PxProductMaterial(const PxProductMaterial &other) = default;
PxProductMaterial &PxProductMaterial::operator=(const PxProductMaterial &other) = default;
PxProductMaterial::~PxProductMaterial() = default;

QStringList PxProductMaterial::keywords()
{
    QStringList keywords;
    for (const auto &row : descriptions)
        keywords.append(QLatin1String(row.value));
    return keywords;
}

QString PxProductMaterial::visibleDescription() const
{
    // Built on each call: lists show few materials, and the language may change meanwhile.
    PxLookUpTable<QString, QString> table;
    for (const auto &row : descriptions)
        table.insert(QLatin1String(row.value),
                     QCoreApplication::translate("PxProductMaterial", row.text));
    return table.findByKey(m_value);
}

QDebug operator<<(QDebug debug, const PxProductMaterial &material)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxProductMaterial(" << material.value() << ')';
}
