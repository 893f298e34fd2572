#include "origins/PxOrigin.h"

#include <QJsonArray>

namespace {

const char *keyword(PxOrigin::Kind kind)
{
    switch (kind) {
    case PxOrigin::Kind::File:
        return "file";
    case PxOrigin::Kind::Default:
        return "default";
    case PxOrigin::Kind::Computed:
        return "computed";
    case PxOrigin::Kind::UserDefaults:
        return "userDefaults";
    case PxOrigin::Kind::Theme:
        return "theme";
    case PxOrigin::Kind::ProductTypes:
        return "productTypes";
    case PxOrigin::Kind::Question:
        return "question";
    case PxOrigin::Kind::Clock:
        return "clock";
    }
    return "";
}

QJsonValue orNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : text;
}

QJsonValue orNull(int number)
{
    return number == 0 ? QJsonValue() : number;
}

} // namespace

QString PxOrigin::text(const PxPlace &place)
{
    return place.line == 0
               ? place.path
               : QStringList{place.path, QString::number(place.line), QString::number(place.column)}
                     .join(':');
}

QJsonObject PxOrigin::json() const
{
    return {{"kind", keyword(kind)},
            {"path", orNull(place.path)},
            {"line", orNull(place.line)},
            {"column", orNull(place.column)},
            {"from", QJsonArray::fromStringList(from)},
            {"rule", orNull(rule)}};
}

QString PxOrigin::text() const
{
    const QString at = text(place);
    switch (kind) {
    case Kind::File:
    case Kind::ProductTypes:
        return at;
    case Kind::Theme:
        return QString("%1 (%2)").arg(rule, at);
    case Kind::UserDefaults:
        return QString("user defaults (%1)").arg(at);
    case Kind::Question:
        return "asked";
    case Kind::Default:
        return rule.isEmpty() ? QString("default") : "default: " + rule;
    default:
        return rule + otherPlaces();
    }
}

/** The places that the rule does not have, in brackets; of each file the path once. */
QString PxOrigin::otherPlaces() const
{
    QStringList places;
    QString last;
    for (const QString &input : from) {
        if (input.startsWith('/') || rule.contains('('))
            continue;
        const QString path = input.section(':', 0, -3);
        places.append(path == last ? input.section(':', -2) : input);
        last = path;
    }
    return places.isEmpty() ? QString() : QString(" (%1)").arg(places.join(", "));
}
