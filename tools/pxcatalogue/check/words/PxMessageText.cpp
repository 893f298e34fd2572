#include "check/words/PxMessageText.h"

QString PxMessageText::line(const PxCheckedFile &file, const PxSourceRange &range)
{
    return place(file.place(range), file.path());
}

QString PxMessageText::place(const PxPlace &other, const QString &path)
{
    return other.path == path
               ? QStringLiteral("line %1").arg(other.line)
               : QStringLiteral("%1:%2").arg(other.path, QString::number(other.line));
}

QString PxMessageText::quoted(const QString &name)
{
    return QLatin1Char('"') + name + QLatin1Char('"');
}

QString PxMessageText::kind(PxSourceNode::Kind kind)
{
    switch (kind) {
    case PxSourceNode::Kind::CharacterData:
        return QStringLiteral("a CDATA section");
    case PxSourceNode::Kind::Comment:
        return QStringLiteral("a comment");
    case PxSourceNode::Kind::ProcessingInstruction:
        return QStringLiteral("a processing instruction");
    default:
        return QStringLiteral("text");
    }
}

QString PxMessageText::quotedList(const QStringList &names, const QString &last)
{
    QString list;
    for (int i = 0; i < names.size(); ++i) {
        if (i > 0)
            list += i == names.size() - 1 ? last : QStringLiteral(", ");
        list += quoted(names[i]);
    }
    return list;
}

QString PxMessageText::shortened(const QString &value)
{
    constexpr int maximum = 60;
    if (value.size() <= maximum)
        return value;
    const bool isInPair = value[maximum - 1].isHighSurrogate();
    return value.left(isInPair ? maximum - 1 : maximum) + QStringLiteral("…");
}
