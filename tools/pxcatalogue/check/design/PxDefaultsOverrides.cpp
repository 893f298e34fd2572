#include "check/design/PxDefaultsOverrides.h"

#include "check/words/PxMessageText.h"

#include "check/PxCheckLimits.h"

#include <PxPageAlignment.h>

void PxDefaultsOverrides::add(const PxDefaultsEntry &entry)
{
    if (!entry.isPlain())
        return;
    const QVector<Page> pages = pagesOf(entry);
    m_asked += pages.size();
    if (m_asked > PxCheckLimits::pagesOfDefaults)
        return;
    QMap<int, QVector<Page>> taken;
    for (const Page &page : pages) {
        const auto owner = m_entryOfPage.constFind(page);
        if (owner != m_entryOfPage.constEnd())
            taken[*owner].append(page);
        m_entryOfPage[page] = m_entries.size();
    }
    m_entries.append(entry);
    m_pageCounts.append(pages.size());
    for (auto it = taken.constBegin(); it != taken.constEnd(); ++it) {
        const bool isWhole = it->size() == m_pageCounts[it.key()];
        const Templates used = templatesOf(m_entries.size() - 1);
        const Templates before = templatesOf(it.key());
        const bool isLoss = (used.layout.isEmpty() && !before.layout.isEmpty()) ||
                            (used.background.isEmpty() && !before.background.isEmpty());
        if (isWhole || isLoss) {
            report(entry, m_entries[it.key()], isWhole, it->constFirst());
            return;
        }
    }
}

/** Asks the library once per entry. */
PxDefaultsOverrides::Templates PxDefaultsOverrides::templatesOf(int entry)
{
    if (!m_templates.contains(entry))
        m_templates.insert(entry, m_entries[entry].templates());
    return m_templates.value(entry);
}

QVector<PxDefaultsOverrides::Page> PxDefaultsOverrides::pagesOf(const PxDefaultsEntry &entry) const
{
    QVector<Page> pages;
    for (const QString &theme : entry.themes()) {
        for (const PxPageTypeEnum pageType : entry.pageTypes()) {
            for (const int alignment : splitEnumType(entry.alignments()))
                pages.append({theme, pageType, alignment});
        }
        if (pages.size() > PxCheckLimits::pagesOfDefaults)
            break;
    }
    return pages;
}

void PxDefaultsOverrides::report(const PxDefaultsEntry &entry, const PxDefaultsEntry &replaced,
                                 bool isWhole, const Page &page) const
{
    const PxPlace place = m_report.place(replaced.element().nameRange);
    const auto [theme, pageType, alignment] = page;
    const QString side =
        EnumHelper::encodeKeyword(static_cast<PxPageAlignment>(alignment),
                                  EnumHelper::globalMapPageAlignmentString, QString())
            .toLower();
    const Templates before = replaced.templates();
    const bool isLayout = entry.templates().layout.isEmpty() && !before.layout.isEmpty();
    const QString lost = isLayout ? QString("the layout \"%1\"").arg(before.layout)
                                  : QString("the background \"%1\"").arg(before.background);
    m_report
        .add(PxTag::DefaultsOverridden, entry.element().nameRange, "replaces %1 for %2/%3/%4",
             place, theme, PxPageType(static_cast<PxPageTypeEnum>(pageType)).encodeCSV(), side)
        .now(isWhole ? "%1 is never used" : "%2 of %1 is lost there", place, lost)
        .hint(isWhole ? "keep the one that is meant"
                      : "an entry names layout and background, also what does not change");
}
