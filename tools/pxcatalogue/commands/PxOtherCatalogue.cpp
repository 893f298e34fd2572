#include "commands/PxOtherCatalogue.h"

#include "commands/PxCommandLine.h"
#include "diff/PxExportedCatalogue.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace {

QStringList optionsOfExport(const PxCommandLine &line)
{
    QStringList options;
    if (line.isSet("lang"))
        options.append({"--lang", line.value("lang")});
    if (line.isSet("verbose"))
        options.append("--verbose");
    return options;
}

} // namespace

QString PxOtherCatalogue::at(const QString &path)
{
    const QString exported = path + "/catalogue.json";
    const bool isProof = QFileInfo(exported).isFile() && !QFileInfo(path + "/products").isDir();
    return isProof ? exported : path;
}

PxOtherCatalogue::PxOtherCatalogue(const QString &path, const PxCommandLine &line)
    : m_path(at(path))
    , m_isDirectory(QFileInfo(m_path).isDir())
{
    if (!m_isDirectory)
        return;
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.start(QCoreApplication::applicationFilePath(),
                    QStringList{"export", "--resources", path} + optionsOfExport(line));
}

PxOtherCatalogue::~PxOtherCatalogue()
{
    m_process.kill();
    m_process.waitForFinished();
}

std::optional<PxProblem> PxOtherCatalogue::read(PxExportedCatalogue *catalogue)
{
    if (!m_isDirectory)
        return readFile(catalogue);
    if (!m_process.waitForStarted(-1))
        return PxProblem{"the program cannot be started again to read a second catalogue"};
    const auto problem = catalogue->read(&m_process);
    if (problem && !catalogue->isEmpty())
        return problem;
    m_process.waitForFinished(-1);
    const bool isDone = m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    if (problem || !isDone)
        return PxProblem{QString("the catalogue \"%1\" cannot be read").arg(m_path)};
    return std::nullopt;
}

std::optional<PxProblem> PxOtherCatalogue::readFile(PxExportedCatalogue *catalogue) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return PxProblem{QString("\"%1\" cannot be read: %2").arg(m_path, file.errorString())};
    return catalogue->read(&file);
}
