#pragma once

#include "writing/PxProblem.h"

#include <QProcess>
#include <QStringList>

#include <optional>

class PxExportedCatalogue;

/**
 * Another process of this program that exports a catalogue, since a process can only hold one.
 *
 * It begins at once, so that both catalogues are read at the same time, and ends with this object.
 * What it has to say, it says on stderr itself.
 */
class PxExportProcess
{
public:
    /** `options` are those of "export". */
    PxExportProcess(const QString &directory, const QStringList &options);
    ~PxExportProcess();

    std::optional<PxProblem> read(PxExportedCatalogue *catalogue);

private:
    QString m_directory;
    QProcess m_process;
};
