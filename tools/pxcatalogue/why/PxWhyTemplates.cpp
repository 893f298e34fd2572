#include "why/PxWhyTemplates.h"

#include "why/PxWhyProduct.h"
#include "why/PxWhyRules.h"

namespace {

constexpr const char *white = "a page that stays empty is white";

} // namespace

PxWhyTemplates::PxWhyTemplates(const PxWhyProduct &product, const PxPageContext &page)
    : m_product(product)
    , m_page(page)
{
    const QString theme = product.shown().themeId;
    QStringList themes{theme.isEmpty() ? "normal" : theme};
    add(product.userDefaults(), product.userDefaults().element(), themes);
    themes.append("normal");
    themes.removeDuplicates();
    const PxSourceElement *element = product.file().element();
    add(product.file(), element ? element->firstChild("defaults") : nullptr, themes);
}

void PxWhyTemplates::add(const PxOriginFile &file, const PxSourceElement *list,
                         const QStringList &themes)
{
    m_lists.append({file, {}, themes, QVector<int>(themes.size(), -1)});
    if (!list)
        return;
    List &added = m_lists.last();
    for (const PxSourceElement *element : list->childrenNamed("defaults")) {
        const PxDefaultsEntry entry(*element);
        for (int i = 0; i < themes.size(); ++i) {
            // The last one decides, even if it names nothing.
            if (isForPage(entry) && entry.themes().contains(themes[i]))
                added.found[i] = added.entries.size();
        }
        added.entries.append(entry);
    }
}

PxWhyRule PxWhyTemplates::rule(const QString &tag, DefaultTemplateType type) const
{
    const QString theme = m_lists[0].themes[0];
    PxWhyRule rule{tag, true, {theme}, {PxWhyRules::orNull(answer(type))}, {}};
    const Used found = find(type);
    if (isWhite(type)) {
        PxOrigin origin;
        origin.kind = PxOrigin::Kind::Computed;
        origin.rule = white;
        rule.origins.append(origin);
    }
    for (const List &list : m_lists) {
        for (int i = 0; i < list.entries.size(); ++i) {
            const PxSourceElement &element = list.entries[i].element();
            const bool isFound = &list == found.list && i == found.index;
            if (isFound && !isWhite(type))
                rule.origins.append(PxWhyRules::in(list.file, &element));
            else
                PxWhyRules::addLost(list.file, element,
                                    isFound ? QString(white) : reason(list, i, found), &rule);
        }
    }
    return rule;
}

/** As "show" prints it. */
QString PxWhyTemplates::answer(DefaultTemplateType type) const
{
    const QString theme = m_product.shown().themeId;
    if (theme.isEmpty())
        return m_product.description().findDefaultTemplate({"normal", m_page, type}, true, true);
    return PxProductContext(m_product.type(), theme)
        .defaultTemplateForPage(type == DefaultTemplateTypeLayout, m_page, true);
}

/** In a theme the background of an empty page is white, whatever the files say. */
bool PxWhyTemplates::isWhite(DefaultTemplateType type) const
{
    return !m_product.shown().themeId.isEmpty() && type == DefaultTemplateTypeBackground &&
           m_page.isPageType(PxPageTypeEmptyPage);
}

bool PxWhyTemplates::isForPage(const PxDefaultsEntry &entry) const
{
    return entry.pageTypes().contains(m_page.pageType().value()) &&
           (entry.alignments() & m_page.alignment()) != 0;
}

PxWhyTemplates::Used PxWhyTemplates::find(DefaultTemplateType type) const
{
    for (const List &list : m_lists) {
        for (const int index : list.found) {
            if (index < 0)
                continue;
            const auto named = list.entries[index].templates();
            const bool isLayout = type == DefaultTemplateTypeLayout;
            if (!(isLayout ? named.layout : named.background).isEmpty())
                return {&list, index};
        }
    }
    return {nullptr, -1};
}

QString PxWhyTemplates::reason(const List &list, int index, const Used &used) const
{
    const PxDefaultsEntry &entry = list.entries[index];
    int theme = 0;
    while (theme < list.themes.size() && !entry.themes().contains(list.themes[theme]))
        ++theme;
    if (theme == list.themes.size())
        return "for other themes";
    if (!entry.pageTypes().contains(m_page.pageType().value()))
        return "for other page types";
    if (!isForPage(entry))
        return "for other sides";
    if (index != list.found[theme])
        return "a later entry is used";
    if (used.list == &m_lists[0] && used.list != &list)
        return "the user has another";
    return used.list && theme > 0 ? "the theme has its own" : "names no such template";
}
