#include "check/design/PxClassificationCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <values/PxProductMaterial.h>

void PxClassificationCheck::run()
{
    const auto *element = m_product.element().firstChild("classification");
    if (!element || !PxElementReading(*element).hasOnlyKnown())
        return;
    QStringList missing;
    for (const char *name : {"cm", "inch", "group"}) {
        if (element->value(name).trimmed().isEmpty())
            missing.append(name);
    }
    if (!missing.isEmpty())
        m_report
            .add(PxTag::ClassificationIncomplete, element->nameRange, "nothing is said about %1",
                 PxMessageText::quotedList(missing))
            .now("size name or material are empty");

    const PxProductMaterial material = m_product.description().classification().material();
    if (material.value().trimmed().isEmpty() || !material.visibleDescription().isEmpty())
        return;
    m_report
        .add(PxTag::MaterialUnknown, element->rangeOf("group"), "\"%1\" is no material",
             material.value())
        .now("it is a material of its own, without a display name")
        .hint(PxSpelling::hint(material.value(), PxFormat::keywordNames(PxKeywordSet::Material)));
}
