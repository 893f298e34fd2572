#include "PxFindingsText.h"

#include "PxTerminal.h"
#include "check/PxCheckTags.h"

namespace {

constexpr struct
{
    PxSeverity severity;
    const char *colour; // as a terminal wants it
    const char *one;
    const char *many;
} severities[] = {
    {PxSeverity::Error, "\x1b[1;31m", "error", "errors"},
    {PxSeverity::Warning, "\x1b[1;35m", "warning", "warnings"},
    {PxSeverity::Info, "\x1b[1;36m", "info", "infos"},
    {PxSeverity::Pedantic, "\x1b[1;34m", "pedantic", "pedantic"},
};
constexpr const char *noColour = "\x1b[0m";

QString counted(int count, const char *one, const char *many)
{
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? one : many));
}

} // namespace

QString PxFindingsText::findings() const
{
    QString text;
    for (const PxFinding &each : m_report.findings)
        text += finding(each);
    return text;
}

QString PxFindingsText::finding(const PxFinding &finding) const
{
    QString severity = QLatin1String(PxCheckTags::severityName(finding.severity));
    for (const auto &row : severities) {
        if (m_isColoured && row.severity == finding.severity)
            severity = QLatin1String(row.colour) + severity + QLatin1String(noColour);
    }
    // One by one: what a file says may look like the place of the next argument.
    QString text = PxTerminal::printable(finding.place.path) +
                   QStringLiteral(":%1:%2: ").arg(finding.place.line).arg(finding.place.column) +
                   severity + QLatin1String(": ") + PxTerminal::printable(finding.message) +
                   QLatin1String(" [") + QLatin1String(finding.tag->name) + QLatin1String("]\n");
    if (!finding.now.isEmpty())
        text += QLatin1String("    now: ") + PxTerminal::printable(finding.now) + QLatin1Char('\n');
    if (!finding.hint.isEmpty())
        text +=
            QLatin1String("    hint: ") + PxTerminal::printable(finding.hint) + QLatin1Char('\n');
    return text;
}

QString PxFindingsText::summary() const
{
    QString text;
    QMap<QString, QStringList> notChecked; // by what is not there
    for (auto it = m_report.tagsNotChecked.begin(); it != m_report.tagsNotChecked.end(); ++it)
        notChecked[it.value()].append(it.key());
    for (auto it = notChecked.begin(); it != notChecked.end(); ++it)
        text += QLatin1String("not checked ") + it.key() + QLatin1String(": ") +
                it->join(QLatin1String(", ")) + QLatin1Char('\n');
    QStringList counts;
    for (const auto &row : severities) {
        const int count = m_report.count(row.severity);
        if (count > 0)
            counts.append(counted(count, row.one, row.many));
    }
    if (counts.isEmpty())
        counts.append(QStringLiteral("nothing found"));
    if (m_report.knownCount > 0)
        counts.append(QStringLiteral("%1 known").arg(m_report.knownCount));
    return text + counted(m_report.fileCount, "file", "files") + QLatin1String(" read: ") +
           counts.join(QLatin1String(", ")) + QLatin1Char('\n');
}
