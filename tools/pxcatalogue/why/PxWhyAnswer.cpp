#include "why/PxWhyAnswer.h"

#include "report/PxReport.h"

#include <algorithm>

namespace {

QString textOf(const PxWhyValue &value)
{
    if (value.json.isNull())
        return "none";
    return value.json == QJsonValue("")
               ? QString("empty")
               : PxReportValue::text(value.json, value.format) + PxReportValue::unit(value.format);
}

QJsonArray jsonOf(const QVector<PxOrigin> &origins)
{
    QJsonArray array;
    for (const PxOrigin &origin : origins)
        array.append(origin.json());
    return array;
}

QJsonObject jsonOf(const PxWhyRule &rule)
{
    return {{"tag", rule.tag},
            {"holds", rule.holds},
            {"asked", rule.asked.json},
            {"given", rule.given.json},
            {"origins", jsonOf(rule.origins)},
            {"lost", jsonOf(rule.lost)}};
}

/** What the table says in place of the path. */
const char *wordFor(const PxOrigin &origin, const QString &file)
{
    switch (origin.kind) {
    case PxOrigin::Kind::Theme:
        return "theme";
    case PxOrigin::Kind::UserDefaults:
        return "user";
    case PxOrigin::Kind::ProductTypes:
        return "types";
    default:
        return origin.place.path == file ? "file" : "other";
    }
}

} // namespace

PxWhyAnswer::PxWhyAnswer(const QVector<PxWhyQuestion> &questions, const QString &file)
    : m_questions(questions)
    , m_file(file)
{}

bool PxWhyAnswer::isYes() const
{
    return std::all_of(m_questions.begin(), m_questions.end(),
                       [](const PxWhyQuestion &question) { return question.answer; });
}

/** The tag of the first rule that does not hold; empty if all do. */
QString PxWhyAnswer::decidedBy() const
{
    for (const PxWhyQuestion &question : m_questions) {
        for (const PxWhyRule &rule : question.rules) {
            if (!rule.holds)
                return rule.tag;
        }
    }
    return QString();
}

QJsonObject PxWhyAnswer::json() const
{
    QStringList texts;
    QJsonArray rules;
    for (const PxWhyQuestion &question : m_questions) {
        texts.append(question.text);
        for (const PxWhyRule &rule : question.rules)
            rules.append(jsonOf(rule));
    }
    QJsonObject json = PxReport().json();
    json["question"] = texts.join(' ');
    json["answer"] = isYes();
    json["decidedBy"] = isYes() ? QJsonValue() : decidedBy();
    json["rules"] = rules;
    return json;
}

PxOutputText PxWhyAnswer::text(int width) const
{
    QString decidedBy = this->decidedBy();
    PxReport report;
    report.addFields("answer", "", {{"answer", "Answer", isYes() ? "yes" : "no: " + decidedBy}});
    addFiles(&report);
    // clang-format off
    for (const PxWhyQuestion &question : m_questions) {
        report.addTable("rules", question.text.toUtf8(), {
            {"holds", "", PxReportFormat::Key},
            {"tag", "Rule", PxReportFormat::Key},
            {"asked", "Asked"},
            {"given", "Given"},
            {"origins", "Where"},
        }, rowsOf(question, &decidedBy));
        report.addTable("lost", "Entries that are not used", {
            {"place", "Entry", PxReportFormat::Key},
            {"tags", "For", PxReportFormat::Key},
            {"reason", "Reason"},
        }, lostOf(question));
    }
    // clang-format on
    return report.text(width);
}

/** The files in which the values are, each once. */
void PxWhyAnswer::addFiles(PxReport *report) const
{
    QStringList paths;
    for (const PxWhyQuestion &question : m_questions) {
        for (const PxWhyRule &rule : question.rules) {
            for (const PxOrigin &origin : rule.origins + rule.lost) {
                const QString path = origin.place.path;
                if (path.isEmpty() || paths.contains(path))
                    continue;
                paths.append(path);
                report->addField("answer", {"file", wordFor(origin, m_file), path});
            }
        }
    }
}

/** Marks the first rule that decides, and clears the tag then. */
QVector<QJsonArray> PxWhyAnswer::rowsOf(const PxWhyQuestion &question, QString *decidedBy) const
{
    QVector<QJsonArray> rows;
    for (const PxWhyRule &rule : question.rules) {
        const bool decides = !rule.holds && rule.tag == *decidedBy;
        if (decides)
            decidedBy->clear();
        rows.append({rule.holds ? " yes"
                     : decides  ? ">no"
                                : " no",
                     rule.tag, textOf(rule.asked), textOf(rule.given), placesOf(rule)});
    }
    return rows;
}

/** An entry that is not used by several rules for the same reason is one row. */
QVector<QJsonArray> PxWhyAnswer::lostOf(const PxWhyQuestion &question) const
{
    QVector<QJsonArray> rows;
    for (const PxWhyRule &rule : question.rules) {
        for (const PxOrigin &origin : rule.lost) {
            const QString place = origin.place.line > 0 ? placeOf(origin) : QString();
            const auto same = std::find_if(rows.begin(), rows.end(), [&](const QJsonArray &row) {
                return row[0] == place && row[2] == origin.rule;
            });
            if (same == rows.end())
                rows.append({place, rule.tag, origin.rule});
            else
                same->replace(1, (*same)[1].toString() + ", " + rule.tag);
        }
    }
    return rows;
}

QString PxWhyAnswer::placesOf(const PxWhyRule &rule) const
{
    using Kind = PxOrigin::Kind;
    const bool isNothing = rule.given.json.isNull();
    QStringList places;
    for (const PxOrigin &origin : rule.origins) {
        const bool isKnownAnyway = origin.kind == Kind::Question || origin.kind == Kind::Clock ||
                                   (isNothing && origin.kind == Kind::Default);
        if (!isKnownAnyway)
            places.append(placeOf(origin));
    }
    return places.join(", ");
}

/** Shorter than with the whole path, which stands above; a formula with the places in it. */
QString PxWhyAnswer::placeOf(const PxOrigin &origin) const
{
    const auto naming = [&](const PxPlace &place) {
        const bool isOwn = place.path == origin.place.path;
        if (place.line == 0 || (!isOwn && place.path != m_file))
            return PxOrigin::text(place);
        return QString("%1 %2").arg(isOwn ? wordFor(origin, m_file) : "file",
                                    PxOrigin::position(place));
    };
    const bool isWhole = origin.place.line == 0 || !origin.formula.isEmpty();
    return isWhole ? origin.text(naming) : naming(origin.place);
}
