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

QString joined(const QVector<PxOrigin::Part> &parts, const PxOrigin::Naming &naming)
{
    QString text;
    for (const PxOrigin::Part &part : parts)
        text += !part.isPlace() ? part.text
                : naming        ? naming(part.place)
                                : PxOrigin::text(part.place);
    return text;
}

} // namespace

bool PxOrigin::Part::operator==(const Part &other) const
{
    const bool isSamePosition =
        place.line == other.place.line && (place.line == 0 || place.column == other.place.column);
    return text == other.text && isSamePosition && place.path == other.place.path;
}

QString PxOrigin::text(const PxPlace &place)
{
    return place.line == 0 ? place.path : place.path + ':' + position(place);
}

QString PxOrigin::position(const PxPlace &place)
{
    return QString::number(place.line) + ':' + QString::number(place.column);
}

QJsonObject PxOrigin::json() const
{
    QJsonArray inputs;
    for (const Part &input : from)
        inputs.append(joined({input}, nullptr));
    return {{"kind", keyword(kind)},
            {"path", orNull(place.path)},
            {"line", orNull(place.line)},
            {"column", orNull(place.column)},
            {"from", inputs},
            {"rule", orNull(formula.isEmpty() ? rule : joined(formula, nullptr))}};
}

QString PxOrigin::text(const Naming &naming) const
{
    return joined(parts(), naming);
}

QVector<PxOrigin::Part> PxOrigin::parts() const
{
    const Part at{QString(), place};
    switch (kind) {
    case Kind::File:
    case Kind::ProductTypes:
        return {at};
    case Kind::Theme:
        return {{rule + " ("}, at, {")"}};
    case Kind::UserDefaults:
        return {{"user defaults ("}, at, {")"}};
    case Kind::Question:
        return {{"asked"}};
    case Kind::Default:
        return {{rule.isEmpty() ? QString("default") : "default: " + rule}};
    default:
        return formula.isEmpty() ? QVector<Part>{{rule}} + otherPlaces() : formula;
    }
}

/** The places that the rule does not have, in brackets; of each file the path once. */
QVector<PxOrigin::Part> PxOrigin::otherPlaces() const
{
    QVector<Part> places;
    QString last;
    for (const Part &input : from) {
        if (!input.isPlace())
            continue;
        places.append({places.isEmpty() ? " (" : ", "});
        places.append(input.place.path == last ? Part{position(input.place)} : input);
        last = input.place.path;
    }
    if (!places.isEmpty())
        places.append({")"});
    return places;
}
