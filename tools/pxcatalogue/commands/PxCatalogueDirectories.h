#pragma once

#include "writing/PxProblem.h"

#include <QStringList>

#include <optional>

class PxCommandLine;

/** Where the catalogue is: the directories of the command line, else those of the platform. */
class PxCatalogueDirectories
{
public:
    /** Sets them in the platform, for questions to the library. */
    static std::optional<PxProblem> apply(const PxCommandLine &line);
    /**
     * The same for a check of the paths of the command line, which are the resource directory, or
     * files that lie in it.
     *
     * What the check reports with its place, in producttypes.xml, is no problem here.
     */
    static std::optional<PxProblem> applyForCheck(const PxCommandLine &line);

    static std::optional<PxProblem> problemOf(const QString &directory);
};
