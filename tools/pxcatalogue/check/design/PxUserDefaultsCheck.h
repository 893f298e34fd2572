#pragma once

#include "check/findings/PxReporter.h"
#include "check/words/PxKnownNames.h"

#include <QSet>

/** Checks a file of user defaults: whether the library finds it, and the entries in it. */
class PxUserDefaultsCheck
{
public:
    /**
     * The names in all product files, as they are spelt there, and the ids of all themes; none if
     * they are not known. Both must outlive the check.
     */
    PxUserDefaultsCheck(const QSet<QString> &productNames, PxKnownNames &themeIds,
                        const PxReporter &report)
        : m_productNames(productNames)
        , m_themeIds(themeIds)
        , m_report(report)
    {}

    void run();

private:
    void checkName() const;
    bool checkStart() const;

    const QSet<QString> &m_productNames;
    PxKnownNames &m_themeIds;
    const PxReporter m_report;
};
