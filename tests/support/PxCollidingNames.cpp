#include "PxCollidingNames.h"

#include <QHash>
#include <QVector>

namespace {

constexpr uint anySeed = 1; // but 0, for which Qt has another hash
constexpr int length = 21;  // of a name; each letter has three bits, which make it one of H to O

QString nameOf(quint64 bits)
{
    QString name;
    for (int i = 0; i < length; ++i)
        name += QChar('H' + int(bits >> 3 * i & 7));
    return name;
}

/** The bits to flip in a name, and what this changes in its hash. */
struct Change
{
    quint64 bits;
    uint hash;
};

/** Where the hash is a CRC, changes add up: those that change nothing, found by elimination. */
QVector<quint64> changesWithoutEffect()
{
    QVector<quint64> without;
    QVector<Change> independent;
    for (int i = 0; i < 3 * length; ++i) {
        const quint64 bit = quint64(1) << i;
        Change change{bit, qHash(nameOf(bit), anySeed) ^ qHash(nameOf(0), anySeed)};
        for (const Change &other : qAsConst(independent)) {
            if ((change.hash ^ other.hash) < change.hash)
                change = {change.bits ^ other.bits, change.hash ^ other.hash};
        }
        if (change.hash == 0)
            without.append(change.bits);
        else
            independent.append(change);
    }
    return without;
}

QString nameOfChanges(int number, const QVector<quint64> &changes)
{
    quint64 bits = 0;
    for (int i = 0; i < changes.size(); ++i)
        bits ^= (number >> i & 1) != 0 ? changes[i] : 0;
    return nameOf(bits);
}

/** Where it is a sum in which each letter counts 31 times the next: 31 B + 1 is 31 A + P. */
QString nameOfPairs(int number)
{
    QString name;
    for (int bit = 0; bit < 20; ++bit)
        name += (number >> bit & 1) != 0 ? QStringLiteral("B1") : QStringLiteral("AP");
    return name;
}

} // namespace

QStringList pxCollidingNames(int count)
{
    const QVector<quint64> changes = changesWithoutEffect().mid(0, 20);
    const bool isCrc =
        qHash(nameOfChanges(1, changes), 7) == qHash(nameOfChanges((1 << 20) - 1, changes), 7);
    QStringList names;
    for (int number = 0; number < count; ++number)
        names.append(isCrc ? nameOfChanges(number, changes) : nameOfPairs(number));
    return names;
}
