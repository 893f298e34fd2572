#pragma once

#include "check/design/PxDefaultsEntry.h"
#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedFile.h"
#include "check/words/PxKnownNames.h"

#include <geometry/PxPageContext.h>

/** Checks the default templates of a product file or of a user-defaults file. */
class PxDefaultsCheck
{
public:
    /**
     * `parent` holds the container. The ids are those of all themes, the pages those of the product
     * with their sides; none if they are not known.
     */
    PxDefaultsCheck(const PxSourceElement &parent, PxKnownNames &themeIds,
                    const QVector<PxPageContext> &pages, const PxReporter &report)
        : m_parent(parent)
        , m_themeIds(themeIds)
        , m_pages(pages)
        , m_report(report)
    {}

    void run();

private:
    void checkNesting(const QVector<const PxSourceElement *> &containers) const;
    void checkThemes(const PxDefaultsEntry &entry) const;
    void checkPageTypes(const PxDefaultsEntry &entry) const;
    void checkReach(const PxDefaultsEntry &entry) const;
    void checkSeparators(const PxDefaultsEntry &entry) const;
    void checkTemplates(const PxDefaultsEntry &entry) const;

    const PxSourceElement &m_parent;
    PxKnownNames &m_themeIds;
    const QVector<PxPageContext> m_pages;
    const PxReporter m_report;
};
