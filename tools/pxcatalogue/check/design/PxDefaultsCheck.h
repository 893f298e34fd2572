#pragma once

#include "check/design/PxDefaultsEntry.h"
#include "check/source/PxCheckedFile.h"
#include "check/words/PxKnownNames.h"

/** Checks the default templates of a product file or of a user-defaults file. */
class PxDefaultsCheck
{
public:
    /** `parent` holds the container. The ids of all themes; none when they are not known. */
    PxDefaultsCheck(const PxCheckedFile &file, const PxSourceElement &parent,
                    PxKnownNames &themeIds)
        : m_file(file)
        , m_parent(parent)
        , m_themeIds(themeIds)
    {}

    void run(PxFindings *findings) const;

private:
    void checkNesting(const QVector<const PxSourceElement *> &containers,
                      PxFindings *findings) const;
    void checkThemes(const PxDefaultsEntry &entry, PxFindings *findings) const;
    void checkPageTypes(const PxDefaultsEntry &entry, PxFindings *findings) const;
    void checkTemplates(const PxDefaultsEntry &entry, PxFindings *findings) const;

    const PxCheckedFile &m_file;
    const PxSourceElement &m_parent;
    PxKnownNames &m_themeIds;
};
