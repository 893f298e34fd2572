#include "check/design/PxDefaultsEntry.h"

#include "check/PxCheckLimits.h"
#include "check/source/PxSourceParts.h"
#include "format/PxFormat.h"

#include <PxListParts.h>
#include <geometry/PxDefaultTemplateMap.h>

#include <algorithm>

namespace {

/** The same in all files that hold entries. */
const PxElementRow &entryRow()
{
    static const PxElementRow &ourRow =
        *PxFormat::find(PxFileKind::UserDefaults, "defaults/defaults");
    return ourRow;
}

/** The value, or the default if the attribute is missing. */
QString listOf(const PxSourceElement &entry, const char *attribute)
{
    const PxSourceAttribute *own = entry.attribute(attribute);
    return own ? own->value : PxFormat::attribute(entryRow(), attribute)->defaultText;
}

bool isPlainEntry(const PxSourceElement &element)
{
    const PxElementReading reading(element, entryRow());
    return reading.hasOnlyKnown() && reading.isReadable("pageType") &&
           reading.isReadable("alignment");
}

} // namespace

PxDefaultsEntry::PxDefaultsEntry(const PxSourceElement &element)
    : m_element(&element)
    , m_isPlain(isPlainEntry(element))
    , m_alignments(PxFormat::decode(PxKeywordSet::Alignment, listOf(element, "alignment")))
{
    pxForEachPart(listOf(element, "theme"), [this](QStringView theme) {
        if (!theme.trimmed().isEmpty() && m_themes.size() < PxCheckLimits::listParts)
            m_themes.append(theme.trimmed().toString());
    });
    m_themes.removeDuplicates();
    pxForEachPart(element.value("pageType"), [this](QStringView part) {
        const auto pageType = static_cast<PxPageTypeEnum>(
            PxFormat::decode(PxKeywordSet::PageType, part.trimmed().toString()));
        if (pageType != PxPageTypeNone && !m_pageTypes.contains(pageType))
            m_pageTypes.append(pageType);
    });
}

PxDefaultsEntry::Templates PxDefaultsEntry::templates() const
{
    // With a theme and a page that the library finds in any case. Large files ask this often.
    const QString theme = QStringLiteral("normal");
    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("defaults"));
    QDomElement entry = document.importNode(m_element->dom, false).toElement();
    entry.setAttribute(QStringLiteral("theme"), theme);
    entry.setAttribute(QStringLiteral("pageType"), QStringLiteral("normalpage"));
    entry.setAttribute(QStringLiteral("alignment"), QStringLiteral("left"));
    parent.appendChild(entry);
    const PxDefaultTemplateMap map(parent);
    const PxPageContext page(PxPageTypeNormalPage, PxPageAlignmentLeft);
    return {map.findTemplate({theme, page, DefaultTemplateTypeLayout}, false),
            map.findTemplate({theme, page, DefaultTemplateTypeBackground}, false)};
}

bool PxDefaultsEntry::isEntry(const PxSourceElement &element)
{
    return std::any_of(element.attributes.begin(), element.attributes.end(),
                       [](const PxSourceAttribute &attribute) {
                           return PxFormat::attribute(entryRow(), attribute.name);
                       });
}
