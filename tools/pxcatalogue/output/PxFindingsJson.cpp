#include "output/PxFindingsJson.h"

#include "check/findings/PxCheckTags.h"
#include "output/PxFindingsBaseline.h"

#include <QJsonArray>

namespace {

constexpr int formatVersion = 1; // raise it when JSON changes, except for new members

QJsonObject jsonOf(const PxPlace &place)
{
    return {{"path", place.path},
            {"line", place.line},
            {"column", place.column},
            {"endLine", place.endLine},
            {"endColumn", place.endColumn}};
}

QJsonObject jsonOf(const PxFinding &finding)
{
    QJsonObject json = jsonOf(finding.place);
    QJsonArray related;
    if (!finding.related.path.isEmpty())
        related.append(jsonOf(finding.related));
    json.insert("severity", PxCheckTags::severityName(finding.severity));
    json.insert("tag", finding.tag->name);
    json.insert("message", finding.text());
    json.insert("now", finding.now);
    json.insert("hint", finding.hint);
    json.insert("replacement",
                finding.replacement.isNull() ? QJsonValue() : QJsonValue(finding.replacement));
    json.insert("related", related);
    json.insert("otherPlaces", finding.otherPlaces);
    json.insert("count", finding.count());
    return json;
}

QJsonValue jsonOf(const std::optional<PxCheckedCatalogue> &catalogue)
{
    if (!catalogue)
        return QJsonValue();
    return QJsonObject{{"path", catalogue->path},
                       {"from", catalogue->from},
                       {"products", catalogue->productCount},
                       {"legacyProducts", catalogue->legacyProductCount},
                       {"themes", catalogue->themeCount}};
}

} // namespace

QJsonObject PxFindingsJson::of(const PxCheckReport &report)
{
    QJsonObject counts;
    for (const PxSeverity severity : PxCheckTags::severities())
        counts.insert(PxCheckTags::severityName(severity), report.count(severity));
    QJsonArray findings;
    for (const PxFinding &finding : report.findings)
        findings.append(jsonOf(finding));
    return {{"format", formatVersion},
            {"catalogue", jsonOf(report.catalogue)},
            {"files", report.fileCount},
            {"counts", counts},
            {"known", report.knownCount},
            {"gone", PxFindingsBaseline::jsonOf(report.gone)},
            {"notChecked", QJsonArray::fromStringList(report.tagsNotChecked.keys())},
            {"findings", findings}};
}
