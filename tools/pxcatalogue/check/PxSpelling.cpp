#include "check/PxSpelling.h"

#include "check/PxEditDistance.h"

#include <QRegularExpression>

#include <cstdlib>

// No name of the vocabulary is longer; comparing longer words would cost time for nothing.
static constexpr int maximumLength = 64;

QString PxSpelling::nearest(const QString &word, const QStringList &candidates)
{
    const QString wanted = word.trimmed().toUpper();
    if (wanted.isEmpty() || wanted.size() > maximumLength)
        return QString();
    int best = wanted.size() / 3 + 1; // a third of the letters may be wrong
    QString nearest;
    for (const QString &candidate : candidates) {
        if (std::abs(candidate.size() - wanted.size()) > best || candidate.size() > maximumLength)
            continue;
        const int distance = PxEditDistance::between(wanted, candidate.toUpper(),
                                                     PxEditDistance::Swap::IsOneChange, best);
        if (distance < best || (distance == best && !nearest.isEmpty() && candidate < nearest)) {
            best = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

QString PxSpelling::hint(const QString &word, const QStringList &candidates)
{
    const QString name = nearest(word, candidates);
    return name.isEmpty() ? QString() : didYouMean(name);
}

QString PxSpelling::didYouMean(const QString &name)
{
    return QStringLiteral("did you mean \"%1\"?").arg(name);
}

QStringList PxSpelling::words(const QString &list)
{
    static const QRegularExpression ourSeparators(QStringLiteral("[;|/+\\s]+"));
    return list.split(ourSeparators, Qt::SkipEmptyParts);
}
