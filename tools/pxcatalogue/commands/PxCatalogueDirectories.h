#pragma once

#include "writing/PxProblem.h"

#include <QStringList>

#include <optional>

class PxCommandLine;

/** Where the catalogue is: the directories of the command line, else those of the platform. */
class PxCatalogueDirectories
{
public:
    /** Sets them in the platform, so that the library can be asked. */
    static std::optional<PxProblem> apply(const PxCommandLine &line);
    /**
     * The same for a check, whose arguments are the resource directory or files.
     *
     * A broken producttypes.xml is no problem here: the check reports it with the place.
     */
    static std::optional<PxProblem> applyForCheck(const PxCommandLine &line);

    static std::optional<PxProblem> problemOf(const QString &directory);
};
