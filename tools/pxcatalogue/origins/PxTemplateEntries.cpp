#include "origins/PxTemplateEntries.h"

static bool isFor(const PxDefaultsEntry &entry, const PxPageContext &page)
{
    return (entry.alignments() & int(page.alignment())) != 0 &&
           entry.pageTypes().contains(page.pageType().value());
}

PxTemplateEntries::PxTemplateEntries(const PxSourceElement *list)
{
    if (!list)
        return;
    const QVector<const PxSourceElement *> elements = list->childrenNamed("defaults");
    for (auto element = elements.crbegin(); element != elements.crend(); ++element) {
        const PxDefaultsEntry entry(**element);
        for (const QString &theme : entry.themes())
            m_ofTheme[theme].append(entry);
    }
}

const PxSourceElement *PxTemplateEntries::find(const QString &theme, const PxPageContext &page,
                                               bool isLayout) const
{
    const auto entries = m_ofTheme.constFind(theme);
    if (entries == m_ofTheme.constEnd())
        return nullptr;
    for (const PxDefaultsEntry &entry : *entries) {
        if (!isFor(entry, page))
            continue;
        const auto templates = entry.templates();
        const bool isEmpty = (isLayout ? templates.layout : templates.background).isEmpty();
        return isEmpty ? nullptr : &entry.element();
    }
    return nullptr;
}
