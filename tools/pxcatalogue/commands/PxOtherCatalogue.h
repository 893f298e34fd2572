#pragma once

#include "writing/PxProblem.h"

#include <QProcess>
#include <QString>

#include <optional>

class PxCommandLine;
class PxExportedCatalogue;

/**
 * A catalogue that is compared with the one that this process holds, or with another one: what an
 * export wrote, or a resource directory.
 *
 * Since a process can only hold one catalogue, another process of this program exports a
 * directory. It begins at once, so that both catalogues are read at the same time, and ends with
 * this object. What it has to say, it says on stderr itself.
 */
class PxOtherCatalogue
{
public:
    /** What a path stands for: the folder of a proof for the export in it. */
    static QString at(const QString &path);

    /** The line has the language of the display names. */
    PxOtherCatalogue(const QString &path, const PxCommandLine &line);
    ~PxOtherCatalogue();

    bool isDirectory() const { return m_isDirectory; }
    std::optional<PxProblem> read(PxExportedCatalogue *catalogue);

private:
    std::optional<PxProblem> readFile(PxExportedCatalogue *catalogue) const;

    QString m_path;
    bool m_isDirectory;
    QProcess m_process;
};
