#include "output/PxFindingsText.h"

#include "check/findings/PxCheckTags.h"

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

QString counted(int count, const char *one, const char *many)
{
    return QString("%1 %2").arg(QString::number(count), count == 1 ? one : many);
}

} // namespace

PxOutputText PxFindingsText::text(bool isQuiet) const
{
    PxOutputText text;
    for (const PxFinding &finding : m_report.findings)
        addFinding(&text, finding);
    if (!isQuiet)
        addSummary(&text);
    return text;
}

void PxFindingsText::addFinding(PxOutputText *text, const PxFinding &finding) const
{
    const char *colour = nullptr;
    for (const auto &row : severities) {
        if (m_isColoured && row.severity == finding.severity)
            colour = row.colour;
    }
    const QString place = QString("%1:%2:%3: ")
                              .arg(finding.place.path, QString::number(finding.place.line),
                                   QString::number(finding.place.column));
    text->addLine({{place},
                   {PxCheckTags::severityName(finding.severity), colour},
                   {QString(": %1 [%2]").arg(finding.text(), finding.tag->name)}});
    if (!finding.now.isEmpty())
        text->addLine("    now: " + finding.now);
    if (!finding.hint.isEmpty())
        text->addLine("    hint: " + finding.hint);
}

void PxFindingsText::addSummary(PxOutputText *text) const
{
    QMap<QString, QStringList> notChecked; // by what is not there
    for (auto it = m_report.tagsNotChecked.begin(); it != m_report.tagsNotChecked.end(); ++it)
        notChecked[it.value()].append(it.key());
    for (auto it = notChecked.begin(); it != notChecked.end(); ++it)
        text->addLine(QString("not checked %1: %2").arg(it.key(), it->join(", ")));
    QStringList counts;
    for (const auto &row : severities) {
        const int count = m_report.count(row.severity);
        if (count > 0)
            counts.append(counted(count, row.one, row.many));
    }
    if (counts.isEmpty())
        counts.append("nothing found");
    if (m_report.knownCount > 0)
        counts.append(QString("%1 known").arg(m_report.knownCount));
    text->addLine(QString("%1 read: %2")
                      .arg(counted(m_report.fileCount, "file", "files"), counts.join(", ")));
}
