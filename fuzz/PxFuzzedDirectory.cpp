#include "PxFuzzedDirectory.h"

#include <PxDirectoryConfig.h>

#include <QFile>

PxFuzzedDirectory &PxFuzzedDirectory::withFile(const char *name)
{
    static PxFuzzedDirectory ourDirectory(name);
    return ourDirectory;
}

QFileInfo PxFuzzedDirectory::write(const std::uint8_t *data, std::size_t size) const
{
    QFile file(m_file);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char *>(data), qint64(size)) != qint64(size))
        qFatal("cannot write the fuzzed file");
    return QFileInfo(m_file);
}

PxFuzzedDirectory::PxFuzzedDirectory(const char *name)
    : m_file(m_directory.filePath(QLatin1String(name)))
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    PxDirectoryConfig::instance()->setResourceDirectories({QStringLiteral(PX_SAMPLE_DIRECTORY)});
    PxDirectoryConfig::instance()->setUserDefaultsPath(m_directory.path());
}
