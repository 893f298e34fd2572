#pragma once

#include "check/design/PxDefaultsEntry.h"
#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedFile.h"
#include "check/words/PxKnownNames.h"

/** Checks the default templates of a product file or of a user-defaults file. */
class PxDefaultsCheck
{
public:
    /** `parent` holds the container. The ids are those of all themes; empty if unknown. */
    PxDefaultsCheck(const PxSourceElement &parent, PxKnownNames &themeIds, const PxReporter &report)
        : m_parent(parent)
        , m_themeIds(themeIds)
        , m_report(report)
    {}

    void run();

private:
    void checkNesting(const QVector<const PxSourceElement *> &containers) const;
    void checkThemes(const PxDefaultsEntry &entry) const;
    void checkPageTypes(const PxDefaultsEntry &entry) const;
    void checkTemplates(const PxDefaultsEntry &entry) const;

    const PxSourceElement &m_parent;
    PxKnownNames &m_themeIds;
    const PxReporter m_report;
};
