#include "check/words/PxSpelling.h"

#include "check/PxCheckLimits.h"
#include "check/words/PxEditDistance.h"
#include "check/words/PxMessageText.h"

#include <QRegularExpression>
#include <QVector>

#include <algorithm>
#include <cstdlib>
#include <tuple>

QString PxSpelling::nearest(const QString &word, const QStringList &candidates)
{
    const QString wanted = word.trimmed().toUpper();
    if (wanted.isEmpty() || wanted.size() > PxCheckLimits::comparedLength)
        return QString();
    int best = wanted.size() / 3 + 1; // up to a third of the characters may be wrong
    QString nearest;
    for (const QString &candidate : candidates) {
        if (std::abs(candidate.size() - wanted.size()) > best ||
            candidate.size() > PxCheckLimits::comparedLength)
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
    return name.isEmpty() ? QString() : didYouMean(name) + lookalike(word, name);
}

QString PxSpelling::lookalike(const QString &word, const QString &name)
{
    constexpr ushort fullWidth = 0xff00;
    const QString text = word.trimmed();
    for (int i = 0; i < qMin(text.size(), name.size()); ++i) {
        const QChar own = text.at(i);
        const bool isOther = own.script() != QChar::Script_Latin || own.unicode() > fullWidth;
        if (own.isLetterOrNumber() && own.unicode() > 127 && isOther && name.at(i).unicode() <= 127)
            return QString(" \"%1\" is U+%2, not \"%3\"")
                .arg(own)
                .arg(uint(own.unicode()), 4, 16, QLatin1Char('0'))
                .arg(name.at(i));
    }
    return QString();
}

QString PxSpelling::oneOf(const QStringList &words)
{
    if (words.size() == 1)
        return didYouMean(words.constFirst());
    return words.isEmpty() || words.size() > PxCheckLimits::listedWords
               ? QString()
               : QString("it is one of %1").arg(words.join(QLatin1String(", ")));
}

QString PxSpelling::hintOrAll(const QString &word, const QStringList &candidates)
{
    const QString near = hint(word, candidates);
    return near.isEmpty() ? oneOf(candidates) : near;
}

QString PxSpelling::withCommas(const QString &names)
{
    QStringList all = names.split(QLatin1Char(';'));
    for (QString &name : all)
        name = name.trimmed();
    return all.join(QLatin1Char(','));
}

QString PxSpelling::separated(const QString &names)
{
    return names.contains(QLatin1Char(';')) ? QString("separate with commas: \"%1\"")
                                                  .arg(PxMessageText::shortened(withCommas(names)))
                                            : QString();
}

QStringList PxSpelling::nearestThree(const QString &word, const QStringList &candidates)
{
    const QString wanted = word.trimmed().toUpper();
    constexpr auto swap = PxEditDistance::Swap::IsOneChange;
    QVector<std::tuple<int, int, QString>> near;
    if (wanted.isEmpty() || wanted.size() > PxCheckLimits::comparedLength)
        return {};
    for (const QString &candidate : candidates) {
        if (candidate.size() > PxCheckLimits::comparedLength)
            continue;
        const QString upper = candidate.toUpper();
        const int distance = PxEditDistance::toPartOf(upper, wanted);
        if (distance <= wanted.size() / 3)
            near.append({distance, PxEditDistance::between(wanted, upper, swap), candidate});
    }
    std::sort(near.begin(), near.end());
    QStringList nearest;
    for (const auto &candidate : near.mid(0, 3)) {
        // What has the word as a part is meant, not what is similar to it.
        if (std::get<0>(candidate) == 0 || std::get<0>(near[0]) > 0)
            nearest.append(std::get<QString>(candidate));
    }
    return nearest;
}

bool PxSpelling::isNear(const QString &word, const QString &name)
{
    return !nearest(word, {name}).isEmpty();
}

QString PxSpelling::didYouMean(const QString &name)
{
    return QString("did you mean \"%1\"?").arg(name);
}

QString PxSpelling::didYouMean(const QStringList &names)
{
    return names.isEmpty() ? QString() : QString("did you mean %1?").arg(names.join(", "));
}

QStringList PxSpelling::words(const QString &list)
{
    static const QRegularExpression ourSeparators("[;|/+\\s]+");
    if (list.size() > PxCheckLimits::wordListLength)
        return {list};
    return list.split(ourSeparators, Qt::SkipEmptyParts);
}
