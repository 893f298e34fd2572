#include "check/themes/PxThemeCheck.h"

#include "check/themes/PxThemeElementCheck.h"
#include "check/themes/PxThemeImageCheck.h"
#include "check/themes/PxThemeLogoCheck.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"

#include <PxDirectoryConfig.h>
#include <themes/PxThemeFactory.h>

#include <QFileInfo>

#include <algorithm>

namespace {

QString defaultThemeId()
{
    return QStringLiteral("normal");
}

} // namespace

void PxThemeCheck::addKnownFile(const PxCheckedFile &file)
{
    m_knownFiles.insert(file.path());
    PxFindings nobodysFindings;
    checkFile(file, &nobodysFindings);
}

void PxThemeCheck::checkFile(const PxCheckedFile &file, PxFindings *findings)
{
    const PxSourceElement *root = file.root();
    if (!root)
        return;
    if (root->name.toLower() != QLatin1String("themes")) {
        file.add(findings, "theme-root-wrong", root->nameRange,
                 QStringLiteral("the document element is \"%1\", not \"themes\"").arg(root->name),
                 QStringLiteral("nothing is read from this file"));
        return;
    }
    m_files.insert(QFileInfo(file.path()).canonicalFilePath());
    if (m_firstRoot.path.isEmpty())
        m_firstRoot = file.place(root->nameRange);
    checkStrayNodes(file, findings);
    PxThemeImageCheck images(file);
    PxThemeLogoCheck logoCheck(file, &images);
    for (const PxSourceElement *theme : root->children) { // whatever they are called
        checkIdOnce(file, *theme, findings);
        PxThemeElementCheck(file, *theme).run(findings);
        images.checkThumbnail(*theme, findings);
        if (const PxSourceElement *logos = theme->firstChild(QStringLiteral("logos")))
            logoCheck.run(*logos, findings);
    }
    images.finish(findings);
}

void PxThemeCheck::checkStrayNodes(const PxCheckedFile &file, PxFindings *findings) const
{
    for (const PxSourceNode &node : file.root()->nodes) {
        if (node.isBlank())
            continue;
        file.add(findings, "theme-stray-node", node.range,
                 QStringLiteral("%1 directly in \"%2\"")
                     .arg(PxMessageText::kind(node.kind), file.root()->name),
                 QStringLiteral("it becomes a theme \"unbekannt\" that has expired"),
                 QStringLiteral("move it into a theme, or above \"%1\"").arg(file.root()->name));
    }
}

void PxThemeCheck::checkIdOnce(const PxCheckedFile &file, const PxSourceElement &theme,
                               PxFindings *findings)
{
    const QString id = theme.value(QStringLiteral("id")).toLower();
    if (id.isEmpty()) {
        m_hasUnnamed = true;
        return;
    }
    const PxPlace place = file.place(theme.rangeOf(QStringLiteral("id")));
    const auto first = m_themes.constFind(id);
    if (first == m_themes.constEnd() || !isReadBeside(*first, file)) {
        m_themes.insert(id, place);
        return;
    }
    findings->add(
        "theme-id-twice", place,
        QStringLiteral("the id \"%1\" is also in %2")
            .arg(id, PxMessageText::place(*first, place.path)),
        first->path == place.path
            ? QStringLiteral("looking for one theme finds the first, looking up a list the last")
            : QStringLiteral("looking for one theme finds the one, looking up a list the other, "
                             "as the file system lists the files"));
}

/** A file elsewhere, say a draft of one that is known, is not read beside that one. */
bool PxThemeCheck::isReadBeside(const PxPlace &known, const PxCheckedFile &file) const
{
    return !m_knownFiles.contains(known.path) ||
           QFileInfo(known.path).canonicalPath() == QFileInfo(file.path()).canonicalPath();
}

void PxThemeCheck::finish(PxFindings *findings) const
{
    if (!isComplete() || m_themes.contains(defaultThemeId()))
        return;
    const QString meant = PxSpelling::nearest(defaultThemeId(), m_themes.keys());
    const auto *factory = PxThemeFactory::instance();
    findings->add("theme-no-default", meant.isEmpty() ? m_firstRoot : m_themes.value(meant),
                  QStringLiteral("no theme has the id \"normal\""),
                  factory->themeList().isEmpty()
                      ? QStringLiteral("there is no default theme")
                      : QStringLiteral("\"%1\", the first theme, is the default theme")
                            .arg(factory->defaultTheme().id()),
                  meant.isEmpty() ? QString() : PxSpelling::didYouMean(defaultThemeId()));
}

QStringList PxThemeCheck::ids() const
{
    if (!isComplete())
        return {};
    // What a product names for it stands in for every other theme, whether it is there or not.
    QStringList ids = m_themes.keys();
    if (!m_themes.contains(defaultThemeId()))
        ids.append(defaultThemeId());
    ids.sort();
    return ids;
}

/** Whether all ids are known that the library knows. */
bool PxThemeCheck::isComplete() const
{
    const QFileInfoList files =
        PxDirectoryConfig::instance()->lumoThemesDirectory(false).entryInfoList(
            {QStringLiteral("*.xml")}, QDir::Files);
    return !m_hasUnnamed && !m_files.isEmpty() &&
           std::all_of(files.begin(), files.end(), [this](const QFileInfo &file) {
               return m_files.contains(file.canonicalFilePath());
           });
}
