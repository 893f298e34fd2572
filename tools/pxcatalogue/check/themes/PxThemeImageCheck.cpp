#include "check/themes/PxThemeImageCheck.h"

#include "check/rules/PxElementReading.h"

#include <PxDirectoryConfig.h>

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

const QLatin1String logoNow("the logo has no image");
const QLatin1String thumbnailNow("the theme has no preview");
const QLatin1String partNow("the part that is there is shown");

/** What an application has compiled in cannot be seen from here. */
bool isCompiledIn(const QString &path)
{
    return path.startsWith(QLatin1String(":/")) || path.startsWith(QLatin1String("qrc:"));
}

/** The directories that an application may run in, as far as can be guessed. */
QStringList baseDirectories(const QString &themeFile)
{
    QStringList bases{QDir::currentPath()};
    QDir directory = QFileInfo(themeFile).absoluteDir();
    do {
        bases.append(directory.path());
    } while (directory.cdUp());
    return bases;
}

} // namespace

void PxThemeImageCheck::checkLogo(const PxSourceElement &logo, PxFindings *findings)
{
    const PxSourceAttribute *name = logo.attribute(QStringLiteral("filename"));
    if (name && !name->value.isEmpty()) {
        checkImage(
            {name, PxDirectoryConfig::instance()->resource(name->value.toLower(), false), logoNow},
            findings);
        return;
    }
    const PxMissingPart missing =
        PxElementReading(logo, PxFileKind::Theme).missing(QStringLiteral("filename"));
    m_file.add(findings, "theme-image-missing", missing.range,
               QStringLiteral("the logo names no image: \"filename\" is %1")
                   .arg(name ? QLatin1String("empty") : QLatin1String("missing")),
               logoNow, missing.hint);
}

void PxThemeImageCheck::checkThumbnail(const PxSourceElement &theme, PxFindings *findings)
{
    const PxSourceAttribute *name = theme.attribute(QStringLiteral("thumbnail"));
    if (!name || name->value.isEmpty())
        return; // no preview is meant
    if (QDir::isAbsolutePath(name->value))
        checkImage({name, name->value.toLower(), thumbnailNow}, findings);
    else
        m_relativeThumbnails.append(name);
}

/**
 * Where an application will run is not known, so a relative thumbnail is judged only in a directory
 * that has proved to be the one: other thumbnails of the file are found from there.
 */
void PxThemeImageCheck::finish(PxFindings *findings)
{
    QString best;
    int bestCount = 0;
    QSet<const PxSourceAttribute *> found;
    for (const QString &base : baseDirectories(m_file.path())) {
        const QDir directory(base);
        int count = 0;
        for (const PxSourceAttribute *name : m_relativeThumbnails) {
            const auto &result = m_images.find(directory.filePath(name->value.toLower()));
            if (result.fault.isEmpty())
                found.insert(name);
            if (result.isThere)
                ++count;
        }
        if (count > bestCount) {
            best = base;
            bestCount = count;
        }
    }
    for (const PxSourceAttribute *name : m_relativeThumbnails) {
        if (bestCount > 0 && !found.contains(name))
            checkImage({name, QDir(best).filePath(name->value.toLower()), thumbnailNow}, findings);
    }
}

void PxThemeImageCheck::checkImage(const Image &image, PxFindings *findings)
{
    if (isCompiledIn(image.path))
        return;
    const PxThemeImages::Result result = m_images.find(image.path);
    if (result.fault.isEmpty())
        return;
    const QString written = image.attribute->value;
    const QString lowered = written.toLower();
    const bool isLowered = written != lowered && !result.isThere;
    m_file.add(findings,
               isLowered         ? "theme-image-path-lowered"
               : result.isCutOff ? "theme-image-cut-off"
                                 : "theme-image-missing",
               image.attribute->valueRange,
               isLowered ? QStringLiteral("\"%1\" is looked up as \"%2\", which is not there")
                               .arg(written, lowered)
                         : QStringLiteral("\"%1\" %2").arg(lowered, result.fault),
               result.image.isNull() ? image.now : partNow, hint(image));
}

QString PxThemeImageCheck::hint(const Image &image)
{
    const QString written = image.attribute->value;
    const QString lowered = written.toLower();
    const QFileInfo info(image.path);
    if (info.exists())
        return QString();
    // The path as it is written, from the same directory: lower-casing changes what is behind it.
    const QString asWritten =
        image.path.endsWith(lowered) ? image.path.chopped(lowered.size()) + written : QString();
    if (written != lowered && QFileInfo::exists(asWritten))
        return QStringLiteral("rename the file to lower case");
    return m_imageNames.hint(lowered, info);
}
