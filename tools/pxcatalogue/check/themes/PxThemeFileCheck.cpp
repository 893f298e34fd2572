#include "check/themes/PxThemeFileCheck.h"

#include "check/themes/PxThemeElementCheck.h"

#include <PxDirectoryConfig.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace {

const QLatin1String logoNow("the logo has no image");
const QLatin1String thumbnailNow("the theme has no preview");
const QLatin1String partNow("the part that is there is shown");

/** An image that is compiled into an application, where it cannot be checked. */
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

void PxThemeFileCheck::run()
{
    checkStrayNodes();
    for (const PxSourceElement *theme : m_root.children) { // whatever they are called
        PxThemeElementCheck(*theme, m_types, m_report).run();
        checkThumbnail(*theme);
        if (const PxSourceElement *logos = theme->firstChild("logos")) {
            for (const PxSourceElement *logo : logos->children)
                checkLogo(*logo);
        }
    }
    checkRelativeThumbnails();
}

void PxThemeFileCheck::checkStrayNodes() const
{
    static const QRegularExpression ourAllowance("^\\s*check\\s*:",
                                                 QRegularExpression::CaseInsensitiveOption);
    for (const PxSourceNode &node : m_root.nodes) {
        if (node.isBlank())
            continue;
        const bool isAllowance =
            node.kind == PxSourceNode::Kind::Comment && ourAllowance.match(node.text).hasMatch();
        m_report
            .add(PxTag::ThemeStrayNode, node.range, "%1 directly in \"%2\"",
                 PxSourceNode::kindText(node.kind), m_root.name)
            .now("it becomes a theme \"unbekannt\" that has expired")
            .hint(isAllowance
                      ? "move it into the theme, as the first thing there: it holds for all "
                        "of the theme then"
                      : "move it into a theme, or above \"%1\"",
                  m_root.name);
    }
}

/** The name is a path in the resource directories. */
void PxThemeFileCheck::checkLogo(const PxSourceElement &logo)
{
    const PxSourceAttribute *name = logo.attribute("filename");
    if (name && !name->value.isEmpty())
        checkImage(
            {name, PxDirectoryConfig::instance()->resource(name->value.toLower(), false), logoNow});
}

/** Relative paths are kept until all are known. */
void PxThemeFileCheck::checkThumbnail(const PxSourceElement &theme)
{
    const PxSourceAttribute *name = theme.attribute("thumbnail");
    if (!name || name->value.isEmpty())
        return; // no preview is meant
    if (QDir::isAbsolutePath(name->value))
        checkImage({name, name->value.toLower(), thumbnailNow});
    else
        m_relativeThumbnails.append(name);
}

/**
 * Relative paths start where the application runs, which is not known here: the directory where
 * most images of the file are found, but not the one of the theme file, where none runs. If no
 * image is found anywhere, nothing is reported.
 */
void PxThemeFileCheck::checkRelativeThumbnails()
{
    QString best;
    int bestCount = 0;
    QSet<const PxSourceAttribute *> found;
    QSet<const PxSourceAttribute *> beside;
    const QString own = QFileInfo(m_report.file().path()).absolutePath();
    for (const QString &base : baseDirectories(m_report.file().path())) {
        const QDir directory(base);
        const bool isOwn = base == own && base != QDir::currentPath();
        int count = 0;
        for (const PxSourceAttribute *name : m_relativeThumbnails) {
            const auto &result = m_images.find(directory.filePath(name->value.toLower()));
            if (result.fault.isEmpty())
                (isOwn ? beside : found).insert(name);
            if (result.isThere && !isOwn)
                ++count;
        }
        if (count > bestCount) {
            best = base;
            bestCount = count;
        }
    }
    for (const PxSourceAttribute *name : m_relativeThumbnails) {
        if (found.contains(name))
            continue;
        if (beside.contains(name))
            m_report
                .add(PxTag::ThemeImageMissing, name->valueRange,
                     "\"%1\" is only there beside the theme file", name->value)
                .now("it is looked for from the directory in which the application runs")
                .hint("write a path from there, or an absolute one");
        else if (bestCount > 0)
            checkImage({name, QDir(best).filePath(name->value.toLower()), thumbnailNow});
    }
}

void PxThemeFileCheck::checkImage(const Image &image)
{
    if (isCompiledIn(image.path))
        return;
    const PxThemeImages::Result result = m_images.find(image.path);
    if (result.fault.isEmpty())
        return;
    const QString written = image.attribute->value;
    const QString lowered = written.toLower();
    const bool isLowered = written != lowered && !result.isThere;
    m_report
        .add(isLowered         ? PxTag::ThemeImagePathLowered
             : result.isCutOff ? PxTag::ThemeImageCutOff
                               : PxTag::ThemeImageMissing,
             image.attribute->valueRange,
             isLowered ? "\"%1\" is looked up as \"%2\", which is not there" : "\"%2\" %3", written,
             lowered, result.fault)
        .now(result.image.isNull() ? image.now : partNow)
        .hint([&] { return hint(image); });
}

QString PxThemeFileCheck::hint(const Image &image)
{
    const QString written = image.attribute->value;
    const QString lowered = written.toLower();
    const QFileInfo info(image.path);
    if (info.exists())
        return QString();
    // The same directory, with the path as it is written.
    const QString asWritten =
        image.path.endsWith(lowered) ? image.path.chopped(lowered.size()) + written : QString();
    if (written != lowered && QFileInfo::exists(asWritten))
        return "rename the file to lower case";
    return m_names.hint(lowered, info);
}
