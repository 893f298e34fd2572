#include "output/PxFindingsJson.h"

#include "check/findings/PxCheckTags.h"

#include <QJsonArray>

namespace {

constexpr int formatVersion = 1; // raise it when JSON changes, except for new members

QJsonObject jsonOf(const PxFinding &finding)
{
    return {{"path", finding.place.path},
            {"line", finding.place.line},
            {"column", finding.place.column},
            {"endLine", finding.place.endLine},
            {"endColumn", finding.place.endColumn},
            {"severity", PxCheckTags::severityName(finding.severity)},
            {"tag", finding.tag->name},
            {"message", finding.text()},
            {"now", finding.now},
            {"hint", finding.hint},
            {"count", finding.count()}};
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
            {"files", report.fileCount},
            {"counts", counts},
            {"known", report.knownCount},
            {"notChecked", QJsonArray::fromStringList(report.tagsNotChecked.keys())},
            {"findings", findings}};
}
