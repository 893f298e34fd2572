#include "check/PxDefaultsEntry.h"

#include "check/PxPlainReading.h"

#include <PxListParts.h>
#include <geometry/PxDefaultTemplateMap.h>

#include <algorithm>

namespace {

constexpr auto attributeNames = {"theme",     "pageType", "alignment",
                                 "templates", "layout",   "background"};

} // namespace

PxDefaultsEntry::PxDefaultsEntry(const PxSourceElement &element)
    : m_element(&element)
    , m_isPlain(PxPlainReading::hasOnly(element, attributeNames) &&
                PxPlainReading::isPageTypes(element, "pageType") &&
                PxPlainReading::isAlignments(element, "alignment"))
    , m_alignments(EnumHelper::decodeKeywordList(
          element.dom.attribute(QStringLiteral("alignment"),
                                QStringLiteral("left,right,top,bottom,center,middle")),
          EnumHelper::globalMapPageAlignmentString, EnumHelper::globalPageAlignmentDefaultValue))
{
    pxForEachPart(element.dom.attribute(QStringLiteral("theme"), QStringLiteral("normal")),
                  [this](QStringView theme) {
                      if (!theme.trimmed().isEmpty())
                          m_themes.append(theme.trimmed().toString());
                  });
    m_themes.removeDuplicates();
    pxForEachPart(element.value(QStringLiteral("pageType")), [this](QStringView part) {
        const PxPageTypeEnum pageType = PxPageType(part.trimmed().toString()).value();
        if (pageType != PxPageTypeNone && !m_pageTypes.contains(pageType))
            m_pageTypes.append(pageType);
    });
    readTemplates();
}

/** Asks the library for the templates, for a page that it is sure to find. */
void PxDefaultsEntry::readTemplates()
{
    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("defaults"));
    QDomElement entry = document.importNode(m_element->dom, false).toElement();
    entry.setAttribute(QStringLiteral("theme"), QStringLiteral("normal"));
    entry.setAttribute(QStringLiteral("pageType"), QStringLiteral("normalpage"));
    entry.setAttribute(QStringLiteral("alignment"), QStringLiteral("left"));
    parent.appendChild(entry);
    const PxDefaultTemplateMap map(parent);
    const PxPageContext page(PxPageTypeNormalPage, PxPageAlignmentLeft);
    const QString theme = QStringLiteral("normal");
    m_layout = map.findTemplate({theme, page, DefaultTemplateTypeLayout}, false);
    m_background = map.findTemplate({theme, page, DefaultTemplateTypeBackground}, false);
}

bool PxDefaultsEntry::isEntry(const PxSourceElement &element)
{
    return std::any_of(attributeNames.begin(), attributeNames.end(), [&](const char *name) {
        return element.attribute(QLatin1String(name)) != nullptr;
    });
}
