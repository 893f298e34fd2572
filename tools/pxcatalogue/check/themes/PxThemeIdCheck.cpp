#include "check/themes/PxThemeIdCheck.h"

#include "check/words/PxSpelling.h"

#include <PxDirectoryConfig.h>
#include <themes/PxThemeFactory.h>

#include <QFileInfo>

#include <algorithm>

namespace {

QString defaultThemeId()
{
    return "normal";
}

} // namespace

void PxThemeIdCheck::addKnownFile(const PxCheckedFile &file)
{
    m_knownFiles.insert(file.path());
    addFile(file);
}

void PxThemeIdCheck::addFile(const PxCheckedFile &file)
{
    const PxSourceElement *root = file.root();
    if (!root || root->name.toLower() != QLatin1String("themes"))
        return;
    m_files.insert(QFileInfo(file.path()).canonicalFilePath());
    if (m_firstRoot.path.isEmpty())
        m_firstRoot = file.place(root->nameRange);
    for (const PxSourceElement *theme : root->children) // whatever they are called
        addId(file, *theme);
}

void PxThemeIdCheck::addId(const PxCheckedFile &file, const PxSourceElement &theme)
{
    const QString id = theme.value("id").toLower();
    if (id.isEmpty()) {
        m_hasUnnamed = true;
        return;
    }
    const PxPlace place = file.place(theme.rangeOf("id"));
    const auto first = m_themes.constFind(id);
    if (first == m_themes.constEnd() || !isReadBeside(*first, file))
        m_themes.insert(id, place);
    else if (!m_knownFiles.contains(place.path))
        reportTwice(id, *first, place);
}

void PxThemeIdCheck::reportTwice(const QString &id, const PxPlace &first,
                                 const PxPlace &second) const
{
    m_report.add(PxTag::ThemeIdTwice, second, "the id \"%1\" is also in %2", id, first)
        .now(first.path == second.path
                 ? "looking for one theme finds the first, looking up a list the last"
                 : "looking for one theme finds the one, looking up a list the other, as the file "
                   "system lists the files");
}

/** Not if the file lies elsewhere, as the draft of a known one may. */
bool PxThemeIdCheck::isReadBeside(const PxPlace &known, const PxCheckedFile &file) const
{
    return !m_knownFiles.contains(known.path) ||
           QFileInfo(known.path).canonicalPath() == QFileInfo(file.path()).canonicalPath();
}

void PxThemeIdCheck::run()
{
    if (!isComplete() || m_themes.contains(defaultThemeId()))
        return;
    const QString meant = PxSpelling::nearest(defaultThemeId(), m_themes.keys());
    const auto *factory = PxThemeFactory::instance();
    m_report
        .add(PxTag::ThemeNoDefault, meant.isEmpty() ? m_firstRoot : m_themes.value(meant),
             "no theme has the id \"normal\"")
        .now(factory->themeList().isEmpty() ? "there is no default theme"
             : m_files.size() > 1
                 ? "the first theme is the default theme, and the file system decides which that is"
                 : QString("\"%1\", the first theme, is the default theme")
                       .arg(factory->defaultTheme().id()))
        .hint(meant.isEmpty() ? QString() : PxSpelling::didYouMean(defaultThemeId()));
}

QStringList PxThemeIdCheck::ids() const
{
    if (!isComplete())
        return {};
    // Templates for the default theme are used for all others, even if there is no such theme.
    QStringList ids = m_themes.keys();
    if (!m_themes.contains(defaultThemeId()))
        ids.append(defaultThemeId());
    ids.sort();
    return ids;
}

/** Whether the ids of all themes that the library reads are known. */
bool PxThemeIdCheck::isComplete() const
{
    const QFileInfoList files =
        PxDirectoryConfig::instance()->lumoThemesDirectory(false).entryInfoList({"*.xml"},
                                                                                QDir::Files);
    return !m_hasUnnamed && !m_files.isEmpty() &&
           std::all_of(files.begin(), files.end(), [this](const QFileInfo &file) {
               return m_files.contains(file.canonicalFilePath());
           });
}
