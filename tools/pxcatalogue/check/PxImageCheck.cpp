#include "check/PxImageCheck.h"

#include "check/PxSpelling.h"

#include <PxDirectoryConfig.h>

#include <QDirIterator>
#include <QFileInfo>

namespace {

// Nobody keeps more images in a directory, and there are directories without end.
constexpr int maximumFiles = 2000;

/** The name of another file beside the missing one, with the same directory. */
QString hintFor(const QString &name, const QFileInfo &file)
{
    QStringList names;
    QDirIterator files(file.path(), QDir::Files);
    while (files.hasNext() && names.size() < maximumFiles) {
        files.next();
        names.append(files.fileName());
    }
    names.sort();
    const QString nearest = PxSpelling::nearest(file.fileName(), names);
    if (nearest.isEmpty())
        return QString();
    const QString directory = name.left(name.lastIndexOf(QLatin1Char('/')) + 1);
    return QStringLiteral("did you mean \"%1\"?").arg(directory + nearest);
}

} // namespace

void PxImageCheck::run(const PxCheckedProduct &product, const PxSourceElement &element,
                       const QString &name, PxFindings *findings)
{
    const QFileInfo file(PxDirectoryConfig::instance()->resource(name, false));
    if (name.isEmpty() || file.isFile())
        return;
    product.add(findings, "image-missing", element.rangeOf(QStringLiteral("image")),
                file.exists()
                    ? QStringLiteral("\"%1\" is no regular file").arg(name)
                    : QStringLiteral("there is no image \"%1\" in the resources").arg(name),
                QStringLiteral("the name is handed on as it is, and nothing is painted"),
                hintFor(name, file));
}
