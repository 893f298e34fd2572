#include "diff/PxExportProcess.h"

#include "diff/PxExportedCatalogue.h"

#include <QCoreApplication>

PxExportProcess::PxExportProcess(const QString &directory, const QStringList &options)
    : m_directory(directory)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.start(QCoreApplication::applicationFilePath(),
                    QStringList{"export", "--resources", directory} + options);
}

PxExportProcess::~PxExportProcess()
{
    m_process.kill();
    m_process.waitForFinished();
}

std::optional<PxProblem> PxExportProcess::read(PxExportedCatalogue *catalogue)
{
    if (!m_process.waitForStarted(-1))
        return PxProblem{"the program cannot be started again to read a second catalogue"};
    const auto problem = catalogue->read(&m_process);
    if (problem && !catalogue->isEmpty())
        return problem;
    m_process.waitForFinished(-1);
    const bool isDone = m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    if (problem || !isDone)
        return PxProblem{QString("the catalogue \"%1\" cannot be read").arg(m_directory)};
    return std::nullopt;
}
