#include "drawing/PxProductFile.h"

#include <PxDirectoryConfig.h>
#include <PxProductType.h>
#include <PxXMLLoader.h>
#include <description/PxProductTypeDescriptionReader.h>

#include <QDir>
#include <QDomElement>
#include <QFileInfo>

QString PxProductFile::pathOf(const PxProductType &type, bool isLegacy)
{
    const QString directory =
        isLegacy ? QStringLiteral("products/legacy") : QStringLiteral("products");
    const QDir products(PxDirectoryConfig::instance()->resource(directory, false));
    const QFileInfoList files = products.entryInfoList(PxProductTypeDescriptionReader::fileFilter(),
                                                       QDir::Files, QDir::Unsorted);
    // Of two files for one product the library uses the one that the directory lists later.
    for (auto file = files.crbegin(); file != files.crend(); ++file) {
        const QDomElement product =
            PxXMLLoader::loadDocumentElement(*file).firstChildElement(QStringLiteral("product"));
        const PxProductType found(product.attribute(QStringLiteral("name")));
        if (found.isValid() && found == type)
            return directory + QLatin1Char('/') + file->fileName();
    }
    return QString();
}
