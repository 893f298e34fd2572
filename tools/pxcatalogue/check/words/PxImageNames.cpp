#include "check/words/PxImageNames.h"

#include "check/PxCheckLimits.h"
#include "check/words/PxSpelling.h"

#include <QDirIterator>

QString PxImageNames::hint(const QString &name, const QFileInfo &file)
{
    if (m_guessCount++ >= PxCheckLimits::guessedImages)
        return QString();
    const QString tidy = name.trimmed();
    const QString path = file.filePath();
    if (tidy != name && path.endsWith(name) && QFileInfo(path.chopped(name.size()) + tidy).isFile())
        return PxSpelling::didYouMean(tidy);
    const QString nearest = PxSpelling::nearest(file.fileName(), namesIn(file.path()));
    if (nearest.isEmpty())
        return QString();
    const QString directory = name.left(name.lastIndexOf(QLatin1Char('/')) + 1);
    return PxSpelling::didYouMean(directory + nearest);
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
