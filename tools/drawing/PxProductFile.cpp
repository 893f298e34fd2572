#include "drawing/PxProductFile.h"

#include <PxDirectoryConfig.h>
#include <PxProductType.h>
#include <PxXMLLoader.h>
#include <description/PxProductTypeDescriptionReader.h>

#include <QDir>
#include <QDomElement>
#include <QFileInfo>
#include <QHash>

#include <mutex>

namespace {

/** The files of a directory, read as far as a product had to be looked for. */
struct Files
{
    QString directory = {};
    QFileInfoList unread = {};
    QHash<int, QString> names = {}; // by product type
};

/** Of two files for one product the library uses the one that the directory lists later. */
void readLast(Files *files)
{
    const QFileInfo file = files->unread.takeLast();
    const QDomElement product =
        PxXMLLoader::loadDocumentElement(file).firstChildElement(QStringLiteral("product"));
    const PxProductType type(product.attribute(QStringLiteral("name")));
    if (type.isValid() && !files->names.contains(int(type.type())))
        files->names.insert(int(type.type()), file.fileName());
}

} // namespace

QString PxProductFile::pathOf(const PxProductType &type, bool isLegacy)
{
    static std::mutex ourMutex; // pages of a proof are written in several threads
    static Files ourFiles[2];
    const std::lock_guard<std::mutex> lock(ourMutex);
    Files &files = ourFiles[isLegacy ? 1 : 0];
    const QString name = isLegacy ? QStringLiteral("products/legacy") : QStringLiteral("products");
    const QDir directory(PxDirectoryConfig::instance()->resource(name, false));
    if (files.directory != directory.path())
        files = {directory.path(),
                 directory.entryInfoList(PxProductTypeDescriptionReader::fileFilter(), QDir::Files,
                                         QDir::Unsorted)};
    const int code = int(type.type());
    while (!files.names.contains(code) && !files.unread.isEmpty())
        readLast(&files);
    const auto file = files.names.constFind(code);
    return file == files.names.constEnd() ? QString() : name + QLatin1Char('/') + *file;
}
