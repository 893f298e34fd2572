#include "check/words/PxImageNames.h"

#include "check/PxCheckLimits.h"
#include "check/words/PxSpelling.h"

#include <QDirIterator>
#include <QRegularExpression>

#include <algorithm>

namespace {

/**
 * Whether the words in which the names differ are similar: "logo-spring.png" has most letters of
 * "logo-school.png", but means another logo.
 */
bool isSlip(const QString &name, const QString &other)
{
    static const QRegularExpression ourSeparator("[^A-Za-z]");
    const QString suffix = name.mid(name.lastIndexOf(QLatin1Char('.')));
    const bool isSameKind = other.endsWith(suffix, Qt::CaseInsensitive);
    const QString stem = isSameKind ? name.chopped(suffix.size()) : name;
    const QString otherStem = isSameKind ? other.chopped(suffix.size()) : other;
    const auto difference =
        std::mismatch(stem.begin(), stem.end(), otherStem.begin(), otherStem.end(),
                      [](QChar a, QChar b) { return a.toLower() == b.toLower(); });
    const int same = int(difference.first - stem.begin());
    const int word = stem.left(same).lastIndexOf(ourSeparator) + 1;
    return PxSpelling::isNear(stem.mid(word), otherStem.mid(word));
}

} // namespace

QString PxImageNames::hint(const QString &name, const QFileInfo &file)
{
    const QString path = file.filePath();
    if (m_guessCount++ >= PxCheckLimits::guessedImages)
        return QString();
    const QString tidy = name.trimmed().replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QString folder = tidy.left(tidy.lastIndexOf(QLatin1Char('/')) + 1);
    const QString fileName = tidy.mid(folder.size());
    if (!path.endsWith(name) || fileName.isEmpty())
        return QString();
    const QString base = path.chopped(name.size()); // of names; a directory with its slash
    QString meant = QFileInfo(base + tidy).isFile() ? tidy : elsewhere(base, fileName);
    if (meant.isEmpty()) {
        const QString similar = nearest(fileName, base + folder);
        meant = similar.isEmpty() ? QString() : folder + similar;
    }
    return meant.isEmpty() ? QString() : PxSpelling::didYouMean(meant);
}

/** A file of the name, or else the only one that begins with it, in any folder of the base. */
QString PxImageNames::elsewhere(const QString &base, const QString &fileName)
{
    constexpr int minimumLength = 3; // less begins many names
    QString only;
    int count = 0;
    for (const QString &folder : foldersIn(base)) {
        for (const QString &candidate : namesIn(base + folder)) {
            if (candidate == fileName)
                return folder + candidate;
            if (fileName.size() < minimumLength || !candidate.startsWith(fileName))
                continue;
            only = folder + candidate;
            ++count;
        }
    }
    return count == 1 ? only : QString();
}

QString PxImageNames::nearest(const QString &fileName, const QString &directory)
{
    const QString nearest = PxSpelling::nearest(fileName, namesIn(directory));
    return isSlip(fileName, nearest) ? nearest : QString();
}

QStringList PxImageNames::namesIn(const QString &directory)
{
    const auto known = m_names.constFind(directory);
    if (known != m_names.constEnd())
        return *known;
    QStringList names;
    QDirIterator files(directory, QDir::Files);
    for (int i = 0; i < PxCheckLimits::imagesOfDirectory && files.hasNext(); ++i) {
        files.next();
        const QString name = files.fileName();
        if (m_kind == Kind::Any || name == name.toLower())
            names.append(name);
    }
    names.sort();
    m_names.insert(directory, names);
    return names;
}

/** The folders directly in the base, and the base itself, which is empty then. */
QStringList PxImageNames::foldersIn(const QString &base)
{
    const auto known = m_folders.constFind(base);
    if (known != m_folders.constEnd())
        return *known;
    QStringList folders{QString()};
    QDirIterator directories(base, QDir::Dirs | QDir::NoDotAndDotDot);
    for (int i = 0; i < PxCheckLimits::foldersOfDirectory && directories.hasNext(); ++i) {
        directories.next();
        const QString name = directories.fileName();
        if (m_kind == Kind::Any || name == name.toLower())
            folders.append(name + QLatin1Char('/'));
    }
    folders.sort();
    m_folders.insert(base, folders);
    return folders;
}
