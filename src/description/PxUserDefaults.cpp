#include "description/PxUserDefaults.h"

#include <PxDirectoryConfig.h>
#include <PxXMLLoader.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <dirent.h>

PxUserDefaults::PxUserDefaults()
    : m_directory(QDir::cleanPath(PxDirectoryConfig::instance()->userDefaultsPath()))
{
    if (!m_directory.endsWith(QLatin1Char('/')))
        m_directory += QLatin1Char('/');
}

void PxUserDefaults::list()
{
    constexpr int maximumNames = 10000; // looking for each file is quicker then
    DIR *entries = opendir(QFile::encodeName(m_directory).constData());
    m_isListed = entries || errno == ENOENT;
    if (!entries)
        return;
    while (const dirent *entry = readdir(entries)) {
        m_fileNames.insert(QFile::decodeName(entry->d_name));
        if (m_fileNames.size() > maximumNames) {
            m_isListed = false;
            break;
        }
    }
    closedir(entries);
}

QDomDocument PxUserDefaults::document(const QString &productName) const
{
    const QString fileName = productName + QLatin1String(".xml");
    if (m_isListed && !fileName.contains(QLatin1Char('/')) && !m_fileNames.contains(fileName))
        return QDomDocument();
    // The name from the product file may be any text, so the resolved path must still lie in the
    // directory. The resolved path is the one that is opened: the unresolved name could leave the
    // directory through links.
    const QString path = QDir::cleanPath(m_directory + fileName);
    return path.startsWith(m_directory) ? PxXMLLoader::loadDocument(QFileInfo(path))
                                        : QDomDocument();
}
