#pragma once

#include "check/design/PxDefaultsEntry.h"
#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedFile.h"

#include <QHash>
#include <QMap>

#include <tuple>

/** Finds entries of the default templates that replace earlier ones. */
class PxDefaultsOverrides
{
public:
    /** The file must outlive the object. */
    PxDefaultsOverrides(const PxReporter &report) : m_report(report) {}

    /** Compares an entry with those added before it. */
    void add(const PxDefaultsEntry &entry);

private:
    using Templates = PxDefaultsEntry::Templates;
    using Page = std::tuple<QString, int, int>; // theme, page type, alignment

    Templates templatesOf(int entry);
    QVector<Page> pagesOf(const PxDefaultsEntry &entry) const;
    void report(const PxDefaultsEntry &entry, const PxDefaultsEntry &replaced, bool isWhole,
                const Page &page) const;

    const PxReporter m_report;
    QVector<PxDefaultsEntry> m_entries;
    QHash<int, Templates> m_templates; // by index of the entry
    QVector<int> m_pageCounts;         // how many pages each entry was for
    QMap<Page, int> m_entryOfPage;
    qint64 m_asked = 0; // pages of all entries
};
