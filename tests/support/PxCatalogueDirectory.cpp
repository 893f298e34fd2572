#include "PxCatalogueDirectory.h"

#include <PxDirectoryConfig.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

PxCatalogueDirectory::PxCatalogueDirectory()
{
    PxDirectoryConfig::instance()->setResourceDirectories({m_directory.path()});
    PxDirectoryConfig::instance()->setUserDefaultsPath(filePath(QStringLiteral("user")));
}

void PxCatalogueDirectory::write(const char *name, const QByteArray &content) const
{
    QFile file(filePath(QString::fromUtf8(name)));
    if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

void PxCatalogueDirectory::writeProductTypes(const QByteArray &lines) const
{
    QByteArray xml = "<producttypes>";
    for (const QByteArray &line : lines.split('\n')) {
        const QList<QByteArray> row = line.simplified().split(' ');
        if (row.size() == 3)
            xml +=
                "<producttype code='" + row[0] + "' class='" + row[1] + "' name='" + row[2] + "'/>";
    }
    write("producttypes.xml", xml + "</producttypes>");
}
