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

/** The same picture in another format. */
bool isOtherFormat(const QString &name, const QString &other)
{
    static const QRegularExpression ourSuffix("\\.(png|jpe?g|gif|bmp)$",
                                              QRegularExpression::CaseInsensitiveOption);
    const int stem = name.lastIndexOf(ourSuffix);
    return stem > 0 && stem == other.lastIndexOf(ourSuffix) && name.left(stem) == other.left(stem);
}

bool isSameInOtherCase(const QString &name, const QString &other)
{
    return name.compare(other, Qt::CaseInsensitive) == 0;
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
    const QString upper = inUpperCase(base, folder, fileName);
    if (!upper.isEmpty())
        return QString("the file is named \"%1\": rename it to lower case").arg(upper);
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
    for (const QString &folder : usable(foldersIn(base))) {
        for (const QString &candidate : usable(namesIn(base + folder))) {
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
    const QStringList names = usable(namesIn(directory));
    for (const QString &name : names) {
        if (isOtherFormat(fileName, name))
            return name;
    }
    const QString nearest = PxSpelling::nearest(fileName, names);
    return isSlip(fileName, nearest) ? nearest : QString();
}

/** The path of the same file, if only upper-case letters in it keep the library from finding it. */
QString PxImageNames::inUpperCase(const QString &base, const QString &folder,
                                  const QString &fileName)
{
    for (const QString &other : m_kind == Kind::Lower ? foldersIn(base) : QStringList()) {
        if (!isSameInOtherCase(folder, other))
            continue;
        for (const QString &name : namesIn(base + other)) {
            if (isSameInOtherCase(fileName, name) && usable({other + name}).isEmpty())
                return other + name;
        }
    }
    return QString();
}

/** Without those that the library never finds. */
QStringList PxImageNames::usable(const QStringList &names) const
{
    QStringList usable = names;
    if (m_kind == Kind::Lower)
        usable.erase(std::remove_if(usable.begin(), usable.end(),
                                    [](const QString &name) { return name != name.toLower(); }),
                     usable.end());
    return usable;
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
        names.append(files.fileName());
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
        folders.append(directories.fileName() + QLatin1Char('/'));
    }
    folders.sort();
    m_folders.insert(base, folders);
    return folders;
}
