#pragma once

#include "writing/PxProblem.h"

#include <QStringList>

#include <optional>

class PxCommandLine;

/** Where the catalogue is: the directories of the command line, else those of the platform. */
class PxCatalogueDirectories
{
public:
    explicit PxCatalogueDirectories(const PxCommandLine &line) : m_line(line) {}

    /** Sets them in the platform, for questions to the library. */
    std::optional<PxProblem> apply() const;
    /**
     * The same for a check of the paths of the command line, which are the resource directory, or
     * files that lie in it.
     *
     * What the check reports with its place, in producttypes.xml, is no problem here.
     */
    std::optional<PxProblem> applyForCheck() const;

    static std::optional<PxProblem> problemOf(const QString &directory);

private:
    std::optional<PxProblem> useGivenOnes(const QStringList &paths) const;
    std::optional<PxProblem> findResources(const QStringList &paths, QStringList *resources) const;

    const PxCommandLine &m_line;
};
