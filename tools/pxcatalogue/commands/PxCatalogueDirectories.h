#pragma once

#include "writing/PxProblem.h"

#include <QStringList>

#include <optional>

class PxCommandLine;

/** Finds the catalogue: in the directories of the command line, else in those of the platform. */
class PxCatalogueDirectories
{
public:
    /** Sets the directories in the platform, where the library looks for them. */
    static std::optional<PxProblem> apply(const PxCommandLine &line);
    /** The same for one resource directory and what is in it. */
    static std::optional<PxProblem> applyResources(const QString &directory);
    /**
     * The same for a check, whose arguments are the resource directory or files.
     *
     * A broken producttypes.xml is not a problem here: the check reports it with its place.
     */
    static std::optional<PxProblem> applyForCheck(const PxCommandLine &line);

    /** The directories of which all files belong to the catalogue, after one of the above. */
    static QStringList sources();
    /** What names the catalogue, such as "--resources"; empty for the arguments of a check. */
    static QString origin(const PxCommandLine &line);

    /** Returns a problem unless the path is a directory that can be read. */
    static std::optional<PxProblem> problemOf(const QString &directory);
};
