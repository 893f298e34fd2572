#include "output/PxFindingsJson.h"

#include "check/findings/PxCheckTags.h"

#include <QJsonArray>

namespace {

constexpr int formatVersion = 1; // a new member keeps it, any other change raises it

QJsonObject jsonOf(const PxFinding &finding)
{
    return {
        {QStringLiteral("path"), finding.place.path},
        {QStringLiteral("line"), finding.place.line},
        {QStringLiteral("column"), finding.place.column},
        {QStringLiteral("endLine"), finding.place.endLine},
        {QStringLiteral("endColumn"), finding.place.endColumn},
        {QStringLiteral("severity"), QLatin1String(PxCheckTags::severityName(finding.severity))},
        {QStringLiteral("tag"), QLatin1String(finding.tag->name)},
        {QStringLiteral("message"), finding.text()},
        {QStringLiteral("now"), finding.now},
        {QStringLiteral("hint"), finding.hint},
        {QStringLiteral("count"), finding.count()}};
}

} // namespace

QJsonObject PxFindingsJson::json() const
{
    QJsonObject counts;
    for (const PxSeverity severity : PxCheckTags::severities())
        counts.insert(QLatin1String(PxCheckTags::severityName(severity)), m_report.count(severity));
    QJsonArray findings;
    for (const PxFinding &finding : m_report.findings)
        findings.append(jsonOf(finding));
    return {
        {QStringLiteral("format"), formatVersion},
        {QStringLiteral("files"), m_report.fileCount},
        {QStringLiteral("counts"), counts},
        {QStringLiteral("known"), m_report.knownCount},
        {QStringLiteral("notChecked"), QJsonArray::fromStringList(m_report.tagsNotChecked.keys())},
        {QStringLiteral("findings"), findings}};
}
