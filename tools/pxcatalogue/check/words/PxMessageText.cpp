#include "check/words/PxMessageText.h"

#include "check/PxCheckLimits.h"

QString PxMessageText::quoted(const QString &name)
{
    return QLatin1Char('"') + name + QLatin1Char('"');
}

QString PxMessageText::quotedList(const QStringList &names, const QString &last)
{
    QString list;
    for (int i = 0; i < names.size(); ++i) {
        if (i > 0)
            list += i == names.size() - 1 ? last : ", ";
        list += quoted(names[i]);
    }
    return list;
}

QString PxMessageText::shortened(const QString &value)
{
    constexpr int maximum = PxCheckLimits::quotedLength;
    if (value.size() <= maximum)
        return value;
    const bool isInPair = value[maximum - 1].isHighSurrogate();
    return value.left(isInPair ? maximum - 1 : maximum) + "…";
}

QString PxMessageText::pages(int count)
{
    return count == 1 ? "1 page" : QString("%1 pages").arg(count);
}
