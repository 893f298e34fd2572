#include "check/design/PxDefaultsCheck.h"

#include "check/design/PxDefaultsOverrides.h"
#include "check/rules/PxRuleCheck.h"
#include "check/source/PxPageEntries.h"
#include "check/source/PxSourceParts.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <geometry/PxDefaultTemplateMap.h>

#include <algorithm>

namespace {

QString named(const QString &name)
{
    return name.isEmpty() ? "none" : PxMessageText::quoted(name);
}

QString templatesText(const PxDefaultsEntry::Templates &templates)
{
    return QString("background %1, layout %2")
        .arg(named(templates.background), named(templates.layout));
}

/** Whether the type stands for several others, or for pages of another type. */
bool isNoPage(const PxPageType &pageType)
{
    return PxPageEntry::isUnion(pageType) ||
           (pageType.isValid() && !pageType.matches(PxPageTypeAll));
}

} // namespace

void PxDefaultsCheck::run()
{
    const auto containers = m_parent.childrenNamed("defaults");
    if (containers.isEmpty())
        return;
    checkNesting(containers);
    PxRuleCheck(m_parent, PxFormat::root(PxFileKind::UserDefaults), defaultsRules(), m_report)
        .run();
    PxDefaultsOverrides overrides(m_report);
    for (const auto *child : containers.constFirst()->childrenNamed("defaults")) {
        const PxDefaultsEntry entry(*child);
        checkThemes(entry);
        checkPageTypes(entry);
        checkReach(entry);
        checkSeparators(entry);
        checkTemplates(entry);
        overrides.add(entry);
    }
}

/** One finding for all entries outside the container: its author does not know the container. */
void PxDefaultsCheck::checkNesting(const QVector<const PxSourceElement *> &containers) const
{
    const PxSourceElement &first = *containers.constFirst();
    const int entries = first.childrenNamed("defaults").size();
    const bool isFlat = entries == 0 && PxDefaultsEntry::isEntry(first);
    if (!isFlat && containers.size() == 1)
        return;
    const PxSourceElement &misplaced = isFlat ? first : *containers[1];
    m_report
        .add(PxTag::DefaultsNotNested, misplaced.nameRange,
             PxDefaultsEntry::isEntry(misplaced) ? "an entry directly in \"%1\""
                                                 : "a second container of \"defaults\"",
             m_parent.name)
        .now("only what is in the first \"defaults\" is read: %1 entries", entries)
        .hint("put all entries into one \"defaults\"");
}

void PxDefaultsCheck::checkThemes(const PxDefaultsEntry &entry) const
{
    if (m_themeIds.isEmpty())
        return;
    const PxSourceList list =
        PxSourceParts::ofAttribute(m_report.file(), entry.element().attribute("theme"));
    for (const PxSourcePart &part : list.parts) {
        const QString id = part.text.trimmed();
        // Other themes fall back to "normal", even if there is no such theme.
        if (id.isEmpty() || id == QLatin1String("normal") || m_themeIds.contains(id))
            continue;
        m_report.add(PxTag::DefaultsThemeUnknown, part.range, "there is no theme \"%1\"", id)
            .now("no theme finds these templates")
            .hint([&] {
                const QString separated = PxSpelling::separated(id);
                return separated.isEmpty() ? m_themeIds.hint(id) : separated;
            });
    }
}

void PxDefaultsCheck::checkPageTypes(const PxDefaultsEntry &entry) const
{
    const PxSourceList list =
        PxSourceParts::ofAttribute(m_report.file(), entry.element().attribute("pageType"));
    for (const PxSourcePart &part : list.parts) {
        const PxPageType pageType =
            static_cast<PxPageTypeEnum>(PxFormat::decode(PxKeywordSet::PageType, part.text));
        if (!isNoPage(pageType))
            continue;
        const bool isUnion = PxPageEntry::isUnion(pageType);
        m_report
            .add(PxTag::DefaultsPageTypeUnion, part.range,
                 isUnion ? "\"%1\" is more than one type"
                         : "\"%1\" stands for pages of another type",
                 part.text.trimmed())
            .now("no page finds these templates")
            .hint(isUnion ? "name each type, as \"fullcover,spine\""
                          : PxSpelling::didYouMean("normalpage"));
    }
}

/** Pages of a type and on a side that the product has may find the entry. */
void PxDefaultsCheck::checkReach(const PxDefaultsEntry &entry) const
{
    const QVector<PxPageTypeEnum> pageTypes = entry.pageTypes();
    const auto isOfType = [&](const PxPageContext &page) {
        return pageTypes.contains(page.pageType().value());
    };
    const auto finds = [&](const PxPageContext &page) {
        return isOfType(page) && (entry.alignments() & page.alignment()) != 0;
    };
    if (!entry.isPlain() || pageTypes.isEmpty() || m_pages.isEmpty() ||
        std::any_of(pageTypes.begin(), pageTypes.end(), isNoPage) ||
        std::any_of(m_pages.begin(), m_pages.end(), finds))
        return;
    const bool hasType = std::any_of(m_pages.begin(), m_pages.end(), isOfType);
    int types = 0;
    int sides = 0;
    for (const PxPageContext &page : m_pages) {
        types |= page.pageType().value();
        sides |= isOfType(page) ? page.alignment() & PxPageAlignmentSinglePages : 0;
    }
    const char *attribute = hasType ? "alignment" : "pageType";
    m_report
        .add(PxTag::DefaultsUnreachable, entry.element().rangeOf(attribute),
             hasType ? "no page of these types lies at \"%1\""
                     : "the product has no page of type \"%1\"",
             entry.element().value(attribute))
        .now("no page finds these templates")
        .hint(hasType ? "they lie at: %1" : "its types of pages: %1",
              hasType ? PxFormat::encode(PxKeywordSet::Alignment, sides)
                      : PxFormat::encode(PxKeywordSet::PageType, types));
}

/** Only a comma separates names. */
void PxDefaultsCheck::checkSeparators(const PxDefaultsEntry &entry) const
{
    const PxSourceList list =
        PxSourceParts::ofAttribute(m_report.file(), entry.element().attribute("templates"));
    for (const PxSourcePart &part : list.parts) {
        if (part.text.contains(QLatin1Char(';')))
            m_report
                .add(PxTag::NameListSeparator, part.range, "\"%1\" is one name, with a semicolon",
                     PxMessageText::shortened(part.text.trimmed()))
                .now([&] { return templatesText(entry.templates()); })
                .hint(PxSpelling::separated(part.text))
                .replacement(PxSpelling::withCommas(part.text));
    }
}

/** Reports a name that is lost; giving one twice does no harm. */
void PxDefaultsCheck::checkTemplates(const PxDefaultsEntry &entry) const
{
    QVector<PxSourcePart> names =
        PxSourceParts::ofAttribute(m_report.file(), entry.element().attribute("templates")).parts;
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const PxSourcePart &name) { return name.text.isEmpty(); }),
                names.end());
    const bool isElsewhere =
        entry.element().attribute("background") || entry.element().attribute("layout");
    // Two names are background and layout. The library is asked about the others only: it takes
    // long.
    if (names.isEmpty() || (names.size() <= 2 && !isElsewhere))
        return;
    const PxDefaultsEntry::Templates used = entry.templates();
    const auto lost = std::find_if(names.begin(), names.end(), [&](const PxSourcePart &name) {
        const QString own = PxDefaultTemplateMap::removeUmlauts(name.text.trimmed());
        return own != used.background && own != used.layout;
    });
    if (lost == names.end())
        return;
    m_report
        .add(PxTag::DefaultsTemplatesCount, names.size() > 2 ? names[2].range : lost->range,
             names.size() > 2 ? "\"templates\" takes a background and a layout, not %1 names"
             : lost == names.begin()
                 ? "the background is given in \"templates\" and as an attribute"
                 : "the layout is given in \"templates\" and as an attribute",
             names.size())
        .now(templatesText(used))
        .hint(names.size() > 2 ? QString() : "keep the one that is meant");
}
