#include "check/design/PxClassificationCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <values/PxProductMaterial.h>

void PxClassificationCheck::run(PxFindings *findings) const
{
    const auto *element = m_product.element().firstChild(QStringLiteral("classification"));
    if (!element || !PxElementReading(*element).hasOnlyKnown())
        return;
    QStringList missing;
    for (const QString &name :
         {QStringLiteral("cm"), QStringLiteral("inch"), QStringLiteral("group")}) {
        if (element->value(name).trimmed().isEmpty())
            missing.append(name);
    }
    if (!missing.isEmpty())
        m_product.add(
            findings, "classification-incomplete", element->nameRange,
            QStringLiteral("nothing is said about %1").arg(PxMessageText::quotedList(missing)),
            QStringLiteral("size name or material are empty"));

    const PxProductMaterial material = m_product.description().classification().material();
    if (material.value().trimmed().isEmpty() || !material.visibleDescription().isEmpty())
        return;
    m_product.add(
        findings, "material-unknown", element->rangeOf(QStringLiteral("group")),
        QStringLiteral("\"%1\" is no material").arg(material.value()),
        QStringLiteral("it is a material of its own, without a display name"),
        PxSpelling::hint(material.value(), PxFormat::keywordNames(PxKeywordSet::Material)));
}
