#include "check/PxClassificationCheck.h"

#include "check/PxPlainReading.h"
#include "check/PxSpelling.h"

#include <values/PxProductMaterial.h>

void PxClassificationCheck::run(PxFindings *findings) const
{
    const auto *element = m_product.element().firstChild(QStringLiteral("classification"));
    if (!element || !PxPlainReading::hasOnly(*element, {"cm", "inch", "group"}))
        return;
    QStringList missing;
    for (const char *name : {"cm", "inch", "group"}) {
        if (element->value(QLatin1String(name)).trimmed().isEmpty())
            missing.append(QLatin1Char('"') + QLatin1String(name) + QLatin1Char('"'));
    }
    if (!missing.isEmpty())
        m_product.add(
            findings, "classification-incomplete", element->nameRange,
            QStringLiteral("nothing is said about %1").arg(missing.join(QLatin1String(", "))),
            QStringLiteral("size name or material are empty"));

    const PxProductMaterial material = m_product.description().classification().material();
    if (material.value().trimmed().isEmpty() || !material.visibleDescription().isEmpty())
        return;
    const QStringList known{QStringLiteral("Poster"),
                            QStringLiteral("Deko-Poster"),
                            QStringLiteral("Leinwand"),
                            QStringLiteral("Poster auf Alu-Dibond"),
                            QStringLiteral("Poster hinter Acryl-Glas"),
                            QStringLiteral("Poster auf Alu-Dibond digital"),
                            QStringLiteral("Poster hinter Acryl-Glas digital"),
                            QStringLiteral("Posterdruck XXL"),
                            QStringLiteral("Posterdruck XXL quadratisch"),
                            QStringLiteral("Posterdruck XXL Panorama"),
                            QStringLiteral("Poster auf Hartschaumplatte digital"),
                            QStringLiteral("Gallery Print digital")};
    m_product.add(findings, "material-unknown", element->rangeOf(QStringLiteral("group")),
                  QStringLiteral("\"%1\" is no material").arg(material.value()),
                  QStringLiteral("it is a material of its own, without a display name"),
                  PxSpelling::hint(material.value(), known));
}
