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

/** What is known of all directories. Pages of a proof, which ask for it, are written in threads. */
struct Known
{
    std::mutex mutex;                       // guards the other members
    Files files[2];                         // of products, and of those of earlier catalogues
    QHash<QString, PxProductType> products; // in files that were read before, by absolute path
};

Known &known()
{
    static auto &ourKnown = *new Known;
    return ourKnown;
}

PxProductType productIn(const QDomElement &root)
{
    const QDomElement product = root.firstChildElement(QStringLiteral("product"));
    return PxProductType(product.attribute(QStringLiteral("name")));
}

/** Of two files for one product the library uses the one that the directory lists later. */
void readLast(Files *files)
{
    const QFileInfo file = files->unread.takeLast();
    const auto product = known().products.constFind(file.absoluteFilePath());
    const PxProductType type = product != known().products.constEnd()
                                   ? *product
                                   : productIn(PxXMLLoader::loadDocumentElement(file));
    if (type.isValid() && !files->names.contains(int(type.type())))
        files->names.insert(int(type.type()), file.fileName());
}

} // namespace

QString PxProductFile::pathOf(const PxProductType &type, bool isLegacy)
{
    const std::lock_guard<std::mutex> lock(known().mutex);
    Files &files = known().files[isLegacy ? 1 : 0];
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

void PxProductFile::setContent(const QString &absolutePath, const QDomElement &root)
{
    const std::lock_guard<std::mutex> lock(known().mutex);
    known().products.insert(absolutePath, productIn(root));
}
